#pragma once

namespace sifter {

// Keeps the module that this code is part of loaded while it lives: every object that hosts hold
// references to has one, and every lock of a class factory is one.
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

bool ModuleIsUsed() noexcept;

}  // namespace sifter
