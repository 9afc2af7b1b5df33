#include "base/EnUsDates.h"

#include "base/Calendar.h"
#include "base/DateParts.h"

namespace sifter {

namespace {

// The number of a day, or nothing when the calendar has no such day.
using MaybeDay = std::optional<int>;

// Newer versions of the platform put 30 to 49 into this century; older ones drew the line at 29.
int FullYear(int year) {
  if (year < 50) return 2000 + year;
  if (year < 100) return 1900 + year;
  return year;
}

MaybeDay DayOf(int year, int month, int day) {
  if (!IsCalendarDay(year, month, day)) return std::nullopt;
  return DayNumber(year, month, day);
}

MaybeDay DayOfCurrentYear(int month, int day, const Clock& clock) {
  // Asking the clock is dear, so not for what no year has.
  constexpr int kLeapYear = 2000;
  if (!IsCalendarDay(kLeapYear, month, day)) return std::nullopt;
  const std::optional<CalendarTime> now = CalendarOf(clock.Now());
  return now ? DayOf(now->year, month, day) : std::nullopt;
}

MaybeDay DayOfThree(int a, int b, int c) {
  if (const MaybeDay day = DayOf(FullYear(c), a, b)) return day;
  if (const MaybeDay day = DayOf(FullYear(a), b, c)) return day;
  if (const MaybeDay day = DayOf(FullYear(c), b, a)) return day;
  return DayOf(FullYear(a), c, b);
}

MaybeDay DayOfTwo(int a, int b, const Clock& clock) {
  if (const MaybeDay day = DayOfCurrentYear(a, b, clock)) return day;
  if (const MaybeDay day = DayOfCurrentYear(b, a, clock)) return day;
  if (const MaybeDay day = DayOf(FullYear(b), a, 1)) return day;
  return DayOf(FullYear(a), b, 1);
}

MaybeDay DayOfNamedMonth(int month, int number, const Clock& clock) {
  if (const MaybeDay day = DayOfCurrentYear(month, number, clock)) return day;
  return DayOf(FullYear(number), month, 1);
}

// Of the two numbers, `before` stand before the name of the month.
MaybeDay DayOfNamedMonth(int month, int a, int b, int before) {
  if (before == 0) return DayOf(FullYear(b), month, a);
  if (before == 2) return DayOf(FullYear(a), month, b);
  if (const MaybeDay day = DayOf(FullYear(b), month, a)) return day;
  return DayOf(FullYear(a), month, b);
}

MaybeDay DayOf(const DateParts& parts, const Clock& clock) {
  const auto& numbers = parts.numbers;
  const bool named = parts.namedMonth > 0;
  switch (parts.numberCount) {
    case 1:
      if (named) return DayOfNamedMonth(parts.namedMonth, numbers[0], clock);
      break;
    case 2:
      if (named)
        return DayOfNamedMonth(parts.namedMonth, numbers[0], numbers[1], parts.numbersBeforeMonth);
      return DayOfTwo(numbers[0], numbers[1], clock);
    case 3:
      if (!named) return DayOfThree(numbers[0], numbers[1], numbers[2]);
      break;
    default:
      break;
  }
  return std::nullopt;
}

// Writes into a buffer that is large enough for any date.
class DateWriter {
 public:
  void Add(char16_t unit) { units_[length_++] = unit; }
  void AddNumber(int number, int leastDigits) {
    char16_t digits[4];
    int count = 0;
    for (; number > 0 || count < leastDigits; number /= 10)
      digits[count++] = static_cast<char16_t>(u'0' + number % 10);
    while (count > 0) Add(digits[--count]);
  }

  void AddDay(const CalendarTime& time) {
    AddNumber(time.month, 1);
    Add(u'/');
    AddNumber(time.day, 1);
    Add(u'/');
    AddNumber(time.year, 4);
  }
  void AddTime(const CalendarTime& time) {
    AddNumber(time.hour % 12 == 0 ? 12 : time.hour % 12, 1);
    Add(u':');
    AddNumber(time.minute, 2);
    Add(u':');
    AddNumber(time.second, 2);
    Add(u' ');
    Add(time.hour < 12 ? u'A' : u'P');
    Add(u'M');
  }

  Text Written() const { return Text(TextView(units_, length_)); }

 private:
  char16_t units_[32];  // "12/31/9999 12:59:59 PM" has 22
  std::size_t length_ = 0;
};

}  // namespace

std::optional<Date> ParseEnUsDate(TextView text, const Clock& clock) {
  const std::optional<DateParts> parts = ReadDateParts(text);
  if (!parts) return std::nullopt;
  const int second = parts->HasTime() ? parts->secondOfDay : 0;
  if (!parts->HasDay()) return parts->HasTime() ? std::optional(DateAt(0, second)) : std::nullopt;
  const MaybeDay day = DayOf(*parts, clock);
  return day ? std::optional(DateAt(*day, second)) : std::nullopt;
}

Text EnUsDateText(Date date) {
  const std::optional<CalendarTime> time = CalendarOf(date);
  if (!time) return Text();
  const bool dayZero = time->year == 1899 && time->month == 12 && time->day == 30;
  const bool midnight = time->hour == 0 && time->minute == 0 && time->second == 0;
  DateWriter writer;
  if (!dayZero) writer.AddDay(*time);
  if (!dayZero && !midnight) writer.Add(u' ');
  if (dayZero || !midnight) writer.AddTime(*time);
  return writer.Written();
}

}  // namespace sifter
