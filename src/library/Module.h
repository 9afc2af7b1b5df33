#pragma once

#include "win32/ModuleUse.h"

#include <string>
#include <windows.h>

namespace sifter {

// The module that this code is part of.
HINSTANCE ModuleInstance() noexcept;
std::wstring ModulePath();

// Whether nothing of the module is in use any more: no object, no lock, and no window of a host
// whose messages run through it.
bool ModuleIsIdle() noexcept;

}  // namespace sifter
