#include "win32/TextBoxWindow.h"

#include "forms/DatePicker.h"
#include "win32/ControlHost.h"
#include "win32/DatePickerWindow.h"
#include "win32/WideText.h"

#include <string>

namespace sifter {

TextBoxWindow::TextBoxWindow(ControlHost& host, TextBox& box)
    : ControlWindow(host, box, L"EDIT", ES_AUTOHSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE), box_(box) {}

void TextBoxWindow::Mirror() {
  Update(ControlProperty::kText);
  Update(ControlProperty::kLocked);
  Update(ControlProperty::kBorderStyle);
  Update(ControlProperty::kBackColor);
}

namespace {

COLORREF ColorOf(std::int32_t color) {
  const auto bits = static_cast<std::uint32_t>(color);
  return (bits & 0x80000000u) != 0 ? GetSysColor(static_cast<int>(bits & 0xFF))
                                   : static_cast<COLORREF>(bits);
}

}  // namespace

void TextBoxWindow::Update(ControlProperty property) {
  switch (property) {
    case ControlProperty::kText:
      ShowText(box_.Text());
      if (IsOverlay()) InvalidateRect(Handle(), nullptr, TRUE);
      break;
    case ControlProperty::kLocked:
      SendMessageW(Handle(), EM_SETREADONLY, box_.Locked() && !box_.InputFilter, 0);
      break;
    case ControlProperty::kBorderStyle: {
      const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_EXSTYLE);
      const bool border = box_.BorderStyle() == BorderStyle::kSingle;
      SetWindowLongPtrW(Handle(), GWL_EXSTYLE,
                        border ? style | WS_EX_CLIENTEDGE : style & ~LONG_PTR{WS_EX_CLIENTEDGE});
      SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
      break;
    }
    case ControlProperty::kBackColor:
      background_.Reset(CreateSolidBrush(ColorOf(box_.BackColor())));
      InvalidateRect(Handle(), nullptr, TRUE);
      break;
    default:
      break;
  }
}

HBRUSH TextBoxWindow::Background(HDC dc) {
  SetBkColor(dc, ColorOf(box_.BackColor()));
  return background_.Get();
}

void TextBoxWindow::OnCommand(WORD code) {
  if (code == EN_UPDATE) TakeEdit();
}

// An edit that the box doesn't allow is taken back before it can be seen.
void TextBoxWindow::TakeEdit() {
  const Text edited = WindowText(Handle());
  if (edited == box_.Text() || box_.Edit(edited)) return;
  SetWindowTextW(Handle(), Wide(box_.Text()).c_str());
  SendMessageW(Handle(), EM_SETSEL, static_cast<WPARAM>(box_.Text().Length()), -1);
}

bool TextBoxWindow::IsOverlay() const {
  return box_.Container() != nullptr && box_.Container()->Kind() == ControlKind::kDatePicker;
}

void TextBoxWindow::Place(const RECT& box) {
  MoveWindow(Handle(), box.left, box.top, box.right - box.left, box.bottom - box.top, TRUE);
}

LRESULT TextBoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (IsOverlay()) {
    if (DatePickerWindow::IsCalendarKey(message, wParam))
      return SendMessageW(GetParent(Handle()), message, wParam, lParam);
    if (message == WM_PAINT) {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      PaintPickerDate();
      return result;
    }
    if (message == WM_CHAR || message == WM_PASTE || message == WM_CLEAR || message == WM_CUT)
      InvalidateRect(Handle(), nullptr, TRUE);
  }
  return ControlWindow::OnMessage(message, wParam, lParam);
}

void TextBoxWindow::PaintPickerDate() {
  if (!box_.Text().IsEmpty()) return;
  const ControlWindow* picker = Host().Find(*box_.Container());
  if (picker == nullptr) return;
  const std::wstring date = DatePickerWindow::ShownDate(picker->Handle());
  RECT area;
  SendMessageW(Handle(), EM_GETRECT, 0, reinterpret_cast<LPARAM>(&area));
  const WindowDc dc(Handle());
  const SelectedObject font(dc.Get(), Host().Measures().Font());
  SetBkMode(dc.Get(), TRANSPARENT);
  SetTextColor(dc.Get(), GetSysColor(COLOR_WINDOWTEXT));
  DrawTextW(dc.Get(), date.c_str(), static_cast<int>(date.size()), &area,
            DT_LEFT | DT_TOP | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace sifter
