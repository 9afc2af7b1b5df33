#include "controls/ColumnSort.h"

#include "base/AbsorbErrors.h"

namespace sifter {

void ColumnSort::Click(HostListView& list, const Value& index) {
  AbsorbErrors([&] { list.SetSortKey(ValueToInt32(index) - 1); });
  AbsorbErrors([&] {
    if (ValueToInt32(list.SortKey()) == lastColumn_) Turn(list);
  });
  AbsorbErrors([&] { list.SetSorted(true); });
  AbsorbErrors([&] { lastColumn_ = ValueToInt32(list.SortKey()); });
}

void ColumnSort::Turn(HostListView& list) {
  const bool descending = phase_ == 1;
  AbsorbErrors([&] { list.SetSortOrder(descending ? 1 : 0); });
  phase_ = descending ? 2 : 1;
}

}  // namespace sifter
