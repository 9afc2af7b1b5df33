#pragma once

#include "base/Text.h"

#include <cstddef>
#include <span>
#include <vector>

namespace sifter {

// A table as a CSV file holds it: a header and records of as many cells.
struct CsvTable {
  std::vector<Text> header;  // at least one column
  std::vector<Text> cells;   // record by record, header.size() cells each

  std::size_t RecordCount() const { return header.empty() ? 0 : cells.size() / header.size(); }

  // The cells of record `i`, counted from 0; it must exist.
  std::span<const Text> Record(std::size_t i) const {
    return std::span(cells).subspan(i * header.size(), header.size());
  }

  friend bool operator==(const CsvTable&, const CsvTable&) = default;
};

}  // namespace sifter
