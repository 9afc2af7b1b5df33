#include "container/TopWindow.h"

#include "container/Failure.h"

namespace hosts {

void TopWindow::Make(const Look& look, const std::wstring& caption) {
  program_ = look.program;
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = Procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszMenuName = look.menu == 0 ? nullptr : MAKEINTRESOURCEW(look.menu);
  windowClass.lpszClassName = look.windowClass;
  RegisterClassExW(&windowClass);
  CreateWindowExW(0, look.windowClass, caption.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                  GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) ThrowLastError(L"Making the window");
}

// Null before the window knows.
TopWindow* TopWindow::OwnerOf(HWND window, UINT message, LPARAM wider) {
  if (message == WM_NCCREATE) {
    const auto* const create = reinterpret_cast<const CREATESTRUCTW*>(wider);
    auto* const owner = static_cast<TopWindow*>(create->lpCreateParams);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
    owner->window_ = window;
  }
  return reinterpret_cast<TopWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

LRESULT CALLBACK TopWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  TopWindow* const owner = OwnerOf(window, message, wider);
  if (owner == nullptr) return DefWindowProcW(window, message, wide, wider);
  try {
    if (message != WM_NCDESTROY) return owner->Handle(message, wide, wider);
    owner->window_ = nullptr;
  } catch (...) {
    MessageBoxW(window, DescribeCurrentFailure().c_str(), owner->program_, MB_ICONEXCLAMATION);
  }
  return 0;
}

}  // namespace hosts
