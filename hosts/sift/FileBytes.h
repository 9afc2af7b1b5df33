#pragma once

#include <string>

namespace sifter {

// The name that stands for the standard input.
inline constexpr const char* kStandardInput = "-";

// All bytes of a file, or of the standard input. `name` is UTF-8, or on systems that don't care
// whatever bytes name the file. A file that cannot be read is a UserError.
std::string ReadAllBytes(const std::string& name);

// How messages call the file.
std::string DisplayName(const std::string& name);

}  // namespace sifter
