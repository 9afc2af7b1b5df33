#pragma once

#include "base/Clock.h"
#include "base/Text.h"
#include "base/Value.h"

#include <optional>

namespace sifter {

// The date and time of day that the whole text stands for (DateParts.h says how it may be
// written), or nothing when it is no date.
//
// Which number is which:
//   - numbers alone are month, day, year; where the calendar has no such day they are tried as
//     year, month, day, then as day, month, year, then as year, day, month;
//   - two numbers alone are month, day of the current year; or else day, month of it; or else the
//     first of a month: month, year, or year, month;
//   - behind a named month they are day, year; before it year, day; on both sides of it day, year,
//     or else year, day; a single number is the day of the current year, or else the year, and the
//     day is the first.
// Years up to 49 are in the 2000s, 50 to 99 in the 1900s; 100 to 9999 stand for themselves.
// Without a day, the time is that of day 0. `clock` is asked only when the year is missing.
std::optional<Date> ParseEnUsDate(TextView text, const Clock& clock);

// "1/31/2005", with " 1:45:00 PM" after it unless it is midnight; a moment of day 0 is the time
// alone. To the nearest second. "" for what is outside the years 100 to 9999 or no number at all.
Text EnUsDateText(Date date);

}  // namespace sifter
