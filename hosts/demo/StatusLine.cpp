#include "demo/StatusLine.h"

#include "container/Failure.h"
#include "container/Measures.h"

#include <commctrl.h>
#include <iterator>
#include <utility>

namespace hosts {

namespace {

enum Part { kCount, kEvents, kNote };

constexpr std::size_t kRememberedEvents = 4;
constexpr int kCountWidth = 130;
constexpr int kNoteWidth = 260;

}  // namespace

StatusLine::StatusLine(HWND parent, int id)
    : window_(CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP,
                              0, 0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                              GetModuleHandleW(nullptr), nullptr)) {
  if (window_ == nullptr) ThrowLastError(L"Making the status line");
  Layout();
}

int StatusLine::Height() const {
  RECT box{};
  GetWindowRect(window_, &box);
  return box.bottom - box.top;
}

// It finds its own place; the parts are ours.
void StatusLine::Layout() {
  SendMessageW(window_, WM_SIZE, 0, 0);
  RECT inner{};
  GetClientRect(window_, &inner);
  const int ends[] = {Scaled(kCountWidth, window_), inner.right - Scaled(kNoteWidth, window_), -1};
  SendMessageW(window_, SB_SETPARTS, std::size(ends), reinterpret_cast<LPARAM>(ends));
}

void StatusLine::SetPart(int part, const std::wstring& text) {
  SendMessageW(window_, SB_SETTEXTW, static_cast<WPARAM>(part),
               reinterpret_cast<LPARAM>(text.c_str()));
}

void StatusLine::ShowCount(int shown, int total) {
  const std::wstring all = std::to_wstring(total) + L" items";
  SetPart(kCount, shown == total ? all : std::to_wstring(shown) + L" of " + all);
}

void StatusLine::AddEvent(std::wstring event) {
  events_.push_back(std::move(event));
  if (events_.size() > kRememberedEvents) events_.pop_front();
  std::wstring line;
  for (const std::wstring& one : events_) line += (line.empty() ? L"" : L", ") + one;
  SetPart(kEvents, line);
}

void StatusLine::ShowNote(const std::wstring& note) { SetPart(kNote, note); }

}  // namespace hosts
