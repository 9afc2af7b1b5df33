#pragma once

#include "base/Text.h"
#include "base/Value.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace sifter {

// What a row has beyond its texts and flags. Rows that never set any of it have none of this.
struct RowExtras {
  Text key;
  Text tag;
  Text toolTipText;
  Value icon;
  Value smallIcon;
};

// What a cell has beyond its text.
struct CellExtras {
  Text key;
  Text tag;
  Text toolTipText;
  Value reportIcon;
  std::int32_t foreColor = 0;
  bool bold = false;

  friend bool operator==(const CellExtras&, const CellExtras&) = default;
};

class RowPtr;

// One row of a list of our own: the first column's text, the texts of the cells behind it and
// the display attributes.
//
// Lists share rows: copying a list copies pointers. A row that is shared never changes; whoever
// wants to change one does it through RowPtr::Edit, which makes a copy first when it is shared.
// Two lists that hold the same RowData at the same position are therefore equal there, which is
// what lets the engine keep what it once read from a column.
class RowData {
 public:
  // `cells` empty cells; `foreColor` for the row and its cells.
  static RowPtr Make(std::size_t cells, std::int32_t foreColor);

  RowData(const RowData&) = delete;
  RowData& operator=(const RowData&) = delete;

  std::size_t CellCount() const noexcept { return cells_; }

  // Column 0 is the row's own text, column j its cell j; up to CellCount().
  const Text& ColumnText(std::size_t column) const noexcept { return Texts()[column]; }
  void SetColumnText(std::size_t column, Text text) noexcept { Texts()[column] = std::move(text); }

  const RowExtras& Extras() const noexcept { return extras_ ? *extras_ : NoExtras(); }
  RowExtras& EditExtras();

  // Cell j, 1-based.
  CellExtras Cell(std::size_t j) const {
    return cellExtras_ ? cellExtras_[j - 1] : CellExtras{{}, {}, {}, {}, cellForeColor_, false};
  }
  CellExtras& EditCell(std::size_t j);

  // False as long as no cell has anything but its text.
  bool HasCellExtras() const noexcept { return cellExtras_ != nullptr; }

  bool Bold() const noexcept { return bold_; }
  bool Checked() const noexcept { return checked_; }
  bool Ghosted() const noexcept { return ghosted_; }
  std::int32_t ForeColor() const noexcept { return foreColor_; }
  void SetBold(bool bold) noexcept { bold_ = bold; }
  void SetChecked(bool checked) noexcept { checked_ = checked; }
  void SetGhosted(bool ghosted) noexcept { ghosted_ = ghosted; }
  void SetForeColor(std::int32_t color) noexcept { foreColor_ = color; }

 private:
  friend class RowPtr;

  RowData(std::size_t cells, std::int32_t foreColor) noexcept
      : cells_(static_cast<std::uint32_t>(cells)),
        foreColor_(foreColor),
        cellForeColor_(foreColor) {}
  ~RowData() = default;

  static const RowExtras& NoExtras();

  // The texts follow the object in memory: 1 + CellCount() of them.
  Text* Texts() noexcept { return reinterpret_cast<Text*>(this + 1); }
  const Text* Texts() const noexcept { return reinterpret_cast<const Text*>(this + 1); }

  static void Destroy(RowData* row) noexcept;

  std::uint32_t references_ = 1;
  std::uint32_t cells_;
  std::int32_t foreColor_;
  std::int32_t cellForeColor_;  // of the cells as long as none was given one of its own
  bool bold_ = false;
  bool checked_ = false;
  bool ghosted_ = false;
  std::unique_ptr<RowExtras> extras_;
  std::unique_ptr<CellExtras[]> cellExtras_;
};

// A share of one row.
class RowPtr {
 public:
  RowPtr() noexcept = default;
  RowPtr(const RowPtr& other) noexcept : row_(other.row_) {
    if (row_ != nullptr) ++row_->references_;
  }
  RowPtr(RowPtr&& other) noexcept : row_(std::exchange(other.row_, nullptr)) {}
  RowPtr& operator=(RowPtr other) noexcept {
    std::swap(row_, other.row_);
    return *this;
  }
  ~RowPtr() {
    if (row_ != nullptr && --row_->references_ == 0) RowData::Destroy(row_);
  }

  const RowData* Get() const noexcept { return row_; }
  const RowData* operator->() const noexcept { return row_; }
  const RowData& operator*() const noexcept { return *row_; }

  // Whether somebody else has a share too.
  bool IsShared() const noexcept { return row_->references_ > 1; }

  // The row for writing; after this call nobody else sees it.
  RowData& Edit();

  // A row with the same content and a new empty cell of this colour in front of cell j (1-based),
  // or without cell j.
  RowPtr WithNewCell(std::size_t j, std::int32_t foreColor) const;
  RowPtr WithoutCell(std::size_t j) const;

  // Hands the share over as a plain pointer, and takes it back.
  RowData* Release() noexcept { return std::exchange(row_, nullptr); }
  static RowPtr Adopt(RowData* row) noexcept {
    RowPtr pointer;
    pointer.row_ = row;
    return pointer;
  }
  static RowPtr Share(const RowData* row) noexcept {
    RowPtr pointer;
    pointer.row_ = const_cast<RowData*>(row);
    ++pointer.row_->references_;
    return pointer;
  }

 private:
  friend class RowData;

  // A copy of the row with `cells` cells, in which `source(j)` says which old cell becomes cell j;
  // 0 for a new one.
  template <class Source>
  RowPtr Rearranged(std::size_t cells, std::int32_t newForeColor, Source source) const;

  RowData* row_ = nullptr;
};

}  // namespace sifter
