#include "win32/ButtonWindows.h"

#include "win32/ControlHost.h"

namespace sifter {

CommandButtonWindow::CommandButtonWindow(ControlHost& host, CommandButton& button)
    : ControlWindow(host, button, L"BUTTON", BS_PUSHBUTTON | WS_TABSTOP), button_(button) {}

void CommandButtonWindow::Mirror() { Update(ControlProperty::kCaption); }

void CommandButtonWindow::Update(ControlProperty property) {
  if (property == ControlProperty::kCaption) ShowText(button_.Caption());
}

void CommandButtonWindow::OnCommand(WORD code) {
  if (code == BN_CLICKED) button_.SetValue(true);
}

// Enter presses the button that has the focus; no other button ever answers to it.
bool CommandButtonWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN) return ControlWindow::OnKey(key);
  button_.SetValue(true);
  return true;
}

// The buttons from here on form a group: the arrow keys stay among them.
CheckBoxWindow::CheckBoxWindow(ControlHost& host, CheckBox& box)
    : ControlWindow(host, box, L"BUTTON", BS_3STATE | WS_TABSTOP | WS_GROUP), box_(box) {}

void CheckBoxWindow::Mirror() {
  Update(ControlProperty::kCaption);
  Update(ControlProperty::kValue);
}

void CheckBoxWindow::Update(ControlProperty property) {
  if (property == ControlProperty::kCaption) ShowText(box_.Caption());
  if (property == ControlProperty::kValue)
    SendMessageW(Handle(), BM_SETCHECK, static_cast<WPARAM>(box_.Value()), 0);
}

void CheckBoxWindow::OnCommand(WORD code) {
  if (code != BN_CLICKED) return;
  box_.SetValue(box_.Value() == CheckValue::kChecked ? CheckValue::kUnchecked
                                                     : CheckValue::kChecked);
}

FrameWindow::FrameWindow(ControlHost& host, Frame& frame)
    : ControlWindow(host, frame, L"BUTTON", BS_GROUPBOX | WS_GROUP), frame_(frame) {}

void FrameWindow::Mirror() { Update(ControlProperty::kCaption); }

void FrameWindow::Update(ControlProperty property) {
  if (property == ControlProperty::kCaption) ShowText(frame_.Caption());
}

// The system's group box paints nothing inside its border, and the form paints nothing under it.
LRESULT FrameWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_ERASEBKGND) return ControlWindow::OnMessage(message, wParam, lParam);
  RECT area;
  GetClientRect(Handle(), &area);
  FillRect(reinterpret_cast<HDC>(wParam), &area, GetSysColorBrush(COLOR_BTNFACE));
  return TRUE;
}

}  // namespace sifter
