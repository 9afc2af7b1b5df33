#pragma once

#include "forms/Control.h"

namespace sifter {

// A picture that stands on the form, told by its name. It takes no focus.
class Image final : public Control {
 public:
  Image(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kImage, std::move(name), kNoIndex) {}

  const sifter::Text& Picture() const { return picture_; }
  void SetPicture(sifter::Text picture) {
    Assign(picture_, std::move(picture), ControlProperty::kPicture);
  }

 private:
  sifter::Text picture_;
};

}  // namespace sifter
