#pragma once

#include <cstdint>
#include <vector>

namespace sifter::bench {

// What one piece of work took, in nanoseconds.
struct Duration {
  std::int64_t wall = 0;
  std::int64_t cpu = 0;  // of this process, on all cores
};

class Stopwatch {
 public:
  Stopwatch();
  Duration Elapsed() const;

 private:
  Duration begin_;
};

// Calls `work` once and says what it took.
template <class Work>
Duration Timed(Work work) {
  const Stopwatch stopwatch;
  work();
  return stopwatch.Elapsed();
}

// Several measurements of the same work.
struct Durations {
  std::vector<std::int64_t> wall;
  std::vector<std::int64_t> cpu;

  void Add(Duration duration);

  // The quietest repetition: on a machine with other work to do it is the least disturbed one.
  Duration Least() const;
};

}  // namespace sifter::bench
