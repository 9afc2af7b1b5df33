#pragma once

#include <cstdint>

namespace sifter {

// What a column's values are taken for; the numbers are those that the dialog's rows carry.
enum class ColumnDataType : std::int16_t { kText = 0, kNumber = 1, kDate = 2 };

inline constexpr int kColumnDataTypes = 3;

}  // namespace sifter
