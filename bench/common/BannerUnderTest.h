#pragma once

#include "common/Stopwatch.h"
#include "common/Workloads.h"
#include "listmodel/ListViewDump.h"
#include "sift/CsvTable.h"
#include "support/BannerWorld.h"

#include <cstddef>

namespace sifter::bench {

// A banner over a list in memory with a filter in force, and a host that adds rows to the list.
class BannerUnderTest {
 public:
  // The list gets the first `rows` records of the table, each with texts of its own.
  BannerUnderTest(const CsvTable& table, std::size_t rows);

  // Throws UserError when the filter doesn't suit the table.
  void Filter(const Workload& workload);

  // Adds the next records of the table, member by member, as hosts do.
  void AddRows(std::size_t count);

  // The timer elapses: the filter is applied again.
  Duration Reapply();

  // Rows in the list, and rows in all.
  std::int32_t Shown();
  std::int32_t All();

  // Compares every row of the full list with an equal one that shares nothing with it: through the
  // members of both, as the plain look-up compares a row with the one it has found, or from text to
  // text. Throws std::logic_error when two differ.
  Duration CompareByMembers();
  Duration CompareTexts();

 private:
  const CsvTable& table_;
  std::size_t next_ = 0;
  BannerWorld world_;
  Ref<MemoryListView> whole_;  // all rows, without a filter
  Ref<ListViewDump> equal_;    // with texts of their own
};

}  // namespace sifter::bench
