#pragma once

#include "base/RuntimeError.h"

#include <cstdint>
#include <limits>

namespace sifter {

// Counts and indexes of the system's own tables are 16-bit signed. A number that doesn't fit is
// error 6 "Overflow"; it never wraps.
inline std::int16_t ToInt16(std::int64_t number) {
  if (number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::int16_t>::max())
    throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<std::int16_t>(number);
}

inline std::int32_t ToInt32(std::int64_t number) {
  if (number < std::numeric_limits<std::int32_t>::min() ||
      number > std::numeric_limits<std::int32_t>::max())
    throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<std::int32_t>(number);
}

}  // namespace sifter
