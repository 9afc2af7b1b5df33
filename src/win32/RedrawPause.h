#pragma once

#include <windows.h>

namespace sifter {

// Keeps a list's window from drawing itself during a long change. Pauses nest; the window is the
// one of the outermost. It is borrowed and may go meanwhile.
//
// A window that is hidden stays hidden, though many windows take being told to redraw again for
// being told to show themselves.
class RedrawPause {
 public:
  enum class Hidden {
    kLeaveAlone,  // send it nothing: nobody knows what a foreign window makes of it
    kPauseToo,    // a list-view window, which keeps working out what to draw though nobody sees it
  };

  explicit RedrawPause(Hidden hidden) : hidden_(hidden) {}
  RedrawPause(const RedrawPause&) = delete;
  RedrawPause& operator=(const RedrawPause&) = delete;

  // Whether a pause that begins now is the outermost one, which needs the window.
  bool IsOutermost() const noexcept { return depth_ == 0; }

  void Begin(HWND window) noexcept;

  // The end of the outermost pause has the whole window drawn again.
  void End() noexcept;

  // Whether drawing is off just now.
  bool IsOn() const noexcept { return paused_ != nullptr; }

 private:
  Hidden hidden_;
  int depth_ = 0;
  HWND paused_ = nullptr;  // the host's; null when nothing was switched off
  bool wasHidden_ = false;
  bool tellsWhetherHidden_ = false;  // some windows count as hidden while they don't draw
};

}  // namespace sifter
