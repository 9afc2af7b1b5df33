#pragma once

#include <cstdint>

namespace sifter::bench {

// Memory that this process has resident, in kB, now and at its highest so far.
std::int64_t ResidentKilobytes();
std::int64_t PeakResidentKilobytes();

// Bytes of the heap in use, with what the allocator keeps beside each block.
std::int64_t HeapBytes();

// Gives back to the system what the heap keeps for later.
void ReleaseUnusedHeap();

}  // namespace sifter::bench
