#pragma once

#include <cstdint>

namespace sifter::bench {

// Numbers that are the same on every platform for the same seed, which the distributions of the
// standard library are not.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
  }

  // 0 to `count` - 1.
  std::uint32_t Below(std::uint32_t count) {
    return static_cast<std::uint32_t>(((Next() >> 32) * count) >> 32);
  }

  // `first` to `last`, both included.
  std::int32_t Between(std::int32_t first, std::int32_t last) {
    return first + static_cast<std::int32_t>(Below(static_cast<std::uint32_t>(last - first + 1)));
  }

  // True in `percent` of a hundred cases.
  bool Percent(std::uint32_t percent) { return Below(100) < percent; }

 private:
  std::uint64_t state_;
};

}  // namespace sifter::bench
