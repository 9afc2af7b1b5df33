#include "Ratios.h"
#include "common/BannerUnderTest.h"
#include "common/TableGenerator.h"
#include "sift/CsvReader.h"

#include <cstdio>
#include <initializer_list>
#include <stdexcept>

namespace sifter::bench {

namespace {

constexpr std::size_t kRows = 30'000;
constexpr std::size_t kAdded = 1'000;

struct Reapplying {
  Durations again, members, texts;
  std::int32_t shown = 0;
};

Reapplying Measure(const CsvTable& table, const Workload& workload, int repetitions) {
  Reapplying measured;
  for (int i = 0; i < repetitions; ++i) {
    BannerUnderTest banner(table, kRows);
    banner.Filter(workload);
    banner.AddRows(kAdded);
    measured.again.Add(banner.Reapply());
    measured.members.Add(banner.CompareByMembers());
    measured.texts.Add(banner.CompareTexts());
    measured.shown = banner.Shown();
    if (banner.All() != kRows + kAdded) throw std::logic_error("rows are missing");
  }
  return measured;
}

double Milliseconds(std::int64_t nanoseconds) { return static_cast<double>(nanoseconds) / 1e6; }

}  // namespace

void PrintReapplying(int repetitions) {
  const CsvTable table = ReadCsv(GeneratedTable(kRows + kAdded));
  const Workload some = {"an eighth", {{"Ordered", "is after", {"8/1/2017"}}}};
  const Workload all = {"all", {{"Notes", "does not contain", {"no such words"}}}};
  std::printf(
      "| filter | rows | added | shown then | again (ms) | comparing, by members (ms) | again / "
      "that | comparing, text by text (ms) | again / that "
      "|\n|---|---|---|---|---|---|---|---|---|\n");
  for (const Workload& workload : {some, all}) {
    const Reapplying measured = Measure(table, workload, repetitions);
    const double again = Milliseconds(measured.again.Least().cpu);
    const double members = Milliseconds(measured.members.Least().cpu);
    const double texts = Milliseconds(measured.texts.Least().cpu);
    std::printf("| %s | %zu | %zu | %d | %.2f | %.2f | %.2f | %.2f | %.2f |\n",
                workload.name.c_str(), kRows, kAdded, measured.shown, again, members,
                again / members, texts, again / texts);
  }
  std::fflush(stdout);
}

}  // namespace sifter::bench
