#include "win32/ToolTips.h"

#include "win32/WideText.h"

#include <commctrl.h>
#include <optional>

namespace sifter {

namespace {

// As the oldest common controls know it too.
TTTOOLINFOW Described(HWND owner, HWND tool) {
  TTTOOLINFOW described{};
  described.cbSize = TTTOOLINFOW_V2_SIZE;
  described.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  described.hwnd = owner;
  described.uId = reinterpret_cast<UINT_PTR>(tool);
  return described;
}

}  // namespace

void ToolTips::Tell(HWND tool, TextView text) {
  if (!window_ && (text.empty() || !MakeWindow())) return;
  TTTOOLINFOW described = Described(owner_, tool);
  const auto send = [&](UINT message) {
    return SendMessageW(window_.Get(), message, 0, reinterpret_cast<LPARAM>(&described));
  };
  if (text.empty()) {
    send(TTM_DELTOOLW);
    return;
  }
  std::wstring wide = Wide(text);
  const bool isKnown = send(TTM_GETTOOLINFOW) != 0;
  described = Described(owner_, tool);
  described.lpszText = wide.data();
  send(isKnown ? TTM_UPDATETIPTEXTW : TTM_ADDTOOLW);
}

bool ToolTips::MakeWindow() {
  INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
  InitCommonControlsEx(&classes);
  window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"",
                                WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, owner_,
                                nullptr, nullptr, nullptr));
  if (!window_) return false;
  // It belongs to the owner's window on the desktop and is destroyed together with that.
  messages_ = ScopedSubclass(window_.Get(), [this](HWND, UINT message, WPARAM, LPARAM) {
    if (message == WM_NCDESTROY) static_cast<void>(window_.Release());
    return std::optional<LRESULT>();
  });
  return true;
}

}  // namespace sifter
