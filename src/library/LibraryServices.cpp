#include "library/LibraryServices.h"

#include "win32/Win32WindowSystem.h"

#include <memory>

namespace sifter {

namespace {

// Not destroyed by itself: when the process ends, the platform's libraries may be gone before it.
LibraryServices* services = nullptr;

}  // namespace

LibraryServices& LibraryServices::Get() {
  if (services == nullptr) services = std::make_unique<LibraryServices>().release();
  return *services;
}

ControlServices LibraryServices::ForControl(FormHost& forms, Prompts& prompts) {
  LibraryServices& shared = Get();
  return {{forms, prompts, shared.conversions, shared.clock},
          {forms, shared.version},
          ProcessWinProc(),
          ProcessWindows(),
          shared.defaultDialog};
}

void LibraryServices::End() noexcept {
  delete services;
  services = nullptr;
}

}  // namespace sifter
