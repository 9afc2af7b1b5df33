#pragma once

#include "container/Automation.h"
#include "demo/FolderEntry.h"

#include <commctrl.h>
#include <set>
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

  // All rows anew. Not under a filter: the rows that it holds back would come back later, and their
  // keys stand for them until then.
  void Fill(std::vector<FolderEntry> entries);
  // Adds, removes and changes the rows that differ from those that there were. Under a filter those
  // that it holds back can't be reached: they stay as they are, and the list is in step with the
  // entries only when it is filled again.
  void Follow(std::vector<FolderEntry> entries, bool filtered);

  // How many rows stand in the list, and how many there are with those that a filter holds back.
  int Shown() const { return ListView_GetItemCount(window_); }
  int Total() const { return static_cast<int>(entries_.size()); }

  // The entry of a row; null if there is none such.
  const FolderEntry* EntryAt(int row) const;
  // The rows that stand in the list: a line for each, the cells with tabs between.
  std::wstring TextOfRows() const;
  void FocusFirstRow();

 private:
  void AddColumns();
  void Insert(int position, const FolderEntry& entry);
  void Remove(const FolderEntry& entry);
  void Change(const FolderEntry& from, const FolderEntry& to);
  void Update(int position, const FolderEntry& from, const FolderEntry& to, bool filtered);
  Automation Row(int position) const;
  // The keys of the rows that stand in the list.
  std::set<std::wstring> ShownKeys() const;

  HWND window_;
  Automation list_;
  Automation items_;
  std::vector<FolderEntry> entries_;  // of all rows, those that a filter holds back too
};

}  // namespace hosts
