#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "common/TableGenerator.h"
#include "common/TextList.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace sifter::bench {

// Columns of the generated table, 0-based.
enum Column : std::int32_t {
  kProduct,
  kCategory,
  kCity,
  kNotes,
  kQuantity,
  kPrice,
  kWeight,
  kBalance,
  kOrdered,
  kShipped,
};

// The generated table with that many rows. It is made once and must be left as it is.
const CsvTable& Table(std::size_t rows);

// How many rows the measurement asks for.
inline std::size_t RowsOf(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

// Reports the time for each row beside the time for all.
inline void CountRows(benchmark::State& state, std::size_t rows) {
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows));
}

// For all sizes of the table.
inline void AllSizes(benchmark::internal::Benchmark* measurement) {
  for (const std::size_t rows : kTableSizes) measurement->Arg(static_cast<std::int64_t>(rows));
  measurement->Unit(benchmark::kMicrosecond);
}

const Conversions& EnUs();

}  // namespace sifter::bench
