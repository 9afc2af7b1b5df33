#include "matching/CellTests.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace sifter {

namespace {

// Four code units at a time; a lane of the result is not zero where the unit is the wanted one.
// Lanes behind a hit may be set by the borrow, the lowest one set is always right.
std::uint64_t LanesEqual(std::uint64_t units, std::uint64_t wanted) {
  const std::uint64_t difference = units ^ wanted;
  return (difference - 0x0001000100010001u) & ~difference & 0x8000800080008000u;
}

std::size_t FindUnit(TextView text, char16_t unit, std::size_t from) {
  if constexpr (std::endian::native == std::endian::little) {
    const std::uint64_t wanted = 0x0001000100010001u * unit;
    for (; from + 4 <= text.size(); from += 4) {
      std::uint64_t units;
      std::memcpy(&units, text.data() + from, sizeof units);
      const std::uint64_t hits = LanesEqual(units, wanted);
      if (hits != 0) return from + static_cast<std::size_t>(std::countr_zero(hits)) / 16;
    }
  }
  for (; from < text.size(); ++from)
    if (text[from] == unit) return from;
  return TextView::npos;
}

}  // namespace

bool FindsText(TextView cell, TextView parameter) {
  if (parameter.empty()) return !cell.empty();
  if (parameter.size() > cell.size()) return false;
  const TextView starts = cell.substr(0, cell.size() - parameter.size() + 1);
  for (std::size_t at = 0;; ++at) {
    at = FindUnit(starts, parameter.front(), at);
    if (at == TextView::npos) return false;
    if (std::memcmp(cell.data() + at, parameter.data(), parameter.size() * sizeof(char16_t)) == 0)
      return true;
  }
}

}  // namespace sifter
