#pragma once

#include "win32/UniqueHandle.h"

#include <uxtheme.h>
#include <windows.h>

namespace sifter {

struct ThemeKind {
  using Handle = HTHEME;
  static void Close(HTHEME theme) noexcept { CloseThemeData(theme); }
};

// A window's visual style; null where the user has none.
using UniqueTheme = UniqueHandle<ThemeKind>;

}  // namespace sifter
