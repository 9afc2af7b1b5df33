#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <windows.h>

namespace sifter {

// Sees the messages of a window of this thread before its window procedure does, for as long as
// this object lives or until the window is destroyed. The window is borrowed: whoever made it
// destroys it.
//
// Other subclasses may come and go in any order. The object may end inside its own handler.
class ScopedSubclass {
 public:
  // The result of the message, or nothing to pass it on unchanged. Default() passes it on earlier,
  // for handlers that act after the window procedure has.
  using Handler = std::function<std::optional<LRESULT>(HWND, UINT, WPARAM, LPARAM)>;

  ScopedSubclass() = default;
  // Error 5 when the window doesn't exist or belongs to another thread.
  ScopedSubclass(HWND window, Handler handler);
  ScopedSubclass(ScopedSubclass&& other) noexcept = default;
  ScopedSubclass& operator=(ScopedSubclass&& other) noexcept;
  ~ScopedSubclass() { Reset(); }

  // Ends it.
  void Reset() noexcept;

  // The subclassed window; null when there is none (any more).
  HWND Window() const noexcept;

  // What the window does with the message without this handler. Only inside the handler.
  static LRESULT Default(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  struct Hook;
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR hook);

  std::shared_ptr<Hook> hook_;
};

}  // namespace sifter
