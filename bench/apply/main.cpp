#include "common/ApplyArguments.h"
#include "common/ApplyLines.h"
#include "common/DialogUnderTest.h"
#include "common/ProcessMemory.h"
#include "common/TextList.h"
#include "sift/CsvReader.h"
#include "sift/FileBytes.h"
#include "sift/UserError.h"

#include <cstdio>
#include <exception>
#include <string>

namespace sifter::bench {

namespace {

void Print(const std::string& line) {
  std::printf("%s\n", line.c_str());
  std::fflush(stdout);
}

// The file's bytes and its table are gone again when this returns.
Ref<MemoryListView> LoadList(const std::string& file) {
  return MakeTextList(ReadCsv(ReadAllBytes(file)));
}

Durations Measure(DialogUnderTest& dialog, const Workload& workload,
                  const ApplyArguments& arguments) {
  dialog.Choose(workload);
  Durations durations;
  for (int i = 0; i < arguments.warmUps + arguments.repetitions; ++i) {
    dialog.Refill();
    const Duration duration = dialog.Apply();
    if (i >= arguments.warmUps) durations.Add(duration);
  }
  return durations;
}

void Run(const ApplyArguments& arguments) {
  ReleaseUnusedHeap();
  LoadedMemory memory{.residentBase = ResidentKilobytes()};
  const std::int64_t heapBase = HeapBytes();
  DialogUnderTest dialog(LoadList(arguments.file));
  // With every column at "All" the third list holds all rows, too.
  dialog.Apply();
  ReleaseUnusedHeap();
  memory.residentLoaded = ResidentKilobytes();
  memory.heap = HeapBytes() - heapBase;

  const auto rows = static_cast<std::size_t>(dialog.List().ListItems()->Count());
  const auto columns = static_cast<std::size_t>(dialog.List().ColumnHeaders()->Count());
  for (const Workload& workload : arguments.workloads) {
    const Durations durations = Measure(dialog, workload, arguments);
    Print(WorkloadLine(rows, workload.name, dialog.RowsLeft(), durations));
  }
  memory.residentPeak = PeakResidentKilobytes();
  Print(MemoryLine(rows, columns, memory));
}

}  // namespace

}  // namespace sifter::bench

// Applies filters to a table through the dialog and prints what each took, a JSON line each.
int main(int argc, char** argv) {
  try {
    sifter::bench::Run(sifter::bench::ParseApplyArguments({argv + 1, argv + argc}));
  } catch (const sifter::UserError& error) {
    std::fprintf(stderr, "bench_apply: %s\n", error.what());
    return 2;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_apply: %s\n", error.what());
    return 1;
  }
  return 0;
}
