#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "common/FlatTable.h"
#include "matching/FilterCriterion.h"
#include "matching/Operators.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace sifter::bench {

// Yardstick: the filter as a loop tuned by hand, with none of what a dialog over a host's list
// has to keep up. It reads numbers and dates out of the cells with code of its own, folds case
// by table, asks a row for no more than it needs to reject it, and its result is pointers.
//
// It knows less than the engine: numbers are digits with at most a sign and a point (up to 15
// digits), dates are M/D/YYYY without a time, and parameters are values, not references. Whoever
// compares results gives it tables of that kind.
class FlatFilter {
 public:
  // `criteria` as the dialog applies them; those at "All" take no part.
  FlatFilter(std::span<const FilterCriterion> criteria, bool caseSensitive,
             const Conversions& conversions);

  // Puts the rows that pass into `passing`, in order.
  void Run(const FlatTable& table, std::vector<FlatTable::Row>& passing) const;

 private:
  struct Test {
    std::size_t column = 0;  // 0-based
    TextTest text = TextTest::kNone;
    NumberTest number = NumberTest::kNone;
    DateTest date = DateTest::kNone;
    std::u16string parameter;  // folded already
    double first = 0, second = 0;
    std::uint32_t firstDay = 0, secondDay = 0;  // DayKey
  };

  bool Passes(const Test& test, TextView cell) const;
  bool PassesText(const Test& test, TextView cell) const;
  bool SameFolded(TextView cell, const std::u16string& parameter) const;
  bool Contains(TextView cell, const std::u16string& parameter) const;

  std::vector<Test> tests_;
  std::vector<char16_t> fold_;  // each code unit's form for comparing
};

}  // namespace sifter::bench
