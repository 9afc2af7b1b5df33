#pragma once

#include "base/Ref.h"
#include "listmodel/HostListView.h"
#include "listmodel/LVColHeadersDump.h"
#include "listmodel/LVItemsDump.h"
#include "listmodel/SharedRows.h"

#include <cstdint>
#include <vector>

namespace sifter {

// A snapshot of a list: its columns and rows with every display attribute, under the member names
// of a live list.
//
// Every row has one cell fewer than there are columns from the moment it is added, and again
// whenever a column is added; taking columns away leaves the cells.
class ListViewDump final : public Object, private SharedRows {
 public:
  ListViewDump();
  ~ListViewDump() override;

  const Ref<LVColHeadersDump>& ColumnHeaders() const { return columnHeaders_; }
  const Ref<LVItemsDump>& ListItems() const { return listItems_; }

  // Appends a copy of a live row. A row whose key is taken is stored without a collection key;
  // its Key still reads as the live row's. Never raises: an error ends the copy of this row where
  // it stands, and the row stays with what it got.
  void AddItemToDump(ListItem& item);

  // Appends a row of another list as AddItemToDump appends a live one; it gets as many cells as
  // this snapshot's rows have.
  void AddRowToDump(const RowData& row);

  // Removes the first stored row that equals a live one: Key, Text, ToolTipText, Icon, SmallIcon
  // and Tag, and of every cell Key, Text, ReportIcon and Tag. How the row looks plays no part.
  // Nothing is removed when the live row's number of cells doesn't fit the snapshot's columns.
  // Never raises.
  void RemoveItemFromDump(ListItem& item);

  SharedRows* Shared() { return this; }

 private:
  const RowStore& Rows() const override { return listItems_->rows_; }
  std::int32_t ColumnCount() const override { return columnHeaders_->Count(); }
  bool TakesSharedRows() const override { return true; }
  void AppendShared(const RowData& row) override { listItems_->rows_.AppendShared(row); }
  void RemoveRows(const std::vector<std::int32_t>& positions) override {
    listItems_->rows_.RemoveAscending(positions);
  }

  Ref<LVColHeadersDump> columnHeaders_;
  Ref<LVItemsDump> listItems_;
};

}  // namespace sifter
