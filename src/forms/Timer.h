#pragma once

#include "forms/Control.h"

namespace sifter {

// Raises Tick every Interval milliseconds while it is enabled. Whoever shows its parent runs the
// clock and calls Elapse; an interval of 0 never elapses.
class Timer final : public Control {
 public:
  Timer(ControlParent& parent, sifter::Text name)
      : Control(parent, ControlKind::kTimer, std::move(name), kNoIndex) {}

  std::int32_t Interval() const { return interval_; }
  void SetInterval(std::int32_t milliseconds) {
    Assign(interval_, milliseconds, ControlProperty::kInterval);
  }

  std::function<void()> Tick;

  // The interval has elapsed once.
  void Elapse() const {
    if (Enabled() && interval_ > 0 && Tick) Tick();
  }

 private:
  std::int32_t interval_ = 0;
};

}  // namespace sifter
