#pragma once

#include "base/Value.h"

#include <cmath>

namespace sifter {

// Port: the local date and time.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date Now() const = 0;

  // Today at 0:00.
  Date Today() const { return Date{std::floor(Now().serial)}; }
};

// The machine's own clock, in its local time zone.
class SystemClock final : public Clock {
 public:
  Date Now() const override;
};

}  // namespace sifter
