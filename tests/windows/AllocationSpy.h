#pragma once

#include <objidl.h>
#include <windows.h>

namespace sifter {

// Counts the blocks of the platform's task allocator that were allocated since Start() and are not
// freed yet: BSTRs and what they live in. BSTRs are seen only when the process was started with
// OANOCACHE=1 (the test runner does that), or freed ones would be kept for later.
class AllocationSpy {
 public:
  // False where BSTRs can't be counted.
  static bool SeesBstrs();

  AllocationSpy();
  AllocationSpy(const AllocationSpy&) = delete;
  AllocationSpy& operator=(const AllocationSpy&) = delete;
  ~AllocationSpy();

  int Alive() const;
};

}  // namespace sifter
