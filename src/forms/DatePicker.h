#pragma once

#include "base/Value.h"
#include "forms/Control.h"

namespace sifter {

// A date for the user to choose.
class DatePicker final : public Control {
 public:
  DatePicker(ControlParent& parent, sifter::Text name, std::int16_t index = kNoIndex)
      : Control(parent, ControlKind::kDatePicker, std::move(name), index) {}

  // Date and time of day. The user changes the date alone; the time stays as it was set.
  Date Value() const { return value_; }
  void SetValue(Date value) { Assign(value_, value, ControlProperty::kValue); }

  // The user has chosen a day; `day` has no time of day.
  void ChooseDay(Date day);

  std::int32_t BackColor() const { return backColor_; }
  void SetBackColor(std::int32_t color) { Assign(backColor_, color, ControlProperty::kBackColor); }

 private:
  Date value_;
  std::int32_t backColor_ = kWindowBackground;
};

}  // namespace sifter
