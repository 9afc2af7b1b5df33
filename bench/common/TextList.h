#pragma once

#include "base/Ref.h"
#include "listmodel/MemoryListView.h"
#include "sift/CsvTable.h"

namespace sifter::bench {

// A host list of the table's columns and records that carries texts and nothing else, as the
// lists do whose memory is measured.
Ref<MemoryListView> MakeTextList(const CsvTable& table);

// The same with a text of its own for every cell; the reader lets equal cells share theirs.
Ref<MemoryListView> MakeUnsharedTextList(const CsvTable& table);

}  // namespace sifter::bench
