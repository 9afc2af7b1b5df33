#include "library/LibraryServices.h"

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

void LibraryServices::End() noexcept {
  delete services;
  services = nullptr;
}

}  // namespace sifter
