#pragma once

#include "listmodel/RowData.h"

#include <cstdint>
#include <vector>

namespace sifter {

class RowStore;

// The rows of a list of our own, so that the engine and the copy can share whole rows with other
// such lists instead of carrying every member over.
class SharedRows {
 public:
  virtual ~SharedRows() = default;

  virtual const RowStore& Rows() const = 0;

  // Columns the list has now; a row may be shared with a list of as many columns.
  virtual std::int32_t ColumnCount() const = 0;

  // False when an appended row would not simply stand at the end (a sorted list).
  virtual bool TakesSharedRows() const = 0;

  // What Add does for one row, with all its attributes at once. The row's key must be free.
  virtual void AppendShared(const RowData& row) = 0;

  // What Remove does for each of these positions, from the last to the first. Ascending, in range.
  virtual void RemoveRows(const std::vector<std::int32_t>& positions) = 0;
};

}  // namespace sifter
