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

void ControlParent::Add(Control& control) {
  controls_.push_back(&control);
  if (watcher_ != nullptr) watcher_->OnControlAdded(control);
}

void ControlParent::Remove(Control& control) {
  if (watcher_ != nullptr) watcher_->OnControlRemoved(control);
  Forget(control);
  std::erase(controls_, &control);
}

void ControlParent::Changed(Control& control, ControlProperty property) {
  if (watcher_ != nullptr) watcher_->OnPropertyChanged(control, property);
}

}  // namespace sifter
