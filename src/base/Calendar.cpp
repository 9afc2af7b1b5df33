#include "base/Calendar.h"

#include <cmath>

namespace sifter {

namespace {

// Years are counted from 1 March of the year 0, which puts the leap day at the end of a year.
constexpr int kDaysPerEra = 146097;  // 400 years
constexpr int kDayZero = 693899;     // 30 December 1899, counted from that 1 March

constexpr int kFirstDay = -657434;  // 1 January 100
constexpr int kLastDay = 2958465;   // 31 December 9999

// Days of a year before the month that comes `months` after March.
int DaysBefore(int months) { return (153 * months + 2) / 5; }

struct DayAndSecond {
  int dayNumber;
  int secondOfDay;
};

// The serial must be within a day of the calendar's range.
DayAndSecond Split(double serial) {
  const double day = std::trunc(serial);
  const double second = std::round(std::abs(serial - day) * kSecondsPerDay);
  if (second >= kSecondsPerDay) return {static_cast<int>(day) + 1, 0};
  return {static_cast<int>(day), static_cast<int>(second)};
}

void SetDay(CalendarTime& time, int dayNumber) {
  const int days = dayNumber + kDayZero;
  const int era = days / kDaysPerEra;
  const int dayOfEra = days % kDaysPerEra;
  const int yearOfEra =
      (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / (kDaysPerEra - 1)) / 365;
  const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const int months = (5 * dayOfYear + 2) / 153;
  time.day = dayOfYear - DaysBefore(months) + 1;
  time.month = months < 10 ? months + 3 : months - 9;
  time.year = era * 400 + yearOfEra + (time.month <= 2 ? 1 : 0);
}

}  // namespace

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
  constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

bool IsCalendarDay(int year, int month, int day) {
  return year >= kFirstYear && year <= kLastYear && month >= 1 && month <= 12 && day >= 1 &&
         (day <= 28 || day <= DaysInMonth(year, month));
}

int DayNumber(int year, int month, int day) {
  const int years = month <= 2 ? year - 1 : year;
  const int months = month <= 2 ? month + 9 : month - 3;
  return 365 * years + years / 4 - years / 100 + years / 400 + DaysBefore(months) + day - 1 -
         kDayZero;
}

Date DateAt(int dayNumber, int secondOfDay) {
  const double fraction = static_cast<double>(secondOfDay) / kSecondsPerDay;
  return Date{dayNumber < 0 ? dayNumber - fraction : dayNumber + fraction};
}

Date DateOf(const CalendarTime& time) {
  return DateAt(DayNumber(time.year, time.month, time.day),
                (time.hour * 60 + time.minute) * 60 + time.second);
}

std::optional<CalendarTime> CalendarOf(Date date) {
  // The day of a negative serial begins at the whole number above it. A NaN fails both tests.
  const bool inside = date.serial > kFirstDay - 1 && date.serial < kLastDay + 1;
  if (!inside) return std::nullopt;
  const DayAndSecond moment = Split(date.serial);
  if (moment.dayNumber > kLastDay) return std::nullopt;
  CalendarTime time;
  SetDay(time, moment.dayNumber);
  time.hour = moment.secondOfDay / 3600;
  time.minute = moment.secondOfDay / 60 % 60;
  time.second = moment.secondOfDay % 60;
  return time;
}

}  // namespace sifter
