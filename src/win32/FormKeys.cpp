#include "win32/FormOrder.h"
#include "win32/FormWindow.h"
#include "win32/WideText.h"
#include "win32/WindowEntry.h"

#include <algorithm>
#include <commctrl.h>
#include <string>

namespace sifter {

void FormWindow::FocusCame(ControlWindow& control) {
  lastFocus_ = control.Handle();
  form_.FocusMoved(&control.Shown());
  ScrollIntoView(control.Handle());
}

void FormWindow::FocusOn(Control& control) {
  if (ControlWindow* window = Find(control)) {
    lastFocus_ = window->Handle();
    SetFocus(window->Handle());
  }
}

std::vector<HWND> FormWindow::TabStops() const {
  std::vector<HWND> stops;
  for (Control* control : WindowOrder(form_)) {
    const ControlWindow* window = Find(*control);
    if (window == nullptr || !window->TakesFocus()) continue;
    if (IsWindowVisible(window->Handle()) && IsWindowEnabled(window->Handle()))
      stops.push_back(window->Handle());
  }
  return stops;
}

void FormWindow::MoveFocus(bool backwards) {
  const std::vector<HWND> stops = TabStops();
  if (stops.empty()) return;
  const ControlWindow* current = Find(GetFocus());
  const auto at =
      std::find(stops.begin(), stops.end(), current != nullptr ? current->Handle() : nullptr);
  std::size_t next = backwards ? stops.size() - 1 : 0;
  if (at != stops.end()) {
    const auto place = static_cast<std::size_t>(at - stops.begin());
    next = (place + (backwards ? stops.size() - 1 : 1)) % stops.size();
  }
  SetFocus(stops[next]);
  SendMessageW(window_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

namespace {

bool TakesNoLetters(HWND window) {
  const LRESULT code = SendMessageW(window, WM_GETDLGCODE, 0, 0);
  return (code & DLGC_BUTTON) != 0;
}

// "&Apply" has the letter A, "Cut && &Paste" the letter P.
bool HasMnemonic(HWND window, WPARAM letter) {
  const std::wstring text = Wide(WindowText(window));
  const auto upper = [](WPARAM unit) {
    return CharUpperW(reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(LOWORD(unit))));
  };
  for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at + 2))
    if (at + 1 < text.size() && text[at + 1] != L'&') return upper(text[at + 1]) == upper(letter);
  return false;
}

}  // namespace

// Presses the button that has this letter, if there is one.
bool FormWindow::PressMnemonic(WPARAM letter) {
  for (const HWND stop : TabStops())
    if ((SendMessageW(stop, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0 && HasMnemonic(stop, letter)) {
      SetFocus(stop);
      CallingWindows([&] { SendMessageW(stop, BM_CLICK, 0, 0); });
      return true;
    }
  return false;
}

bool FormWindow::TranslateKey(MSG& message) {
  if (!shown_ || (message.hwnd != window_ && !IsChild(window_, message.hwnd))) return false;
  ControlWindow* control = Find(message.hwnd);
  if (message.message == WM_MOUSEWHEEL && control != nullptr && !control->TakesWheel()) {
    SendMessageW(window_, WM_MOUSEWHEEL, message.wParam, message.lParam);
    return true;
  }
  if (message.message == WM_KEYDOWN) {
    if (message.wParam == VK_TAB) {
      MoveFocus(GetKeyState(VK_SHIFT) < 0);
      return true;
    }
    // A label that is being dragged has the mouse; it never has the focus.
    if (message.wParam == VK_ESCAPE && IsChild(window_, GetCapture()))
      SendMessageW(GetCapture(), WM_KEYDOWN, VK_ESCAPE, 0);
    if (control != nullptr && CallingWindows([&] { return control->OnKey(message.wParam); }))
      return true;
    if (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
      return true;
    }
  }
  // The system would take an "&" in a column's caption for a mnemonic, too.
  const bool letter =
      message.message == WM_SYSCHAR || (message.message == WM_CHAR && TakesNoLetters(message.hwnd));
  if (letter) return PressMnemonic(message.wParam);
  return CallingWindows([&] { return IsDialogMessageW(window_, &message) != FALSE; });
}

}  // namespace sifter
