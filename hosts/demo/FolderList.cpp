#include "demo/FolderList.h"

#include "container/Failure.h"
#include "container/Measures.h"
#include "demo/FileWords.h"

#include <rowsifter/ListViewObject.h>

#include <iterator>
#include <utility>

namespace hosts {

namespace {

constexpr int kTwipsPerPixel = 15;  // of 96 to the inch
constexpr int kRightAligned = 1;

struct Column {
  const wchar_t* header;
  int width;  // pixels at 96 dots per inch
  int alignment;
  std::wstring FolderEntry::*text;
};

constexpr Column kColumns[] = {
    {L"Name", 220, 0, &FolderEntry::name},
    {L"Type", 150, 0, &FolderEntry::type},
    {L"Size", 90, kRightAligned, &FolderEntry::size},
    {L"Modified", 170, 0, &FolderEntry::modified},
    {L"Attributes", 80, 0, &FolderEntry::attributes},
};

// No drawing while many rows come and go.
class DrawingPause {
 public:
  explicit DrawingPause(HWND window) : window_(window) {
    SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
  }
  DrawingPause(const DrawingPause&) = delete;
  DrawingPause& operator=(const DrawingPause&) = delete;
  ~DrawingPause() {
    SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(window_, nullptr, TRUE);
  }

 private:
  HWND window_;
};

HWND MakeWindow(HWND parent, int id) {
  const HWND window = CreateWindowExW(
      WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"Files",
      WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS, 0,
      0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr),
      nullptr);
  if (window == nullptr) ThrowLastError(L"Making the list");
  ListView_SetExtendedListViewStyle(window, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  UseSystemIcons(window);
  return window;
}

Automation ObjectOf(HWND listView) {
  ComRef<IDispatch> object;
  Check(CreateListViewObject(listView, object.Receive()), L"Making the list's object");
  return Automation(std::move(object));
}

}  // namespace

FolderList::FolderList(HWND parent, int id)
    : window_(MakeWindow(parent, id)),
      list_(ObjectOf(window_)),
      items_(list_.GetObject(L"ListItems")) {
  AddColumns();
}

void FolderList::AddColumns() {
  const Automation columns = list_.GetObject(L"ColumnHeaders");
  for (const Column& column : kColumns)
    columns.Call(L"Add", {Variant::Missing(), Variant::Missing(), Variant(column.header),
                          Variant(column.width * kTwipsPerPixel), Variant(column.alignment)});
}

void FolderList::Fill(std::vector<FolderEntry> entries) {
  const DrawingPause pause(window_);
  items_.Call(L"Clear");
  entries_.clear();
  for (const FolderEntry& entry : entries) Insert(0, entry);
  entries_ = std::move(entries);
}

// Position 0 is behind the last row.
void FolderList::Insert(int position, const FolderEntry& entry) {
  const Automation row(items_
                           .Call(L"Add", {position == 0 ? Variant::Missing() : Variant(position),
                                          Variant(entry.name), Variant(entry.name),
                                          Variant::Missing(), Variant(entry.icon)})
                           .Object());
  for (int i = 1; i < static_cast<int>(std::size(kColumns)); ++i)
    row.PutAt(L"SubItems", i, Variant(entry.*kColumns[i].text));
}

// By the key: the user may have sorted the list.
void FolderList::Remove(const FolderEntry& entry) { items_.Call(L"Remove", {Variant(entry.name)}); }

void FolderList::Change(const FolderEntry& from, const FolderEntry& to) {
  const Automation row = items_.GetObject(L"Item", {Variant(to.name)});
  for (int i = 1; i < static_cast<int>(std::size(kColumns)); ++i) {
    const auto text = kColumns[i].text;
    if (from.*text != to.*text) row.PutAt(L"SubItems", i, Variant(to.*text));
  }
}

// Under a filter a row that changes is taken for a new one, with the key of the one that it was.
// The old row is removed, so that the key is free.
void FolderList::Update(int position, const FolderEntry& from, const FolderEntry& to,
                        bool filtered) {
  if (from == to) return;
  if (!filtered) return Change(from, to);
  Remove(from);
  Insert(position, to);
}

Automation FolderList::Row(int position) const {
  return items_.GetObject(L"Item", {Variant(position)});
}

std::set<std::wstring> FolderList::ShownKeys() const {
  std::set<std::wstring> keys;
  for (int position = 1; position <= Shown(); ++position)
    keys.insert(Row(position).Get(L"Key").Text());
  return keys;
}

// Both are in the same order, so one walk along them finds every difference.
void FolderList::Follow(std::vector<FolderEntry> entries, bool filtered) {
  if (!filtered && Shown() != Total()) return Fill(std::move(entries));
  const DrawingPause pause(window_);
  const std::set<std::wstring> shown = ShownKeys();
  std::vector<FolderEntry> rows;
  auto old = entries_.cbegin();
  auto now = entries.cbegin();
  int position = 1;
  while (old != entries_.cend() || now != entries.cend()) {
    const bool gone = now == entries.cend() || (old != entries_.cend() && ComesBefore(*old, *now));
    if (!gone && (old == entries_.cend() || ComesBefore(*now, *old))) {
      Insert(position++, *now);
      rows.push_back(*now++);
      continue;
    }
    if (!shown.contains(old->name)) {
      rows.push_back(*old);
    } else if (gone) {
      Remove(*old);
    } else {
      Update(position++, *old, *now, filtered);
      rows.push_back(*now);
    }
    ++old;
    if (!gone) ++now;
  }
  entries_ = std::move(rows);
}

const FolderEntry* FolderList::EntryAt(int row) const {
  if (row < 0) return nullptr;
  const std::wstring name = Row(row + 1).Get(L"Text").Text();
  for (const FolderEntry& entry : entries_)
    if (entry.name == name) return &entry;
  return nullptr;
}

std::wstring FolderList::TextOfRows() const {
  std::wstring text;
  for (int position = 1; position <= Shown(); ++position) {
    const Automation row = Row(position);
    text += row.Get(L"Text").Text();
    for (int i = 1; i < static_cast<int>(std::size(kColumns)); ++i)
      text += L'\t' + row.Get(L"SubItems", {Variant(i)}).Text();
    text += L"\r\n";
  }
  return text;
}

void FolderList::FocusFirstRow() {
  ListView_SetItemState(window_, 0, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
}

}  // namespace hosts
