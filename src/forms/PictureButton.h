#pragma once

#include "forms/Control.h"

namespace sifter {

// A push button that shows a picture, told by its name.
class PictureButton final : public Control {
 public:
  PictureButton(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kPictureButton, std::move(name), kNoIndex) {}

  const sifter::Text& Picture() const { return picture_; }
  void SetPicture(sifter::Text picture) {
    Assign(picture_, std::move(picture), ControlProperty::kPicture);
  }

  // Setting True presses the button: Click is raised, and the button comes up again.
  void SetValue(bool pressed) {
    if (pressed) RaiseClick();
  }

 private:
  sifter::Text picture_;
};

}  // namespace sifter
