#pragma once

#include "common/DialogUnderTest.h"
#include "common/FlatFilter.h"
#include "common/FlatTable.h"
#include "common/Stopwatch.h"
#include "common/Workloads.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sifter::bench {

// How one filter fares in the dialog and in the loops that it is measured against.
struct Comparison {
  std::string name;
  std::size_t rows = 0;  // of the table
  std::size_t kept = 0;
  Duration ours;      // the press of Apply, with everything read from the columns before
  Duration first;     // the same when nothing has been read yet
  Duration flat;      // FlatFilter
  Duration textbook;  // TextbookFilter, 0 where it wasn't run
};

// Compares filters on one table, all ways in turns, so that a disturbance hits none of them alone.
//
// Whatever is compared has to keep the same rows. If it doesn't, a std::logic_error says which
// filter kept what, and there are no numbers.
class Yardsticks {
 public:
  // `list` holds the whole table.
  explicit Yardsticks(Ref<MemoryListView> list);

  // The textbook's filter is run once, and only `withTextbook`.
  Comparison Compare(const Workload& workload, int repetitions, bool withTextbook);

  // "three" in force, its values changed and applied, then reset. The loop filters and then takes
  // all rows.
  Comparison CompareChangeAndReset(int repetitions, bool withTextbook);

 private:
  Duration ApplyForTheFirstTime(const Workload& workload);
  Duration RunTextbook(const std::vector<std::uint32_t>& expected, const std::string& name);
  void RequireSameRows(const std::vector<FlatTable::Row>& passing,
                       const std::vector<std::uint32_t>& expected, const std::string& name) const;
  bool MatchCase();

  DialogUnderTest dialog_;
  FlatTable table_;
};

}  // namespace sifter::bench
