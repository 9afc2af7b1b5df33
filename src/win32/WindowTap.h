#pragma once

#include "base/Ref.h"

#include <functional>
#include <optional>
#include <windows.h>

namespace sifter {

// Sees the messages of a window of this thread before its window procedure does, as ScopedSubclass
// does, for windows that get a message for every row of a long list: it takes the window
// procedure's place itself and finds its way without asking the system, where the common controls'
// subclassing asks for a window property with each message (on some systems a call to another
// process, many times as expensive as the message itself).
//
// The window is borrowed. It stays an ANSI or a Unicode window, as it was. Others may subclass it
// in front of this one and leave before or after it; if they leave after it, its procedure stays
// in place and only passes messages on until the window is destroyed. The object may end inside
// its own handler.
class WindowTap {
 public:
  // The result of the message, or nothing to pass it on unchanged. Default() passes it on earlier,
  // changed or not.
  using Handler = std::function<std::optional<LRESULT>(UINT message, WPARAM, LPARAM)>;

  WindowTap();
  // Error 5 when the window doesn't exist or belongs to another thread.
  WindowTap(HWND window, Handler handler);
  WindowTap(WindowTap&& other) noexcept;
  WindowTap& operator=(WindowTap&& other) noexcept;
  ~WindowTap();

  // Ends it.
  void Reset() noexcept;

  // What the window does with a message without this handler. Any number of times, and outside
  // the handler as well: then nobody in front of the tap sees the message. 0 after the end of the
  // window.
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;

  struct Hook;
  struct Tapped;

 private:
  Ref<Hook> hook_;
};

}  // namespace sifter
