#pragma once

#include "win32/NativeListViewItems.h"

#include <string>
#include <windows.h>

namespace sifter {

// Answers the window's questions for the texts and pictures of its items, and for tool tips. Each
// question comes in a Unicode and an ANSI form; characters that the latter can't carry become "?".
//
// A picture is a number in Icon (in the icon view), SmallIcon (in the other views) or a cell's
// ReportIcon: its place in the window's image list, from 0. Texts there show no picture.
class NativeListViewTexts {
 public:
  NativeListViewTexts(const NativeListViewWindow& window, const NativeListViewItems& items)
      : window_(window), items_(items) {}

  // False when the item shows no row of the list's.
  bool OnGetDisplayInfo(LVITEMW& item);
  bool OnGetDisplayInfo(LVITEMA& item);

  // The tip of the cell under the mouse, else of the row.
  bool OnGetInfoTip(NMLVGETINFOTIPW& tip) const;
  bool OnGetInfoTip(NMLVGETINFOTIPA& tip) const;

 private:
  template <class Item>
  bool Fill(Item& item);
  Text ToolTip(int item) const;
  int PictureOf(const RowData& row, int subItem) const;

  const NativeListViewWindow& window_;
  const NativeListViewItems& items_;
  // The window copies what it was answered before it asks again.
  std::wstring wide_;
  std::string narrow_;
};

}  // namespace sifter
