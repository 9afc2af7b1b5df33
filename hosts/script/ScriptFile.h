#pragma once

#include <string>

namespace hosts {

// The text of a script: UTF-8 or UTF-16 by its mark, otherwise UTF-8 if it is valid as that, and
// the system's code page if not. Throws Failure when the file can't be read.
std::wstring ReadScript(const std::wstring& file);

}  // namespace hosts
