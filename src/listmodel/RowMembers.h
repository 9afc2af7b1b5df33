#pragma once

#include "base/Text.h"
#include "base/Value.h"
#include "listmodel/RowStore.h"

#include <cstdint>

namespace sifter {

// One row of a store under the list model's member names: the text of what a snapshot's row and
// the in-memory list's item have in common. Writing converts: to text, Boolean, 32-bit (Value.h
// says with which errors); nothing has changed after an error. A cell that the row doesn't have
// is error 9.
class RowMembers {
 public:
  explicit RowMembers(RowHandle row) : row_(std::move(row)) {}

  sifter::Text Key() const { return row_.Row().Extras().key; }
  sifter::Text Text() const { return row_.Row().ColumnText(0); }
  sifter::Text Tag() const { return row_.Row().Extras().tag; }
  sifter::Text ToolTipText() const { return row_.Row().Extras().toolTipText; }
  Value Icon() const { return row_.Row().Extras().icon; }
  Value SmallIcon() const { return row_.Row().Extras().smallIcon; }
  bool Bold() const { return row_.Row().Bold(); }
  bool Checked() const { return row_.Row().Checked(); }
  bool Ghosted() const { return row_.Row().Ghosted(); }
  std::int32_t ForeColor() const { return row_.Row().ForeColor(); }

  void SetText(const Value& text) const;
  void SetTag(const Value& tag) const;
  void SetToolTipText(const Value& text) const;
  void SetIcon(const Value& icon) const;
  void SetSmallIcon(const Value& icon) const;
  void SetBold(const Value& bold) const;
  void SetChecked(const Value& checked) const;
  void SetGhosted(const Value& ghosted) const;
  void SetForeColor(const Value& color) const;

  sifter::Text SubItems(std::int32_t j) const { return row_.Row().ColumnText(CheckedCell(j)); }
  void SetSubItems(std::int32_t j, const Value& text) const;

  std::int32_t CellCount() const { return static_cast<std::int32_t>(row_.Row().CellCount()); }
  void RemoveCell(std::int32_t j) const;

  // A new empty cell in front of cell j, or behind the last one when j is the count plus 1.
  void InsertCell(std::int32_t j, std::int32_t foreColor) const;

  const RowHandle& Handle() const { return row_; }
  std::size_t CheckedCell(std::int32_t j) const;

 private:
  RowHandle row_;
};

// One cell of such a row, by its position: after cells in front of it have gone it stands for
// the one that moved up.
class CellMembers {
 public:
  CellMembers(RowMembers row, std::int32_t j) : row_(std::move(row)), j_(j) { row_.CheckedCell(j); }

  sifter::Text Key() const { return Extras().key; }
  sifter::Text Text() const { return row_.SubItems(j_); }
  sifter::Text Tag() const { return Extras().tag; }
  Value ReportIcon() const { return Extras().reportIcon; }
  sifter::Text ToolTipText() const { return Extras().toolTipText; }
  std::int32_t ForeColor() const { return Extras().foreColor; }
  bool Bold() const { return Extras().bold; }

  void SetKey(const Value& key) const;
  void SetText(const Value& text) const { row_.SetSubItems(j_, text); }
  void SetTag(const Value& tag) const;
  void SetReportIcon(const Value& icon) const;
  void SetToolTipText(const Value& text) const;
  void SetForeColor(const Value& color) const;
  void SetBold(const Value& bold) const;

 private:
  CellExtras Extras() const { return row_.Handle().Row().Cell(row_.CheckedCell(j_)); }

  // Writes one member, unless it has that value already: cells that never get anything but a
  // text stay small.
  template <class T>
  void Write(T CellExtras::*member, T value) const;

  RowMembers row_;
  std::int32_t j_;
};

}  // namespace sifter
