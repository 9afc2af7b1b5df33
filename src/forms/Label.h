#pragma once

#include "forms/BorderStyle.h"
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

  sifter::BorderStyle BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(sifter::BorderStyle style) {
    Assign(borderStyle_, style, ControlProperty::kBorderStyle);
  }

  // The typeface and its size in points; the form's own font while the name is empty. To be set
  // before the form is first shown.
  const sifter::Text& FontName() const { return fontName_; }
  double FontSize() const { return fontSize_; }
  void SetFont(sifter::Text name, double points) {
    fontName_ = std::move(name);
    fontSize_ = points;
  }

  // To be set before the form is first shown, or when the label is made.
  bool Draggable() const { return draggable_; }
  void SetDraggable(bool draggable) { draggable_ = draggable; }

 private:
  sifter::Text caption_;
  sifter::BorderStyle borderStyle_ = sifter::BorderStyle::kNone;
  sifter::Text fontName_;
  double fontSize_ = 0;
  bool draggable_ = false;
};

}  // namespace sifter
