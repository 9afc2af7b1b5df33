#pragma once

#include "base/Value.h"
#include "listmodel/LiveValues.h"

#include <cstdint>

namespace sifter::modPLC2 {

namespace detail {

// A Null equals nothing, not even another one.
inline bool SameValue(const Value& a, const Value& b) { return !a.IsNull() && a == b; }

inline bool SameText(const Value& a, const Value& b) {
  return !a.IsNull() && !b.IsNull() && TextForComparing(a) == TextForComparing(b);
}

template <class First, class Second>
bool SameItem(First& a, Second& b) {
  return SameText(a.Key(), b.Key()) && SameText(a.Tag(), b.Tag()) &&
         SameValue(a.Icon(), b.Icon()) && SameValue(a.SmallIcon(), b.SmallIcon()) &&
         SameText(a.Text(), b.Text()) && SameText(a.ToolTipText(), b.ToolTipText());
}

template <class First, class Second>
bool SameCell(First& a, Second& b) {
  return SameText(a.Key(), b.Key()) && SameText(a.Text(), b.Text()) && SameText(a.Tag(), b.Tag()) &&
         SameValue(a.ReportIcon(), b.ReportIcon());
}

// The cells of the list's row count; a given row with more of them is the same all the same, one
// with fewer is another row.
template <class Given, class Listed>
bool SameRow(Given& given, Listed& listed) {
  if (!SameItem(given, listed)) return false;
  const auto listedCells = listed.ListSubItems();
  const std::int32_t count = listedCells->Count();
  if (count == 0) return true;
  const auto givenCells = given.ListSubItems();
  if (givenCells->Count() < count) return false;
  for (std::int32_t j = 1; j <= count; ++j)
    if (!SameCell(*givenCells->Item(j), *listedCells->Item(j))) return false;
  return true;
}

}  // namespace detail

// The 1-based position of the first row of `rows` that equals `row` by key, tag, icons, text and
// tool tip, and by key, text, tag and icon of every cell; 0 when none does. What a row looks like
// otherwise, its colours, check mark and bold, plays no part. Row and rows may be a live list's or
// a snapshot's. Any error of a list comes out.
template <class Row, class Rows>
std::int32_t PositionOf(Row& row, Rows& rows) {
  const std::int32_t count = rows.Count();
  for (std::int32_t i = 1; i <= count; ++i)
    if (detail::SameRow(row, *rows.Item(i))) return i;
  return 0;
}

}  // namespace sifter::modPLC2
