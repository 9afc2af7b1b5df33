#include "demo/DemoWindow.h"

#include "container/Failure.h"
#include "container/Measures.h"
#include "demo/Resources.h"

#include <algorithm>
#include <commctrl.h>

namespace hosts {

namespace {

constexpr wchar_t kWindowClass[] = L"RowSifterDemo";
constexpr wchar_t kControl[] = L"RowSifter.TSRowSifter";

// Pixels at 96 dots per inch.
constexpr SIZE kWindowSize = {760, 520};
constexpr SIZE kSmallestSize = {420, 260};
constexpr int kMargin = 6;
constexpr SIZE kControlSize = {96, 28};

void RegisterWindowClass(WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszMenuName = MAKEINTRESOURCEW(IDR_MENU);
  windowClass.lpszClassName = kWindowClass;
  RegisterClassExW(&windowClass);
}

// Of the screen, without the parts that belong to the system.
void PutInTheMiddle(HWND window, SIZE size) {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  const LONG left = std::max((area.left + area.right - size.cx) / 2, area.left);
  const LONG top = std::max((area.top + area.bottom - size.cy) / 2, area.top);
  SetWindowPos(window, nullptr, left, top, size.cx, size.cy, SWP_NOZORDER);
}

HFONT MessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

}  // namespace

DemoWindow::DemoWindow(const std::wstring& folder)
    : font_(MessageFont()),
      keys_(LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDR_KEYS))) {
  MakeWindow();
  MakeChildren();
  OpenFolder(folder);
}

DemoWindow::~DemoWindow() {
  if (window_ != nullptr) DestroyWindow(window_);
  DeleteObject(font_);
}

void DemoWindow::MakeWindow() {
  RegisterWindowClass(Procedure);
  CreateWindowExW(0, kWindowClass, L"Files", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                  GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) ThrowLastError(L"Making the window");
  PutInTheMiddle(window_, {Scaled(kWindowSize.cx, window_), Scaled(kWindowSize.cy, window_)});
}

void DemoWindow::MakeChildren() {
  label_ = CreateWindowExW(
      0, L"STATIC", nullptr,
      WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX | SS_CENTERIMAGE | SS_PATHELLIPSIS, 0,
      0, 0, 0, window_, reinterpret_cast<HMENU>(IDC_FOLDER), GetModuleHandleW(nullptr), nullptr);
  SendMessageW(label_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  list_ = std::make_unique<FolderList>(window_, IDC_LIST);
  status_ = std::make_unique<StatusLine>(window_, IDC_STATUS);
  frame_ = std::make_unique<ControlFrame>(window_, [this](bool modeless) {
    modal_ += modeless ? -1 : 1;
    if (modal_ == 0 && changed_) PostMessageW(window_, WM_TIMER, 0, 0);
  });
  const RECT nowhere{};
  control_ =
      std::make_unique<HostedControl>(*frame_, window_, kControl, nowhere,
                                      [this](const MSG& key) { return FocusFromControl(key); });
  control_->Listen(
      [this](const std::wstring& event, const std::vector<VARIANT*>&) { ControlRaised(event); });
  control_->Object().PutReference(L"Listview", list_->Object());
  Layout();
}

void DemoWindow::Layout() {
  if (control_ == nullptr) return;
  status_->Layout();
  RECT inner{};
  GetClientRect(window_, &inner);
  const int margin = Scaled(kMargin, window_);
  const int width = Scaled(kControlSize.cx, window_);
  const int height = Scaled(kControlSize.cy, window_);
  const int top = 2 * margin + height;
  control_->Place({margin, margin, margin + width, margin + height});
  MoveWindow(label_, 2 * margin + width, margin, inner.right - width - 3 * margin, height, TRUE);
  MoveWindow(list_->Window(), 0, top, inner.right, inner.bottom - status_->Height() - top, TRUE);
}

// The control goes while the list that it watches is still there.
void DemoWindow::Close() {
  control_.reset();
  frame_.reset();
  list_.reset();
  status_.reset();
}

LRESULT CALLBACK DemoWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  if (message == WM_NCCREATE) {
    const auto* const create = reinterpret_cast<const CREATESTRUCTW*>(wider);
    const auto self = reinterpret_cast<LONG_PTR>(create->lpCreateParams);
    SetWindowLongPtrW(window, GWLP_USERDATA, self);
    reinterpret_cast<DemoWindow*>(self)->window_ = window;
  }
  auto* const self = reinterpret_cast<DemoWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wide, wider);
  try {
    return self->Handle(message, wide, wider);
  } catch (...) {
    MessageBoxW(window, DescribeCurrentFailure().c_str(), L"Files", MB_ICONEXCLAMATION);
    return 0;
  }
}

LRESULT DemoWindow::Handle(UINT message, WPARAM wide, LPARAM wider) {
  switch (message) {
    case WM_SIZE:
      Layout();
      return 0;
    case WM_SETFOCUS:
      if (list_ != nullptr) SetFocus(list_->Window());
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(wider)->ptMinTrackSize = {Scaled(kSmallestSize.cx, window_),
                                                              Scaled(kSmallestSize.cy, window_)};
      return 0;
    case WM_COMMAND:
      Command(LOWORD(wide));
      return 0;
    case WM_INITMENUPOPUP:
      UpdateMenu(reinterpret_cast<HMENU>(wide));
      return 0;
    case WM_NOTIFY:
      return Notified(*reinterpret_cast<const NMHDR*>(wider));
    case WM_TIMER:
      FollowFolder();
      return 0;
    case WM_DESTROY:
      Close();
      PostQuitMessage(0);
      return 0;
    case WM_NCDESTROY:
      window_ = nullptr;
      return 0;
    default:
      return DefWindowProcW(window_, message, wide, wider);
  }
}

LRESULT DemoWindow::Notified(const NMHDR& notice) {
  if (notice.idFrom == IDC_LIST && (notice.code == NM_DBLCLK || notice.code == NM_RETURN))
    OpenFocusedFolder();
  return 0;
}

}  // namespace hosts
