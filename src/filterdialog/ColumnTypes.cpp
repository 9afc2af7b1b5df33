#include "filterdialog/ColumnTypes.h"

#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"
#include "matching/MatchRows.h"

namespace sifter {

void ColumnTypeDecision::Look(TextView value) {
  if (text_ || value.empty()) return;
  if (conversions_.IsNumeric(value)) {
    number_ = true;
    text_ = date_;
  } else if (conversions_.IsDate(value)) {
    date_ = true;
    text_ = number_;
  } else {
    text_ = true;
  }
}

ColumnDataType ColumnTypeDecision::Type() const {
  if (text_ || (!number_ && !date_)) return ColumnDataType::kText;
  return number_ ? ColumnDataType::kNumber : ColumnDataType::kDate;
}

namespace {

template <class Rows>
ColumnDataType Decide(const Rows& rows, std::int32_t column, const Conversions& conversions) {
  ColumnTypeDecision decision(conversions);
  for (std::size_t i = 0; i < rows.Count() && !decision.IsFinal(); ++i) {
    const auto& row = rows.At(i);
    const Text value(row.ColumnText(column));
    decision.Look(value);
  }
  return decision.Type();
}

}  // namespace

ColumnDataType DecideColumnType(HostListView& list, std::int32_t column,
                                const Conversions& conversions) {
  SharedRows* own = list.Shared();
  if (own == nullptr) return Decide(LiveRows(list), column, conversions);
  std::vector<const RowData*> rows;
  own->Rows().CollectRows(rows);
  return Decide(OwnRows(rows, own->ColumnCount()), column, conversions);
}

}  // namespace sifter
