#pragma once

#include "listmodel/HostListView.h"

#include <cstdint>

namespace sifter {

// Sorts a list by the column whose header was clicked: clicks on the same column in turn ascending
// and descending, on another one in the order last used. A fresh one takes column 1 for the last:
// hosts that fill their lists in its order have its first click put them in that order, not by
// another's.
class ColumnSort {
 public:
  // `index` is the header's Index, from 1. Errors of the list are ignored, step by step.
  void Click(HostListView& list, const Value& index);

 private:
  void Turn(HostListView& list);

  std::int32_t lastColumn_ = 0;  // 0-based
  std::int32_t phase_ = 0;       // 1 after ascending, 2 after descending, 0 at first
};

}  // namespace sifter
