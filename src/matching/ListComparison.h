#pragma once

#include "base/AbsorbErrors.h"
#include "base/Integers.h"
#include "base/RuntimeError.h"
#include "base/Value.h"
#include "listmodel/LiveValues.h"
#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"

#include <cstdint>

namespace sifter {

namespace detail {

// A flag of a live list for comparing: one that was never set is off, as its snapshot has it.
inline Value FlagForComparing(const Value& live) { return live.IsEmpty() ? Value(false) : live; }

template <class First, class Second>
bool RowsLookAlike(First& a, Second& b) {
  return ValueToInt32(a.ForeColor()) == ValueToInt32(b.ForeColor()) &&
         TextForComparing(a.Text()) == TextForComparing(b.Text()) &&
         TextForComparing(a.Tag()) == TextForComparing(b.Tag()) &&
         TextForComparing(a.Key()) == TextForComparing(b.Key()) &&
         FlagForComparing(a.Bold()) == FlagForComparing(b.Bold()) &&
         FlagForComparing(a.Checked()) == FlagForComparing(b.Checked()) &&
         FlagForComparing(a.Ghosted()) == FlagForComparing(b.Ghosted()) &&
         a.SmallIcon() == b.SmallIcon() &&
         TextForComparing(a.ToolTipText()) == TextForComparing(b.ToolTipText()) &&
         a.Icon() == b.Icon();
}

template <class First, class Second>
bool CellsLookAlike(First& a, Second& b) {
  return ValueToInt32(a.ForeColor()) == ValueToInt32(b.ForeColor()) &&
         FlagForComparing(a.Bold()) == FlagForComparing(b.Bold()) &&
         TextForComparing(a.Key()) == TextForComparing(b.Key()) &&
         a.ReportIcon() == b.ReportIcon() &&
         TextForComparing(a.Tag()) == TextForComparing(b.Tag()) &&
         TextForComparing(a.Text()) == TextForComparing(b.Text()) &&
         TextForComparing(a.ToolTipText()) == TextForComparing(b.ToolTipText());
}

// Only the cells of the first side's row are looked for, so a second row with more of them is
// still equal; hosts that keep private cells behind the visible ones rely on it. A cell that the
// second side lacks is error 9.
template <class First, class Second>
bool ItemsLookAlike(First& first, Second& second) {
  if (!RowsLookAlike(first, second)) return false;
  const auto cells = first.ListSubItems();
  const std::int32_t count = cells->Count();
  for (std::int32_t j = 1; j <= count; ++j)
    if (!CellsLookAlike(*cells->Item(j), *second.ListSubItems()->Item(j))) return false;
  return true;
}

// The same for two rows of our own. A row that both lists share equals itself.
bool SharedRowsLookAlike(const RowData& first, const RowData& second);

template <class First, class Second>
bool ListsLookAlike(First& first, Second& second) {
  const auto firstItems = first.ListItems();
  const auto secondItems = second.ListItems();
  const std::int32_t count = firstItems->Count();
  if (secondItems->Count() != count) return false;
  SharedRows* firstRows = first.Shared();
  SharedRows* secondRows = second.Shared();
  for (std::int32_t i = 1; i <= count; ++i) {
    ToInt16(i);  // the counter of rows is a 16-bit one
    const bool alike = firstRows != nullptr && secondRows != nullptr
                           ? SharedRowsLookAlike(firstRows->Rows().At(i), secondRows->Rows().At(i))
                           : ItemsLookAlike(*firstItems->Item(i), *secondItems->Item(i));
    if (!alike) return false;
  }
  return true;
}

}  // namespace detail

// Whether two lists hold the same rows with the same look: texts, tags, keys, icons, tool tips,
// colours and flags of rows and cells, row by row. Column headers play no part. Either list may
// be a live one or a snapshot.
//
// Never raises: a missing list, a list of over 32767 rows, a cell that only the first list has or
// any error of a list makes the answer False, so that the caller takes a new copy.
template <class First, class Second>
bool ListviewsAreEqual(First* first, Second* second) {
  bool equal = false;
  AbsorbErrors([&] {
    if (first == nullptr || second == nullptr) throw RuntimeError(ErrorNumber::kObjectNotSet);
    equal = detail::ListsLookAlike(*first, *second);
  });
  return equal;
}

}  // namespace sifter
