#pragma once

#include "base/Text.h"
#include "base/Value.h"

#include <cstdint>

namespace sifter {

// What one row of the dialog holds about its column: row k describes column k + 1 of the list.
struct FilterCriterion {
  Text caption;               // the column's header; also the name that references use
  std::int32_t dataType = 0;  // ColumnDataType; any other number takes no part
  Text operatorWord;          // as displayed; "All" takes no part

  Text text;      // the value of a text column
  Text from, to;  // the values of a number column; on a date column, references or anything else
  Date dateFrom, dateTo;  // the values of a date column without such a reference

  friend bool operator==(const FilterCriterion&, const FilterCriterion&) = default;
};

// Between two values that travel as one text.
inline constexpr TextView kParameterSeparator = u"@@";

}  // namespace sifter
