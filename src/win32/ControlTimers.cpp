#include "win32/ControlTimers.h"

#include "base/RuntimeError.h"
#include "forms/Timer.h"

#include <optional>
#include <utility>

namespace sifter {

namespace {

UINT_PTR IdOf(const Control& control) { return reinterpret_cast<UINT_PTR>(&control); }

}  // namespace

ControlTimers::ControlTimers(ControlParent& parent, Runner run)
    : parent_(parent), run_(std::move(run)) {
  for (Control* control : parent_.Controls())
    if (control->Kind() == ControlKind::kTimer) Set(*control);
  parent_.WatchTimers(this);
}

ControlTimers::~ControlTimers() { parent_.WatchTimers(nullptr); }

void ControlTimers::OnControlRemoved(Control& control) { Stop(control); }

void ControlTimers::OnPropertyChanged(Control& control, ControlProperty property) {
  if (property == ControlProperty::kEnabled || property == ControlProperty::kInterval) Set(control);
}

void ControlTimers::Set(Control& control) {
  const auto& timer = static_cast<const Timer&>(control);
  if (!timer.Enabled() || timer.Interval() <= 0) return Stop(control);
  if (SetTimer(Window(), IdOf(control), static_cast<UINT>(timer.Interval()), nullptr) == 0)
    throw RuntimeError(ErrorNumber::kOutOfMemory);
  running_[IdOf(control)] = &control;
}

void ControlTimers::Stop(const Control& control) {
  if (running_.erase(IdOf(control)) != 0) KillTimer(window_.Get(), IdOf(control));
}

// The handler may end the timer and this object, so there is nothing after it.
void ControlTimers::Elapsed(UINT_PTR id) {
  const auto found = running_.find(id);
  if (found == running_.end()) return;  // stopped when the message was on its way already
  const auto* const timer = static_cast<const Timer*>(found->second);
  run_([timer] { timer->Elapse(); });
}

HWND ControlTimers::Window() {
  if (window_) return window_.Get();
  window_.Reset(
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr));
  if (!window_) throw RuntimeError(ErrorNumber::kOutOfMemory);
  messages_ = ScopedSubclass(window_.Get(), [this](HWND, UINT message, WPARAM wParam, LPARAM) {
    if (message != WM_TIMER) return std::optional<LRESULT>();
    Elapsed(wParam);
    return std::optional<LRESULT>(0);
  });
  return window_.Get();
}

}  // namespace sifter
