#include "subclass/HookClass.h"

namespace sifter {

HookClass::HookClass(WinProc& winProc, const AboutServices& about)
    : winProc_(winProc), about_(about) {}

HookClass::~HookClass() {
  if (hWnd_ != 0) winProc_.Unhook(hWnd_, *this);
}

bool HookClass::Messages(std::uint32_t message) const {
  return messages_.Find([message](std::uint32_t listed) { return listed == message; }) != 0;
}

void HookClass::SetMessages(std::uint32_t message, bool value) {
  const std::int16_t position =
      messages_.Find([message](std::uint32_t listed) { return listed == message; });
  if (position == 0 && value) messages_.Append(message);
  if (position != 0 && !value) messages_.RemoveAt(position);
}

void HookClass::SethWnd(std::int32_t window) {
  if (window == hWnd_) return;
  if (hWnd_ != 0) winProc_.Unhook(hWnd_, *this);
  hWnd_ = window;
  if (hWnd_ != 0) winProc_.Hook(hWnd_, *this);
}

std::int32_t HookClass::CallWndProc(std::uint32_t message, std::int32_t wParam,
                                    std::int32_t lParam) {
  if (hWnd_ == 0) return 0;
  return static_cast<std::int32_t>(winProc_.CallOriginal(hWnd_, message, wParam, lParam));
}

void HookClass::AboutBox() {
  frmAbout box(about_);
  box.Show(ShowMode::kModal);
}

void HookClass::RaiseWndProc(std::uint32_t message, std::int32_t wParam,
                             std::int32_t lParam) const {
  // The handler may be replaced, or end with this object, while it runs.
  const auto handler = WndProc;
  std::int32_t result = 0;
  if (handler) handler(message, wParam, lParam, result);
}

}  // namespace sifter
