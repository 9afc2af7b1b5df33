#include "win32/FormWindow.h"

#include <algorithm>

namespace sifter {

namespace {

RECT WorkAreaAround(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
  return monitor.rcWork;
}

}  // namespace

// In the middle of the work area when the form appears; where the user has moved it to afterwards,
// as far as that is within the work area.
void FormWindow::Resize() {
  RECT frame{0, 0, measures_.Pixels(form_.Width()), measures_.Pixels(form_.Height())};
  contentHeight_ = frame.bottom;
  AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_STYLE)), FALSE,
                     static_cast<DWORD>(GetWindowLongPtrW(window_, GWL_EXSTYLE)));
  const RECT work = WorkAreaAround(behind_ != nullptr && !shown_ ? behind_ : window_);
  LONG width = frame.right - frame.left;
  LONG height = frame.bottom - frame.top;
  const bool scrolls = height > work.bottom - work.top;
  if (scrolls) width += GetSystemMetrics(SM_CXVSCROLL);
  width = std::min(width, work.right - work.left);
  height = std::min(height, work.bottom - work.top);
  LONG left = work.left + (work.right - work.left - width) / 2;
  LONG top = work.top + (work.bottom - work.top - height) / 2;
  if (shown_) {
    RECT now;
    GetWindowRect(window_, &now);
    left = std::clamp(now.left, work.left, work.right - width);
    top = std::clamp(now.top, work.top, work.bottom - height);
  }
  SetWindowPos(window_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  ScrollTo(scroll_);
  if (const ControlWindow* focused = Find(GetFocus())) ScrollIntoView(focused->Handle());
}

void FormWindow::ScrollTo(int offset) {
  RECT client;
  GetClientRect(window_, &client);
  const int page = client.bottom - client.top;
  const int before = scroll_;
  scroll_ = std::clamp(offset, 0, std::max(0, contentHeight_ - page));
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = std::max(0, contentHeight_ - 1);
  info.nPage = static_cast<UINT>(page);
  info.nPos = scroll_;
  SetScrollInfo(window_, SB_VERT, &info, TRUE);
  if (scroll_ != before)
    ScrollWindowEx(window_, 0, before - scroll_, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

void FormWindow::ScrollIntoView(HWND window) {
  RECT box;
  GetWindowRect(window, &box);
  MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&box), 2);
  RECT client;
  GetClientRect(window_, &client);
  if (box.top < client.top)
    ScrollTo(scroll_ + box.top - client.top);
  else if (box.bottom > client.bottom)
    ScrollTo(scroll_ + box.bottom - client.bottom);
}

void FormWindow::OnScroll(WPARAM wParam) {
  RECT client;
  GetClientRect(window_, &client);
  const int line = measures_.Pixels(400);
  switch (LOWORD(wParam)) {
    case SB_LINEUP:
      return ScrollTo(scroll_ - line);
    case SB_LINEDOWN:
      return ScrollTo(scroll_ + line);
    case SB_PAGEUP:
      return ScrollTo(scroll_ - client.bottom);
    case SB_PAGEDOWN:
      return ScrollTo(scroll_ + client.bottom);
    case SB_TOP:
      return ScrollTo(0);
    case SB_BOTTOM:
      return ScrollTo(contentHeight_);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK: {
      SCROLLINFO info{};
      info.cbSize = sizeof info;
      info.fMask = SIF_TRACKPOS;
      GetScrollInfo(window_, SB_VERT, &info);
      return ScrollTo(info.nTrackPos);
    }
    default:
      break;
  }
}

}  // namespace sifter
