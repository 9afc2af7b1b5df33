#include "demo/DemoWindow.h"

namespace hosts {

int DemoWindow::Run(int show) {
  ShowWindow(Window(), show);
  UpdateWindow(Window());
  SetFocus(list_->Window());
  for (;;) {
    const HANDLE changed = watch_.Handle();
    const DWORD handles = changed == nullptr ? 0 : 1;
    const DWORD reason =
        MsgWaitForMultipleObjectsEx(handles, &changed, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    if (handles == 1 && reason == WAIT_OBJECT_0) FolderChanged();
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) return static_cast<int>(message.wParam);
      if (TranslateKey(message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
}

bool DemoWindow::TranslateKey(MSG& message) {
  if (control_ == nullptr || GetActiveWindow() != Window()) return false;
  if (control_->TranslateKey(message)) return true;
  if (TranslateAcceleratorW(Window(), keys_, &message)) return true;
  if (message.message == WM_KEYDOWN && message.wParam == VK_TAB && GetFocus() == list_->Window()) {
    control_->TakeFocus();
    return true;
  }
  return false;
}

// There are two places for the keyboard, so Tab leads to the other one, backwards too.
bool DemoWindow::FocusFromControl(const MSG& key) {
  if (key.message != WM_KEYDOWN || key.wParam != VK_TAB) return false;
  SetFocus(list_->Window());
  return true;
}

}  // namespace hosts
