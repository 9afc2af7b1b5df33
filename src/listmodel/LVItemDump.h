#pragma once

#include "base/Ref.h"
#include "listmodel/RowMembers.h"

#include <cstdint>

namespace sifter {

// One cell of columns 2..n of a snapshot row.
class LVSubItemDump final : public Object, public CellMembers {
 public:
  explicit LVSubItemDump(CellMembers cell) : CellMembers(std::move(cell)) {}
};

// The cells of one snapshot row, 1-based; a position that doesn't exist is error 9.
class LVSubItemsDump final : public Object {
 public:
  explicit LVSubItemsDump(RowMembers row) : row_(std::move(row)) {}

  std::int32_t Count() const { return row_.CellCount(); }
  Ref<LVSubItemDump> Item(std::int32_t j) const {
    return MakeRef<LVSubItemDump>(CellMembers(row_, j));
  }

 private:
  RowMembers row_;
};

// One row of a snapshot. It goes on working for its holders after it has left its list, and
// after the list has ended.
class LVItemDump final : public Object, public RowMembers {
 public:
  explicit LVItemDump(RowHandle row) : RowMembers(std::move(row)) {}

  // The row stays in its collection under the key that it was added with.
  void SetKey(const Value& key) const { Handle().SetKey(ValueToText(key), false); }

  Ref<LVSubItemsDump> ListSubItems() const { return MakeRef<LVSubItemsDump>(*this); }

  // Makes the row have `num` cells. Growing appends empty ones. Shrinking by more than one takes
  // out every second of the surplus cells and then ends with error 9, see the implementation.
  void SetSubItemNum(std::int32_t num) const { SetSubItemNum(*this, num); }
  static void SetSubItemNum(const RowMembers& row, std::int32_t num);
};

}  // namespace sifter
