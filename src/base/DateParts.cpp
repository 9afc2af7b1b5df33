#include "base/DateParts.h"

#include "base/Characters.h"
#include "base/MonthNames.h"

#include <cstddef>

namespace sifter {

namespace {

constexpr char16_t kEnd = u'\0';

bool IsGap(char16_t unit) { return IsSpace(unit) || unit == u','; }

bool IsDateMark(char16_t unit) { return unit == u'/' || unit == u'-'; }

bool IsTimeMark(char16_t unit) { return unit == u':' || unit == u'.'; }

TextView WithoutSpaces(TextView text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

class PartsReader {
 public:
  explicit PartsReader(TextView text) : text_(WithoutSpaces(text)) {}

  bool Read() {
    if (text_.empty() || IsGap(text_.front()) || IsGap(text_.back()) || IsDateMark(text_.back()))
      return false;
    while (at_ < text_.size()) {
      if (!ReadPart()) return false;
      SkipGap();
      if (IsDateMark(Current())) {
        if (++dateMarks_ > kMostDateMarks) return false;
        ++at_;
        SkipGap();
      }
    }
    return true;
  }

  const DateParts& Parts() const { return parts_; }

 private:
  static constexpr int kMostDateMarks = 2;
  static constexpr int kLargestNumber = 9999;

  char16_t At(std::size_t at) const { return at < text_.size() ? text_[at] : kEnd; }
  char16_t Current() const { return At(at_); }
  std::size_t AfterGap() const {
    std::size_t at = at_;
    while (IsGap(At(at))) ++at;
    return at;
  }
  void SkipGap() { at_ = AfterGap(); }

  bool ReadPart() {
    if (IsLetter(Current())) return ReadMonth();
    int number = 0;
    if (!ReadNumber(number)) return false;
    return AtTime() ? ReadTime(number) : AddNumber(number);
  }

  bool ReadNumber(int& number) {
    const std::size_t first = at_;
    for (; IsDigit(Current()); ++at_) {
      number = number * 10 + DigitValue(Current());
      if (number > kLargestNumber) return false;
    }
    return at_ > first;
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
    parts_.numbersBeforeMonth = parts_.numberCount;
    return true;
  }

  // The day may come after the time, but the time doesn't stand within the day.
  bool MayAddToDay() const { return !parts_.HasTime() || !dayBeforeTime_; }

  // Whether the number just read is an hour, by what follows it.
  bool AtTime() const {
    const std::size_t next = AfterGap();
    return IsTimeMark(At(next)) || MeridiemAt(next).length > 0;
  }

  bool ReadTime(int hour) {
    if (parts_.HasTime()) return false;
    dayBeforeTime_ = parts_.HasDay();
    int minute = 0;
    int second = 0;
    for (int* const field : {&minute, &second}) {
      const std::size_t next = AfterGap();
      if (!IsTimeMark(At(next))) break;
      at_ = next + 1;
      SkipGap();
      if (!ReadNumber(*field)) return false;
    }
    ReadMeridiem(hour);
    if (hour > 23 || minute > 59 || second > 59) return false;
    parts_.secondOfDay = (hour * 60 + minute) * 60 + second;
    return true;
  }

  struct Meridiem {
    std::size_t length = 0;  // 0 when there is none
    bool afternoon = false;
  };

  Meridiem MeridiemAt(std::size_t at) const {
    const auto letterAt = [this](std::size_t i) {
      return IsLetter(At(i)) ? LowerLetter(At(i)) : kEnd;
    };
    const char16_t first = letterAt(at);
    if (first != u'a' && first != u'p') return {};
    const std::size_t length = letterAt(at + 1) == u'm' ? 2 : 1;
    if (letterAt(at + length) != kEnd) return {};
    return {length, first == u'p'};
  }

  // An hour past 12 says by itself which half of the day it is in.
  void ReadMeridiem(int& hour) {
    const std::size_t at = AfterGap();
    const Meridiem meridiem = MeridiemAt(at);
    if (meridiem.length == 0) return;
    at_ = at + meridiem.length;
    if (meridiem.afternoon && hour < 12) hour += 12;
    if (!meridiem.afternoon && hour == 12) hour = 0;
  }

  TextView text_;
  std::size_t at_ = 0;
  int dateMarks_ = 0;
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
