#pragma once

#include "forms/Control.h"

namespace sifter {

// A box around other controls, whose container it is.
class Frame final : public Control {
 public:
  Frame(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kFrame, std::move(name), kNoIndex) {}

  const sifter::Text& Caption() const { return caption_; }
  void SetCaption(sifter::Text caption) {
    Assign(caption_, std::move(caption), ControlProperty::kCaption);
  }

 private:
  sifter::Text caption_;
};

}  // namespace sifter
