#include "Ratios.h"

#include "common/ProcessMemory.h"
#include "common/TableGenerator.h"
#include "common/TextList.h"
#include "common/Yardsticks.h"
#include "sift/CsvReader.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace sifter::bench {

namespace {

constexpr std::size_t kSmallest = kTableSizes[0];
constexpr std::size_t kLargest = kTableSizes[2];

double Microseconds(std::int64_t nanoseconds) { return static_cast<double>(nanoseconds) / 1e3; }

double Ratio(std::int64_t a, std::int64_t b) {
  return b > 0 ? static_cast<double>(a) / static_cast<double>(b) : 0.0;
}

std::vector<Comparison> CompareAll(std::size_t rows, int repetitions) {
  Yardsticks yardsticks(MakeTextList(ReadCsv(GeneratedTable(rows))));
  std::vector<Comparison> comparisons;
  for (const Workload& workload : StandardWorkloads())
    comparisons.push_back(yardsticks.Compare(workload, repetitions, rows == kLargest));
  comparisons.push_back(yardsticks.CompareChangeAndReset(repetitions, rows == kLargest));
  return comparisons;
}

// The times are the least of all repetitions, processor time; see Durations::Least.
void PrintComparisons(const std::vector<Comparison>& comparisons,
                      const std::map<std::string, std::int64_t>& oursOnSmallest) {
  for (const Comparison& c : comparisons) {
    std::printf("| %zu | %s | %zu | %.1f | ", c.rows, c.name.c_str(), c.kept,
                Microseconds(c.ours.cpu));
    c.first.cpu > 0 ? std::printf("%.1f", Microseconds(c.first.cpu)) : std::printf("-");
    std::printf(" | %.1f | %.2f | ", Microseconds(c.flat.cpu), Ratio(c.ours.cpu, c.flat.cpu));
    c.textbook.cpu > 0 ? std::printf("%.0f | %.0f", Microseconds(c.textbook.cpu),
                                     Ratio(c.textbook.cpu, c.ours.cpu))
                       : std::printf("- | -");
    std::printf(" | %.1f |\n", Ratio(c.ours.cpu, oursOnSmallest.at(c.name)));
  }
  std::fflush(stdout);
}

template <class MakeListOf>
void PrintMemory(const char* texts, MakeListOf makeList) {
  const std::int64_t base = HeapBytes();
  DialogUnderTest dialog(makeList(ReadCsv(GeneratedTable(kLargest))));
  dialog.Apply();
  const auto cells = static_cast<double>(kLargest * kGeneratedColumns);
  const double lists = static_cast<double>(HeapBytes() - base) / cells;
  for (const Workload& workload : StandardWorkloads()) {
    dialog.Choose(workload);
    dialog.Apply();
  }
  dialog.Form().ClearCriteria();
  dialog.Refill();
  dialog.Apply();
  std::printf("| %s | %.1f | %.1f |\n", texts, lists,
              static_cast<double>(HeapBytes() - base) / cells);
}

}  // namespace

void PrintRatios(int repetitions) {
  std::printf(
      "| rows | filter | kept | ours (us) | first time (us) | flat loop (us) | ours / flat | "
      "textbook (us) | textbook / ours | ours / ours at %zu |\n"
      "|---|---|---|---|---|---|---|---|---|---|\n",
      kSmallest);
  std::map<std::string, std::int64_t> oursOnSmallest;
  for (const std::size_t rows : kTableSizes) {
    const auto share = static_cast<int>(rows / kSmallest);
    const std::vector<Comparison> comparisons = CompareAll(rows, std::max(9, repetitions / share));
    if (rows == kSmallest)
      for (const Comparison& c : comparisons) oursOnSmallest[c.name] = c.ours.cpu;
    PrintComparisons(comparisons, oursOnSmallest);
  }
  std::printf(
      "\n| heap at %zu rows, bytes for each cell | the three lists | and all that the "
      "filters have read |\n|---|---|---|\n",
      kLargest);
  PrintMemory("equal cells share texts, as the reader makes them", MakeTextList);
  PrintMemory("a text for each cell", MakeUnsharedTextList);
}

}  // namespace sifter::bench
