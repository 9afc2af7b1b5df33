#pragma once

#include "forms/DatePicker.h"
#include "win32/ControlWindow.h"

#include <string>

namespace sifter {

// A date picker. The time of day of its value is kept out of the window, which shows the date.
class DatePickerWindow final : public ControlWindow {
 public:
  DatePickerWindow(ControlHost& host, DatePicker& picker);

  void Mirror() override;
  void Update(ControlProperty property) override;
  LRESULT OnNotify(NMHDR& header) override;

  // Whether it is one of the keys that open and close the calendar.
  static bool IsCalendarKey(UINT message, WPARAM key);

  // The date of a picker in the user's short form.
  static std::wstring ShownDate(HWND picker);

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  bool CalendarIsDown() const;
  void PressDropDownButton();

  DatePicker& picker_;
};

}  // namespace sifter
