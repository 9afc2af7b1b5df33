#pragma once

#include "base/Value.h"
#include "listmodel/ColumnClicks.h"
#include "listmodel/HostListView.h"
#include "listmodel/ListDisplay.h"
#include "listmodel/ListMessages.h"
#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace sifter {

class MemoryColumn;
class MemoryListView;

// Leads from a cell to its list without keeping that alive.
struct MemoryListLink final : Object {
  MemoryListView* list = nullptr;  // null once it has ended
};

// Sees the notices of a MemoryListView, in the order in which the window of a real list view
// would receive the messages.
class ListObserver {
 public:
  virtual ~ListObserver() = default;
  virtual void OnListMessage(ListMessage message, std::intptr_t wParam, std::intptr_t lParam) = 0;
};

// A complete host list in memory: what a console host, a test or a benchmark hands to the dialog.
//
// It is strict. Keys are unique among the rows and among the columns and are compared exactly
// (error 457 for a taken one, 5 for one that isn't there); a position that doesn't exist is error
// 9. Items of a list with n columns are born with n - 1 empty cells, and adding a column gives
// every item one more at its end; taking columns away leaves the cells. Colours start as the
// system's window text colour.
//
// An item goes on working for its holders after it has left the list; it only has no Index then.
//
// Sorted = True puts the rows in the order of column SortKey at once (by code unit, stable) and
// keeps them so when rows are added; rows whose text is changed stay where they are.
class MemoryListView final : public HostListView, private SharedRows {
 public:
  MemoryListView();
  ~MemoryListView() override;

  Ref<ColumnHeaderCollection> ColumnHeaders() override;
  Ref<ListItemCollection> ListItems() override;
  std::int32_t hWnd() const override { return hWnd_; }
  Value Sorted() const override { return sorted_; }
  Value SortKey() const override { return sortKey_; }
  Value SortOrder() const override { return sortOrder_; }
  void SetSorted(const Value& sorted) override;
  void SetSortKey(const Value& column) override;
  void SetSortOrder(const Value& order) override;
  Ref<Object> WatchColumnClicks(std::function<void(std::int32_t column)> clicked) override {
    return columnClicks_.Watch(std::move(clicked));
  }
  void SetFocus() override;
  void BeginUpdate() noexcept override;
  void EndUpdate() noexcept override;
  SharedRows* Shared() override { return this; }

  // The user has clicked on the header of this column (1-based).
  void ClickColumn(std::int32_t column) const { columnClicks_.Raise(column); }

  // A handle for whoever stands in for the list's window.
  void SetWindow(std::int32_t hWnd) { hWnd_ = hWnd; }

  // What shows the list from now on, as long as the list lives. It isn't told of what is in the
  // list already.
  void SetDisplay(std::unique_ptr<ListDisplay> display) { display_ = std::move(display); }

  // Observers are told in the order in which they came; they may add, remove and clear rows and
  // observers meanwhile. `observer` must be removed before it ends.
  void AddObserver(ListObserver* observer) { observers_.push_back(observer); }
  void RemoveObserver(ListObserver* observer);

 private:
  friend class MemoryColumnHeaders;
  friend class MemoryListItems;
  friend class MemoryColumn;
  friend class MemoryListItem;
  friend class MemorySubItem;

  const RowStore& Rows() const override { return rows_; }
  std::int32_t ColumnCount() const override;
  bool TakesSharedRows() const override { return !sorted_; }
  void AppendShared(const RowData& row) override;
  void RemoveRows(const std::vector<std::int32_t>& positions) override;

  void Notify(ListMessage message, std::int32_t index);
  RowPtr NewRow(const Value& key, const Value& text, const Value& icon,
                const Value& smallIcon) const;
  RowHandle InsertRow(std::int32_t position, RowPtr row);
  void RemoveRow(std::int32_t position);
  void ClearRows();
  void ShowRow(const RowHandle& row);
  void RowChanged(const RowHandle& row, RowChange change);
  void ShowColumn(const MemoryColumn* column);
  void ColumnChanged(const MemoryColumn* column);
  void ColumnResized(const MemoryColumn* column, double width);
  double ColumnWidth(const MemoryColumn* column, double given) const;
  void GrowRows();
  std::int32_t PositionOfColumn(const MemoryColumn* column) const;
  void RequireFreeColumnKey(const Text& key) const;
  void Sort();
  std::int32_t SortedPosition(const RowData& row) const;
  const Text& SortText(const RowData& row) const;
  bool StandsBefore(const RowData& a, const RowData& b) const;

  Ref<MemoryListLink> link_;
  RowStore rows_;
  std::vector<Ref<MemoryColumn>> columns_;
  std::vector<ListObserver*> observers_;
  std::unique_ptr<ListDisplay> display_;
  ColumnClicks columnClicks_;
  int notifying_ = 0;
  std::int32_t hWnd_ = 0;
  bool sorted_ = false;
  std::int32_t sortKey_ = 0;
  std::int32_t sortOrder_ = 0;
};

}  // namespace sifter
