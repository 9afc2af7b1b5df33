#pragma once

#include "base/Text.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace sifter {

class Control;
class ControlParent;

// What a watcher is told has changed.
enum class ControlProperty {
  kLeft,
  kTop,
  kWidth,
  kHeight,
  kVisible,
  kEnabled,
  kContainer,
  kCaption,
  kText,
  kList,
  kListIndex,
  kValue,
  kLocked,
  kBorderStyle,
  kBackColor,
  kPicture,
  kToolTipText,
  kInterval,
};

enum class ControlKind {
  kLabel,
  kTextBox,
  kComboBox,
  kCheckBox,
  kCommandButton,
  kDatePicker,
  kFrame,
  kPictureButton,
  kTimer,
  kImage,
  kLine,
};

// The colours of the user's desktop that controls start with.
inline constexpr std::int32_t kWindowBackground = static_cast<std::int32_t>(0x80000005u);
inline constexpr std::int32_t kButtonFace = static_cast<std::int32_t>(0x8000000Fu);

// One control of a form: its properties and its events, without any window. Whoever shows the
// form (a FormHost) watches the properties and passes on what the user does.
//
// Measures are twips (1440 to the inch), relative to the container: a frame, a date picker that
// a text box is embedded in, or, when there is none, the form itself.
//
// An event has one handler. A handler must not end the control that it was raised by.
class Control {
 public:
  static constexpr std::int16_t kNoIndex = -1;

  // A control of `parent`, which it must not outlive. `index` is its place in a control array.
  Control(ControlParent& parent, ControlKind kind, Text name, std::int16_t index);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind Kind() const { return kind_; }
  const sifter::Text& Name() const { return name_; }
  std::int16_t Index() const { return index_; }

  double Left() const { return left_; }
  double Top() const { return top_; }
  double Width() const { return width_; }
  double Height() const { return height_; }
  void SetLeft(double twips) { Assign(left_, twips, ControlProperty::kLeft); }
  void SetTop(double twips) { Assign(top_, twips, ControlProperty::kTop); }
  void SetWidth(double twips) { Assign(width_, twips, ControlProperty::kWidth); }
  void SetHeight(double twips) { Assign(height_, twips, ControlProperty::kHeight); }
  void Move(double left, double top, double width, double height);

  // The control's own flag; whether it can be seen also depends on its container and the form.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Assign(visible_, visible, ControlProperty::kVisible); }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled, ControlProperty::kEnabled); }

  // Free for the form's own use.
  const sifter::Text& Tag() const { return tag_; }
  void SetTag(sifter::Text tag) { tag_ = std::move(tag); }

  const sifter::Text& ToolTipText() const { return toolTipText_; }
  void SetToolTipText(sifter::Text text) {
    Assign(toolTipText_, std::move(text), ControlProperty::kToolTipText);
  }

  Control* Container() const { return container_; }
  void SetContainer(Control* container) {
    Assign(container_, container, ControlProperty::kContainer);
  }

  ControlParent& Parent() const { return parent_; }

  std::function<void()> Click;
  std::function<void(std::int16_t keyCode)> KeyDown;
  std::function<void(Control& source)> DragDrop;  // `source` was dropped here

  // Whether a drop of `source` would change anything; without a handler every drop might.
  std::function<bool(const Control& source)> DragOver;

  // The user's doing, as passed on by whoever shows the form.
  void PressKey(std::int16_t keyCode) const;
  void Drop(Control& source) const;
  bool TakesDrop(const Control& source) const {
    return DragDrop && (!DragOver || DragOver(source));
  }

 protected:
  template <class T>
  bool Assign(T& field, T value, ControlProperty property) {
    if (field == value) return false;
    field = std::move(value);
    Changed(property);
    return true;
  }
  void Changed(ControlProperty property);
  void RaiseClick() const;

 private:
  ControlParent& parent_;
  const ControlKind kind_;
  const sifter::Text name_;
  const std::int16_t index_;
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  double height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  sifter::Text tag_;
  sifter::Text toolTipText_;
  Control* container_ = nullptr;
};

}  // namespace sifter
