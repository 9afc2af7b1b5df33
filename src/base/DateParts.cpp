#include "base/DateParts.h"

#include "base/Characters.h"
#include "base/MonthNames.h"

#include <cstddef>

namespace sifter {

namespace {

constexpr char16_t kEnd = u'\0';

class PartsReader {
 public:
  explicit PartsReader(TextView text) : text_(text) {}

  bool Read() {
    SkipBlanks();
    while (at_ < text_.size()) {
      if (!ReadPart()) return false;
      ReadSeparator();
    }
    return separator_ != Separator::kMark;
  }

  const DateParts& Parts() const { return parts_; }

 private:
  // What stands in front of the next part.
  enum class Separator { kNone, kBlanks, kMark };

  char16_t Current() const { return at_ < text_.size() ? text_[at_] : kEnd; }
  char16_t Next() const { return at_ + 1 < text_.size() ? text_[at_ + 1] : kEnd; }
  bool SkipBlanks() {
    const std::size_t first = at_;
    while (IsBlank(Current())) ++at_;
    return at_ > first;
  }

  void ReadSeparator() {
    separator_ = SkipBlanks() ? Separator::kBlanks : Separator::kNone;
    const char16_t unit = Current();
    if (unit == u'/' || unit == u'-' || unit == u',') {
      separator_ = Separator::kMark;
      ++at_;
      SkipBlanks();
    }
  }

  bool ReadPart() {
    if (IsLetter(Current())) return ReadMonth();
    int number = 0;
    if (!ReadNumber(number)) return false;
    return AtTime() ? ReadTime(number) : AddNumber(number);
  }

  bool ReadNumber(int& number) {
    constexpr int kMostDigits = 4;
    int digits = 0;
    for (; IsDigit(Current()); ++at_) {
      if (++digits > kMostDigits) return false;
      number = number * 10 + DigitValue(Current());
    }
    return digits > 0;
  }

  bool AddNumber(int number) {
    if (!MayAddToDay() || parts_.numberCount == DateParts::kMostNumbers) return false;
    parts_.numbers[parts_.numberCount++] = number;
    return true;
  }

  bool ReadMonth() {
    const std::size_t first = at_;
    while (IsLetter(Current())) ++at_;
    const int month = MonthNamed(text_.substr(first, at_ - first));
    if (month == 0 || parts_.namedMonth != 0 || !MayAddToDay()) return false;
    parts_.namedMonth = month;
    return true;
  }

  // The day may come after the time, but the time doesn't stand within the day.
  bool MayAddToDay() const {
    return !parts_.HasTime() || (!dayBeforeTime_ && (parts_.HasDay() || SetApart()));
  }
  bool SetApart() const { return separator_ == Separator::kBlanks; }

  // Whether the number just read is an hour, by what follows it.
  bool AtTime() const { return IsTimeMark(Current()) || MeridiemAt(AfterBlanks()).length > 0; }
  static bool IsTimeMark(char16_t unit) { return unit == u':' || unit == u'.'; }
  std::size_t AfterBlanks() const {
    std::size_t at = at_;
    while (at < text_.size() && IsBlank(text_[at])) ++at;
    return at;
  }

  bool ReadTime(int hour) {
    dayBeforeTime_ = parts_.HasDay();
    if (parts_.HasTime() || (dayBeforeTime_ && !SetApart())) return false;
    int minute = 0;
    int second = 0;
    const char16_t mark = Current();
    if (IsTimeMark(mark)) {
      ++at_;
      if (!ReadNumber(minute)) return false;
      if (Current() == mark) {
        ++at_;
        if (!ReadNumber(second)) return false;
      }
    }
    if (!ReadMeridiem(hour) || hour > 23 || minute > 59 || second > 59) return false;
    parts_.secondOfDay = (hour * 60 + minute) * 60 + second;
    return true;
  }

  struct Meridiem {
    std::size_t length = 0;  // 0 when there is none
    bool afternoon = false;
  };

  Meridiem MeridiemAt(std::size_t at) const {
    const auto letterAt = [this](std::size_t i) {
      return i < text_.size() && IsLetter(text_[i]) ? LowerLetter(text_[i]) : kEnd;
    };
    const char16_t first = letterAt(at);
    if (first != u'a' && first != u'p') return {};
    const std::size_t length = letterAt(at + 1) == u'm' ? 2 : 1;
    if (letterAt(at + length) != kEnd) return {};
    return {length, first == u'p'};
  }

  bool ReadMeridiem(int& hour) {
    const std::size_t at = AfterBlanks();
    const Meridiem meridiem = MeridiemAt(at);
    if (meridiem.length == 0) return true;
    at_ = at + meridiem.length;
    if (meridiem.afternoon) {
      if (hour < 12) hour += 12;
      return true;
    }
    if (hour == 12) hour = 0;
    return hour < 12;
  }

  TextView text_;
  std::size_t at_ = 0;
  Separator separator_ = Separator::kNone;
  bool dayBeforeTime_ = false;
  DateParts parts_;
};

}  // namespace

std::optional<DateParts> ReadDateParts(TextView text) {
  PartsReader reader(text);
  if (!reader.Read()) return std::nullopt;
  return reader.Parts();
}

}  // namespace sifter
