#pragma once

#include "base/Conversions.h"
#include "listmodel/HostListView.h"
#include "matching/ColumnDataType.h"

#include <cstdint>
#include <vector>

namespace sifter {

// Decides what a column's values are, from the first to the last. The column is text as soon as
// one value is neither number nor date, or a date and a number have both been seen. Empty values
// say nothing; a column of nothing else is text. The numeric test comes first, so 2005 is a
// number although it could be a date.
class ColumnTypeDecision {
 public:
  explicit ColumnTypeDecision(const Conversions& conversions) : conversions_(conversions) {}

  void Look(TextView value);

  // Nothing that follows can change the type any more.
  bool IsFinal() const { return text_; }

  ColumnDataType Type() const;

 private:
  const Conversions& conversions_;
  bool number_ = false;
  bool date_ = false;
  bool text_ = false;
};

// The type of a column (1-based) of a live list, from its rows in order. An error of the list
// comes out.
ColumnDataType DecideColumnType(HostListView& list, std::int32_t column,
                                const Conversions& conversions);

}  // namespace sifter
