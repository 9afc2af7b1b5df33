#include "common/TextbookFilter.h"

#include "matching/Operators.h"
#include "matching/ParameterValues.h"
#include "matching/RowMatcher.h"

#include <string>

namespace sifter::bench {

namespace {

bool Passes(TextTest test, TextView cell, TextView parameter) {
  // A search from the first character finds nothing in a text that has none.
  const bool found = !cell.empty() && cell.find(parameter) != TextView::npos;
  switch (test) {
    case TextTest::kContains:
      return found;
    case TextTest::kDoesNotContain:
      return !found;
    case TextTest::kStartsWith:
      return cell.starts_with(parameter);
    case TextTest::kEndsWith:
      return cell.ends_with(parameter);
    case TextTest::kEquals:
      return cell == parameter;
    case TextTest::kDoesNotEqual:
      return cell != parameter;
    case TextTest::kNone:
      break;
  }
  return true;
}

bool Passes(NumberTest test, TextView cell, double first, double second) {
  const double number = LeadingNumber(cell);
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

bool Passes(DateTest test, TextView cell, double first, double second,
            const Conversions& conversions) {
  if (cell.empty()) return test == DateTest::kNotBetween || test == DateTest::kEmpty;
  const double day = CellDate(cell, conversions).serial;
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

class Pass {
 public:
  Pass(HostListView& list, std::span<const FilterCriterion> criteria, std::size_t k,
       bool caseSensitive, const Conversions& conversions)
      : list_(list),
        criterion_(criteria[k]),
        column_(static_cast<std::int16_t>(k + 1)),
        caseSensitive_(caseSensitive),
        conversions_(conversions),
        first_(criterion_, ParameterSlot::kFirst, criteria),
        second_(criterion_, ParameterSlot::kSecond, criteria) {}

  void Run(const OperatorRow& row) const {
    std::u16string matchList;
    const Ref<ListItemCollection> items = list_.ListItems();
    const std::int32_t count = items->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
      const Ref<ListItem> item = items->Item(i);
      if (Tests(row, *item)) matchList.append(u",").append(ValueToText(item->Index()).View());
    }
    RemoveListItems(list_, NonMatchingIndexes(list_, matchList));
  }

 private:
  static Text ColumnText(ListItem& item, std::int16_t column) {
    return ValueToText(column == 1 ? item.Text() : item.SubItems(column - 1));
  }

  Value Parameter(const ParameterControl& control, ListItem& item) const {
    return GetParameterValue(
        control, [&item](std::int16_t column) { return ColumnText(item, column); },
        static_cast<std::int16_t>(criterion_.dataType), conversions_);
  }

  Text Folded(const Text& text) const { return caseSensitive_ ? text : conversions_.ToUpper(text); }

  bool Tests(const OperatorRow& row, ListItem& item) const {
    const Text cell = ColumnText(item, column_);
    const Value first = Parameter(first_, item);
    const Value second = Parameter(second_, item);
    if (const Text* text = first.As<Text>()) return Passes(row.text, Folded(cell), Folded(*text));
    if (const double* number = first.As<double>())
      return Passes(row.number, cell, *number, *second.As<double>());
    return Passes(row.date, cell, first.As<Date>()->serial, second.As<Date>()->serial,
                  conversions_);
  }

  HostListView& list_;
  const FilterCriterion& criterion_;
  std::int16_t column_;
  bool caseSensitive_;
  const Conversions& conversions_;
  ParameterControl first_;
  ParameterControl second_;
};

}  // namespace

void TextbookFilter(HostListView& list, std::span<const FilterCriterion> criteria,
                    bool caseSensitive, const Conversions& conversions) {
  for (std::size_t k = 0; k < criteria.size(); ++k) {
    const OperatorRow* row = FindOperator(conversions.ToUpper(criteria[k].operatorWord));
    if (criteria[k].operatorWord == kAllWord || row == nullptr) continue;
    Pass(list, criteria, k, caseSensitive, conversions).Run(*row);
  }
}

}  // namespace sifter::bench
