#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "base/Value.h"
#include "matching/ColumnDataType.h"
#include "matching/FilterCriterion.h"
#include "matching/LeadingNumber.h"

#include <cstdint>
#include <span>

namespace sifter {

// The number of the column (1-based) that a text refers to, or 0 when it is no reference: a
// header in square brackets, compared exactly with the rows' captions from the first to the last.
// Only the outermost brackets count, so "[a]b]" refers to the column "a]b". Whatever type the
// column has, a typed reference may name it, and a column may refer to itself.
std::int16_t ColumnFromReference(TextView text, std::span<const FilterCriterion> rows);

// The text as it is. Quotes around a parameter are characters like any other: "oak" in quotes
// matches cells that hold the quotes.
Text StripQuotes(const Text& text);

// A cell's text as a date; error 13 when it is none.
Date CellDate(TextView text, const Conversions& conversions);

// Which of a row's parameter controls is meant.
enum class ParameterSlot { kFirst, kSecond };

// One parameter control of a row: the box of a text or number column, or the date picker together
// with the box beside it, in which a reference takes the picker's place.
class ParameterControl {
 public:
  ParameterControl(const FilterCriterion& row, ParameterSlot slot,
                   std::span<const FilterCriterion> rows);

  // The column (1-based) whose cell is the value at each row, or 0 when the value is the same for
  // all rows.
  std::int16_t Reference() const { return reference_; }

  const Text& TypedText() const { return text_; }
  Date PickerValue() const { return date_; }

 private:
  Text text_;
  Date date_;
  std::int16_t reference_;
};

// The value of a parameter at one row: a text, a number or a date by `dataType`, empty for any
// other type. `cellText` gives the row's text in a column (1-based). A number never fails: a text
// that doesn't begin with one is 0. A referenced cell that is no date is error 13.
template <class CellText>
Value GetParameterValue(const ParameterControl& control, CellText&& cellText, std::int16_t dataType,
                        const Conversions& conversions) {
  const std::int16_t column = control.Reference();
  switch (dataType) {
    case static_cast<std::int16_t>(ColumnDataType::kText):
      return column > 0 ? Value(Text(cellText(column))) : StripQuotes(control.TypedText());
    case static_cast<std::int16_t>(ColumnDataType::kNumber):
      return column > 0 ? LeadingNumber(cellText(column)) : LeadingNumber(control.TypedText());
    case static_cast<std::int16_t>(ColumnDataType::kDate):
      return column > 0 ? CellDate(cellText(column), conversions) : control.PickerValue();
    default:
      return Value();
  }
}

}  // namespace sifter
