#include "win32/DatePickerWindow.h"

#include "base/Calendar.h"
#include "win32/ControlHost.h"

#include <commctrl.h>
#include <optional>

namespace sifter {

DatePickerWindow::DatePickerWindow(ControlHost& host, DatePicker& picker)
    : ControlWindow(host, picker, DATETIMEPICK_CLASSW, DTS_SHORTDATEFORMAT | WS_TABSTOP),
      picker_(picker) {}

void DatePickerWindow::Mirror() { Update(ControlProperty::kValue); }

namespace {

void RepaintOverlay(HWND picker) {
  for (HWND child = GetWindow(picker, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT))
    InvalidateRect(child, nullptr, TRUE);
}

}  // namespace

// A date that the system's picker can't show, before its calendar begins, leaves the window as it
// is; the control keeps it all the same.
void DatePickerWindow::Update(ControlProperty property) {
  if (property != ControlProperty::kValue) return;
  const std::optional<CalendarTime> date = CalendarOf(picker_.Value());
  if (!date) return;
  SYSTEMTIME shown{};
  shown.wYear = static_cast<WORD>(date->year);
  shown.wMonth = static_cast<WORD>(date->month);
  shown.wDay = static_cast<WORD>(date->day);
  SendMessageW(Handle(), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
  RepaintOverlay(Handle());
}

LRESULT DatePickerWindow::OnNotify(NMHDR& header) {
  if (header.code != DTN_DATETIMECHANGE) return 0;
  const auto& change = reinterpret_cast<NMDATETIMECHANGE&>(header);
  if (change.dwFlags != GDT_VALID) return 0;
  picker_.ChooseDay(DateOf({change.st.wYear, change.st.wMonth, change.st.wDay, 0, 0, 0}));
  RepaintOverlay(Handle());
  return 0;
}

bool DatePickerWindow::IsCalendarKey(UINT message, WPARAM key) {
  return (message == WM_KEYDOWN && key == VK_F4) || (message == WM_SYSKEYDOWN && key == VK_DOWN);
}

bool DatePickerWindow::CalendarIsDown() const {
  const auto calendar = reinterpret_cast<HWND>(SendMessageW(Handle(), DTM_GETMONTHCAL, 0, 0));
  return calendar != nullptr && IsWindowVisible(calendar) != FALSE;
}

void DatePickerWindow::PressDropDownButton() {
  RECT client;
  GetClientRect(Handle(), &client);
  const LPARAM at =
      MAKELPARAM(client.right - GetSystemMetrics(SM_CXVSCROLL) / 2, client.bottom / 2);
  SendMessageW(Handle(), WM_LBUTTONDOWN, MK_LBUTTON, at);
  SendMessageW(Handle(), WM_LBUTTONUP, 0, at);
}

// A box inside the picker reports to its parent window, but the form is whom it belongs to.
LRESULT DatePickerWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool reports =
      message == WM_COMMAND || message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC;
  const ControlWindow* from = reports ? Host().Find(reinterpret_cast<HWND>(lParam)) : nullptr;
  if (from != nullptr && from != this)
    return SendMessageW(Host().Handle(), message, wParam, lParam);
  const bool wasDown = IsCalendarKey(message, wParam) && CalendarIsDown();
  const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
  // Not every version of the system's picker knows these keys.
  if (IsCalendarKey(message, wParam) && CalendarIsDown() == wasDown) PressDropDownButton();
  return result;
}

std::wstring DatePickerWindow::ShownDate(HWND picker) {
  SYSTEMTIME shown{};
  if (SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown)) != GDT_VALID)
    return {};
  wchar_t text[80];
  const int length = GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &shown, nullptr, text, 80);
  return std::wstring(text, length > 0 ? static_cast<std::size_t>(length) - 1 : 0);
}

}  // namespace sifter
