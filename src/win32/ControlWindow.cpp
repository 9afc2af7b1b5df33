#include "win32/ControlWindow.h"

#include "base/RuntimeError.h"
#include "win32/ControlHost.h"
#include "win32/WideText.h"
#include "win32/WindowEntry.h"

#include <commctrl.h>

namespace sifter {

namespace {

constexpr UINT_PTR kSubclassId = 1;

}  // namespace

// An accessibility tool names a field by the text that stands right in front of it in the order of
// the windows, whether that can be seen or not.
ControlWindow::ControlWindow(ControlHost& host, Control& control, const wchar_t* windowClass,
                             DWORD style, DWORD extendedStyle)
    : host_(host), control_(control) {
  const auto module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(host.Handle(), GWLP_HINSTANCE));
  const Text name = host.AccessibleNameOf(control);
  if (!name.IsEmpty())
    accessibleName_ = CreateWindowExW(0, L"STATIC", Wide(name).c_str(), WS_CHILD | SS_NOPREFIX, 0,
                                      0, 0, 0, host.Handle(), nullptr, module, nullptr);
  window_ = CreateWindowExW(extendedStyle, windowClass, L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0,
                            0, 0, 0, host.Handle(),
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(host.IdOf(control))),
                            module, nullptr);
  if (window_ == nullptr) throw RuntimeError(ErrorNumber::kOutOfMemory);
  TakeFont();
  SetWindowSubclass(window_, Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

ControlWindow::~ControlWindow() {
  if (window_ == nullptr) return;  // destroyed with the window that both stood on
  RemoveWindowSubclass(window_, Procedure, kSubclassId);
  DestroyWindow(window_);
  if (accessibleName_ != nullptr) DestroyWindow(accessibleName_);
}

void ControlWindow::TakeFont() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(host_.Measures().Font()), TRUE);
}

bool ControlWindow::OnKey(WPARAM key) {
  control_.PressKey(static_cast<std::int16_t>(key));
  return key == VK_RETURN;
}

void ControlWindow::Place(const RECT& box) {
  SetWindowPos(window_, nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlWindow::UpdateAccessibleName() {
  if (accessibleName_ == nullptr) return;
  const Text name = host_.AccessibleNameOf(control_);
  if (WindowText(accessibleName_) != name) SetWindowTextW(accessibleName_, Wide(name).c_str());
}

namespace {

// Moving a window in the order costs as much as there are windows, so one that stands right stays.
void PutBehind(HWND previous, HWND window) {
  if (previous != HWND_TOP && previous != HWND_BOTTOM && GetWindow(previous, GW_HWNDNEXT) == window)
    return;
  SetWindowPos(window, previous, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace

void ControlWindow::Follow(HWND previous) {
  if (accessibleName_ != nullptr) {
    PutBehind(previous, accessibleName_);
    previous = accessibleName_;
  }
  PutBehind(previous, window_);
}

void ControlWindow::MoveInto(HWND parent) {
  if (GetParent(window_) == parent) return;
  SetParent(window_, parent);
  if (accessibleName_ != nullptr) {
    SetParent(accessibleName_, parent);
    Follow(HWND_TOP);
  }
}

void ControlWindow::ShowText(TextView text) const {
  if (WindowText(window_) != text) SetWindowTextW(window_, Wide(text).c_str());
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return DefSubclassProc(window_, message, wParam, lParam);
}

LRESULT CALLBACK ControlWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR, DWORD_PTR self) {
  return WindowEntry([&]() -> LRESULT {
    auto* control = reinterpret_cast<ControlWindow*>(self);
    if (message == WM_SETFOCUS) control->host_.FocusCame(*control);
    if (message == WM_KILLFOCUS) control->host_.FocusLeaves(reinterpret_cast<HWND>(wParam));
    if (message == WM_NCDESTROY) {
      RemoveWindowSubclass(window, Procedure, kSubclassId);
      control->window_ = nullptr;
      return DefSubclassProc(window, message, wParam, lParam);
    }
    return control->OnMessage(message, wParam, lParam);
  });
}

}  // namespace sifter
