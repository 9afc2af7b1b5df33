#pragma once

#include "listmodel/ListViewDump.h"
#include "listmodel/RowData.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sifter {

// Whether a row of one of our lists equals a row of another one, as modPLC2 compares them: `given`
// may have more cells than `listed`, whose cells count. Only an icon that is Null, which equals
// nothing there, equals another one here: such a row would be taken for a new one again and again.
bool SameRow(const RowData& given, const RowData& listed);

// Finds rows in a snapshot by their content, with the results of modPLC2::PositionOf but without
// walking over all rows for each. The snapshot is borrowed; until the index ends it may only be
// appended to, and Update must be called then.
class RowIndex {
 public:
  explicit RowIndex(ListViewDump& dump);

  // The position of the first row that equals `given` and hasn't been taken; 0 when there is none.
  std::int32_t PositionOf(const RowData& given);

  // The snapshot may have got new last rows.
  void Update();

  // The row isn't to be found any more, though it still stands in the snapshot.
  void Take(std::int32_t position);

 private:
  using Position = std::int32_t;  // from 1; 0 for none

  // The rows with one hash, in a chain of ascending positions.
  struct Chain {
    std::size_t hash;
    Position first;  // those before it have been taken
    Position last;   // 0 while there is no such chain
  };
  struct Link {
    Position next;
    bool taken;
  };

  Chain& ChainOf(std::size_t hash);
  void Grow();
  void Insert(Position position);
  Link& LinkOf(Position position) { return links_[static_cast<std::size_t>(position) - 1]; }

  const RowStore& rows_;
  std::vector<std::size_t> cellCounts_;  // those that occur
  std::vector<Chain> chains_;            // a hash table; a power of two, never more than half full
  std::size_t used_ = 0;
  std::vector<Link> links_;  // by row
};

}  // namespace sifter
