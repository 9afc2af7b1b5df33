#include "filterdialog/CopyListview.h"

namespace sifter::detail {

std::int32_t ShareRows(SharedRows* source, SharedRows* target) {
  if (source == nullptr || target == nullptr || source == target) return 0;
  const RowStore& from = source->Rows();
  const RowStore& to = target->Rows();
  const std::int32_t columns = source->ColumnCount();
  if (!target->TakesSharedRows() || to.Count() != 0 || columns < 1) return 0;
  const std::int32_t count = from.Count();
  std::uint64_t expected = to.Version();
  for (std::int32_t i = 1; i <= count; ++i) {
    // A host that changes either list on being told of a new row gets the rest row by row.
    if (to.Version() != expected || target->ColumnCount() != columns || from.Count() != count ||
        !from.KeysArePlain())
      return i - 1;
    const RowData& row = from.At(i);
    if (row.CellCount() != static_cast<std::size_t>(columns - 1)) return i - 1;
    target->AppendShared(row);
    ++expected;
  }
  return count;
}

}  // namespace sifter::detail
