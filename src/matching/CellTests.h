#pragma once

#include "base/Text.h"
#include "base/Value.h"
#include "matching/Operators.h"

#include <cmath>

namespace sifter {

// The tests that a cell passes or fails, as functions of the prepared values. Texts arrive folded
// to upper case already where case doesn't count.

// Whether `parameter` stands somewhere in `cell`. An empty parameter stands in every cell but an
// empty one.
bool FindsText(TextView cell, TextView parameter);

template <TextTest test>
bool PassesText(TextView cell, TextView parameter) {
  if constexpr (test == TextTest::kContains) return FindsText(cell, parameter);
  if constexpr (test == TextTest::kDoesNotContain) return !FindsText(cell, parameter);
  if constexpr (test == TextTest::kStartsWith) return cell.starts_with(parameter);
  if constexpr (test == TextTest::kEndsWith) return cell.ends_with(parameter);
  if constexpr (test == TextTest::kEquals) return cell == parameter;
  if constexpr (test == TextTest::kDoesNotEqual) return cell != parameter;
  return true;
}

// A number column takes an empty cell for 0, but for "is between", which an empty cell fails. Its
// range leaves the bounds out, so a number that equals one passes neither range test. Bounds in
// the wrong order are not exchanged.
template <NumberTest test>
bool PassesNumber(bool empty, double cell, double first, double second) {
  if constexpr (test == NumberTest::kEquals) return cell == first;
  if constexpr (test == NumberTest::kDoesNotEqual) return cell != first;
  if constexpr (test == NumberTest::kGreaterThan) return cell > first;
  if constexpr (test == NumberTest::kLessThan) return cell < first;
  if constexpr (test == NumberTest::kBetween) return !empty & (first < cell) & (cell < second);
  if constexpr (test == NumberTest::kNotBetween) return (cell < first) | (cell > second);
  return true;
}

// A date as a number that grows with time. A serial doesn't where it is negative: its fraction
// counts forward from midnight, so that -1.75 is twelve hours later than -1.25.
inline double MomentOf(Date date) {
  const double day = std::trunc(date.serial);
  return day + std::abs(date.serial - day);
}

// Dates come as moments. A date column's range has its bounds in, unlike a number's. An empty cell
// passes "is not between" and "is empty" alone; it fails even "does not equal". The time of day
// counts.
template <DateTest test>
bool PassesDate(bool empty, double cell, double first, double second) {
  if constexpr (test == DateTest::kEquals) return !empty & (cell == first);
  if constexpr (test == DateTest::kDoesNotEqual) return !empty & (cell != first);
  if constexpr (test == DateTest::kAfter) return !empty & (cell > first);
  if constexpr (test == DateTest::kBefore) return !empty & (cell < first);
  if constexpr (test == DateTest::kBetween) return !empty & (first <= cell) & (cell <= second);
  if constexpr (test == DateTest::kNotBetween) return empty | (cell < first) | (cell > second);
  if constexpr (test == DateTest::kEmpty) return empty;
  return true;
}

}  // namespace sifter
