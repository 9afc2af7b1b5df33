#pragma once

#include "win32/UniqueHandle.h"

#include <windows.h>

namespace sifter {

struct MenuKind {
  using Handle = HMENU;
  static void Close(HMENU menu) noexcept { DestroyMenu(menu); }
};

// A menu that belongs to no window. Release it when a window takes it over.
using UniqueMenu = UniqueHandle<MenuKind>;

}  // namespace sifter
