// The conversions, cell by cell over 1000 cells of the generated table.

#include "Tables.h"
#include "matching/LeadingNumber.h"

namespace sifter::bench {

namespace {

constexpr std::size_t kCells = 1000;

template <class Convert>
void ConvertCells(benchmark::State& state, Column column, Convert convert) {
  const CsvTable& table = Table(kCells);
  for (auto _ : state)
    for (std::size_t i = 0; i < kCells; ++i)
      benchmark::DoNotOptimize(convert(table.Record(i)[static_cast<std::size_t>(column)]));
  CountRows(state, kCells);
}

void Measure(const char* name, Column column, auto convert) {
  benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
    ConvertCells(state, column, convert);
  })->Unit(benchmark::kMicrosecond);
}

const bool kRegistered = [] {
  Measure("conversions/IsNumeric, numbers", kBalance,
          [](const Text& cell) { return EnUs().IsNumeric(cell); });
  Measure("conversions/IsNumeric, texts", kNotes,
          [](const Text& cell) { return EnUs().IsNumeric(cell); });
  Measure("conversions/ToDate, dates", kOrdered,
          [](const Text& cell) { return EnUs().ToDate(cell); });
  Measure("conversions/ToDate, texts", kNotes,
          [](const Text& cell) { return EnUs().ToDate(cell); });
  Measure("conversions/DateToText", kOrdered, [](const Text& cell) {
    return EnUs().DateToText(Date{36526.0 + static_cast<double>(cell.Length())});
  });
  Measure("conversions/ToUpper", kNotes, [](const Text& cell) { return EnUs().ToUpper(cell); });
  Measure("conversions/LeadingNumber", kBalance,
          [](const Text& cell) { return LeadingNumber(cell); });
  return true;
}();

}  // namespace

}  // namespace sifter::bench
