#pragma once

#include "forms/BorderStyle.h"
#include "forms/Control.h"

namespace sifter {

// A single line of text for the user to edit.
class TextBox final : public Control {
 public:
  TextBox(ControlParent& parent, sifter::Text name, std::int16_t index = kNoIndex)
      : Control(parent, ControlKind::kTextBox, std::move(name), index) {}

  const sifter::Text& Text() const { return text_; }
  void SetText(sifter::Text text) { Assign(text_, std::move(text), ControlProperty::kText); }

  // Locked: the user cannot edit the text, unless InputFilter lets an edit through.
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { Assign(locked_, locked, ControlProperty::kLocked); }

  sifter::BorderStyle BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(sifter::BorderStyle style) {
    Assign(borderStyle_, style, ControlProperty::kBorderStyle);
  }
  std::int32_t BackColor() const { return backColor_; }
  void SetBackColor(std::int32_t color) { Assign(backColor_, color, ControlProperty::kBackColor); }

  // Says of a locked box which texts the user's editing may lead to all the same.
  std::function<bool(TextView text)> InputFilter;

  // The user's editing has led to `text`. False when that isn't allowed; the text stays then.
  bool Edit(const sifter::Text& text);

 private:
  sifter::Text text_;
  bool locked_ = false;
  sifter::BorderStyle borderStyle_ = sifter::BorderStyle::kSingle;
  std::int32_t backColor_ = kWindowBackground;
};

}  // namespace sifter
