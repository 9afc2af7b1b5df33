#include "demo/DemoWindow.h"

#include "container/Measures.h"
#include "demo/Resources.h"

#include <algorithm>
#include <commctrl.h>

namespace hosts {

namespace {

constexpr wchar_t kWindowClass[] = L"RowSifterDemo";

// Pixels at 96 dots per inch.
constexpr SIZE kWindowSize = {760, 520};
constexpr SIZE kSmallestSize = {420, 260};
constexpr int kMargin = 6;
constexpr int kLabelHeight = 16;
constexpr int kControlHeight = 28;
constexpr int kButtonWidth = 96;

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
  Make({kWindowClass, L"Files", IDR_MENU}, L"Files");
  PutInTheMiddle(Window(), {Scaled(kWindowSize.cx, Window()), Scaled(kWindowSize.cy, Window())});
  MakeChildren();
  UseControl(true);
  OpenFolder(folder);
}

DemoWindow::~DemoWindow() {
  if (Window() != nullptr) DestroyWindow(Window());
  DeleteObject(font_);
}

void DemoWindow::MakeChildren() {
  label_ = CreateWindowExW(
      0, L"STATIC", nullptr,
      WS_CHILD | WS_VISIBLE | SS_LEFTNOWORDWRAP | SS_NOPREFIX | SS_CENTERIMAGE | SS_PATHELLIPSIS, 0,
      0, 0, 0, Window(), reinterpret_cast<HMENU>(IDC_FOLDER), GetModuleHandleW(nullptr), nullptr);
  SendMessageW(label_, WM_SETFONT, reinterpret_cast<WPARAM>(font_), TRUE);
  list_ = std::make_unique<FolderList>(Window(), IDC_LIST);
  status_ = std::make_unique<StatusLine>(Window(), IDC_STATUS);
  frame_ = std::make_unique<ControlFrame>(Window(), [this](bool modeless) {
    modal_ += modeless ? -1 : 1;
    if (modal_ == 0) FollowSoon();
  });
}

void DemoWindow::Layout() {
  if (control_ == nullptr) return;
  status_->Layout();
  RECT inner{};
  GetClientRect(Window(), &inner);
  const int margin = Scaled(kMargin, Window());
  const int right = inner.right - margin;
  const int strip = 2 * margin + Scaled(kLabelHeight, Window());
  const int below = strip + Scaled(kControlHeight, Window());
  const int top = below + margin;
  MoveWindow(label_, margin, margin, right - margin, strip - 2 * margin, TRUE);
  control_->Place(
      {margin, strip, banner_ ? right : margin + Scaled(kButtonWidth, Window()), below});
  MoveWindow(list_->Window(), 0, top, inner.right, inner.bottom - status_->Height() - top, TRUE);
}

// The control goes while the list that it watches is still there.
void DemoWindow::Close() {
  control_.reset();
  frame_.reset();
  list_.reset();
  status_.reset();
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
      reinterpret_cast<MINMAXINFO*>(wider)->ptMinTrackSize = {Scaled(kSmallestSize.cx, Window()),
                                                              Scaled(kSmallestSize.cy, Window())};
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
    case kCountMessage:
      ShowCount();
      return 0;
    case WM_DESTROY:
      Close();
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(Window(), message, wide, wider);
  }
}

LRESULT DemoWindow::Notified(const NMHDR& notice) {
  if (notice.idFrom != IDC_LIST) return 0;
  switch (notice.code) {
    case NM_DBLCLK:
    case NM_RETURN:
      OpenFocusedFolder();
      return 0;
    case LVN_INSERTITEM:
    case LVN_DELETEITEM:
      CountChanged();
      return 0;
    default:
      return 0;
  }
}

}  // namespace hosts
