#pragma once

#include "listmodel/ListDisplay.h"
#include "win32/NativeListViewColumns.h"
#include "win32/NativeListViewFollower.h"
#include "win32/NativeListViewItems.h"
#include "win32/NativeListViewLook.h"
#include "win32/NativeListViewMarks.h"
#include "win32/NativeListViewTexts.h"
#include "win32/RedrawPause.h"
#include "win32/WindowTap.h"

#include <cstdint>
#include <optional>
#include <vector>
#include <windows.h>

namespace sifter {

// A list-view window as what shows a list. It sees the messages of the window and of the window's
// parent, which is asked for the texts and told what the user does, and hands each to whom it
// concerns.
//
// The window keeps the list alive until it is destroyed; after that the list is one without a
// window.
class NativeListViewDisplay final : public ListDisplay {
 public:
  // `window` is the host's and has a parent; `list` owns this object.
  NativeListViewDisplay(HWND window, MemoryListView& list);
  ~NativeListViewDisplay() override;

  // Takes over what the window holds and keeps the list alive from now on.
  void Open();

  // What shows the list of a window that has been opened; null when there is none.
  static NativeListViewDisplay* Of(HWND window);

  MemoryListView& List() const { return window_.list; }

  void InsertRow(const RowHandle& row) override;
  void RemoveRow(const RowHandle& row) override;
  void RemoveAllRows() override;
  void RowChanged(const RowHandle& row, RowChange change) override;
  void RowsReordered(const std::vector<std::int32_t>& order) override;
  void InsertColumn(std::int32_t position, double width) override;
  void RemoveColumn(std::int32_t position) override;
  void ColumnChanged(std::int32_t position) override;
  void ColumnResized(std::int32_t position, double width) override;
  double ColumnWidth(std::int32_t position, double given) const override;
  void SetFocus() override;
  void BeginUpdate() noexcept override { pause_.Begin(window_.handle); }
  void EndUpdate() noexcept override { pause_.End(); }

 private:
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> OnParentMessage(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> OnNotice(NMHDR& notice, WPARAM wParam, LPARAM lParam);
  template <class Item>
  LRESULT OnLabelEdited(const Item& item, LRESULT parentsAnswer);
  LRESULT OnWindowGone(WPARAM wParam, LPARAM lParam);

  // Whether a change of the list is to be brought to the window.
  bool ShowsChanges() const { return window_.handle != nullptr && !follower_.IsFollowing(); }
  void Redraw(const RowHandle& row);

  NativeListViewWindow window_;
  NativeListViewItems items_;
  NativeListViewColumns columns_;
  NativeListViewMarks marks_;
  NativeListViewTexts texts_;
  NativeListViewLook look_;
  NativeListViewFollower follower_;
  RedrawPause pause_{RedrawPause::Hidden::kPauseToo};
  WindowTap parentTap_;
  Ref<MemoryListView> alive_;  // the list, for as long as the window lives
};

}  // namespace sifter
