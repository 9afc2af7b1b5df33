#pragma once

#include <windows.h>

namespace sifter {

// The program or library that this code is part of. Borrowed: it stays while its code runs.
HINSTANCE ThisModule() noexcept;

}  // namespace sifter
