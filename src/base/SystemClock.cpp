#include "base/Calendar.h"
#include "base/Clock.h"

#include <ctime>

namespace sifter {

namespace {

// The standard's own function hands out one buffer for the whole process; both kinds of platform
// have a safe one, with its arguments the other way round.
std::tm LocalTime(std::time_t moment) {
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &moment);
#else
  localtime_r(&moment, &local);
#endif
  return local;
}

}  // namespace

Date SystemClock::Now() const {
  const std::tm local = LocalTime(std::time(nullptr));
  return DateOf(CalendarTime{.year = local.tm_year + 1900,
                             .month = local.tm_mon + 1,
                             .day = local.tm_mday,
                             .hour = local.tm_hour,
                             .minute = local.tm_min,
                             // A leap second would otherwise reach into the next minute.
                             .second = local.tm_sec < 60 ? local.tm_sec : 59});
}

}  // namespace sifter
