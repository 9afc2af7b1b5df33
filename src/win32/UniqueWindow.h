#pragma once

#include "win32/UniqueHandle.h"

#include <windows.h>

namespace sifter {

struct WindowKind {
  using Handle = HWND;
  // A window may have gone by itself: with its parent, or by a message from outside.
  static void Close(HWND window) noexcept {
    if (IsWindow(window)) DestroyWindow(window);
  }
};

// A window that we made and that nobody else destroys. To be held and destroyed on the thread that
// made it. Whoever learns that the window is going (WM_NCDESTROY) calls Release, so that a later
// window under the same handle is safe.
using UniqueWindow = UniqueHandle<WindowKind>;

}  // namespace sifter
