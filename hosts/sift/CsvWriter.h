#pragma once

#include "base/Text.h"

#include <span>
#include <string>

namespace sifter {

// Appends one record and a line feed to `out`, in UTF-8, so that ReadCsv gives the same cells
// again. Quotes stand only where they are needed.
void AppendCsvRecord(std::string& out, std::span<const Text> cells);

}  // namespace sifter
