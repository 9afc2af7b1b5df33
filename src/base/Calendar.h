#pragma once

#include "base/Value.h"

#include <optional>

namespace sifter {

// A moment in calendar terms, to the second: the Gregorian calendar, reckoned back before its
// introduction as well.
struct CalendarTime {
  int year = 1899;  // 100 to 9999
  int month = 12;   // 1 to 12
  int day = 30;     // 1 to the length of the month
  int hour = 0;     // 0 to 23
  int minute = 0;
  int second = 0;

  friend bool operator==(const CalendarTime&, const CalendarTime&) = default;
};

inline constexpr int kFirstYear = 100;
inline constexpr int kLastYear = 9999;
inline constexpr int kSecondsPerDay = 86400;

bool IsLeapYear(int year);

// `month` is 1 to 12.
int DaysInMonth(int year, int month);

// Whether the calendar has such a day, in the years that a date can be in.
bool IsCalendarDay(int year, int month, int day);

// The whole days from 30 December 1899, day 0, to a day that the calendar has.
int DayNumber(int year, int month, int day);

// The moment `secondOfDay` seconds (0 to 86399) after midnight of the day with that number.
Date DateAt(int dayNumber, int secondOfDay);

// The fields must be in the ranges given above.
Date DateOf(const CalendarTime& time);

// To the nearest second; nothing when that is outside the years 100 to 9999 or the serial is no
// number at all.
std::optional<CalendarTime> CalendarOf(Date date);

}  // namespace sifter
