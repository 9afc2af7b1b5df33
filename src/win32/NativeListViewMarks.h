#pragma once

#include "listmodel/ListDisplay.h"
#include "win32/NativeListViewItems.h"

#include <vector>
#include <windows.h>

namespace sifter {

// What a native list's window keeps for each item itself: check mark and ghosted state. They are
// written into the window when the list changes and into the list when the user does.
//
// Check boxes, tool tips and pictures in cells come with extended styles, which are switched on
// when the first row uses them, so that a list that has none of these looks as it did.
class NativeListViewMarks {
 public:
  NativeListViewMarks(NativeListViewWindow& window, const NativeListViewItems& items)
      : window_(window), items_(items) {}

  // A row has just got its item, in its ghosted state.
  void ShowNew(const RowHandle& row);

  void Show(const RowHandle& row, RowChange change);

  // The window tells of a change of an item.
  void OnItemChanged(const NMLISTVIEW& change);

  // The marks go with their rows.
  void Reorder(const std::vector<std::int32_t>& order);

  // Changes of items that are reported while this lives are our own.
  class OwnChanges {
   public:
    explicit OwnChanges(NativeListViewMarks& marks) : marks_(marks) { ++marks_.own_; }
    ~OwnChanges() { --marks_.own_; }
    OwnChanges(const OwnChanges&) = delete;
    OwnChanges& operator=(const OwnChanges&) = delete;

   private:
    NativeListViewMarks& marks_;
  };

 private:
  void Use(DWORD extendedStyle);
  void ShowChecked(const RowHandle& row);
  void ShowGhosted(const RowHandle& row);
  void ReadFromItem(int item);

  NativeListViewWindow& window_;
  const NativeListViewItems& items_;
  int own_ = 0;
};

}  // namespace sifter
