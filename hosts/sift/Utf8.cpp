#include "sift/Utf8.h"

#include <cstdint>
#include <cstring>

namespace sifter {

namespace {

// What may follow a leading byte: how many bytes, and the bounds of the first of them. The bounds
// keep out overlong forms, surrogates and what lies past the last plane.
struct Sequence {
  std::size_t tail;
  unsigned char lowest;
  unsigned char highest;
};

Sequence SequenceOf(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {1, 0x80, 0xBF};
  if (lead == 0xE0) return {2, 0xA0, 0xBF};
  if (lead == 0xED) return {2, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {2, 0x80, 0xBF};
  if (lead == 0xF0) return {3, 0x90, 0xBF};
  if (lead == 0xF4) return {3, 0x80, 0x8F};
  if (lead >= 0xF1 && lead <= 0xF3) return {3, 0x80, 0xBF};
  return {0, 0, 0};
}

// Length of the sequence beyond ASCII that stands at `at`; 0 when there is none.
std::size_t SequenceAt(std::string_view bytes, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[at + i]); };
  const Sequence sequence = SequenceOf(byte(0));
  if (sequence.tail == 0 || bytes.size() - at <= sequence.tail) return 0;
  if (byte(1) < sequence.lowest || byte(1) > sequence.highest) return 0;
  for (std::size_t i = 2; i <= sequence.tail; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  return sequence.tail + 1;
}

}  // namespace

std::size_t FindMalformedUtf8(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::size_t at = 0;
  while (at < bytes.size()) {
    std::uint64_t word;
    // Most files are plain ASCII for long stretches.
    if (bytes.size() - at >= sizeof word) {
      std::memcpy(&word, bytes.data() + at, sizeof word);
      if ((word & kHighBits) == 0) {
        at += sizeof word;
        continue;
      }
    }
    if (static_cast<unsigned char>(bytes[at]) < 0x80) {
      ++at;
    } else {
      const std::size_t length = SequenceAt(bytes, at);
      if (length == 0) return at;
      at += length;
    }
  }
  return std::string_view::npos;
}

}  // namespace sifter
