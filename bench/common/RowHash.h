#pragma once

#include <cstdint>
#include <span>

namespace sifter::bench {

// FNV-1a, 64 bits, over row numbers, each as 4 bytes with the lowest first. Programs that keep
// the same rows in the same order come to the same number.
inline std::uint64_t RowHash(std::span<const std::uint32_t> rows) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const std::uint32_t row : rows)
    for (int shift = 0; shift < 32; shift += 8)
      hash = (hash ^ ((row >> shift) & 0xFFu)) * 0x100000001B3u;
  return hash;
}

}  // namespace sifter::bench
