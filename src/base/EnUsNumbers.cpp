#include "base/EnUsNumbers.h"

#include "base/Characters.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace sifter {

namespace {

constexpr char16_t kEnd = u'\0';

// Digits with their point and commas, and where they lie.
struct Mantissa {
  TextView units;
  bool hasDigits = false;
};

// The power of ten of the first digit other than 0, and the 19 digits that begin there.
struct LeadingDigits {
  std::int64_t power = 0;
  std::uint64_t digits = 0;
};

LeadingDigits Lead(TextView mantissa) {
  constexpr int kDigits = 19;
  LeadingDigits lead;
  int taken = 0;
  bool pointSeen = false;
  for (const char16_t unit : mantissa) {
    if (unit == u'.') pointSeen = true;
    if (!IsDigit(unit)) continue;
    const bool significant = taken > 0 || unit != u'0';
    // Power counts the places before the point, or (negative) the zeros right after it.
    if (!pointSeen && significant) ++lead.power;
    if (pointSeen && !significant) --lead.power;
    if (significant && taken < kDigits) {
      lead.digits = lead.digits * 10 + static_cast<unsigned>(DigitValue(unit));
      ++taken;
    }
  }
  if (taken == 0) return {};
  for (; taken < kDigits; ++taken) lead.digits *= 10;
  --lead.power;
  return lead;
}

bool FitsDouble(TextView mantissa, std::int64_t exponent) {
  // The largest finite double, and what still rounds to it, begins with these digits.
  constexpr std::uint64_t kLargest = 1797693134862315807;
  const LeadingDigits lead = Lead(mantissa);
  if (lead.digits == 0) return true;
  const std::int64_t power = lead.power + exponent;
  return power < 308 || (power == 308 && lead.digits <= kLargest);
}

class NumberTest {
 public:
  explicit NumberTest(TextView text) : text_(text) {}

  bool Run() {
    SkipSpaces();
    if (Current() == u'&') return ReadBased();
    return ReadPrefix() && ReadAmount() && ReadSuffix();
  }

 private:
  char16_t Current() const { return at_ < text_.size() ? text_[at_] : kEnd; }
  bool AtEnd() const { return at_ == text_.size(); }
  void SkipSpaces() {
    while (IsSpace(Current())) ++at_;
  }

  // Moves past what may be there only once.
  bool TakeOnce(bool& taken) {
    if (taken) return false;
    taken = true;
    ++at_;
    return true;
  }

  bool ReadPrefix() {
    for (;;) {
      SkipSpaces();
      switch (Current()) {
        case u'(':
          open_ = true;
          [[fallthrough]];
        case u'+':
        case u'-':
          if (!TakeOnce(signed_)) return false;
          break;
        case u'$':
          if (!TakeOnce(currencyBefore_)) return false;
          break;
        default:
          return true;
      }
    }
  }

  bool ReadSuffix() {
    for (;;) {
      SkipSpaces();
      switch (Current()) {
        case u')':
          if (!open_) return false;
          open_ = false;
          ++at_;
          break;
        case u'+':
        case u'-':
          if (!TakeOnce(signed_)) return false;
          break;
        case u'$':
          if (!TakeOnce(currencyBehind_)) return false;
          break;
        default:
          return AtEnd() && !open_;
      }
    }
  }

  bool ReadAmount() {
    const Mantissa mantissa = ReadMantissa();
    std::int64_t exponent = 0;
    if (!mantissa.hasDigits || !ReadExponent(exponent)) return false;
    constexpr std::size_t kAlwaysFits = 300;
    if (exponent <= 0 && mantissa.units.size() <= kAlwaysFits) return true;
    return FitsDouble(mantissa.units, exponent);
  }

  // A comma in front makes it no number, for no group ends there.
  Mantissa ReadMantissa() {
    const std::size_t first = at_;
    Mantissa mantissa;
    if (Current() == u',') return mantissa;
    bool pointSeen = false;
    for (;; ++at_) {
      const char16_t unit = Current();
      if (IsDigit(unit)) {
        mantissa.hasDigits = true;
      } else if (unit == u'.' && !pointSeen) {
        pointSeen = true;
      } else if (unit != u',') {
        mantissa.units = text_.substr(first, at_ - first);
        return mantissa;
      }
    }
  }

  bool ReadExponent(std::int64_t& exponent) {
    if (Current() != u'e' && Current() != u'E') return true;
    ++at_;
    const bool negative = Current() == u'-';
    if (negative || Current() == u'+') ++at_;
    if (!IsDigit(Current())) return false;
    // Far past every text's length in digits, so that no number of zeros makes up for it.
    constexpr std::int64_t kHuge = 1'000'000'000'000;
    for (; IsDigit(Current()); ++at_)
      if (exponent < kHuge) exponent = exponent * 10 + DigitValue(Current());
    if (negative) exponent = -exponent;
    return true;
  }

  bool ReadBased() {
    ++at_;
    const char16_t letter = IsLetter(Current()) ? LowerLetter(Current()) : kEnd;
    if (letter != u'h' && letter != u'o') return false;
    ++at_;
    if (!ReadBasedDigits(letter == u'h' ? 16 : 8)) return false;
    SkipSpaces();
    return AtEnd();
  }

  bool ReadBasedDigits(int base) {
    const auto radix = static_cast<std::uint64_t>(base);
    std::uint64_t number = 0;
    const std::size_t first = at_;
    for (int digit = DigitValue(Current(), base); digit >= 0; digit = DigitValue(Current(), base)) {
      if (number > std::numeric_limits<std::uint64_t>::max() / radix) return false;
      number = number * radix + static_cast<unsigned>(digit);
      ++at_;
    }
    return at_ > first;
  }

  TextView text_;
  std::size_t at_ = 0;
  bool signed_ = false;  // by + or - on either side, or by parentheses
  bool currencyBefore_ = false;
  bool currencyBehind_ = false;
  bool open_ = false;  // a parenthesis that is not closed yet
};

}  // namespace

bool IsEnUsNumber(TextView text) { return NumberTest(text).Run(); }

}  // namespace sifter
