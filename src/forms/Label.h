#pragma once

#include "forms/Control.h"

namespace sifter {

// A text that stands on the form. One that is draggable can be dropped on other controls.
class Label final : public Control {
 public:
  Label(ControlParent& parent, sifter::Text name, std::int16_t index = kNoIndex)
      : Control(parent, ControlKind::kLabel, std::move(name), index) {}

  const sifter::Text& Caption() const { return caption_; }
  void SetCaption(sifter::Text caption) {
    Assign(caption_, std::move(caption), ControlProperty::kCaption);
  }

  // To be set before the form is first shown, or when the label is made.
  bool Draggable() const { return draggable_; }
  void SetDraggable(bool draggable) { draggable_ = draggable; }

 private:
  sifter::Text caption_;
  bool draggable_ = false;
};

}  // namespace sifter
