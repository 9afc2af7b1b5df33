#include "win32/LabelWindow.h"

#include "win32/ControlHost.h"
#include "win32/WideText.h"

#include <cmath>
#include <cstdlib>
#include <windowsx.h>

namespace sifter {

namespace {

constexpr double kPointsPerInch = 72;

}  // namespace

LabelWindow::LabelWindow(ControlHost& host, Label& label)
    : ControlWindow(host, label, L"STATIC",
                    SS_LEFT | SS_CENTERIMAGE | SS_ENDELLIPSIS | SS_NOPREFIX |
                        (label.Draggable() ? SS_NOTIFY : 0)),
      label_(label) {}

void LabelWindow::Mirror() {
  TakeFont();
  Update(ControlProperty::kCaption);
  Update(ControlProperty::kBorderStyle);
}

void LabelWindow::Update(ControlProperty property) {
  if (property == ControlProperty::kCaption) ShowText(label_.Caption());
  if (property == ControlProperty::kBorderStyle) {
    const bool border = label_.BorderStyle() == BorderStyle::kSingle;
    const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_EXSTYLE);
    SetWindowLongPtrW(Handle(), GWL_EXSTYLE,
                      border ? style | WS_EX_STATICEDGE : style & ~LONG_PTR{WS_EX_STATICEDGE});
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
}

void LabelWindow::TakeFont() {
  if (label_.FontName().IsEmpty()) return ControlWindow::TakeFont();
  LOGFONTW font{};
  GetObjectW(Host().Measures().Font(), sizeof font, &font);
  const double height = label_.FontSize() * Host().Measures().Dpi() / kPointsPerInch;
  font.lfHeight = -static_cast<LONG>(std::lround(height));
  font.lfWidth = 0;
  const std::wstring name = Wide(label_.FontName().View());
  font.lfFaceName[name.copy(font.lfFaceName, LF_FACESIZE - 1)] = L'\0';
  UniqueFont made(CreateFontIndirectW(&font));
  if (!made) return;
  SendMessageW(Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(made.Get()), TRUE);
  ownFont_ = std::move(made);
}

// A text stands in the middle of its line and ends in an ellipsis where that is too short. With
// room for two lines it is broken instead.
void LabelWindow::Place(const RECT& box) {
  constexpr LONG_PTR kOneLine = SS_CENTERIMAGE | SS_ENDELLIPSIS;
  TEXTMETRICW metrics{};
  {
    const WindowDc dc(Handle());
    const SelectedObject font(dc.Get(), ownFont_ ? ownFont_.Get() : Host().Measures().Font());
    GetTextMetricsW(dc.Get(), &metrics);
  }
  const bool breaks = box.bottom - box.top >= 2 * metrics.tmHeight;
  const LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
  SetWindowLongPtrW(Handle(), GWL_STYLE, breaks ? style & ~kOneLine : style | kOneLine);
  ControlWindow::Place(box);
}

namespace {

POINT PointOf(LPARAM lParam) { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

}  // namespace

LRESULT LabelWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!label_.Draggable()) return ControlWindow::OnMessage(message, wParam, lParam);
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:  // the same label, soon again
      pressed_ = true;
      pressedAt_ = PointOf(lParam);
      SetCapture(Handle());
      return 0;
    case WM_MOUSEMOVE:
      if (pressed_) FollowMouse(PointOf(lParam));
      return 0;
    case WM_LBUTTONUP: {
      const bool dropped = dragging_;
      if (pressed_) ReleaseCapture();
      if (dropped) Drop(PointOf(lParam));
      return 0;
    }
    case WM_KEYDOWN:
      if (wParam == VK_ESCAPE && pressed_) ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      pressed_ = false;
      dragging_ = false;
      return 0;
    default:
      return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

void LabelWindow::FollowMouse(POINT at) {
  if (std::abs(at.x - pressedAt_.x) >= GetSystemMetrics(SM_CXDRAG) ||
      std::abs(at.y - pressedAt_.y) >= GetSystemMetrics(SM_CYDRAG))
    dragging_ = true;
  if (!dragging_) return;
  const ControlWindow* target = TargetAt(at);
  const bool takesDrops = target != nullptr && target->Shown().TakesDrop(label_);
  SetCursor(LoadCursorW(nullptr, takesDrops ? IDC_HAND : IDC_NO));
}

ControlWindow* LabelWindow::TargetAt(POINT at) const {
  ClientToScreen(Handle(), &at);
  return Host().Find(WindowFromPoint(at));
}

void LabelWindow::Drop(POINT at) {
  if (ControlWindow* target = TargetAt(at)) target->Shown().Drop(label_);
}

}  // namespace sifter
