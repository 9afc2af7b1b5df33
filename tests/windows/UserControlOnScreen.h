#pragma once

#include "User.h"
#include "WindowFacts.h"
#include "forms/UserControl.h"
#include "support/Recorder.h"
#include "win32/UniqueWindow.h"
#include "win32/UserControlWindow.h"

#include <gtest/gtest.h>

#include <optional>

namespace sifter {

// Where a control stands on a form: what the user does there is done, and the focus is recorded.
class SiteFake final : public UserControlSite {
 public:
  explicit SiteFake(Recorder& recorder) : recorder_(recorder) {}

  void Run(const std::function<void()>& work) override { work(); }
  void Keep(const std::function<void()>& work) override { work(); }
  void FocusCame() override { recorder_.Line("focus came"); }
  void FocusWent() override { recorder_.Line("focus went"); }

 private:
  Recorder& recorder_;
};

// A host's form on the screen, without anything on it.
inline HWND MakeFormFor(int width, int height) {
  return CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 100, 100,
                         width, height, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
}

// Does all that is left to do, so that the screen shows how things stand.
inline void Settle() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// A control of some kind on a form, and a user. The control's own controls are made by the test
// before Place() shows them.
template <class Shown>
class UserControlOnScreen : public testing::Test {
 protected:
  template <class... Arguments>
  explicit UserControlOnScreen(Arguments&&... arguments)
      : control(std::forward<Arguments>(arguments)...) {}

  // In twips, in the form's upper left corner.
  void Place(double width, double height) {
    const int dpi = ScreenDpi();
    window.emplace(control, site, form.Get(),
                   RECT{0, 0, PixelsOf(width, dpi), PixelsOf(height, dpi)});
    SetForegroundWindow(form.Get());
    Settle();
  }
  HWND WindowOf(const Control& part) const { return window->Find(part)->Handle(); }

  // A key goes down on the control that has the focus, as the host's message loop sees it.
  bool Translates(WPARAM key) {
    MSG message{};
    message.hwnd = GetFocus();
    message.message = WM_KEYDOWN;
    message.wParam = key;
    return window->TranslateKey(message);
  }

  Recorder recorder;
  UniqueWindow form{MakeFormFor(500, 300)};
  SiteFake site{recorder};
  Shown control;
  std::optional<UserControlWindow> window;
  User user;
};

}  // namespace sifter
