#include "filterdialog/ValueList.h"

#include "base/RuntimeError.h"
#include "listmodel/RowStore.h"

#include <unordered_set>

namespace sifter {

void CollectDistinctValues(ListViewDump& list, std::int32_t column, std::vector<Text>& values) {
  const RowStore& rows = list.Shared()->Rows();
  const auto cell = static_cast<std::size_t>(column);
  std::unordered_set<TextView> seen;
  for (std::int32_t i = 1; i <= rows.Count(); ++i) {
    const RowData& row = rows.At(i);
    if (cell > row.CellCount()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    const Text& value = row.ColumnText(cell);
    if (!value.IsEmpty() && seen.insert(value.View()).second) values.push_back(value);
  }
}

}  // namespace sifter
