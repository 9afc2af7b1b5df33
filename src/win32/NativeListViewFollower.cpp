#include "win32/NativeListViewFollower.h"

#include "win32/AnsiText.h"
#include "win32/Dpi.h"
#include "win32/WideText.h"
#include "win32/mListviewMacros_471.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

class NativeListViewFollower::Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  ~Counted() { --count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  int& count_;
};

namespace {

constexpr std::size_t kColumnTextRoom = 1024;

// A column as the window has it.
struct WindowColumn {
  Text text;
  double width = 0;  // twips
  std::int32_t alignment = 0;
  Value icon;
};

WindowColumn ColumnOf(HWND window, int column) {
  std::wstring text(kColumnTextRoom, L'\0');
  LVCOLUMNW read{};
  read.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_IMAGE;
  read.pszText = text.data();
  read.cchTextMax = static_cast<int>(text.size());
  listview::GetColumn(window, column, read);
  WindowColumn result;
  if (read.pszText != nullptr) result.text = FromWide(read.pszText);
  result.width = PixelsToTwips(read.cx, DpiOf(window));
  result.alignment = read.fmt & LVCFMT_JUSTIFYMASK;
  if ((read.fmt & LVCFMT_COL_HAS_IMAGES) != 0) result.icon = std::int32_t{read.iImage};
  return result;
}

int ColumnCount(HWND window) {
  const HWND header = listview::Header(window);
  return header == nullptr ? 0 : static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
}

bool HasImages(HWND window) {
  return SendMessageW(window, LVM_GETIMAGELIST, LVSIL_SMALL, 0) != 0 ||
         SendMessageW(window, LVM_GETIMAGELIST, LVSIL_NORMAL, 0) != 0;
}

std::wstring TextGiven(const LVITEMW& item) {
  const bool hasText = (item.mask & LVIF_TEXT) != 0 && item.pszText != LPSTR_TEXTCALLBACKW;
  return hasText && item.pszText != nullptr ? item.pszText : std::wstring();
}

std::wstring TextGiven(const LVITEMA& item) {
  const bool hasText = (item.mask & LVIF_TEXT) != 0 && item.pszText != LPSTR_TEXTCALLBACKA;
  return hasText && item.pszText != nullptr ? WideFromAnsi(item.pszText) : std::wstring();
}

// The item with `text` for the one it was given, or with the host's callback.
template <class Item>
LVITEMW WideForm(const Item& given, std::wstring& text) {
  static_assert(sizeof(Item) == sizeof(LVITEMW), "both forms differ only in the kind of text");
  LVITEMW item;
  std::memcpy(&item, &given, sizeof item);
  if ((item.mask & LVIF_TEXT) != 0 && item.pszText != LPSTR_TEXTCALLBACKW)
    item.pszText = text.data();
  return item;
}

// The window is to ask for what the cell shows.
void MakeCallback(const NativeListViewWindow& window, int item, int subItem) {
  LVITEMW cell{};
  cell.mask = LVIF_TEXT | LVIF_IMAGE;
  cell.iItem = item;
  cell.iSubItem = subItem;
  cell.pszText = LPSTR_TEXTCALLBACKW;
  cell.iImage = I_IMAGECALLBACK;
  window.Do(listview::kSetItemW, 0, reinterpret_cast<LPARAM>(&cell));
}

}  // namespace

void NativeListViewFollower::TakeOver() {
  const Counted following(following_);
  const int columns = ColumnCount(window_.handle);
  for (int column = 0; column < columns; ++column) TakeOverColumn(column);
  const int count = listview::ItemCount(window_.handle);
  const Ref<ListItemCollection> rows = window_.list.ListItems();
  for (int item = 0; item < count; ++item)
    TakeOverItem(*rows->Add(0, Text(), Text(), Value(), Value()), item);
  TakeOverSorting();
}

// The window itself must not sort: it would go by texts that it has to ask for.
void NativeListViewFollower::TakeOverSorting() {
  const DWORD style = listview::Style(window_.handle);
  const DWORD sorting = style & (listview::kSortAscending | listview::kSortDescending);
  if (sorting == 0) return;
  SetWindowLongPtrW(window_.handle, GWL_STYLE, static_cast<LONG_PTR>(style & ~sorting));
  window_.list.SetSortOrder(sorting == listview::kSortDescending ? 1 : 0);
  window_.list.SetSorted(true);
}

void NativeListViewFollower::TakeOverColumn(int column) {
  const WindowColumn read = ColumnOf(window_.handle, column);
  window_.list.ColumnHeaders()->Add(column + 1, Text(), read.text, read.width, read.alignment,
                                    read.icon);
}

void NativeListViewFollower::TakeOverItem(ListItem& row, int item) {
  TakeOverMarks(row, item);
  TakeOverCell(row, item, 0);
  const int columns = window_.list.ColumnHeaders()->Count();
  for (int subItem = 1; subItem < columns; ++subItem) TakeOverCell(row, item, subItem);
}

void NativeListViewFollower::TakeOverMarks(ListItem& row, int item) {
  const UINT state = listview::ItemState(window_.handle, item, ~0u);
  const bool boxes = (listview::ExtendedStyle(window_.handle) & listview::kCheckBoxes) != 0;
  if (boxes && (state & listview::kStateImageMask) == listview::kCheckedImage) row.SetChecked(true);
  if ((state & listview::kCut) != 0) row.SetGhosted(true);
}

void NativeListViewFollower::TakeOverCell(ListItem& row, int item, int subItem) {
  const Text text = TextOf(item, subItem);
  const std::optional<int> picture = PictureOf(item, subItem);
  if (subItem == 0) {
    row.SetText(text);
    if (picture) row.SetIcon(std::int32_t{*picture});
    if (picture) row.SetSmallIcon(std::int32_t{*picture});
  } else {
    row.SetSubItems(subItem, text);
    if (picture) row.ListSubItems()->Item(subItem)->SetReportIcon(std::int32_t{*picture});
  }
  MakeCallback(window_, item, subItem);
}

Text NativeListViewFollower::TextOf(int item, int subItem) {
  const Counted asking(asking_);
  return listview::ItemText(window_.handle, item, subItem);
}

std::optional<int> NativeListViewFollower::PictureOf(int item, int subItem) {
  const bool inCells = (listview::ExtendedStyle(window_.handle) & listview::kSubItemImages) != 0;
  if (!HasImages(window_.handle) || (subItem > 0 && !inCells)) return std::nullopt;
  const Counted asking(asking_);
  LVITEMW read{};
  read.mask = LVIF_IMAGE;
  read.iItem = item;
  read.iSubItem = subItem;
  if (!listview::GetItem(window_.handle, read) || read.iImage < 0) return std::nullopt;
  return read.iImage;
}

void NativeListViewFollower::OnRowInserted(const RowHandle& row) {
  if (LVITEMW* item = std::exchange(inserted_, nullptr)) place_ = items_.InsertForeign(row, *item);
}

std::optional<LRESULT> NativeListViewFollower::OnMessage(UINT message, WPARAM wParam,
                                                         LPARAM lParam) {
  const int number = static_cast<int>(wParam);
  switch (message) {
    case listview::kInsertItemA:
      return Insert(*reinterpret_cast<const LVITEMA*>(lParam));
    case listview::kInsertItemW:
      return Insert(*reinterpret_cast<const LVITEMW*>(lParam));
    case listview::kDeleteItem:
      return Remove(number);
    case listview::kDeleteAllItems:
      return RemoveAll();
    case listview::kSetItemA:
    case listview::kSetItemW: {
      // Up to the text both forms are the same.
      const auto& item = *reinterpret_cast<const LVITEMW*>(lParam);
      if ((item.mask & (LVIF_TEXT | LVIF_IMAGE)) == 0) return std::nullopt;
      return Change(message, wParam, lParam, item.iItem, item.iSubItem);
    }
    case listview::kSetItemTextA:
    case listview::kSetItemTextW:
      return Change(message, wParam, lParam, number,
                    reinterpret_cast<const LVITEMW*>(lParam)->iSubItem);
    case listview::kInsertColumnA:
    case LVM_INSERTCOLUMNW:
      return InsertColumn(message, wParam, lParam);
    case listview::kDeleteColumn:
      return RemoveColumn(number);
    case LVM_SETCOLUMNA:
    case listview::kSetColumnW:
      return ChangeColumn(message, wParam, lParam);
    case listview::kSortItems:
    case listview::kSortItemsEx:
      return FALSE;
    default:
      return std::nullopt;
  }
}

// The row goes into the list first, which knows where a sorted list has it; the list then has the
// item put there (OnRowInserted).
template <class Item>
LRESULT NativeListViewFollower::Insert(const Item& given) {
  const Counted following(following_);
  std::wstring text = TextGiven(given);
  LVITEMW item = WideForm(given, text);
  place_ = -1;
  inserted_ = &item;
  const Ref<ListItemCollection> rows = window_.list.ListItems();
  const std::int32_t end = rows->Count() + 1;
  const std::int32_t index = item.iItem < 0 || item.iItem >= end ? end : item.iItem + 1;
  const Ref<ListItem> row = rows->Add(index, Text(), FromWide(text), {}, {});
  const LRESULT place = place_;
  if (place < 0) {
    rows->Remove(row->Index());
    return -1;
  }
  TakeOverItem(*row, static_cast<int>(place));
  return place;
}

LRESULT NativeListViewFollower::Remove(int item) {
  const Counted following(following_);
  const std::int32_t position = items_.PositionOf(item);
  const LRESULT removed = items_.RemoveForeign(item);
  if (removed != 0 && position != 0) window_.list.ListItems()->Remove(position);
  return removed;
}

LRESULT NativeListViewFollower::RemoveAll() {
  const Counted following(following_);
  const LRESULT removed = window_.Do(kDeleteAllItems, 0, 0);
  window_.list.ListItems()->Clear();
  return removed;
}

LRESULT NativeListViewFollower::Change(UINT message, WPARAM wParam, LPARAM lParam, int item,
                                       int subItem) {
  const Counted following(following_);
  const LRESULT changed = window_.Do(message, wParam, lParam);
  const std::int32_t position = items_.PositionOf(item);
  if (position == 0 || subItem >= window_.list.ColumnHeaders()->Count()) return changed;
  TakeOverCell(*window_.list.ListItems()->Item(position), item, subItem);
  return changed;
}

LRESULT NativeListViewFollower::InsertColumn(UINT message, WPARAM wParam, LPARAM lParam) {
  const Counted following(following_);
  const LRESULT column = window_.Do(message, wParam, lParam);
  if (column >= 0) TakeOverColumn(static_cast<int>(column));
  return column;
}

// The list lets all its columns go and gets the others again.
LRESULT NativeListViewFollower::RemoveColumn(int column) {
  const Counted following(following_);
  const LRESULT removed = window_.Do(kDeleteColumn, static_cast<WPARAM>(column), 0);
  if (removed == 0) return removed;
  std::vector<Ref<ColumnHeader>> others;
  const Ref<ColumnHeaderCollection> columns = window_.list.ColumnHeaders();
  for (std::int32_t i = 1; i <= columns->Count(); ++i)
    if (i != column + 1) others.push_back(columns->Item(i));
  columns->Clear();
  for (const Ref<ColumnHeader>& other : others)
    columns->Add(0, other->Key(), other->Text(), other->Width(), other->Alignment(), other->Icon())
        ->SetTag(other->Tag());
  return removed;
}

LRESULT NativeListViewFollower::ChangeColumn(UINT message, WPARAM wParam, LPARAM lParam) {
  const Counted following(following_);
  const LRESULT changed = window_.Do(message, wParam, lParam);
  const auto position = static_cast<std::int32_t>(wParam) + 1;
  if (changed == 0 || position > window_.list.ColumnHeaders()->Count()) return changed;
  const WindowColumn read = ColumnOf(window_.handle, position - 1);
  const Ref<ColumnHeader> column = window_.list.ColumnHeaders()->Item(position);
  column->SetText(read.text);
  column->SetAlignment(read.alignment);
  if (!read.icon.IsEmpty()) column->SetIcon(read.icon);
  return changed;
}

}  // namespace sifter
