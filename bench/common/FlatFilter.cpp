#include "common/FlatFilter.h"

#include "base/Calendar.h"
#include "matching/LeadingNumber.h"

#include <algorithm>
#include <optional>

namespace sifter::bench {

namespace {

// Orders days as the calendar does.
constexpr std::uint32_t DayKey(std::uint32_t year, std::uint32_t month, std::uint32_t day) {
  return year << 9 | month << 5 | day;
}

std::uint32_t DayKeyOf(Date date) {
  const std::optional<CalendarTime> time = CalendarOf(date);
  if (!time) return 0;
  return DayKey(static_cast<std::uint32_t>(time->year), static_cast<std::uint32_t>(time->month),
                static_cast<std::uint32_t>(time->day));
}

// Reads digits from `at` up to the first other unit.
std::uint32_t ReadDigits(const char16_t*& at, const char16_t* end) {
  std::uint32_t number = 0;
  while (at != end) {
    const auto digit = static_cast<std::uint32_t>(*at - u'0');
    if (digit > 9) break;
    number = number * 10 + digit;
    ++at;
  }
  return number;
}

std::uint32_t ReadDay(TextView cell) {
  const char16_t* at = cell.data();
  const char16_t* end = at + cell.size();
  const std::uint32_t month = ReadDigits(at, end);
  if (at != end) ++at;
  const std::uint32_t day = ReadDigits(at, end);
  if (at != end) ++at;
  return DayKey(ReadDigits(at, end), month, day);
}

double ReadNumber(TextView cell) {
  static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const char16_t* at = cell.data();
  const char16_t* end = at + cell.size();
  if (at == end) return 0;
  const bool negative = *at == u'-';
  if (negative) ++at;
  std::int64_t digits = 0;
  const char16_t* point = nullptr;
  for (; at != end; ++at) {
    const auto digit = static_cast<std::uint32_t>(*at - u'0');
    if (digit <= 9)
      digits = digits * 10 + digit;
    else if (*at == u'.' && point == nullptr)
      point = at + 1;
    else
      break;
  }
  const auto magnitude = static_cast<double>(digits);
  const double number = point == nullptr ? magnitude : magnitude / kPowers[at - point];
  return negative ? -number : number;
}

bool PassesNumber(NumberTest test, TextView cell, double first, double second) {
  const double number = ReadNumber(cell);
  switch (test) {
    case NumberTest::kEquals:
      return number == first;
    case NumberTest::kDoesNotEqual:
      return number != first;
    case NumberTest::kGreaterThan:
      return number > first;
    case NumberTest::kLessThan:
      return number < first;
    case NumberTest::kBetween:
      return !cell.empty() && first < number && number < second;
    case NumberTest::kNotBetween:
      return number < first || number > second;
    case NumberTest::kNone:
      break;
  }
  return true;
}

bool PassesDay(DateTest test, TextView cell, std::uint32_t first, std::uint32_t second) {
  if (cell.empty()) return test == DateTest::kNotBetween || test == DateTest::kEmpty;
  const std::uint32_t day = ReadDay(cell);
  switch (test) {
    case DateTest::kEquals:
      return day == first;
    case DateTest::kDoesNotEqual:
      return day != first;
    case DateTest::kAfter:
      return day > first;
    case DateTest::kBefore:
      return day < first;
    case DateTest::kBetween:
      return first <= day && day <= second;
    case DateTest::kNotBetween:
      return day < first || day > second;
    case DateTest::kEmpty:
      return false;
    case DateTest::kNone:
      break;
  }
  return true;
}

}  // namespace

FlatFilter::FlatFilter(std::span<const FilterCriterion> criteria, bool caseSensitive,
                       const Conversions& conversions)
    : fold_(0x10000) {
  for (std::size_t unit = 0; unit < fold_.size(); ++unit) {
    const auto raw = static_cast<char16_t>(unit);
    fold_[unit] = caseSensitive ? raw : conversions.ToUpper(raw);
  }
  for (std::size_t k = 0; k < criteria.size(); ++k) {
    const FilterCriterion& criterion = criteria[k];
    const OperatorRow* row = FindOperator(conversions.ToUpper(criterion.operatorWord));
    if (criterion.operatorWord == kAllWord || row == nullptr) continue;
    Test test;
    test.column = k;
    if (criterion.dataType == static_cast<std::int32_t>(ColumnDataType::kText)) {
      test.text = row->text;
      for (const char16_t unit : criterion.text.View()) test.parameter += fold_[unit];
    } else if (criterion.dataType == static_cast<std::int32_t>(ColumnDataType::kNumber)) {
      test.number = row->number;
      test.first = LeadingNumber(criterion.from);
      test.second = LeadingNumber(criterion.to);
    } else {
      test.date = row->date;
      test.firstDay = DayKeyOf(criterion.dateFrom);
      test.secondDay = DayKeyOf(criterion.dateTo);
    }
    tests_.push_back(std::move(test));
  }
}

void FlatFilter::Run(const FlatTable& table, std::vector<FlatTable::Row>& passing) const {
  passing.clear();
  passing.reserve(table.Rows().size());
  for (const FlatTable::Row row : table.Rows()) {
    bool passes = true;
    for (const Test& test : tests_)
      if (!Passes(test, table.Cell(row, test.column))) {
        passes = false;
        break;
      }
    if (passes) passing.push_back(row);
  }
}

bool FlatFilter::Passes(const Test& test, TextView cell) const {
  if (test.text != TextTest::kNone) return PassesText(test, cell);
  if (test.number != NumberTest::kNone)
    return PassesNumber(test.number, cell, test.first, test.second);
  return PassesDay(test.date, cell, test.firstDay, test.secondDay);
}

bool FlatFilter::PassesText(const Test& test, TextView cell) const {
  const std::size_t length = test.parameter.size();
  switch (test.text) {
    case TextTest::kContains:
      return Contains(cell, test.parameter);
    case TextTest::kDoesNotContain:
      return !Contains(cell, test.parameter);
    case TextTest::kStartsWith:
      return cell.size() >= length && SameFolded(cell.substr(0, length), test.parameter);
    case TextTest::kEndsWith:
      return cell.size() >= length && SameFolded(cell.substr(cell.size() - length), test.parameter);
    case TextTest::kEquals:
      return cell.size() == length && SameFolded(cell, test.parameter);
    case TextTest::kDoesNotEqual:
      return cell.size() != length || !SameFolded(cell, test.parameter);
    case TextTest::kNone:
      break;
  }
  return true;
}

// Both are of the same length.
bool FlatFilter::SameFolded(TextView cell, const std::u16string& parameter) const {
  for (std::size_t i = 0; i < parameter.size(); ++i)
    if (fold_[cell[i]] != parameter[i]) return false;
  return true;
}

bool FlatFilter::Contains(TextView cell, const std::u16string& parameter) const {
  if (cell.size() < parameter.size() || cell.empty()) return false;
  if (parameter.empty()) return true;
  const char16_t first = parameter.front();
  const char16_t* const last = cell.data() + (cell.size() - parameter.size());
  for (const char16_t* at = cell.data(); at <= last; ++at)
    if (fold_[*at] == first && SameFolded(TextView(at, parameter.size()), parameter)) return true;
  return false;
}

}  // namespace sifter::bench
