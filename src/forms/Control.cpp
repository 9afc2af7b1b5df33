#include "forms/Control.h"

#include "forms/ControlParent.h"

#include <algorithm>

namespace sifter {

Control::Control(ControlParent& parent, ControlKind kind, sifter::Text name, std::int16_t index)
    : parent_(parent), kind_(kind), name_(std::move(name)), index_(index) {
  parent_.Add(*this);
}

Control::~Control() { parent_.Remove(*this); }

void Control::Move(double left, double top, double width, double height) {
  SetLeft(left);
  SetTop(top);
  SetWidth(width);
  SetHeight(height);
}

void Control::PressKey(std::int16_t keyCode) const {
  if (KeyDown) KeyDown(keyCode);
}

void Control::Drop(Control& source) const {
  if (DragDrop) DragDrop(source);
}

void Control::Changed(ControlProperty property) { parent_.Changed(*this, property); }

void Control::RaiseClick() const {
  if (Click) Click();
}

template <class Tell>
void ControlParent::TellWatchers(const Control& control, const Tell& tell) {
  if (watcher_ != nullptr) tell(*watcher_);
  if (timerWatcher_ != nullptr && control.Kind() == ControlKind::kTimer) tell(*timerWatcher_);
}

void ControlParent::Add(Control& control) {
  controls_.push_back(&control);
  TellWatchers(control, [&](ControlWatcher& watcher) { watcher.OnControlAdded(control); });
}

void ControlParent::Remove(Control& control) {
  TellWatchers(control, [&](ControlWatcher& watcher) { watcher.OnControlRemoved(control); });
  Forget(control);
  std::erase(controls_, &control);
}

void ControlParent::Changed(Control& control, ControlProperty property) {
  TellWatchers(control,
               [&](ControlWatcher& watcher) { watcher.OnPropertyChanged(control, property); });
}

}  // namespace sifter
