#pragma once

#include <cstddef>
#include <string_view>

namespace sifter {

// Where the bytes stop being well-formed UTF-8 for the first time; npos when they never do.
// Overlong forms, surrogates and values past the last plane are not well-formed.
std::size_t FindMalformedUtf8(std::string_view bytes);

}  // namespace sifter
