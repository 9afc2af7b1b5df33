#pragma once

#include "win32/NativeListViewItems.h"

#include <optional>
#include <windows.h>

namespace sifter {

// Takes over into the list what its window has got from elsewhere: what it held before the list
// was made, and what the host's program does later by sending the window messages itself. The
// window then asks the list for the texts and pictures of these items like for any other row's.
//
// A program's own numbers on the items (lParam) stay on them for as long as the item does. The
// window is not sorted by such messages: the list has its own members for that.
class NativeListViewFollower {
 public:
  NativeListViewFollower(NativeListViewWindow& window, NativeListViewItems& items)
      : window_(window), items_(items) {}

  // Everything that is there now.
  void TakeOver();

  // The result of a message that somebody else has sent to the window, when it is one of those
  // that change the list.
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

  // Whether the list is being brought into line with the window just now, so that the window needs
  // not be told.
  bool IsFollowing() const { return following_ > 0; }

  // A row that comes into the list meanwhile.
  void OnRowInserted(const RowHandle& row);

  // Whether the window's questions for texts and pictures are the host's to answer just now.
  bool IsAskingTheHost() const { return asking_ > 0; }

 private:
  // Counts up a member for the length of a block.
  class Counted;

  void TakeOverSorting();
  void TakeOverColumn(int column);
  void TakeOverItem(ListItem& row, int item);
  void TakeOverCell(ListItem& row, int item, int subItem);
  void TakeOverMarks(ListItem& row, int item);
  Text TextOf(int item, int subItem);
  std::optional<int> PictureOf(int item, int subItem);

  template <class Item>
  LRESULT Insert(const Item& given);
  LRESULT Remove(int item);
  LRESULT RemoveAll();
  LRESULT Change(UINT message, WPARAM wParam, LPARAM lParam, int item, int subItem);
  LRESULT InsertColumn(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT RemoveColumn(int column);
  LRESULT ChangeColumn(UINT message, WPARAM wParam, LPARAM lParam);

  NativeListViewWindow& window_;
  NativeListViewItems& items_;
  int following_ = 0;
  int asking_ = 0;
  LVITEMW* inserted_ = nullptr;  // what somebody is inserting, until it is in the window
  LRESULT place_ = -1;           // where that went
};

}  // namespace sifter
