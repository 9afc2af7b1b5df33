#include "win32/FormOrder.h"
#include "win32/FormWindow.h"

namespace sifter {

void FormWindow::Complete() {
  completing_ = false;
  for (Control* control : form_.Controls())
    if (!controls_.contains(control)) MakeControl(*control);
  for (const auto& [control, window] : controls_) Place(*window);
  HWND previous = HWND_TOP;
  for (Control* control : WindowOrder(form_))
    if (ControlWindow* window = Find(*control)) {
      window->UpdateAccessibleName();
      if (GetParent(window->Handle()) != window_) continue;
      // A frame stands behind what it surrounds, or it would hide it.
      if (control->Kind() == ControlKind::kFrame) {
        window->Follow(HWND_BOTTOM);
        continue;
      }
      window->Follow(previous);
      previous = window->Handle();
    }
  for (const auto& [control, window] : controls_) ShowOrHide(*window);
}

namespace {

bool IsInPicker(const Control& control) {
  return control.Container() != nullptr && control.Container()->Kind() == ControlKind::kDatePicker;
}

}  // namespace

void FormWindow::Place(ControlWindow& control) {
  const Control& shown = control.Shown();
  if (IsInPicker(shown)) {
    if (ControlWindow* picker = Find(*shown.Container())) PlaceInPicker(control, *picker);
    return;
  }
  control.MoveInto(window_);
  double left = shown.Left();
  double top = shown.Top();
  for (const Control* at = shown.Container(); at != nullptr; at = at->Container()) {
    left += at->Left();
    top += at->Top();
  }
  RECT box{};
  box.left = measures_.Pixels(left);
  box.top = measures_.Pixels(top) - scroll_;
  box.right = box.left + measures_.Pixels(shown.Width());
  box.bottom = box.top + measures_.Pixels(shown.Height());
  control.Place(box);
  if (shown.Kind() != ControlKind::kDatePicker) return;
  for (const auto& [other, window] : controls_)
    if (other->Container() == &shown) PlaceInPicker(*window, control);
}

// Over the date, and not over the button that drops the calendar down.
void FormWindow::PlaceInPicker(ControlWindow& control, ControlWindow& picker) {
  const LONG style = GetWindowLongA(picker.Handle(), GWL_STYLE);
  SetWindowLongA(picker.Handle(), GWL_STYLE, style | WS_CLIPCHILDREN);
  RECT client;
  GetClientRect(picker.Handle(), &client);
  control.MoveInto(picker.Handle());
  const LONG width = client.right - client.left - GetSystemMetrics(SM_CXVSCROLL);
  control.Place({0, 0, width, client.bottom - client.top});
}

// A box inside a picker comes and goes with it, whatever its own flag says.
void FormWindow::ShowOrHide(ControlWindow& control) {
  const Control& shown = control.Shown();
  bool visible = shown.Visible() || IsInPicker(shown);
  if (shown.Container() != nullptr && !IsInPicker(shown))
    visible = visible && shown.Container()->Visible();
  ShowWindow(control.Handle(), visible ? SW_SHOWNA : SW_HIDE);
}

}  // namespace sifter
