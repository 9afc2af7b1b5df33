#include "win32/ThisModule.h"

namespace sifter {

namespace {

// Its address tells the module.
const char kInThisModule = 0;

}  // namespace

HINSTANCE ThisModule() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&kInThisModule), &module);
  return module;
}

}  // namespace sifter
