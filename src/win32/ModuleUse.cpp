#include "win32/ModuleUse.h"

#include <atomic>

namespace sifter {

namespace {

// Hosts may have objects on several threads.
std::atomic<long> uses = 0;

}  // namespace

ModuleUse::ModuleUse() noexcept { LockModule(); }

ModuleUse::~ModuleUse() { UnlockModule(); }

void LockModule() noexcept { ++uses; }

void UnlockModule() noexcept { --uses; }

bool ModuleIsUsed() noexcept { return uses != 0; }

}  // namespace sifter
