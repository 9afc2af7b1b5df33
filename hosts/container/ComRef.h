#pragma once

#include <unknwn.h>
#include <utility>

namespace hosts {

// Shared ownership of a COM object through one of its interfaces, or nothing.
template <class T>
class ComRef {
 public:
  ComRef() = default;
  // Adds a reference of its own; the caller keeps its one.
  explicit ComRef(T* object) noexcept : object_(object) {
    if (object_ != nullptr) object_->AddRef();
  }
  ComRef(const ComRef& other) noexcept : ComRef(other.object_) {}
  ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComRef& operator=(ComRef other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComRef() {
    if (object_ != nullptr) object_->Release();
  }

  // Takes over the reference that the caller holds.
  static ComRef Adopt(T* object) noexcept {
    ComRef adopted;
    adopted.object_ = object;
    return adopted;
  }

  T* Get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  // Gives up the reference to the caller.
  [[nodiscard]] T* Release() noexcept { return std::exchange(object_, nullptr); }
  void Reset() noexcept { *this = ComRef(); }

  // Where a function puts an object with a reference for us.
  T** Receive() noexcept {
    Reset();
    return &object_;
  }
  void** ReceiveVoid() noexcept { return reinterpret_cast<void**>(Receive()); }

  // The same object through another of its interfaces; nothing when it hasn't got that one.
  template <class U>
  ComRef<U> As() const noexcept {
    ComRef<U> other;
    if (object_ != nullptr && FAILED(object_->QueryInterface(__uuidof(U), other.ReceiveVoid())))
      return ComRef<U>();
    return other;
  }

 private:
  T* object_ = nullptr;
};

}  // namespace hosts
