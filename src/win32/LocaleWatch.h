#pragma once

#include "win32/UniqueHandle.h"

#include <cstdint>
#include <windows.h>

namespace sifter {

struct RegistryKeyKind {
  using Handle = HKEY;
  static void Close(HKEY key) noexcept { RegCloseKey(key); }
};
using UniqueRegistryKey = UniqueHandle<RegistryKeyKind>;

// Notices when the user's settings for numbers and dates change. It needs no window and no message
// loop, which a host may not give us: it looks at when the settings were last written.
class LocaleWatch {
 public:
  LocaleWatch();

  // Whether they may have changed since the last call, or since this object was made. Costs one
  // look at an open registry key.
  bool HasChanged();

 private:
  struct State {
    LCID locale = 0;
    std::uint64_t written = 0;  // 100 ns units
    friend bool operator==(const State&, const State&) = default;
  };
  State Look() const;

  UniqueRegistryKey settings_;
  State seen_;
};

}  // namespace sifter
