#include "win32/FormOrder.h"

#include "forms/Label.h"

#include <algorithm>

namespace sifter {

namespace {

void AppendWithContents(const Form& form, Control* control, std::vector<Control*>& order) {
  order.push_back(control);
  for (Control* other : form.Controls())
    if (other->Container() == control) AppendWithContents(form, other, order);
}

bool IsField(const Control& control) {
  return control.Kind() == ControlKind::kTextBox || control.Kind() == ControlKind::kComboBox ||
         control.Kind() == ControlKind::kDatePicker;
}

}  // namespace

std::vector<Control*> WindowOrder(const Form& form) {
  std::vector<Control*> order;
  for (Control* control : form.Controls())
    if (control->Container() == nullptr) AppendWithContents(form, control, order);
  return order;
}

int ControlId(const ControlParent& parent, const Control& control) {
  std::vector<Text> names;
  for (const Control* other : parent.Controls()) {
    if (other->Name() == control.Name()) break;
    if (std::find(names.begin(), names.end(), other->Name()) == names.end())
      names.push_back(other->Name());
  }
  const int index = control.Index() == Control::kNoIndex ? 0 : control.Index();
  return (static_cast<int>(names.size()) + 1) * 1000 + index;
}

Text AccessibleName(const Form& form, const Control& control) {
  if (!IsField(control)) return Text();
  const Label* heading = nullptr;
  const Control* before = nullptr;
  for (const Control* other : form.Controls()) {
    if (other == &control) break;
    before = other;
    if (other->Index() == control.Index() && other->Kind() == ControlKind::kLabel)
      heading = static_cast<const Label*>(other);
  }
  return heading == nullptr || heading == before ? Text() : heading->Caption();
}

}  // namespace sifter
