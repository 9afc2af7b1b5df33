#include "win32/RedrawPause.h"

#include <utility>

namespace sifter {

namespace {

// Of the window itself: one whose parent is hidden is as good as visible here.
bool IsHidden(HWND window) { return (GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) == 0; }

void HideAgain(HWND window) {
  SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) & ~WS_VISIBLE);
}

}  // namespace

void RedrawPause::Begin(HWND window) noexcept {
  if (depth_++ > 0 || !IsWindow(window)) return;
  wasHidden_ = IsHidden(window);
  if (wasHidden_ && hidden_ == Hidden::kLeaveAlone) return;
  paused_ = window;
  SendMessageW(window, WM_SETREDRAW, FALSE, 0);
  tellsWhetherHidden_ = wasHidden_ || !IsHidden(window);
}

void RedrawPause::End() noexcept {
  if (--depth_ > 0) return;
  const HWND window = std::exchange(paused_, nullptr);
  if (!IsWindow(window)) return;
  const bool staysHidden = tellsWhetherHidden_ && IsHidden(window);
  SendMessageW(window, WM_SETREDRAW, TRUE, 0);
  if (staysHidden && !IsHidden(window)) HideAgain(window);
  InvalidateRect(window, nullptr, TRUE);
}

}  // namespace sifter
