#pragma once

#include "forms/Control.h"
#include "forms/Picture.h"

namespace sifter {

// A push button that shows a picture.
class PictureButton final : public Control {
 public:
  PictureButton(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kPictureButton, std::move(name), kNoIndex) {}

  const Ref<sifter::Picture>& Picture() const { return picture_; }
  void SetPicture(Ref<sifter::Picture> picture) {
    Assign(picture_, std::move(picture), ControlProperty::kPicture);
  }

  // What tools for people who can't see the picture call the button. Plain text, without mnemonics.
  // To be set before its parent is first shown.
  const sifter::Text& AccessibleName() const { return accessibleName_; }
  void SetAccessibleName(sifter::Text name) { accessibleName_ = std::move(name); }

  // Setting True presses the button: Click is raised, and the button comes up again.
  void SetValue(bool pressed) {
    if (pressed) RaiseClick();
  }

 private:
  Ref<sifter::Picture> picture_;
  sifter::Text accessibleName_;
};

}  // namespace sifter
