#pragma once

#include "base/Text.h"
#include "listmodel/ListViewDump.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace sifter {

// The distinct non-empty values of a snapshot's column (0-based), in order of first appearance.
// Values that differ only in case are different. A row that lacks the cell is error 9; `values`
// then holds those of the rows before it.
void CollectDistinctValues(ListViewDump& list, std::int32_t column, std::vector<Text>& values);

}  // namespace sifter
