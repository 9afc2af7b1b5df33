#pragma once

#include "forms/Control.h"

#include <vector>

namespace sifter {

// Told of every change to the controls of a form, in the order in which they happen. The window
// side mirrors the properties from here; a test records them.
class ControlWatcher {
 public:
  virtual ~ControlWatcher() = default;
  virtual void OnControlAdded(Control& control) = 0;
  virtual void OnControlRemoved(Control& control) = 0;  // about to end; only told by its address
  virtual void OnPropertyChanged(Control& control, ControlProperty property) = 0;
};

// What controls stand on: a form, or a control that a host places on a form of its own.
class ControlParent {
 public:
  ControlParent() = default;
  ControlParent(const ControlParent&) = delete;
  ControlParent& operator=(const ControlParent&) = delete;

  // In the order in which they were added, which is the order of the Tab key.
  const std::vector<Control*>& Controls() const { return controls_; }

  // At most one watcher; null for none. It is borrowed.
  void Watch(ControlWatcher* watcher) { watcher_ = watcher; }

  // The timers are watched apart from the others, since their clock also runs while nothing is
  // shown. At most one watcher; null for none. It is borrowed and hears of timers only.
  void WatchTimers(ControlWatcher* watcher) { timerWatcher_ = watcher; }

 protected:
  virtual ~ControlParent() = default;

  // A control is about to end.
  virtual void Forget(Control&) {}

 private:
  friend class Control;

  void Add(Control& control);
  void Remove(Control& control);
  void Changed(Control& control, ControlProperty property);

  template <class Tell>
  void TellWatchers(const Control& control, const Tell& tell);

  std::vector<Control*> controls_;
  ControlWatcher* watcher_ = nullptr;
  ControlWatcher* timerWatcher_ = nullptr;
};

}  // namespace sifter
