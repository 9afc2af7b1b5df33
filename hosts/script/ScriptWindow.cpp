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

}  // namespace

ScriptWindow::ScriptWindow(const std::wstring& caption) {
  Make({kWindowClass, L"Script"}, caption);
  listView_ = CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr,
                              WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS,
                              0, 0, 0, 0, Window(), nullptr, GetModuleHandleW(nullptr), nullptr);
  if (listView_ == nullptr) ThrowLastError(L"Making the list");
  ListView_SetExtendedListViewStyle(listView_, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  Check(CreateListViewObject(listView_, list_.Receive()), L"Making the list's object");
  frame_ = std::make_unique<ControlFrame>(Window());
  SetWindowPos(Window(), nullptr, 0, 0, Scaled(kWindowSize.cx, Window()),
               Scaled(kWindowSize.cy, Window()), SWP_NOMOVE | SWP_NOZORDER);
}

ScriptWindow::~ScriptWindow() { Close(); }

IDispatch* ScriptWindow::AddControl(const std::wstring& progId, int width, int height,
                                    EventHandler handler) {
  const RECT nowhere{};
  Entry entry{width, height,
              std::make_unique<HostedControl>(*frame_, Window(), progId, nowhere,
                                              [this](const MSG& key) { return MoveFocus(key); })};
  entry.control->Listen(std::move(handler));
  controls_.push_back(std::move(entry));
  Layout();
  return controls_.back().control->Object().Object();
}

void ScriptWindow::Layout() {
  RECT inner{};
  GetClientRect(Window(), &inner);
  const int dpi = DpiOf(Window());
  const int margin = Scaled(kMargin, Window());
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
  ShowWindow(Window(), SW_SHOWNORMAL);
  UpdateWindow(Window());
  SetFocus(listView_);
}

void ScriptWindow::Close() {
  if (Window() != nullptr) DestroyWindow(Window());
}

void ScriptWindow::RunWhileShown() {
  MSG message;
  while (Window() != nullptr && IsWindowVisible(Window()) &&
         GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TranslateKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool ScriptWindow::TranslateKey(MSG& message) {
  if (GetActiveWindow() != Window()) return false;
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
    default:
      return DefWindowProcW(Window(), message, wide, wider);
  }
}

}  // namespace hosts
