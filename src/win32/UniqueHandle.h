#pragma once

#include <utility>

namespace sifter {

// Sole ownership of something that the platform hands out as a handle, or nothing (null).
//
// A kind of handle is told by a type with `using Handle = ...;` and
// `static void Close(Handle) noexcept`. Close is never called with null.
template <class Kind>
class UniqueHandle {
 public:
  using Handle = typename Kind::Handle;

  UniqueHandle() = default;
  explicit UniqueHandle(Handle handle) noexcept : handle_(handle) {}
  UniqueHandle(UniqueHandle&& other) noexcept : handle_(other.Release()) {}
  UniqueHandle& operator=(UniqueHandle&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~UniqueHandle() { Reset(); }

  Handle Get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != nullptr; }

  // Closes what is held and takes over `handle`. Holds the new one already while the old one is
  // being closed, which for a window runs foreign code.
  void Reset(Handle handle = nullptr) noexcept {
    const Handle old = std::exchange(handle_, handle);
    if (old != nullptr && old != handle) Kind::Close(old);
  }

  // Gives up the ownership.
  [[nodiscard]] Handle Release() noexcept { return std::exchange(handle_, nullptr); }

 private:
  Handle handle_ = nullptr;
};

}  // namespace sifter
