#pragma once

#include "base/Calendar.h"
#include "base/Clock.h"

namespace sifter {

// A clock that stands still, at noon of 15 June 2007 unless it is set.
class ClockFake final : public Clock {
 public:
  ClockFake() = default;
  explicit ClockFake(const CalendarTime& now) { Set(now); }

  void Set(const CalendarTime& now) { now_ = DateOf(now); }
  Date Now() const override { return now_; }

 private:
  Date now_ = DateOf({.year = 2007, .month = 6, .day = 15, .hour = 12});
};

}  // namespace sifter
