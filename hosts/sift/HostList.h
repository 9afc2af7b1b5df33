#pragma once

#include "base/Ref.h"
#include "listmodel/MemoryListView.h"
#include "sift/CsvTable.h"

#include <cstdint>
#include <vector>

namespace sifter {

// A host list with the table's columns and records. Each item carries the number of its record,
// from 1, in its Tag: no criterion looks there, and copies of the list carry it along.
Ref<MemoryListView> MakeHostList(const CsvTable& table);

// The numbers of the records that such a list still shows, in its order.
std::vector<std::int32_t> RecordsShown(MemoryListView& list);

}  // namespace sifter
