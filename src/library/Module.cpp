#include "library/Module.h"

#include "win32/Win32WindowSystem.h"

namespace sifter {

HINSTANCE ModuleInstance() noexcept {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&ModuleInstance), &module);
  return module;
}

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(ModuleInstance(), path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

bool ModuleIsIdle() noexcept { return !ModuleIsUsed() && ProcessWinProc().Count() == 0; }

}  // namespace sifter
