#include "win32/WindowEntry.h"

#include <windows.h>

namespace sifter {

namespace {

thread_local EntryErrors* innermost = nullptr;

void TellDebugger() noexcept {
  try {
    throw;
  } catch (const std::exception& error) {
    OutputDebugStringA(error.what());
  } catch (...) {
    OutputDebugStringA("an exception of an unknown kind");
  }
}

}  // namespace

EntryErrors::EntryErrors() noexcept : outer_(innermost) { innermost = this; }

EntryErrors::~EntryErrors() { innermost = outer_; }

void EntryErrors::Rethrow() {
  if (const std::exception_ptr first = std::exchange(first_, nullptr))
    std::rethrow_exception(first);
}

void EntryErrors::KeepCurrent() noexcept {
  if (innermost == nullptr) {
    TellDebugger();
  } else if (!innermost->first_) {
    innermost->first_ = std::current_exception();
  }
}

}  // namespace sifter
