#pragma once

#include "base/Text.h"
#include "win32/ScopedSubclass.h"
#include "win32/UniqueWindow.h"

#include <windows.h>

namespace sifter {

// The tool tips of the controls on one window.
class ToolTips {
 public:
  // `owner` must outlive this object's use; when it is destroyed the tool tips go with it.
  explicit ToolTips(HWND owner) : owner_(owner) {}

  // What is told about `tool`, a window on the owner, while the mouse rests on it; "" for nothing.
  // To be taken back before the tool is destroyed.
  void Tell(HWND tool, TextView text);

  // Null before the first text.
  HWND Handle() const { return window_.Get(); }

  void End() noexcept { window_.Reset(); }

 private:
  bool MakeWindow();

  HWND owner_;
  UniqueWindow window_;
  ScopedSubclass messages_;
};

}  // namespace sifter
