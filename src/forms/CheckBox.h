#pragma once

#include "forms/Control.h"

namespace sifter {

enum class CheckValue : std::int16_t { kUnchecked = 0, kChecked = 1, kGrayed = 2 };

// A box with a tick.
class CheckBox final : public Control {
 public:
  CheckBox(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kCheckBox, std::move(name), kNoIndex) {}

  const sifter::Text& Caption() const { return caption_; }
  void SetCaption(sifter::Text caption) {
    Assign(caption_, std::move(caption), ControlProperty::kCaption);
  }

  CheckValue Value() const { return value_; }

  // Raises Click when the value is another than before, for code and for the user alike.
  void SetValue(CheckValue value) {
    if (Assign(value_, value, ControlProperty::kValue)) RaiseClick();
  }

 private:
  sifter::Text caption_;
  CheckValue value_ = CheckValue::kUnchecked;
};

}  // namespace sifter
