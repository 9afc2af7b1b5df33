#include "win32/UserControlWindow.h"

#include <algorithm>

// The keyboard in a control on a host's form. Which key leads into it and out of it is the host's
// business.

namespace sifter {

namespace {

bool IsDown(int key) { return GetKeyState(key) < 0; }

// To the next control, to the one before, or nowhere.
int StepOf(WPARAM key) {
  if (IsDown(VK_CONTROL)) return 0;
  switch (key) {
    case VK_TAB:
      return IsDown(VK_SHIFT) ? -1 : 1;
    case VK_RIGHT:
    case VK_DOWN:
      return 1;
    case VK_LEFT:
    case VK_UP:
      return -1;
    default:
      return 0;
  }
}

}  // namespace

std::vector<const ControlWindow*> UserControlWindow::TabStops() const {
  std::vector<const ControlWindow*> stops;
  for (const Control* control : control_.Controls()) {
    const ControlWindow* const window = Find(*control);
    if (window == nullptr || !window->TakesFocus() || !control->Visible()) continue;
    if (IsWindowEnabled(window->Handle())) stops.push_back(window);
  }
  return stops;
}

void UserControlWindow::TakeFocus() {
  if (!window_ || Find(GetFocus()) != nullptr) return;
  const std::vector<const ControlWindow*> stops = TabStops();
  if (stops.empty()) return;
  const bool backwards = IsDown(VK_TAB) && IsDown(VK_SHIFT);
  SetFocus((backwards ? stops.back() : stops.front())->Handle());
}

// The Tab key goes by the order of the controls, the arrow keys by what the user sees.
bool UserControlWindow::MoveFocus(const ControlWindow& from, WPARAM key, int step) {
  std::vector<const ControlWindow*> stops = TabStops();
  if (key != VK_TAB)
    std::stable_sort(stops.begin(), stops.end(),
                     [](const ControlWindow* left, const ControlWindow* right) {
                       return left->Shown().Left() < right->Shown().Left();
                     });
  const auto at = std::find(stops.begin(), stops.end(), &from);
  const auto next = at - stops.begin() + step;
  if (at == stops.end() || next < 0 || next >= std::ssize(stops)) return false;
  SetFocus(stops[static_cast<std::size_t>(next)]->Handle());
  return true;
}

bool UserControlWindow::TranslateKey(const MSG& message) {
  if (message.message != WM_KEYDOWN) return false;
  ControlWindow* const control = Find(message.hwnd);
  if (control == nullptr) return false;
  if (message.wParam != VK_RETURN) {
    const int step = StepOf(message.wParam);
    return step != 0 && MoveFocus(*control, message.wParam, step);
  }
  site_.Run([control] { control->OnKey(VK_RETURN); });
  return true;
}

}  // namespace sifter
