#pragma once

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"
#include "listmodel/RowData.h"

#include <cstdint>
#include <vector>

namespace sifter {

// The rows under test, in two kinds with the same members: Count(), and Row(i) for the row at the
// 0-based place i, which tells its text in a column (1-based; error 9 where there is no cell).

// The rows of any list, read member by member.
class LiveRows {
 public:
  explicit LiveRows(HostListView& list) : items_(list.ListItems()), count_(items_->Count()) {}

  std::size_t Count() const { return static_cast<std::size_t>(count_); }

  class Row {
   public:
    explicit Row(Ref<ListItem> item) : item_(std::move(item)) {}
    Text ColumnText(std::int32_t column) const {
      return ValueToText(column == 1 ? item_->Text() : item_->SubItems(column - 1));
    }

   private:
    Ref<ListItem> item_;
  };
  Row At(std::size_t i) const { return Row(items_->Item(static_cast<std::int32_t>(i) + 1)); }

 private:
  Ref<ListItemCollection> items_;
  std::int32_t count_;
};

// The rows of a list of our own.
class OwnRows {
 public:
  // `rows` are borrowed; `columns` is how many columns the list has.
  OwnRows(const std::vector<const RowData*>& rows, std::int32_t columns)
      : rows_(rows), columns_(columns) {}

  std::size_t Count() const { return rows_.size(); }

  class Row {
   public:
    Row(const RowData& row, std::int32_t columns) : row_(row), columns_(columns) {}
    const Text& ColumnText(std::int32_t column) const {
      const auto cell = static_cast<std::size_t>(column - 1);
      if (column > 1 && (column > columns_ || cell > row_.CellCount()))
        throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
      return row_.ColumnText(cell);
    }

   private:
    const RowData& row_;
    std::int32_t columns_;
  };
  Row At(std::size_t i) const { return Row(*rows_[i], columns_); }

 private:
  const std::vector<const RowData*>& rows_;
  std::int32_t columns_;
};

}  // namespace sifter
