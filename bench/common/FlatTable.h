#pragma once

#include "base/Text.h"
#include "listmodel/HostListView.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sifter::bench {

// A table laid out for one purpose: to be walked through quickly, row by row. Each row is one
// run of UTF-16 code units, the ends of its cells first and then the cells; all rows follow each
// other in memory.
class FlatTable {
 public:
  // The rows of a list as they are now. A row may hold up to 65535 units.
  explicit FlatTable(HostListView& list);

  // A row. It is good for as long as the table is.
  using Row = const char16_t*;

  const std::vector<Row>& Rows() const { return rows_; }
  std::size_t Columns() const { return columns_; }

  // `column` is 0-based.
  TextView Cell(Row row, std::size_t column) const {
    const std::size_t begin = column == 0 ? 0 : row[column - 1];
    return TextView(row + columns_ + begin, row[column] - begin);
  }

  // The 0-based number of one of this table's rows.
  std::uint32_t NumberOf(Row row) const;

 private:
  std::size_t columns_;
  std::vector<char16_t> units_;
  std::vector<Row> rows_;
};

}  // namespace sifter::bench
