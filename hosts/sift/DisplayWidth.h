#pragma once

#include "base/Text.h"

#include <cstddef>

namespace sifter {

// How many columns of a terminal a text takes. Wide characters (East Asian ones, emoji) take two,
// combining marks none; what emoji sequences make one picture of counts once. The text has no
// control characters (see OnOneLine).
std::size_t DisplayWidth(TextView text);

}  // namespace sifter
