#pragma once

#include "base/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace sifter {

// Makes the texts of a table's cells, and lets equal cells of a column share one text where there
// are enough of them: the texts of late are kept, one in each place of a small table. A column of
// categories or cities ends up with few texts. One in which texts seldom come again is found out
// by its first cells, and from then on costs nothing but the texts.
class RecentTexts {
 public:
  explicit RecentTexts(std::size_t columns)
      : columns_(columns),
        places_(std::clamp<std::size_t>(columns, 1, kMostWithPlaces) * kPlacesOfColumn) {}

  // `utf8` must stay where it is for as long as this object is used.
  Text TextOf(std::size_t column, std::string_view utf8) {
    if (utf8.empty()) return Text();
    Column& seen = columns_[column];
    if (seen.cells >= kTrial && seen.shared < kTrial / 4) return Text::FromUtf8(utf8);
    const std::size_t hash = std::hash<std::string_view>()(utf8) % kPlacesOfColumn;
    Place& place = places_[(column * kPlacesOfColumn + hash) % places_.size()];
    const bool again = place.utf8 == utf8;
    if (seen.cells < kTrial) {
      ++seen.cells;
      seen.shared += again ? 1 : 0;
    }
    if (!again) place = {utf8, Text::FromUtf8(utf8)};
    return place.text;
  }

 private:
  static constexpr std::uint32_t kTrial = 2048;  // cells after which it is decided
  static constexpr std::size_t kPlacesOfColumn = 1024;
  static constexpr std::size_t kMostWithPlaces = 16;  // further columns share those of the first

  struct Column {
    std::uint32_t cells = 0;   // of the first kTrial that were not empty
    std::uint32_t shared = 0;  // of these, how many shared a text
  };
  struct Place {
    std::string_view utf8;
    Text text;
  };
  std::vector<Column> columns_;
  std::vector<Place> places_;
};

}  // namespace sifter
