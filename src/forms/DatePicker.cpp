#include "forms/DatePicker.h"

#include <cmath>

namespace sifter {

void DatePicker::ChooseDay(Date day) {
  const double time = std::abs(value_.serial - std::trunc(value_.serial));
  const double date = std::trunc(day.serial);
  SetValue(Date{date < 0 ? date - time : date + time});
}

}  // namespace sifter
