#pragma once

#include "base/Text.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlParent.h"
#include "forms/DatePicker.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/PictureButton.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "support/HeadlessFormHost.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <string>
#include <vector>

namespace sifter {

namespace detail {

inline std::string Listing(const std::vector<Text>& entries) {
  std::string listing = "[";
  for (const Text& entry : entries) listing += (listing.size() > 1 ? ", " : "") + Quoted(entry);
  return listing + ']';
}

inline std::string CaptionOf(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) return Quoted(label->Caption());
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) return Quoted(frame->Caption());
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return Quoted(box->Caption());
  return Quoted(dynamic_cast<const CommandButton&>(control).Caption());
}

inline std::string TextOf(const Control& control) {
  const auto* combo = dynamic_cast<const ComboBox*>(&control);
  return Quoted(combo != nullptr ? combo->Text() : dynamic_cast<const TextBox&>(control).Text());
}

inline std::string ValueOf(const Control& control) {
  if (const auto* box = dynamic_cast<const CheckBox*>(&control))
    return std::to_string(static_cast<int>(box->Value()));
  return Shown(Value(dynamic_cast<const DatePicker&>(control).Value()));
}

inline std::string PictureOf(const Control& control) {
  const auto* image = dynamic_cast<const Image*>(&control);
  if (image != nullptr) return Quoted(image->Picture());
  const Ref<Picture>& picture = dynamic_cast<const PictureButton&>(control).Picture();
  return picture ? Quoted(picture->Key()) : "none";
}

inline std::string BackColorOf(const Control& control) {
  const auto* picker = dynamic_cast<const DatePicker*>(&control);
  return std::to_string(picker != nullptr ? picker->BackColor()
                                          : dynamic_cast<const TextBox&>(control).BackColor());
}

}  // namespace detail

// A property of a control with the value that it has now: "Visible True".
inline std::string PropertyOf(const Control& control, ControlProperty property) {
  const auto yesNo = [](bool value) { return value ? "True" : "False"; };
  switch (property) {
    case ControlProperty::kLeft:
      return "Left " + Shown(control.Left());
    case ControlProperty::kTop:
      return "Top " + Shown(control.Top());
    case ControlProperty::kWidth:
      return "Width " + Shown(control.Width());
    case ControlProperty::kHeight:
      return "Height " + Shown(control.Height());
    case ControlProperty::kVisible:
      return std::string("Visible ") + yesNo(control.Visible());
    case ControlProperty::kEnabled:
      return std::string("Enabled ") + yesNo(control.Enabled());
    case ControlProperty::kContainer:
      return "Container " + (control.Container() ? NameOf(*control.Container()) : "form");
    case ControlProperty::kCaption:
      return "Caption " + detail::CaptionOf(control);
    case ControlProperty::kText:
      return "Text " + detail::TextOf(control);
    case ControlProperty::kList:
      return "List " + detail::Listing(dynamic_cast<const ComboBox&>(control).Entries());
    case ControlProperty::kListIndex:
      return "ListIndex " + std::to_string(dynamic_cast<const ComboBox&>(control).ListIndex());
    case ControlProperty::kValue:
      return "Value " + detail::ValueOf(control);
    case ControlProperty::kLocked:
      return std::string("Locked ") + yesNo(dynamic_cast<const TextBox&>(control).Locked());
    case ControlProperty::kBorderStyle:
      return "BorderStyle " +
             std::to_string(static_cast<int>(dynamic_cast<const TextBox&>(control).BorderStyle()));
    case ControlProperty::kBackColor:
      return "BackColor " + detail::BackColorOf(control);
    case ControlProperty::kPicture:
      return "Picture " + detail::PictureOf(control);
    case ControlProperty::kToolTipText:
      return "ToolTipText " + Quoted(control.ToolTipText());
    case ControlProperty::kInterval:
      return "Interval " + std::to_string(dynamic_cast<const Timer&>(control).Interval());
  }
  return "?";
}

namespace detail {

inline std::vector<ControlProperty> PropertiesOf(ControlKind kind) {
  using P = ControlProperty;
  switch (kind) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kCommandButton:
      return {P::kCaption};
    case ControlKind::kTextBox:
      return {P::kText, P::kLocked, P::kBorderStyle, P::kBackColor};
    case ControlKind::kComboBox:
      return {P::kText, P::kList, P::kListIndex};
    case ControlKind::kCheckBox:
      return {P::kCaption, P::kValue};
    case ControlKind::kDatePicker:
      return {P::kValue, P::kBackColor};
    case ControlKind::kImage:
    case ControlKind::kPictureButton:
      return {P::kPicture};
    case ControlKind::kTimer:
      return {P::kInterval};
    case ControlKind::kLine:
      break;
  }
  return {};
}

}  // namespace detail

// All that can be seen of a control, in one line.
inline std::string DumpControl(const Control& control) {
  using P = ControlProperty;
  std::string dump = NameOf(control) + ':';
  for (const P property : {P::kContainer, P::kLeft, P::kTop, P::kWidth, P::kHeight, P::kVisible,
                           P::kEnabled, P::kToolTipText})
    dump += ' ' + PropertyOf(control, property) + ',';
  for (const P property : detail::PropertiesOf(control.Kind()))
    dump += ' ' + PropertyOf(control, property) + ',';
  return dump + " Tag " + Quoted(control.Tag());
}

// All that can be seen of a form, a line for each control. EXPECT_EQ on two of these prints the
// lines that differ.
inline std::string DumpForm(const Form& form) {
  std::string dump = Quoted(form.Caption()) + ' ' + Shown(form.Width()) + " x " +
                     Shown(form.Height()) + (form.Visible() ? " visible\n" : " hidden\n");
  for (const Control* control : form.Controls()) dump += DumpControl(*control) + '\n';
  return dump;
}

// Records every change to the controls of a form:
//
//   added txtFrom(1)
//   cboCriteria(0).Visible True
//   removed txtFrom(1)
//
// The form lets go of its watcher when it is unloaded; before that, the watcher must not end.
class HeadlessWatcher final : public ControlWatcher {
 public:
  HeadlessWatcher(ControlParent& parent, Recorder& recorder) : recorder_(recorder) {
    parent.Watch(this);
  }

  void OnControlAdded(Control& control) override { recorder_.Line("added " + NameOf(control)); }
  void OnControlRemoved(Control& control) override { recorder_.Line("removed " + NameOf(control)); }
  void OnPropertyChanged(Control& control, ControlProperty property) override {
    recorder_.Line(NameOf(control) + '.' + PropertyOf(control, property));
  }

 private:
  Recorder& recorder_;
};

}  // namespace sifter
