#include "win32/NativeListViewDisplay.h"

#include "win32/AnsiText.h"
#include "win32/WideText.h"
#include "win32/WindowEntry.h"
#include "win32/mListviewMacros_471.h"

#include <type_traits>
#include <utility>

namespace sifter {

namespace {

// Of this thread, the only one that may use these windows.
std::vector<NativeListViewDisplay*>& OpenDisplays() {
  static thread_local std::vector<NativeListViewDisplay*> displays;
  return displays;
}

template <class Notice>
Notice& As(NMHDR& notice) {
  return reinterpret_cast<Notice&>(notice);
}

}  // namespace

NativeListViewDisplay::NativeListViewDisplay(HWND window, MemoryListView& list)
    : window_{window, list},
      items_(window_),
      columns_(window_),
      marks_(window_, items_),
      texts_(window_, items_),
      look_(window_, items_),
      follower_(window_, items_) {
  window_.tap = WindowTap(window, [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnMessage(message, wParam, lParam);
  });
  parentTap_ =
      WindowTap(GetAncestor(window, GA_PARENT), [this](UINT message, WPARAM wParam, LPARAM lParam) {
        return OnParentMessage(message, wParam, lParam);
      });
}

NativeListViewDisplay::~NativeListViewDisplay() { std::erase(OpenDisplays(), this); }

NativeListViewDisplay* NativeListViewDisplay::Of(HWND window) {
  for (NativeListViewDisplay* display : OpenDisplays())
    if (display->window_.handle == window) return display;
  return nullptr;
}

void NativeListViewDisplay::Open() {
  follower_.TakeOver();
  // Otherwise a parent that is an ANSI window would be asked for ANSI texts.
  listview::SetUnicodeFormat(window_.handle, true);
  window_.list.SetWindow(static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(window_.handle)));
  alive_ = Ref<MemoryListView>(&window_.list);
  OpenDisplays().push_back(this);
}

void NativeListViewDisplay::InsertRow(const RowHandle& row) {
  if (follower_.IsFollowing()) follower_.OnRowInserted(row);
  if (!ShowsChanges()) return;
  {
    // A new item is given its box, unchecked, by the window.
    const NativeListViewMarks::OwnChanges own(marks_);
    items_.Insert(row);
  }
  if (window_.handle != nullptr) marks_.ShowNew(row);
}

void NativeListViewDisplay::RemoveRow(const RowHandle& row) {
  if (ShowsChanges()) items_.Remove(row);
}

void NativeListViewDisplay::RemoveAllRows() {
  if (ShowsChanges()) items_.RemoveAll();
}

void NativeListViewDisplay::RowChanged(const RowHandle& row, RowChange change) {
  if (!ShowsChanges()) return;
  const bool isMark = change == RowChange::kChecked || change == RowChange::kGhosted;
  marks_.Show(row, change);
  if (!isMark && change != RowChange::kToolTip) Redraw(row);
}

void NativeListViewDisplay::Redraw(const RowHandle& row) {
  if (window_.handle == nullptr || pause_.IsOn()) return;
  if (const int item = items_.ItemOf(row); item >= 0)
    listview::RedrawItems(window_.handle, item, item);
}

void NativeListViewDisplay::RowsReordered(const std::vector<std::int32_t>& order) {
  if (window_.handle == nullptr) return;
  marks_.Reorder(order);
  InvalidateRect(window_.handle, nullptr, TRUE);
}

void NativeListViewDisplay::InsertColumn(std::int32_t position, double width) {
  if (ShowsChanges()) columns_.Insert(position, width);
}

void NativeListViewDisplay::RemoveColumn(std::int32_t position) {
  if (ShowsChanges()) columns_.Remove(position);
}

void NativeListViewDisplay::ColumnChanged(std::int32_t position) {
  if (ShowsChanges()) columns_.Change(position);
}

void NativeListViewDisplay::ColumnResized(std::int32_t position, double width) {
  if (ShowsChanges()) columns_.Resize(position, width);
}

double NativeListViewDisplay::ColumnWidth(std::int32_t position, double given) const {
  return window_.handle == nullptr ? given : columns_.Width(position, given);
}

void NativeListViewDisplay::SetFocus() {
  if (window_.handle == nullptr) return;
  const Ref<MemoryListView> list = alive_;  // the host may destroy the window when it is told
  CallingWindows([&] { ::SetFocus(window_.handle); });
}

std::optional<LRESULT> NativeListViewDisplay::OnMessage(UINT message, WPARAM wParam,
                                                        LPARAM lParam) {
  if (message == WM_NCDESTROY) return OnWindowGone(wParam, lParam);
  const Ref<MemoryListView> list = alive_;  // the host may destroy the window in a notice
  if (message == WM_SETFONT) look_.ForgetFont();
  if (const std::optional<LRESULT> own = items_.OnMessage(message, wParam, lParam)) return own;
  if (columns_.IsAtWork()) return std::nullopt;
  return follower_.OnMessage(message, wParam, lParam);
}

// The last reference may be the window's: nothing of this object may be used behind it.
LRESULT NativeListViewDisplay::OnWindowGone(WPARAM wParam, LPARAM lParam) {
  const LRESULT result = window_.Do(WM_NCDESTROY, wParam, lParam);
  window_.handle = nullptr;
  window_.list.SetWindow(0);
  parentTap_.Reset();
  look_.ForgetFont();
  const Ref<MemoryListView> last = std::move(alive_);
  return result;
}

std::optional<LRESULT> NativeListViewDisplay::OnParentMessage(UINT message, WPARAM wParam,
                                                              LPARAM lParam) {
  if (message != WM_NOTIFY || lParam == 0) return std::nullopt;
  NMHDR& notice = *reinterpret_cast<NMHDR*>(lParam);
  if (notice.hwndFrom != window_.handle) return std::nullopt;
  const Ref<MemoryListView> list = alive_;  // the host may destroy the window in its answer
  return OnNotice(notice, wParam, lParam);
}

// The parent's own handler comes first where both may have something to say.
std::optional<LRESULT> NativeListViewDisplay::OnNotice(NMHDR& notice, WPARAM wParam,
                                                       LPARAM lParam) {
  const auto parentsAnswer = [&] { return parentTap_.Default(WM_NOTIFY, wParam, lParam); };
  const auto answered = [](bool ours) { return ours ? std::optional<LRESULT>(0) : std::nullopt; };
  switch (notice.code) {
    case LVN_INSERTITEM:
      items_.OnInserted();
      return std::nullopt;
    case LVN_GETDISPINFOW:
      if (follower_.IsAskingTheHost()) return std::nullopt;
      return answered(texts_.OnGetDisplayInfo(As<NMLVDISPINFOW>(notice).item));
    case LVN_GETDISPINFOA:
      if (follower_.IsAskingTheHost()) return std::nullopt;
      return answered(texts_.OnGetDisplayInfo(As<NMLVDISPINFOA>(notice).item));
    case LVN_GETINFOTIPW:
      return answered(texts_.OnGetInfoTip(As<NMLVGETINFOTIPW>(notice)));
    case LVN_GETINFOTIPA:
      return answered(texts_.OnGetInfoTip(As<NMLVGETINFOTIPA>(notice)));
    case NM_CUSTOMDRAW:
      return look_.OnCustomDraw(As<NMLVCUSTOMDRAW>(notice), parentsAnswer());
    case LVN_ITEMCHANGED:
      marks_.OnItemChanged(As<NMLISTVIEW>(notice));
      return std::nullopt;
    case LVN_ENDLABELEDITW:
      return OnLabelEdited(As<NMLVDISPINFOW>(notice).item, parentsAnswer());
    case LVN_ENDLABELEDITA:
      return OnLabelEdited(As<NMLVDISPINFOA>(notice).item, parentsAnswer());
    case LVN_COLUMNCLICK: {
      const LRESULT answer = parentsAnswer();
      window_.list.ClickColumn(As<NMLISTVIEW>(notice).iSubItem + 1);
      return answer;
    }
    default:
      return std::nullopt;
  }
}

// A text that the parent accepts goes into the list; the window, left to store it itself, would
// not ask for it any more.
template <class Item>
LRESULT NativeListViewDisplay::OnLabelEdited(const Item& item, LRESULT parentsAnswer) {
  const std::int32_t position = items_.PositionOf(item.iItem);
  if (parentsAnswer == 0 || item.pszText == nullptr || position == 0) return parentsAnswer;
  Text text;
  if constexpr (std::is_same_v<Item, LVITEMW>)
    text = FromWide(item.pszText);
  else
    text = FromWide(WideFromAnsi(item.pszText));
  window_.list.ListItems()->Item(position)->SetText(text);
  return FALSE;
}

}  // namespace sifter
