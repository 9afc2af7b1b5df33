#include "base/Clock.h"

#include "base/Calendar.h"
#include "support/ClockFake.h"

#include <gtest/gtest.h>

#include <ctime>

namespace sifter {
namespace {

TEST(Clock, TodayIsTheLastMidnight) {
  const ClockFake clock(
      CalendarTime{.year = 2007, .month = 6, .day = 15, .hour = 23, .minute = 59});
  EXPECT_EQ(clock.Today(), DateOf({.year = 2007, .month = 6, .day = 15}));
}

TEST(SystemClock, TellsLocalTime) {
  const auto localTime = [] {
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    return DateOf({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                   local.tm_min, local.tm_sec});
  };
  const double before = localTime().serial;
  const double now = SystemClock().Now().serial;
  const double after = localTime().serial;
  EXPECT_LE(before, now);
  EXPECT_LE(now, after);
}

}  // namespace
}  // namespace sifter
