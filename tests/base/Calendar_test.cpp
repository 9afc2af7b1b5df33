#include "base/Calendar.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace sifter {
namespace {

TEST(Calendar, NumbersDaysFromTheEndOf1899) {
  const struct {
    int year, month, day;
    int number;
  } cases[] = {{1899, 12, 30, 0},    {1899, 12, 31, 1},     {1900, 1, 1, 2},
               {1899, 12, 29, -1},   {1900, 2, 28, 60},     {1900, 3, 1, 61},
               {1970, 1, 1, 25569},  {2000, 2, 29, 36585},  {2005, 1, 31, 38383},
               {100, 1, 1, -657434}, {400, 2, 29, -547803}, {9999, 12, 31, 2958465}};
  for (const auto& c : cases) {
    EXPECT_EQ(DayNumber(c.year, c.month, c.day), c.number) << c.year;
    const std::optional<CalendarTime> back = CalendarOf(Date{static_cast<double>(c.number)});
    EXPECT_EQ(back, (CalendarTime{c.year, c.month, c.day, 0, 0, 0})) << c.year;
  }
}

TEST(Calendar, CountsEveryDayOnceAndInOrder) {
  int number = -657434;
  for (int year = kFirstYear; year <= kLastYear; ++year)
    for (int month = 1; month <= 12; ++month)
      for (int day = 1; day <= DaysInMonth(year, month); ++day, ++number) {
        ASSERT_EQ(DayNumber(year, month, day), number);
        ASSERT_EQ(CalendarOf(Date{static_cast<double>(number)}),
                  (CalendarTime{year, month, day, 0, 0, 0}));
      }
  EXPECT_EQ(number, 2958466);
}

TEST(Calendar, HasLeapDaysByTheGregorianRule) {
  const struct {
    int year;
    bool isLeap;
  } cases[] = {{1896, true},  {1900, false}, {2000, true}, {2004, true},
               {2005, false}, {2100, false}, {400, true},  {100, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(IsLeapYear(c.year), c.isLeap) << c.year;
    EXPECT_EQ(DaysInMonth(c.year, 2), c.isLeap ? 29 : 28) << c.year;
    EXPECT_EQ(IsCalendarDay(c.year, 2, 29), c.isLeap) << c.year;
  }
}

TEST(Calendar, HasNoOtherDays) {
  const struct {
    int year, month, day;
    bool exists;
  } cases[] = {{2005, 1, 31, true},  {2005, 1, 32, false}, {2005, 4, 30, true},
               {2005, 4, 31, false}, {2005, 1, 0, false},  {2005, 0, 1, false},
               {2005, 13, 1, false}, {2005, 12, 1, true},  {99, 1, 1, false},
               {100, 1, 1, true},    {9999, 12, 31, true}, {10000, 1, 1, false},
               {2005, 1, -1, false}, {2005, -1, 1, false}, {-2005, 1, 1, false}};
  for (const auto& c : cases)
    EXPECT_EQ(IsCalendarDay(c.year, c.month, c.day), c.exists)
        << c.year << '/' << c.month << '/' << c.day;
}

// The fraction of a serial counts forward from midnight even where the serial is negative.
TEST(Calendar, CountsTheTimeOfDayForwardOnBothSidesOfDayZero) {
  const struct {
    double serial;
    CalendarTime time;
  } cases[] = {
      {0.25, {1899, 12, 30, 6, 0, 0}},    {1.25, {1899, 12, 31, 6, 0, 0}},
      {-1.25, {1899, 12, 29, 6, 0, 0}},   {-2.75, {1899, 12, 28, 18, 0, 0}},
      {-657434.5, {100, 1, 1, 12, 0, 0}}, {2958465.5, {9999, 12, 31, 12, 0, 0}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(CalendarOf(Date{c.serial}), c.time) << c.serial;
    EXPECT_EQ(DateOf(c.time), Date{c.serial}) << c.serial;
  }
}

TEST(Calendar, SplitsTheTimeOfDay) {
  const CalendarTime time{
      .year = 2005, .month = 1, .day = 5, .hour = 13, .minute = 45, .second = 6};
  EXPECT_EQ(DateOf(time), Date{38357 + (13 * 3600 + 45 * 60 + 6) / 86400.0});
  EXPECT_EQ(CalendarOf(DateOf(time)), time);
}

TEST(Calendar, EndsAtItsFirstAndLastYear) {
  EXPECT_NE(CalendarOf(Date{-657434}), std::nullopt);
  EXPECT_NE(CalendarOf(Date{2958465.9}), std::nullopt);
  EXPECT_EQ(CalendarOf(Date{-657435}), std::nullopt);
  EXPECT_EQ(CalendarOf(Date{2958466}), std::nullopt);
  EXPECT_EQ(CalendarOf(Date{2958465.999999}), std::nullopt) << "rounds to the next day";
  EXPECT_EQ(CalendarOf(Date{1e300}), std::nullopt);
  EXPECT_EQ(CalendarOf(Date{-1e300}), std::nullopt);
  EXPECT_EQ(CalendarOf(Date{std::numeric_limits<double>::quiet_NaN()}), std::nullopt);
}

}  // namespace
}  // namespace sifter
