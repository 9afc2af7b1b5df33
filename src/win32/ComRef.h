#pragma once

#include <cassert>
#include <cstddef>
#include <unknwn.h>
#include <utility>
#include <windows.h>

namespace sifter {

// Shared ownership of a COM object through one of its interfaces, or nothing.
template <class T>
class ComRef {
 public:
  ComRef() = default;
  ComRef(std::nullptr_t) noexcept {}
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

  // Where a function puts an object with a reference for us. Nothing may be held at that time.
  T** Receive() noexcept {
    assert(object_ == nullptr);
    return &object_;
  }
  void** ReceiveVoid() noexcept { return reinterpret_cast<void**>(Receive()); }

  // The same object through another of its interfaces; nothing when it hasn't got that one.
  template <class U>
  ComRef<U> As(REFIID id) const noexcept {
    ComRef<U> other;
    if (object_ != nullptr && FAILED(object_->QueryInterface(id, other.ReceiveVoid())))
      return nullptr;
    return other;
  }
  template <class U>
  ComRef<U> As() const noexcept {
    return As<U>(__uuidof(U));
  }

 private:
  T* object_ = nullptr;
};

// Whether both are the same object: its IUnknown is the one interface that always has the same
// address. Two nulls are the same.
inline bool IsSameComObject(IUnknown* a, IUnknown* b) noexcept {
  if (a == b) return true;
  if (a == nullptr || b == nullptr) return false;
  return ComRef<IUnknown>(a).As<IUnknown>(IID_IUnknown).Get() ==
         ComRef<IUnknown>(b).As<IUnknown>(IID_IUnknown).Get();
}

}  // namespace sifter
