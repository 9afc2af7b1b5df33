#include "matching/Operators.h"

#include <algorithm>

namespace sifter {

namespace {

using T = TextTest;
using N = NumberTest;
using D = DateTest;

// The order is the users': alphabetical in each list, but for "is empty" at the end of the dates.
constexpr OperatorRow kOperators[] = {
    // clang-format off
    {u"contains",         u"CONTAINS",         1, T::kContains,       N::kNone,         D::kNone},
    {u"does not contain", u"DOES NOT CONTAIN", 1, T::kDoesNotContain, N::kNone,         D::kNone},
    {u"does not equal",   u"DOES NOT EQUAL",   1, T::kDoesNotEqual,   N::kDoesNotEqual, D::kDoesNotEqual},
    {u"ends with",        u"ENDS WITH",        1, T::kEndsWith,       N::kNone,         D::kNone},
    {u"equals",           u"EQUALS",           1, T::kEquals,         N::kEquals,       D::kEquals},
    {u"is after",         u"IS AFTER",         1, T::kNone,           N::kNone,         D::kAfter},
    {u"is before",        u"IS BEFORE",        1, T::kNone,           N::kNone,         D::kBefore},
    {u"is between",       u"IS BETWEEN",       2, T::kNone,           N::kBetween,      D::kBetween},
    {u"is greater than",  u"IS GREATER THAN",  1, T::kNone,           N::kGreaterThan,  D::kNone},
    {u"is less than",     u"IS LESS THAN",     1, T::kNone,           N::kLessThan,     D::kNone},
    {u"is not between",   u"IS NOT BETWEEN",   2, T::kNone,           N::kNotBetween,   D::kNotBetween},
    {u"is empty",         u"IS EMPTY",         0, T::kNone,           N::kNone,         D::kEmpty},
    {u"starts with",      u"STARTS WITH",      1, T::kStartsWith,     N::kNone,         D::kNone},
    // clang-format on
};

}  // namespace

bool OperatorRow::Suits(ColumnDataType type) const {
  switch (type) {
    case ColumnDataType::kText:
      return text != TextTest::kNone;
    case ColumnDataType::kNumber:
      return number != NumberTest::kNone;
    case ColumnDataType::kDate:
      return date != DateTest::kNone;
  }
  return false;
}

std::span<const OperatorRow> OperatorVocabulary() { return kOperators; }

std::vector<Text> OperatorWords(std::int32_t type) {
  if (type < 0 || type >= kColumnDataTypes) return {};
  std::vector<Text> words{kAllWord};
  for (const OperatorRow& row : kOperators)
    if (row.Suits(static_cast<ColumnDataType>(type))) words.emplace_back(row.word);
  return words;
}

const OperatorRow* FindOperator(TextView key) {
  const auto* found = std::find_if(std::begin(kOperators), std::end(kOperators),
                                   [key](const OperatorRow& row) { return row.key == key; });
  return found == std::end(kOperators) ? nullptr : found;
}

bool IsRangeKey(TextView key) {
  const OperatorRow* row = FindOperator(key);
  return row != nullptr && row->parameters == 2;
}

}  // namespace sifter
