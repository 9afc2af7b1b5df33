#include "base/EnUsDates.h"

#include "base/Calendar.h"
#include "base/Conversions.h"
#include "support/ClockFake.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <initializer_list>
#include <string>

namespace sifter {
namespace {

struct DateCase {
  const char* name;
  TextView text;
  const char* parsed;  // as Parsed writes it
};

constexpr const char* kRefused = "refused";

// "2005-01-31 22:30:00"
std::string Parsed(TextView text, const Clock& clock) {
  const std::optional<Date> date = ParseEnUsDate(text, clock);
  if (!date) return kRefused;
  const std::optional<CalendarTime> time = CalendarOf(*date);
  if (!time) return "outside the calendar";
  char written[80];
  std::snprintf(written, sizeof written, "%04d-%02d-%02d %02d:%02d:%02d", time->year, time->month,
                time->day, time->hour, time->minute, time->second);
  return written;
}

void CheckAll(std::initializer_list<DateCase> cases, const Clock& clock = ClockFake()) {
  for (const DateCase& c : cases)
    EXPECT_EQ(Parsed(c.text, clock), c.parsed) << c.name << ": \"" << Text(c.text).ToUtf8() << '"';
}

TEST(EnUsDates, AgreeWithThePlatformWhereItWasAsked) {
  CheckAll({
      {"at sign behind a number", u"10@", kRefused},
      {"letters behind a number", u"12abc", kRefused},
      {"empty", u"", kRefused},
      {"three numbers with points", u"1.2.2005", kRefused},
      {"grouped number", u"1,234.5", kRefused},
      {"parentheses", u"(5)", kRefused},
      {"currency", u"$5", kRefused},
      {"sign behind", u"5-", kRefused},
      {"hexadecimal", u"&H10", kRefused},
      {"exponent", u"1e3", kRefused},
      {"number with blanks", u" 7 ", kRefused},
      {"number", u"5", kRefused},
      {"year alone", u"2005", kRefused},
      {"year first", u"2005-01-31", "2005-01-31 00:00:00"},
      {"day before month when it must be", u"31/1/2005", "2005-01-31 00:00:00"},
      {"day before month, last day", u"31/12/2005", "2005-12-31 00:00:00"},
      {"month before day", u"1/2/2005", "2005-01-02 00:00:00"},
      {"first of January", u"1/1/2005", "2005-01-01 00:00:00"},
      {"named month", u"Jan 5, 2005", "2005-01-05 00:00:00"},
      {"named month without year", u"Jan 5", "2007-01-05 00:00:00"},
      {"afternoon", u"10:30 PM", "1899-12-30 22:30:00"},
      {"24 hours", u"12:30", "1899-12-30 12:30:00"},
      {"date and time", u"5 January 2005 13:45", "2005-01-05 13:45:00"},
      {"commas", u"1,2,3", "2003-01-02 00:00:00"},
      {"two digits of a year", u"1/2/30", "2030-01-02 00:00:00"},
      {"no year", u"1-2", "2007-01-02 00:00:00"},
      {"blanks around", u" 1/2/2005 ", "2005-01-02 00:00:00"},
      {"at sign behind", u"1/1/2005@", kRefused},
  });
}

TEST(EnUsDates, TryTheOrdersOfThreeNumbersUntilTheCalendarHasTheDay) {
  CheckAll({
      {"month first when it can be", u"2/1/2005", "2005-02-01 00:00:00"},
      {"day first", u"13/2/2005", "2005-02-13 00:00:00"},
      {"year first before day first", u"31/1/2", "2031-01-02 00:00:00"},
      {"year first, by two digits", u"13/2/5", "2013-02-05 00:00:00"},
      {"day first when the last can't be a day", u"30/4/32", "2032-04-30 00:00:00"},
      {"year first", u"2005/1/31", "2005-01-31 00:00:00"},
      {"year first, two digits", u"50/1/2", "1950-01-02 00:00:00"},
      {"year, day, month", u"2005/31/1", "2005-01-31 00:00:00"},
      {"leap day", u"2/29/2004", "2004-02-29 00:00:00"},
      {"no leap day", u"2/29/2005", kRefused},
      {"year in the middle", u"1/2005/2", kRefused},
      {"no month at all", u"13/13/2005", kRefused},
      {"zeros", u"0/0/0", kRefused},
      {"year 0", u"1/1/0", "2000-01-01 00:00:00"},
      {"two years", u"2005/2005/1", kRefused},
  });
}

TEST(EnUsDates, ReadTwoNumbersAsADayOfTheYearOrAMonth) {
  CheckAll({
      {"month first", u"2/1", "2007-02-01 00:00:00"},
      {"day first", u"13/2", "2007-02-13 00:00:00"},
      {"month and year", u"1/2005", "2005-01-01 00:00:00"},
      {"year and month", u"2005/12", "2005-12-01 00:00:00"},
      {"no such day, so a year", u"2/30", "2030-02-01 00:00:00"},
      {"no month", u"13/32", kRefused},
      {"no leap day this year, so a year", u"2/29", "2029-02-01 00:00:00"},
  });
  const ClockFake leapYear(CalendarTime{.year = 2008, .month = 1, .day = 1});
  CheckAll({{"leap day this year", u"2/29", "2008-02-29 00:00:00"}}, leapYear);
}

TEST(EnUsDates, ReadNamedMonthsInAnyPlace) {
  CheckAll({
      {"in full", u"January 5, 2005", "2005-01-05 00:00:00"},
      {"upper case", u"JANUARY 5, 2005", "2005-01-05 00:00:00"},
      {"in the middle", u"5 Jan 2005", "2005-01-05 00:00:00"},
      {"dashes", u"5-Jan-2005", "2005-01-05 00:00:00"},
      {"dashes, two digits", u"5-jan-05", "2005-01-05 00:00:00"},
      {"year first", u"2005 Jan 5", "2005-01-05 00:00:00"},
      {"comma behind it", u"5 Jan, 2005", "2005-01-05 00:00:00"},
      {"day without year", u"5 Jan", "2007-01-05 00:00:00"},
      {"month and year", u"January 2005", "2005-01-01 00:00:00"},
      {"year and month", u"2005 January", "2005-01-01 00:00:00"},
      {"number that is no day", u"Feb 30", "2030-02-01 00:00:00"},
      {"day before the month, year behind", u"5-Jan-06", "2006-01-05 00:00:00"},
      {"no day, but a year", u"30 Feb 10", "2030-02-10 00:00:00"},
      {"year and day before the month", u"5 6 Jan", "2005-01-06 00:00:00"},
      {"not day and year before it", u"5 2005 Jan", kRefused},
      {"not year and day behind it", u"Jan 2005 5", kRefused},
      {"nor when there is no such day", u"Feb 30 10", kRefused},
      {"nothing between", u"5Jan2005", "2005-01-05 00:00:00"},
      {"nothing behind it", u"Jan5,2005", "2005-01-05 00:00:00"},
      {"alone", u"January", kRefused},
      {"twice", u"Jan Feb 5", kRefused},
      {"two numbers too many", u"Jan 1 2 2005", kRefused},
      {"cut short", u"Ja 5, 2005", kRefused},
      {"neither short nor long", u"Janu 5, 2005", kRefused},
      {"too long", u"Januaryy 5, 2005", kRefused},
      {"point behind it", u"Jan. 5, 2005", kRefused},
      {"another word", u"Monday 5, 2005", kRefused},
      {"day of the week", u"Wed, Jan 5, 2005", kRefused},
      {"ordinal", u"Jan 5th, 2005", kRefused},
      {"no such day", u"Feb 30, 2005", kRefused},
      {"letter of another alphabet", u"J\u0430n 5, 2005", kRefused},
  });
}

TEST(EnUsDates, KnowAllMonthsByBothNames) {
  const struct {
    TextView full;
    TextView brief;
  } months[] = {{u"January", u"Jan"}, {u"february", u"feb"}, {u"MARCH", u"MAR"},
                {u"April", u"Apr"},   {u"May", u"May"},      {u"June", u"jUN"},
                {u"July", u"Jul"},    {u"August", u"Aug"},   {u"September", u"Sep"},
                {u"October", u"Oct"}, {u"November", u"Nov"}, {u"December", u"Dec"}};
  int number = 0;
  for (const auto& month : months) {
    char expected[40];
    std::snprintf(expected, sizeof expected, "2005-%02d-07 00:00:00", ++number);
    for (const TextView name : {month.full, month.brief})
      CheckAll({{"month", Concat({name, u" 7, 2005"}), expected}});
  }
}

TEST(EnUsDates, PutTwoDigitsOfAYearAroundTheTurnOfTheCentury) {
  CheckAll({
      {"0", u"1/1/00", "2000-01-01 00:00:00"},
      {"29", u"1/1/29", "2029-01-01 00:00:00"},
      {"49", u"1/1/49", "2049-01-01 00:00:00"},
      {"50", u"1/1/50", "1950-01-01 00:00:00"},
      {"99", u"1/1/99", "1999-01-01 00:00:00"},
      {"100", u"1/1/100", "0100-01-01 00:00:00"},
      {"with zeros", u"1/1/0100", "0100-01-01 00:00:00"},
      {"last", u"12/31/9999", "9999-12-31 00:00:00"},
      {"past the last", u"1/1/10000", kRefused},
  });
}

TEST(EnUsDates, ReadTimes) {
  CheckAll({
      {"seconds", u"10:30:15", "1899-12-30 10:30:15"},
      {"midnight", u"0:00", "1899-12-30 00:00:00"},
      {"last second", u"23:59:59", "1899-12-30 23:59:59"},
      {"one digit", u"1:2:3", "1899-12-30 01:02:03"},
      {"points", u"13.45", "1899-12-30 13:45:00"},
      {"points and seconds", u"1.2.3", "1899-12-30 01:02:03"},
      {"noon", u"12:00 PM", "1899-12-30 12:00:00"},
      {"midnight by half days", u"12:00 AM", "1899-12-30 00:00:00"},
      {"morning", u"9:15 am", "1899-12-30 09:15:00"},
      {"nothing between", u"9:15PM", "1899-12-30 21:15:00"},
      {"one letter", u"9:15 p", "1899-12-30 21:15:00"},
      {"one letter, nothing between", u"9:15A", "1899-12-30 09:15:00"},
      {"hour alone", u"10 PM", "1899-12-30 22:00:00"},
      {"hour alone, nothing between", u"10pm", "1899-12-30 22:00:00"},
      {"afternoon hour that says so twice", u"13:30 PM", "1899-12-30 13:30:00"},
      {"hour too large", u"24:00", kRefused},
      {"minute too large", u"10:60", kRefused},
      {"second too large", u"10:30:60", kRefused},
      {"afternoon hour called a morning one", u"13:30 AM", "1899-12-30 13:30:00"},
      {"that without minutes", u"13 am", "1899-12-30 13:00:00"},
      {"midnight called an afternoon hour", u"0:00 PM", "1899-12-30 12:00:00"},
      {"four fields", u"1:2:3:4", kRefused},
      {"fraction", u"10:30:15.5", kRefused},
      {"marks mixed", u"10:30.15", "1899-12-30 10:30:15"},
      {"blanks around marks", u"10 : 30: 15", "1899-12-30 10:30:15"},
      {"comma before the half of the day", u"10:30, PM", "1899-12-30 22:30:00"},
      {"another mark before it", u"10:30-PM", kRefused},
      {"two marks", u"10:.30", kRefused},
      {"hour and mark", u"10:", kRefused},
      {"mark and minute", u":30", kRefused},
      {"other letters", u"10:30 XM", kRefused},
      {"more letters", u"10:30 PMs", kRefused},
      {"more letters behind one", u"10:30 px", kRefused},
      {"half of the day first", u"PM 10:30", kRefused},
      {"two times", u"10:30 11:30", kRefused},
  });
}

TEST(EnUsDates, TakeTheTimeOnEitherSideOfTheDay) {
  CheckAll({
      {"behind", u"1/2/2005 10:30", "2005-01-02 10:30:00"},
      {"behind, half days", u"1/2/2005 10:30:15 PM", "2005-01-02 22:30:15"},
      {"behind, hour alone", u"1/2/2005 10 PM", "2005-01-02 22:00:00"},
      {"before", u"10:30 1/2/2005", "2005-01-02 10:30:00"},
      {"before, half days", u"10:30 PM 5 Jan 2005", "2005-01-05 22:30:00"},
      {"no year", u"Jan 5 10:30", "2007-01-05 10:30:00"},
      {"no year, hour alone", u"Jan 5 10 PM", "2007-01-05 22:00:00"},
      {"within", u"Jan 5 10:30 2005", kRefused},
      {"comma between", u"1/2/2005, 10:30 PM", "2005-01-02 22:30:00"},
      {"comma between, before", u"10:30 PM,5 Jan", "2007-01-05 22:30:00"},
      {"mark between", u"1/2-10:30", "2007-01-02 10:30:00"},
      {"third mark", u"1/2/2005-10:30", kRefused},
      {"letter between", u"2005-01-31T10:30:00", kRefused},
      {"nothing between", u"5 Jan10:30", "2007-01-05 10:30:00"},
      {"nothing between, before", u"10PM5 Jan", "2007-01-05 22:00:00"},
      {"word and word run together", u"10 PMJan 5", kRefused},
      {"month as an hour", u"Jan PM", kRefused},
      {"day alone", u"5 10:30", kRefused},
      {"bad day", u"2/30/2005 10:30", kRefused},
      {"bad time", u"1/2/2005 25:00", kRefused},
      {"year read as an hour", u"Jan 5 2005 PM", kRefused},
  });
}

TEST(EnUsDates, SeparateWithOneMarkAndAnySpacesAndCommas) {
  CheckAll({
      {"blanks", u"1 2 2005", "2005-01-02 00:00:00"},
      {"blanks around marks", u"1 / 2 / 2005", "2005-01-02 00:00:00"},
      {"mixed", u"1/2-2005", "2005-01-02 00:00:00"},
      {"tabs", u"\t1/2/2005\r\n", "2005-01-02 00:00:00"},
      {"no-break space", u"\u00A01\u00A02\u00A02005", "2005-01-02 00:00:00"},
      {"wide space", u"1/2/2005\u300010:30", "2005-01-02 10:30:00"},
      {"no space at all", u"1\u200B2\u200B2005", kRefused},
      {"commas", u"1,,2 , ,2005", "2005-01-02 00:00:00"},
      {"comma and mark", u"1,/2", "2007-01-02 00:00:00"},
      {"comma in front", u",1,2,2005", kRefused},
      {"comma behind", u"1/2/2005, ", kRefused},
      {"two marks", u"1//2/2005", kRefused},
      {"mark in front", u"/1/2/2005", kRefused},
      {"mark behind", u"1/2/2005/", kRefused},
      {"mark behind and blank", u"1/2/2005 - ", kRefused},
      {"sign", u"-1/2/2005", kRefused},
      {"other mark", u"1\\2\\2005", kRefused},
      {"four numbers", u"1/2/3/4", kRefused},
      {"leading zeros", u"00001/2/2005", "2005-01-02 00:00:00"},
      {"five digits", u"1/2/12005", kRefused},
      {"long number", u"99999999999999999999/1/2005", kRefused},
      {"blanks alone", u"   ", kRefused},
      {"null behind", TextView(u"1/2/2005\0", 9), kRefused},
  });
}

TEST(EnUsDates, CountSerialsFromDayZero) {
  const ClockFake clock;
  const struct {
    TextView text;
    double serial;
  } cases[] = {
      {u"12/30/1899", 0},          {u"12/31/1899", 1},          {u"12/29/1899", -1},
      {u"12/29/1899 6:00", -1.25}, {u"12/30/1899 18:00", 0.75}, {u"6:00", 0.25},
      {u"1/1/2000", 36526},        {u"1/1/100", -657434},       {u"12/31/9999 12:00", 2958465.5}};
  for (const auto& c : cases)
    EXPECT_EQ(ParseEnUsDate(c.text, clock), Date{c.serial}) << Text(c.text).ToUtf8();
}

TEST(EnUsDates, AskTheClockOnlyForAMissingYear) {
  class CountingClock final : public Clock {
   public:
    Date Now() const override {
      ++asked;
      return Date{39248};  // 15 June 2007
    }
    mutable int asked = 0;
  };
  const struct {
    TextView text;
    bool asks;
  } cases[] = {{u"1/2/2005", false}, {u"Jan 5, 2005", false}, {u"10:30", false}, {u"1/2005", false},
               {u"Jan 2005", false}, {u"Harald", false},      {u"1/2", true},    {u"Jan 5", true}};
  for (const auto& c : cases) {
    const CountingClock clock;
    ParseEnUsDate(c.text, clock);
    EXPECT_EQ(clock.asked > 0, c.asks) << Text(c.text).ToUtf8();
  }
}

TEST(EnUsConversions, ChangeGenerationWithTheYearThatDatesAreCompletedWith) {
  ClockFake clock(CalendarTime{.year = 2007, .month = 12, .day = 31, .hour = 23});
  const EnUsConversions conversions(clock);
  const std::uint32_t before = conversions.Generation();
  EXPECT_EQ(conversions.ToDate(u"3/1"), DateOf({.year = 2007, .month = 3, .day = 1}));
  EXPECT_EQ(conversions.Generation(), before);

  clock.Set({.year = 2008, .month = 1, .day = 1});
  EXPECT_NE(conversions.Generation(), before);
  EXPECT_EQ(conversions.ToDate(u"3/1"), DateOf({.year = 2008, .month = 3, .day = 1}));
}

TEST(EnUsConversions, SayWhetherATextIsADateOrANumber) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  const struct {
    TextView text;
    bool isNumeric;
    bool isDate;
  } cases[] = {{u"1/2/2005", false, true}, {u"1.5", true, true},     {u"1,2,3", true, true},
               {u"2005", true, false},     {u"12abc", false, false}, {u"", false, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(conversions.IsNumeric(c.text), c.isNumeric) << Text(c.text).ToUtf8();
    EXPECT_EQ(conversions.IsDate(c.text), c.isDate) << Text(c.text).ToUtf8();
  }
}

}  // namespace
}  // namespace sifter
