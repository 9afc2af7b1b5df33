#pragma once

#include "container/Automation.h"
#include "demo/FolderEntry.h"

#include <commctrl.h>
#include <string>
#include <vector>
#include <windows.h>

namespace hosts {

// The list view with a row for each entry of a folder. Rows are added and removed through the list
// view's object, which is what the filter control is given.
class FolderList {
 public:
  // The window is a child of `parent`, which destroys it.
  FolderList(HWND parent, int id);

  HWND Window() const { return window_; }
  IDispatch* Object() const { return list_.Object(); }

  // All rows anew.
  void Fill(std::vector<FolderEntry> entries);
  // Adds, removes and changes the rows that differ from those filled in before. Not for a list out
  // of which a filter has taken rows.
  void Follow(std::vector<FolderEntry> entries);

  // How many rows stand in the list, and how many there are without a filter.
  int Shown() const { return ListView_GetItemCount(window_); }
  int Total() const { return static_cast<int>(entries_.size()); }

  // The entry of a row; null if there is none such.
  const FolderEntry* EntryAt(int row) const;
  void FocusFirstRow();

 private:
  void AddColumns();
  void Insert(int position, const FolderEntry& entry);
  void Change(int position, const FolderEntry& from, const FolderEntry& to);

  HWND window_;
  Automation list_;
  Automation items_;
  std::vector<FolderEntry> entries_;
};

}  // namespace hosts
