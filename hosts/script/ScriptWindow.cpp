#include "script/ScriptWindow.h"

#include "container/Failure.h"
#include "container/Measures.h"

#include <rowsifter/ListViewObject.h>

#include <algorithm>
#include <commctrl.h>

namespace hosts {

namespace {

constexpr wchar_t kWindowClass[] = L"RowSifterScript";
constexpr SIZE kWindowSize = {640, 420};  // pixels at 96 dots per inch
constexpr int kMargin = 6;
constexpr int kTwipsPerInch = 1440;

void RegisterWindowClass(WNDPROC procedure) {
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof windowClass;
  windowClass.lpfnWndProc = procedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = kWindowClass;
  RegisterClassExW(&windowClass);
}

}  // namespace

ScriptWindow::ScriptWindow(const std::wstring& caption) {
  RegisterWindowClass(Procedure);
  CreateWindowExW(0, kWindowClass, caption.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                  GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) ThrowLastError(L"Making the window");
  listView_ = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr,
                              WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS,
                              0, 0, 0, 0, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
  if (listView_ == nullptr) ThrowLastError(L"Making the list");
  ListView_SetExtendedListViewStyle(listView_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  Check(CreateListViewObject(listView_, list_.Receive()), L"Making the list's object");
  frame_ = std::make_unique<ControlFrame>(window_);
  SetWindowPos(window_, nullptr, 0, 0, Scaled(kWindowSize.cx, window_),
               Scaled(kWindowSize.cy, window_), SWP_NOMOVE | SWP_NOZORDER);
}

ScriptWindow::~ScriptWindow() { Close(); }

IDispatch* ScriptWindow::AddControl(const std::wstring& progId, int width, int height,
                                    EventHandler handler) {
  const RECT nowhere{};
  Entry entry{width, height,
              std::make_unique<HostedControl>(*frame_, window_, progId, nowhere,
                                              [this](const MSG& key) { return MoveFocus(key); })};
  entry.control->Listen(std::move(handler));
  controls_.push_back(std::move(entry));
  Layout();
  return controls_.back().control->Object().Object();
}

void ScriptWindow::Layout() {
  RECT inner{};
  GetClientRect(window_, &inner);
  const int dpi = DpiOf(window_);
  const int margin = Scaled(kMargin, window_);
  int left = margin;
  int bottom = 0;
  for (const Entry& entry : controls_) {
    const int width = entry.width > 0 ? MulDiv(entry.width, dpi, kTwipsPerInch)
                                      : std::max(inner.right - margin - left, 0L);
    const int height = MulDiv(entry.height, dpi, kTwipsPerInch);
    entry.control->Place({left, margin, left + width, margin + height});
    left += width + margin;
    bottom = std::max(bottom, margin + height);
  }
  const int top = controls_.empty() ? 0 : bottom + margin;
  MoveWindow(listView_, 0, top, inner.right, inner.bottom - top, TRUE);
}

void ScriptWindow::Show() {
  ShowWindow(window_, SW_SHOWNORMAL);
  UpdateWindow(window_);
  SetFocus(listView_);
}

void ScriptWindow::Close() {
  if (window_ != nullptr) DestroyWindow(window_);
}

void ScriptWindow::RunWhileShown() {
  MSG message;
  while (window_ != nullptr && IsWindowVisible(window_) &&
         GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TranslateKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool ScriptWindow::TranslateKey(MSG& message) {
  if (GetActiveWindow() != window_) return false;
  for (const Entry& entry : controls_)
    if (entry.control->TranslateKey(message)) return true;
  return GetFocus() == listView_ && MoveFocus(message);
}

// Tab goes from the list to the first control and from each to the next; with Shift backwards.
bool ScriptWindow::MoveFocus(const MSG& key) {
  if (key.message != WM_KEYDOWN || key.wParam != VK_TAB || controls_.empty()) return false;
  const auto focused = std::find_if(controls_.begin(), controls_.end(),
                                    [](const Entry& entry) { return entry.control->HasFocus(); });
  const std::size_t places = controls_.size() + 1;  // the list is the last
  const auto now = static_cast<std::size_t>(focused - controls_.begin());
  const std::size_t step = GetKeyState(VK_SHIFT) < 0 ? places - 1 : 1;
  const std::size_t next = (now + step) % places;
  if (next == controls_.size())
    SetFocus(listView_);
  else
    controls_[next].control->TakeFocus();
  return true;
}

LRESULT CALLBACK ScriptWindow::Procedure(HWND window, UINT message, WPARAM wide, LPARAM wider) {
  if (message == WM_NCCREATE) {
    const auto* const create = reinterpret_cast<const CREATESTRUCTW*>(wider);
    const auto self = reinterpret_cast<LONG_PTR>(create->lpCreateParams);
    SetWindowLongPtrW(window, GWLP_USERDATA, self);
    reinterpret_cast<ScriptWindow*>(self)->window_ = window;
  }
  auto* const self = reinterpret_cast<ScriptWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(window, message, wide, wider);
  try {
    return self->Handle(message, wide, wider);
  } catch (...) {
    MessageBoxW(window, DescribeCurrentFailure().c_str(), L"Script", MB_ICONEXCLAMATION);
    return 0;
  }
}

LRESULT ScriptWindow::Handle(UINT message, WPARAM wide, LPARAM wider) {
  switch (message) {
    case WM_SIZE:
      Layout();
      return 0;
    case WM_SETFOCUS:
      SetFocus(listView_);
      return 0;
    case WM_DESTROY:
      // The controls go while the list that they watch is still there.
      controls_.clear();
      frame_.reset();
      return 0;
    case WM_NCDESTROY:
      window_ = nullptr;
      return 0;
    default:
      return DefWindowProcW(window_, message, wide, wider);
  }
}

}  // namespace hosts
