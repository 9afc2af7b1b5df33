#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <span>

namespace sifter {

// Where generated cases take their decisions from.
class Choices {
 public:
  virtual ~Choices() = default;

  // 0 to `limit` - 1; `limit` is 1 to 65536.
  virtual std::uint32_t Below(std::uint32_t limit) = 0;

  // True once in so many times.
  bool OneIn(std::uint32_t times) { return Below(times) == 0; }

  template <class Range>
  auto& Of(const Range& range) {
    return range[Below(static_cast<std::uint32_t>(std::size(range)))];
  }
};

// The same sequence for the same seed, on every platform.
class RandomChoices final : public Choices {
 public:
  explicit RandomChoices(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t Below(std::uint32_t limit) override {
    return static_cast<std::uint32_t>(engine_() >> 8) % limit;
  }

 private:
  std::mt19937 engine_;
};

// What a run of bytes says; the first choice, 0, everywhere behind its end.
class ByteChoices final : public Choices {
 public:
  explicit ByteChoices(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint32_t Below(std::uint32_t limit) override {
    const std::uint32_t low = Next();
    return (limit > 256 ? low | Next() << 8 : low) % limit;
  }

  bool AtEnd() const { return at_ == bytes_.size(); }

 private:
  std::uint32_t Next() { return AtEnd() ? 0 : bytes_[at_++]; }

  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
};

}  // namespace sifter
