#pragma once

#include "forms/Control.h"

namespace sifter {

// A push button.
class CommandButton final : public Control {
 public:
  CommandButton(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kCommandButton, std::move(name), kNoIndex) {}

  // With "&" in front of the letter that presses the button together with Alt.
  const sifter::Text& Caption() const { return caption_; }
  void SetCaption(sifter::Text caption) {
    Assign(caption_, std::move(caption), ControlProperty::kCaption);
  }

  // Setting True presses the button: Click is raised, and the button comes up again. It works on
  // a hidden form too.
  void SetValue(bool pressed) {
    if (pressed) RaiseClick();
  }

 private:
  sifter::Text caption_;
};

}  // namespace sifter
