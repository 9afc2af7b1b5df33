#pragma once

#include "base/RuntimeError.h"
#include "forms/Prompts.h"

#include <new>
#include <utility>

namespace sifter {

// The dialog's error box: title "Error", an exclamation mark, "Error number is N, description".
void ShowError(Prompts& prompts, const RuntimeError& error);

// Runs `work` and ends it with the error box when a run-time error comes out of it: what it
// changed before stays changed, and the caller goes on as if it had returned.
template <class Work>
void ReportErrors(Prompts& prompts, Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const RuntimeError& error) {
    ShowError(prompts, error);
  } catch (const std::bad_alloc&) {
    ShowError(prompts, RuntimeError(ErrorNumber::kOutOfMemory));
  }
}

}  // namespace sifter
