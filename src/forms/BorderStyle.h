#pragma once

#include <cstdint>

namespace sifter {

enum class BorderStyle : std::int16_t { kNone = 0, kSingle = 1 };

}  // namespace sifter
