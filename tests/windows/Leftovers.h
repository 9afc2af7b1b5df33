#pragma once

#include <algorithm>
#include <windows.h>

// What a test may leave behind. Each is exact and is compared with itself, after a first round that
// fills whatever is only filled once.

namespace sifter {

namespace detail {

inline BOOL CALLBACK CountWindow(HWND, LPARAM counter) {
  ++*reinterpret_cast<int*>(counter);
  return TRUE;
}

inline BOOL CALLBACK CountWithChildren(HWND window, LPARAM counter) {
  EnumChildWindows(window, CountWindow, counter);
  return CountWindow(window, counter);
}

}  // namespace detail

inline int WindowsOfThisThread() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), detail::CountWithChildren,
                    reinterpret_cast<LPARAM>(&count));
  return count;
}

inline int GdiObjects() {
  int count = 0;
  for (UINT_PTR handle = 1; handle <= 65535; ++handle)
    if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0) ++count;
  return count;
}

namespace detail {

inline int BlocksOf(HANDLE heap) {
  int count = 0;
  PROCESS_HEAP_ENTRY entry{};
  HeapLock(heap);
  while (HeapWalk(heap, &entry))
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) ++count;
  HeapUnlock(heap);
  return count;
}

}  // namespace detail

// Blocks in use in all heaps of the process; objects and texts live in the C library's.
inline int HeapBlocks() {
  HANDLE heaps[64];
  const DWORD heapCount = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  int count = 0;
  for (DWORD i = 0; i < heapCount; ++i) count += detail::BlocksOf(heaps[i]);
  return count;
}

}  // namespace sifter
