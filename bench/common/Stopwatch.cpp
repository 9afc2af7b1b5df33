#include "common/Stopwatch.h"

#include <algorithm>
#include <time.h>

namespace sifter::bench {

namespace {

std::int64_t Nanoseconds(clockid_t clock) {
  timespec now{};
  clock_gettime(clock, &now);
  return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

}  // namespace

Stopwatch::Stopwatch()
    : begin_{Nanoseconds(CLOCK_MONOTONIC), Nanoseconds(CLOCK_PROCESS_CPUTIME_ID)} {}

Duration Stopwatch::Elapsed() const {
  return {Nanoseconds(CLOCK_MONOTONIC) - begin_.wall,
          Nanoseconds(CLOCK_PROCESS_CPUTIME_ID) - begin_.cpu};
}

void Durations::Add(Duration duration) {
  wall.push_back(duration.wall);
  cpu.push_back(duration.cpu);
}

Duration Durations::Least() const {
  return {*std::min_element(wall.begin(), wall.end()), *std::min_element(cpu.begin(), cpu.end())};
}

}  // namespace sifter::bench
