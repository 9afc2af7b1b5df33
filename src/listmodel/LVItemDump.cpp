#include "listmodel/LVItemDump.h"

namespace sifter {

void LVItemDump::SetSubItemNum(const RowMembers& row, std::int32_t num) {
  if (num > row.CellCount()) {
    while (row.CellCount() < num) row.InsertCell(row.CellCount() + 1, 0);
    return;
  }
  // The index rises although the cells behind a removed one move down, so a surplus of more than
  // one loses every second cell and then runs off the end. Hosts' rows only ever come here with
  // columns that were taken away, one at a time; evening this out would change which of a row's
  // values survive in the lists they already rely on.
  const std::int32_t last = row.CellCount();
  for (std::int32_t j = num < 1 ? 1 : num + 1; j <= last; ++j) row.RemoveCell(j);
}

}  // namespace sifter
