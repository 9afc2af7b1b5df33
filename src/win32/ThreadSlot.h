#pragma once

#include <new>
#include <windows.h>

namespace sifter {

// A pointer of each thread's own, null at first. For places that are passed with every message of
// a long list: the compiler's thread_local takes many times as long here.
class ThreadSlot {
 public:
  ThreadSlot() : slot_(TlsAlloc()) {
    if (slot_ == TLS_OUT_OF_INDEXES) throw std::bad_alloc();
  }
  ~ThreadSlot() { TlsFree(slot_); }
  ThreadSlot(const ThreadSlot&) = delete;
  ThreadSlot& operator=(const ThreadSlot&) = delete;

  // Neither touches the thread's last error: a window procedure must not.
  void* Get() const noexcept {
    const DWORD lastError = GetLastError();
    void* const pointer = TlsGetValue(slot_);
    SetLastError(lastError);
    return pointer;
  }
  void Set(void* pointer) noexcept { TlsSetValue(slot_, pointer); }

 private:
  DWORD slot_;
};

}  // namespace sifter
