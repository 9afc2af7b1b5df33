#pragma once

#include "base/RuntimeError.h"

#include <new>
#include <utility>

namespace sifter {

// Runs `work` and ends it silently when a run-time error comes out of it: what it changed before
// stays changed. True when it ran to its end. Running out of memory counts as a run-time error.
template <class Work>
bool AbsorbErrors(Work&& work) {
  try {
    std::forward<Work>(work)();
    return true;
  } catch (const RuntimeError&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace sifter
