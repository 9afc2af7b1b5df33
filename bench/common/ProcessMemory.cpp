#include "common/ProcessMemory.h"

#include <fstream>
#include <malloc.h>
#include <sstream>
#include <string>

namespace sifter::bench {

namespace {

// A line of the process's status such as "VmRSS:   5012 kB"; 0 when there is none.
std::int64_t StatusKilobytes(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    std::istringstream fields(line);
    std::string field;
    std::int64_t kilobytes = 0;
    if (fields >> field >> kilobytes && field == name + ":") return kilobytes;
  }
  return 0;
}

}  // namespace

std::int64_t ResidentKilobytes() { return StatusKilobytes("VmRSS"); }

std::int64_t PeakResidentKilobytes() { return StatusKilobytes("VmHWM"); }

std::int64_t HeapBytes() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
}

void ReleaseUnusedHeap() { malloc_trim(0); }

}  // namespace sifter::bench
