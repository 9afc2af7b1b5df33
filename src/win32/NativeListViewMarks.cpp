#include "win32/NativeListViewMarks.h"

#include "win32/WindowEntry.h"
#include "win32/mListviewMacros_471.h"

#include <utility>

namespace sifter {

namespace {

bool HasToolTip(const RowData& row) {
  if (!row.Extras().toolTipText.IsEmpty()) return true;
  for (std::size_t j = 1; row.HasCellExtras() && j <= row.CellCount(); ++j)
    if (!row.Cell(j).toolTipText.IsEmpty()) return true;
  return false;
}

bool HasCellIcon(const RowData& row) {
  for (std::size_t j = 1; row.HasCellExtras() && j <= row.CellCount(); ++j)
    if (!row.Cell(j).reportIcon.IsEmpty()) return true;
  return false;
}

// Everything that the window itself knows of an item.
struct ItemMarks {
  UINT state;
  LPARAM data;

  friend bool operator==(const ItemMarks&, const ItemMarks&) = default;
};

ItemMarks MarksOf(HWND window, int item) {
  LVITEMW read{};
  read.mask = LVIF_STATE | LVIF_PARAM;
  read.iItem = item;
  read.stateMask = ~0u;
  listview::GetItem(window, read);
  return {read.state, read.lParam};
}

void SetMarks(HWND window, int item, const ItemMarks& marks) {
  LVITEMW write{};
  write.mask = LVIF_STATE | LVIF_PARAM;
  write.iItem = item;
  write.state = marks.state;
  write.stateMask = ~0u;
  write.lParam = marks.data;
  listview::SetItem(window, write);
}

}  // namespace

void NativeListViewMarks::Use(DWORD extendedStyle) {
  if ((listview::ExtendedStyle(window_.handle) & extendedStyle) != 0) return;
  const OwnChanges own(*this);
  listview::AddExtendedStyle(window_.handle, extendedStyle);
}

void NativeListViewMarks::ShowNew(const RowHandle& row) {
  const RowData& data = row.Row();
  if (data.Checked()) ShowChecked(row);
  if (HasToolTip(data)) Use(listview::kInfoTip);
  if (HasCellIcon(data)) Use(listview::kSubItemImages);
}

void NativeListViewMarks::Show(const RowHandle& row, RowChange change) {
  switch (change) {
    case RowChange::kChecked:
      ShowChecked(row);
      break;
    case RowChange::kGhosted:
      ShowGhosted(row);
      break;
    case RowChange::kToolTip:
      if (HasToolTip(row.Row())) Use(listview::kInfoTip);
      break;
    case RowChange::kCellIcon:
      if (HasCellIcon(row.Row())) Use(listview::kSubItemImages);
      break;
    default:
      break;
  }
}

// A list in which nothing has been checked yet has no boxes, and needs none for an unchecked row.
void NativeListViewMarks::ShowChecked(const RowHandle& row) {
  const bool checked = row.Row().Checked();
  if (checked) Use(listview::kCheckBoxes);
  const int item = items_.ItemOf(row);
  if (item < 0 || (listview::ExtendedStyle(window_.handle) & listview::kCheckBoxes) == 0) return;
  const OwnChanges own(*this);
  listview::SetItemState(window_.handle, item,
                         checked ? listview::kCheckedImage : listview::kUncheckedImage,
                         listview::kStateImageMask);
}

void NativeListViewMarks::ShowGhosted(const RowHandle& row) {
  const int item = items_.ItemOf(row);
  if (item < 0) return;
  const OwnChanges own(*this);
  listview::SetItemState(window_.handle, item, row.Row().Ghosted() ? listview::kCut : 0,
                         listview::kCut);
}

// One notice may stand for all items (-1).
void NativeListViewMarks::OnItemChanged(const NMLISTVIEW& change) {
  constexpr UINT kWatched = listview::kStateImageMask | listview::kCut;
  if (own_ > 0 || (change.uChanged & LVIF_STATE) == 0) return;
  if (((change.uOldState ^ change.uNewState) & kWatched) == 0) return;
  const int first = change.iItem < 0 ? 0 : change.iItem;
  const int last = change.iItem < 0 ? window_.Rows().Count() - 1 : change.iItem;
  for (int item = first; item <= last; ++item) ReadFromItem(item);
}

void NativeListViewMarks::ReadFromItem(int item) {
  const std::int32_t position = items_.PositionOf(item);
  if (position == 0) return;
  const UINT state = listview::ItemState(window_.handle, item, ~0u);
  const bool boxes = (listview::ExtendedStyle(window_.handle) & listview::kCheckBoxes) != 0;
  const bool checked = (state & listview::kStateImageMask) == listview::kCheckedImage;
  const bool ghosted = (state & listview::kCut) != 0;
  const Ref<ListItem> row = window_.list.ListItems()->Item(position);
  if (boxes && row->Checked() != Value(checked)) row->SetChecked(checked);
  if (row->Ghosted() != Value(ghosted)) row->SetGhosted(ghosted);
}

// In the middle of another change there may be rows without an item.
void NativeListViewMarks::Reorder(const std::vector<std::int32_t>& order) {
  const int count = listview::ItemCount(window_.handle);
  std::vector<bool> hasItem(order.size() + 1, true);  // by old position
  for (const std::int32_t position : items_.PositionsWithoutItem())
    hasItem[static_cast<std::size_t>(order[static_cast<std::size_t>(position) - 1])] = false;
  std::vector<ItemMarks> marks(order.size() + 1);  // by old position
  for (std::size_t position = 1, item = 0; position <= order.size(); ++position)
    if (hasItem[position]) marks[position] = MarksOf(window_.handle, static_cast<int>(item++));
  const OwnChanges own(*this);
  int item = 0;
  for (const std::int32_t position : order) {
    const auto old = static_cast<std::size_t>(position);
    if (!hasItem[old] || item >= count) continue;
    if (!(MarksOf(window_.handle, item) == marks[old])) SetMarks(window_.handle, item, marks[old]);
    ++item;
  }
}

}  // namespace sifter
