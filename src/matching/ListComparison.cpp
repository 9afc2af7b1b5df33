#include "matching/ListComparison.h"

namespace sifter::detail {

namespace {

bool SameExtras(const RowExtras& a, const RowExtras& b) {
  return a.tag == b.tag && a.key == b.key && a.smallIcon == b.smallIcon &&
         a.toolTipText == b.toolTipText && a.icon == b.icon;
}

}  // namespace

bool SharedRowsLookAlike(const RowData& first, const RowData& second) {
  if (&first == &second) return true;
  if (first.ForeColor() != second.ForeColor() || first.Bold() != second.Bold() ||
      first.Checked() != second.Checked() || first.Ghosted() != second.Ghosted() ||
      first.ColumnText(0) != second.ColumnText(0) || !SameExtras(first.Extras(), second.Extras()))
    return false;
  for (std::size_t j = 1; j <= first.CellCount(); ++j) {
    if (j > second.CellCount()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    if (first.ColumnText(j) != second.ColumnText(j) || !(first.Cell(j) == second.Cell(j)))
      return false;
  }
  return true;
}

}  // namespace sifter::detail
