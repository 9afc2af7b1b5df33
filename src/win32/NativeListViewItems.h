#pragma once

#include "listmodel/MemoryListView.h"
#include "win32/WindowTap.h"
#include "win32/mListviewDefs_471.h"

#include <cstdint>
#include <optional>
#include <vector>
#include <windows.h>

namespace sifter {

// The list-view window behind a native list. The window is the host's.
struct NativeListViewWindow {
  HWND handle;  // null once it has been destroyed
  MemoryListView& list;
  WindowTap tap{};

  const RowStore& Rows() const { return list.Shared()->Rows(); }

  // Has the window deal with a message of which nobody in front of it is told.
  LRESULT Do(UINT message, WPARAM wParam, LPARAM lParam) const {
    return tap.Default(message, wParam, lParam);
  }
};

// Rows of the list and items of the window: puts the items in and takes them out, by the messages
// that others watch for, and knows at any moment which item shows which row.
//
// A watcher sees a message before the window does, and may change the list from there. What the
// window then gets is the message for the place where the row stands by then, or nothing when the
// row has gone.
class NativeListViewItems {
 public:
  explicit NativeListViewItems(NativeListViewWindow& window) : window_(window) {}

  // With the list counting the row already. Error 7 when the window refuses.
  void Insert(const RowHandle& row);

  // With the rows still in the list.
  void Remove(const RowHandle& row);
  void RemoveAll();

  // The same for messages that others have sent, and that have reached the window: no watcher is
  // told again. `item` is put where the row stands; the result is the window's.
  LRESULT InsertForeign(const RowHandle& row, LVITEMW item);
  LRESULT RemoveForeign(int item);

  // The result of a message that has reached the window, when it is one of the above.
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

  // The window has taken the item in and is about to tell its parent.
  void OnInserted();

  // The item of a row; -1 when the window has none.
  int ItemOf(const RowHandle& row) const;

  // Of the rows that are still waiting for their items. Ascending.
  std::vector<std::int32_t> PositionsWithoutItem() const;

  // The position of the row that an item shows; 0 when it shows none.
  std::int32_t PositionOf(int item) const;

 private:
  // A message of ours on its way to the window.
  struct Step {
    UINT message;
    const RowHandle* row;
    LVITEMA* item;
    bool arrived = false;
    Step* outer = nullptr;
  };
  class StepScope;

  // A row that has lost its item and is about to leave the list; until the list next changes.
  struct Gone {
    std::int32_t position = 0;
    std::uint64_t version = 0;
  };

  class AwaitingScope;

  LRESULT InsertNow(const Step& step);
  LRESULT RemoveNow(const Step& step);
  int PlaceOf(const RowHandle& row) const;
  std::int32_t GonePosition() const;
  void HasItem(const RowHandle& row);

  NativeListViewWindow& window_;
  Step* step_ = nullptr;             // the innermost
  std::vector<RowHandle> awaiting_;  // rows that don't have their item yet
  Gone gone_;
};

}  // namespace sifter
