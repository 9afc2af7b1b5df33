#pragma once

#include <string>
#include <windows.h>

namespace sifter {

// The module that this code is part of.
HINSTANCE ModuleInstance() noexcept;
std::wstring ModulePath();

// Keeps the module loaded while it lives: every object that hosts hold references to has one, and
// every lock of a class factory is one.
class ModuleUse {
 public:
  ModuleUse() noexcept;
  ~ModuleUse();
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;
};

// For a lock that isn't bound to a block.
void LockModule() noexcept;
void UnlockModule() noexcept;

// Whether nothing of the module is in use any more: no object, no lock, and no window of a host
// whose messages run through it.
bool ModuleIsIdle() noexcept;

}  // namespace sifter
