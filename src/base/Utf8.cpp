#include "base/Text.h"

#include <string>

namespace sifter {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// Length of the sequence that `lead` announces; 0 when no sequence begins with it.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Overlong forms, surrogates and values past the last plane are no UTF-8.
bool IsWellFormed(char32_t point, std::size_t length) {
  constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  return point >= kSmallest[length] && point <= 0x10FFFF && !(point >= 0xD800 && point <= 0xDFFF);
}

struct Decoded {
  char32_t point;
  std::size_t bytes;
};

Decoded DecodeAt(std::string_view bytes, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const std::size_t length = SequenceLength(byte(at));
  if (length == 0 || at + length > bytes.size()) return {kReplacement, 1};
  if (length == 1) return {byte(at), 1};
  char32_t point = byte(at) & (0xFFu >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if (!IsContinuation(byte(at + i))) return {kReplacement, 1};
    point = (point << 6) | (byte(at + i) & 0x3Fu);
  }
  if (!IsWellFormed(point, length)) return {kReplacement, 1};
  return {point, length};
}

void AppendUtf16(std::u16string& units, char32_t point) {
  if (point < 0x10000) {
    units += static_cast<char16_t>(point);
  } else {
    units += static_cast<char16_t>(0xD7C0 + (point >> 10));
    units += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
  }
}

void AppendUtf8(std::string& bytes, char32_t point) {
  const auto tail = [&](unsigned shift) {
    bytes += static_cast<char>(0x80 | ((point >> shift) & 0x3F));
  };
  if (point < 0x80) {
    bytes += static_cast<char>(point);
  } else if (point < 0x800) {
    bytes += static_cast<char>(0xC0 | (point >> 6));
    tail(0);
  } else if (point < 0x10000) {
    bytes += static_cast<char>(0xE0 | (point >> 12));
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | (point >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

Text Text::FromUtf8(std::string_view bytes) {
  // Most fields are short and plain; those need no intermediate string on the heap.
  constexpr std::size_t kShort = 128;
  const bool plain = std::all_of(bytes.begin(), bytes.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (plain && bytes.size() <= kShort) {
    char16_t units[kShort];
    std::copy(bytes.begin(), bytes.end(), units);
    return Text(TextView(units, bytes.size()));
  }
  std::u16string units;
  units.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const Decoded decoded = DecodeAt(bytes, at);
    AppendUtf16(units, decoded.point);
    at += decoded.bytes;
  }
  return Text(units);
}

std::string Text::ToUtf8() const {
  const TextView units = View();
  std::string bytes;
  bytes.reserve(units.size());
  for (std::size_t i = 0; i < units.size(); ++i) {
    const char16_t unit = units[i];
    if (IsHighSurrogate(unit) && i + 1 < units.size() && IsLowSurrogate(units[i + 1])) {
      AppendUtf8(bytes, 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (units[i + 1] - 0xDC00));
      ++i;
    } else {
      AppendUtf8(bytes, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit);
    }
  }
  return bytes;
}

}  // namespace sifter
