#include "sift/DisplayWidth.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace sifter {

namespace {

struct WidthRange {
  char32_t first;
  char32_t last;
  std::uint8_t columns;
};

// Ascending; what lies in none of them takes one column.
constexpr WidthRange kRanges[] = {
#include "sift/DisplayWidthRanges.inc"
};

constexpr char32_t kZeroWidthJoiner = 0x200D;
constexpr char32_t kEmojiSelector = 0xFE0F;
constexpr char32_t kFirstPictograph = 0x203C;  // of those that an emoji selector widens

std::size_t ColumnsOf(char32_t point) {
  if (point < kRanges[0].first) return 1;
  const auto* range =
      std::upper_bound(std::begin(kRanges), std::end(kRanges), point,
                       [](char32_t value, const WidthRange& r) { return value < r.first; });
  --range;
  return point <= range->last ? range->columns : 1;
}

bool IsSkinTone(char32_t point) { return point >= 0x1F3FB && point <= 0x1F3FF; }

// Whether U+FE0F behind it makes the character a wide picture: ☺, ❤, and the keys 1 # *.
bool HasEmojiForm(char32_t point) {
  return point >= kFirstPictograph || point == U'#' || point == U'*' ||
         (point >= U'0' && point <= U'9') || point == 0xA9 || point == 0xAE;
}

class WidthCounter {
 public:
  void Add(char32_t point) {
    // A picture that is joined to the one before, or colours it, stands in the same place.
    const bool joined = before_ == kZeroWidthJoiner && baseColumns_ == 2;
    const bool toned = IsSkinTone(point) && baseColumns_ == 2;
    const std::size_t columns = ColumnsOf(point);
    if (point == kEmojiSelector && baseColumns_ == 1 && HasEmojiForm(before_)) {
      ++width_;
      baseColumns_ = 2;
    } else if (columns > 0 && !joined && !toned) {
      width_ += columns;
      baseColumns_ = columns;
    }
    before_ = point;
  }

  std::size_t Width() const { return width_; }

 private:
  std::size_t width_ = 0;
  char32_t before_ = 0;
  std::size_t baseColumns_ = 0;  // of the last character that took any
};

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::size_t DisplayWidth(TextView text) {
  if (std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < kRanges[0].first; }))
    return text.size();
  WidthCounter counter;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t point = text[i];
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      point = 0x10000 + ((point - 0xD800) << 10) + (text[i + 1] - 0xDC00u);
      ++i;
    }
    counter.Add(point);
  }
  return counter.Width();
}

}  // namespace sifter
