#include "base/UpperCase.h"

#include <cstddef>
#include <cstdint>

namespace sifter {

namespace {

// Code units that lie `step` apart and whose upper case lies `distance` further on.
struct UpperCaseRange {
  std::uint16_t first;
  std::uint16_t last;
  std::uint16_t step;
  std::int32_t distance;
};

constexpr UpperCaseRange kRanges[] = {
#include "base/UpperCasePairs.inc"
};

struct Table {
  static constexpr std::size_t kSize = 0x10000;

  Table() {
    for (std::size_t unit = 0; unit < kSize; ++unit) units[unit] = static_cast<char16_t>(unit);
    for (const UpperCaseRange& range : kRanges)
      for (std::int32_t unit = range.first; unit <= range.last; unit += range.step)
        units[unit] = static_cast<char16_t>(unit + range.distance);
  }

  char16_t units[kSize];
};

}  // namespace

const char16_t* SimpleUpperCaseTable() {
  static const Table table;
  return table.units;
}

}  // namespace sifter
