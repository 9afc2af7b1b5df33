#pragma once

#include "forms/ControlParent.h"
#include "win32/ScopedSubclass.h"
#include "win32/UniqueWindow.h"

#include <functional>
#include <map>
#include <windows.h>

namespace sifter {

// The clock of a control's timers, on the thread that makes this object. It needs a message loop on
// that thread and no window of the control's, so it also runs while the control isn't shown.
class ControlTimers final : private ControlWatcher {
 public:
  // Runs what a timer's handler does; it must keep everything alive, this object included, until
  // the work is over.
  using Runner = std::function<void(const std::function<void()>& work)>;

  // `parent` must outlive this object. Timers that are enabled already start now.
  ControlTimers(ControlParent& parent, Runner run);
  ~ControlTimers();
  ControlTimers(const ControlTimers&) = delete;
  ControlTimers& operator=(const ControlTimers&) = delete;

 private:
  void OnControlAdded(Control&) override {}  // has no interval yet
  void OnControlRemoved(Control& control) override;
  void OnPropertyChanged(Control& control, ControlProperty property) override;

  void Set(Control& control);
  void Stop(const Control& control);
  void Elapsed(UINT_PTR id);
  HWND Window();

  ControlParent& parent_;
  const Runner run_;
  UniqueWindow window_;  // never seen; made with the first timer that runs
  ScopedSubclass messages_;
  std::map<UINT_PTR, Control*> running_;
};

}  // namespace sifter
