#pragma once

#include "win32/UniqueHandle.h"

#include <windows.h>

namespace sifter {

struct IconKind {
  using Handle = HICON;
  static void Close(HICON icon) noexcept { DestroyIcon(icon); }
};

// An icon that we made or loaded without sharing it.
using UniqueIcon = UniqueHandle<IconKind>;

}  // namespace sifter
