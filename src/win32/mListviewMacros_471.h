#pragma once

#include "base/Text.h"
#include "win32/mListviewDefs_471.h"

#include <string>
#include <windows.h>

namespace sifter::listview {

// The messages of a list-view window as calls. `list` is a list-view window of this process; items,
// sub-items and columns are counted from 0 here, as the window counts them. Texts go by the
// Unicode messages, whatever kind of window it is.

inline int ItemCount(HWND list) {
  return static_cast<int>(SendMessageW(list, kGetItemCount, 0, 0));
}

// Sends 4103. The place that the item got, -1 when the window didn't take it. `item` must carry no
// text of its own but LPSTR_TEXTCALLBACKA.
inline int InsertItem(HWND list, const LVITEMA& item) {
  return static_cast<int>(SendMessageW(list, kInsertItemA, 0, reinterpret_cast<LPARAM>(&item)));
}

// Sends 4104.
inline bool DeleteItem(HWND list, int item) {
  return SendMessageW(list, kDeleteItem, static_cast<WPARAM>(item), 0) != 0;
}

// Sends 4105.
inline bool DeleteAllItems(HWND list) { return SendMessageW(list, kDeleteAllItems, 0, 0) != 0; }

inline bool GetItem(HWND list, LVITEMW& item) {
  return SendMessageW(list, kGetItemW, 0, reinterpret_cast<LPARAM>(&item)) != 0;
}

inline bool SetItem(HWND list, const LVITEMW& item) {
  return SendMessageW(list, kSetItemW, 0, reinterpret_cast<LPARAM>(&item)) != 0;
}

// The whole text of a cell, however long; item text for sub-item 0.
inline Text ItemText(HWND list, int item, int subItem) {
  std::wstring buffer(kCallbackTextRoom, L'\0');
  for (;;) {
    LVITEMW cell{};
    cell.iSubItem = subItem;
    cell.pszText = buffer.data();
    cell.cchTextMax = static_cast<int>(buffer.size());
    const auto length = static_cast<std::size_t>(SendMessageW(
        list, kGetItemTextW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell)));
    if (length + 1 < buffer.size())
      return Text(TextView(reinterpret_cast<const char16_t*>(buffer.data()), length));
    buffer.resize(buffer.size() * 4);
  }
}

inline void SetItemText(HWND list, int item, int subItem, LPWSTR text) {
  LVITEMW cell{};
  cell.iSubItem = subItem;
  cell.pszText = text;
  SendMessageW(list, kSetItemTextW, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&cell));
}

inline UINT ItemState(HWND list, int item, UINT mask) {
  return static_cast<UINT>(
      SendMessageW(list, kGetItemState, static_cast<WPARAM>(item), static_cast<LPARAM>(mask)));
}

inline void SetItemState(HWND list, int item, UINT state, UINT mask) {
  LVITEMW change{};
  change.state = state;
  change.stateMask = mask;
  SendMessageW(list, kSetItemState, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&change));
}

// Has these items drawn again.
inline void RedrawItems(HWND list, int first, int last) {
  SendMessageW(list, kRedrawItems, static_cast<WPARAM>(first), last);
}

// Sends 4123. The place that the column got, -1 when the window didn't take it. `column` must
// carry no text.
inline int InsertColumn(HWND list, int place, const LVCOLUMNA& column) {
  return static_cast<int>(SendMessageW(list, kInsertColumnA, static_cast<WPARAM>(place),
                                       reinterpret_cast<LPARAM>(&column)));
}

// Sends 4124.
inline bool DeleteColumn(HWND list, int column) {
  return SendMessageW(list, kDeleteColumn, static_cast<WPARAM>(column), 0) != 0;
}

inline bool GetColumn(HWND list, int place, LVCOLUMNW& column) {
  return SendMessageW(list, kGetColumnW, static_cast<WPARAM>(place),
                      reinterpret_cast<LPARAM>(&column)) != 0;
}

inline void SetColumn(HWND list, int place, const LVCOLUMNW& column) {
  SendMessageW(list, kSetColumnW, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&column));
}

inline int ColumnWidth(HWND list, int column) {
  return static_cast<int>(SendMessageW(list, kGetColumnWidth, static_cast<WPARAM>(column), 0));
}

inline DWORD ExtendedStyle(HWND list) {
  return static_cast<DWORD>(SendMessageW(list, kGetExtendedStyle, 0, 0));
}

inline void AddExtendedStyle(HWND list, DWORD style) {
  SendMessageW(list, kSetExtendedStyle, style, static_cast<LPARAM>(style));
}

inline HWND Header(HWND list) {
  return reinterpret_cast<HWND>(SendMessageW(list, kGetHeader, 0, 0));
}

inline DWORD Style(HWND list) { return static_cast<DWORD>(GetWindowLongPtrW(list, GWL_STYLE)); }

// Whether the window's notices carry Unicode texts, whatever kind of window its parent is.
inline void SetUnicodeFormat(HWND list, bool unicode) {
  SendMessageW(list, kSetUnicodeFormat, unicode ? 1 : 0, 0);
}

}  // namespace sifter::listview
