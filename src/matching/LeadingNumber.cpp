#include "matching/LeadingNumber.h"

#include "base/Characters.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>

namespace sifter {

namespace {

using Position = const char16_t*;

constexpr double kLargest = std::numeric_limits<double>::max();

// A decimal number as it stands in the text.
struct Decimal {
  Position first;             // of the digits and the point
  Position last;              // behind them
  std::uint64_t digits = 0;   // of all of them in a row; wraps past 19
  std::ptrdiff_t count = 0;   // of the digits
  std::ptrdiff_t places = 0;  // digits behind the point
  std::int64_t exponent = 0;
};

Position ReadDigits(Position at, Position end, Decimal& number) {
  const Position first = at;
  for (; at != end && IsDigit(*at); ++at)
    number.digits = number.digits * 10 + static_cast<unsigned>(DigitValue(*at));
  number.count += at - first;
  return at;
}

std::int64_t ReadExponent(Position at, Position end) {
  if (at == end || LowerLetter(*at) != u'e') return 0;
  ++at;
  const bool negative = at != end && *at == u'-';
  if (at != end && (*at == u'-' || *at == u'+')) ++at;
  // More than the digits of any text can make up for.
  constexpr std::int64_t kHuge = 1'000'000'000'000;
  std::int64_t exponent = 0;
  for (; at != end && IsDigit(*at); ++at)
    if (exponent < kHuge) exponent = exponent * 10 + DigitValue(*at);
  return negative ? -exponent : exponent;
}

Decimal ReadDecimal(Position at, Position end) {
  Decimal number{.first = at, .last = at};
  at = ReadDigits(at, end, number);
  if (at != end && *at == u'.') {
    const Position point = at;
    at = ReadDigits(at + 1, end, number);
    number.places = at - point - 1;
  }
  number.last = at;
  if (number.count > 0) number.exponent = ReadExponent(at, end);
  return number;
}

// The nearest double to digits * 10^exponent when one multiplication or division of two doubles
// that are exact gives it; nothing when it doesn't.
std::optional<double> ByOneOperation(const Decimal& number) {
  constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr std::int64_t kMostExact = 22;
  constexpr std::ptrdiff_t kMostDigits = 19;
  constexpr std::uint64_t kExactIntegers = std::uint64_t{1} << 53;
  const std::int64_t exponent = number.exponent - number.places;
  if (number.count > kMostDigits || number.digits > kExactIntegers || exponent > kMostExact ||
      exponent < -kMostExact)
    return std::nullopt;
  const auto digits = static_cast<double>(number.digits);
  return exponent < 0 ? digits / kPowers[-exponent] : digits * kPowers[exponent];
}

// Digits without leading zeros: 0.<digits> * 10^power.
struct Significant {
  // Two neighbouring doubles are told apart from their middle by 768 digits at most; of what
  // follows it matters only whether it is more than nothing.
  static constexpr std::size_t kKept = 768;
  static constexpr std::size_t kRoomForExponent = 24;

  char digits[kKept + 1 + kRoomForExponent];
  std::size_t count = 0;
  std::int64_t power = 0;
};

void Collect(const Decimal& number, Significant& significant) {
  significant.power = number.exponent;
  bool pointSeen = false;
  bool more = false;
  for (Position at = number.first; at != number.last; ++at) {
    if (*at == u'.') {
      pointSeen = true;
      continue;
    }
    const bool leadingZero = significant.count == 0 && *at == u'0';
    if (pointSeen && leadingZero) --significant.power;
    if (!pointSeen && !leadingZero) ++significant.power;
    if (leadingZero) continue;
    if (significant.count < Significant::kKept) {
      significant.digits[significant.count++] = static_cast<char>(*at);
    } else {
      more = more || *at != u'0';
    }
  }
  if (more) significant.digits[significant.count++] = '1';
}

double ByAllDigits(const Decimal& number) {
  Significant significant;
  Collect(number, significant);
  if (significant.count == 0 || significant.power < -400) return 0;
  if (significant.power > 400) return kLargest;
  char* const exponent = significant.digits + significant.count;
  *exponent = 'e';
  const std::to_chars_result written =
      std::to_chars(exponent + 1, std::end(significant.digits),
                    significant.power - static_cast<std::int64_t>(significant.count));
  double result = 0;
  const std::from_chars_result read = std::from_chars(significant.digits, written.ptr, result);
  const bool representable = read.ec == std::errc() && std::isfinite(result);
  if (representable) return result;
  return significant.power > 0 ? kLargest : 0;
}

double DecimalNumber(Position at, Position end) {
  const Decimal number = ReadDecimal(at, end);
  if (const std::optional<double> result = ByOneOperation(number)) return *result;
  return ByAllDigits(number);
}

// `at` stands behind the ampersand.
double BasedNumber(Position at, Position end) {
  if (at == end) return 0;
  const char16_t letter = LowerLetter(*at++);
  if (letter != u'h' && letter != u'o') return 0;
  const int bitsPerDigit = letter == u'h' ? 4 : 3;
  std::uint64_t bits = 0;
  std::int64_t dropped = 0;
  for (; at != end; ++at) {
    const int digit = DigitValue(*at, 1 << bitsPerDigit);
    if (digit < 0) break;
    if (std::countl_zero(bits) >= bitsPerDigit) {
      bits = (bits << bitsPerDigit) | static_cast<unsigned>(digit);
    } else {
      // Far below what a double keeps: the last bit remembers for the rounding that there was
      // something.
      dropped += bitsPerDigit;
      if (digit > 0) bits |= 1;
    }
  }
  if (dropped > 1000) return kLargest;
  const double result = std::ldexp(static_cast<double>(bits), static_cast<int>(dropped));
  return std::isfinite(result) ? result : kLargest;
}

}  // namespace

double LeadingNumber(TextView text) {
  Position at = text.data();
  const Position end = at + text.size();
  while (at != end && IsBlank(*at)) ++at;
  if (at == end) return 0;
  if (*at == u'&') return BasedNumber(at + 1, end);
  const bool negative = *at == u'-';
  if (negative || *at == u'+') ++at;
  const double magnitude = DecimalNumber(at, end);
  return negative ? -magnitude : magnitude;
}

}  // namespace sifter
