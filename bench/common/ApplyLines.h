#pragma once

#include "common/Stopwatch.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace sifter::bench {

// The lines that programs of this kind print, so that several can be put side by side: a JSON
// object each, without a line end.

// One workload: the size of the table, the filter's name (UTF-8), the 0-based numbers of the rows
// left, and what each repetition took.
std::string WorkloadLine(std::size_t tableRows, const std::string& name,
                         std::span<const std::uint32_t> rowsLeft, const Durations& durations);

// What the process holds before and after the table has been loaded, and at its highest.
struct LoadedMemory {
  std::int64_t residentBase = 0;    // kB
  std::int64_t residentLoaded = 0;  // kB
  std::int64_t residentPeak = 0;    // kB
  std::int64_t heap = 0;            // bytes by which it has grown
};

std::string MemoryLine(std::size_t tableRows, std::size_t columns, const LoadedMemory& memory);

}  // namespace sifter::bench
