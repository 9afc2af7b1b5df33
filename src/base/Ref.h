#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace sifter {

// Base of everything that is handed out by reference and ends with its last holder. The count is
// not atomic: such an object belongs to one thread.
class Object {
 public:
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  void AddReference() noexcept { ++references_; }
  void DropReference() noexcept {
    if (--references_ == 0) delete this;
  }

 protected:
  Object() = default;
  virtual ~Object() = default;

 private:
  std::uint32_t references_ = 0;
};

// Shared ownership of one Object, or nothing.
template <class T>
class Ref {
 public:
  Ref() = default;
  Ref(std::nullptr_t) {}
  explicit Ref(T* object) noexcept : object_(object) {
    if (object_ != nullptr) object_->AddReference();
  }
  Ref(const Ref& other) noexcept : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
  noexcept : Ref(other.Get()) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() {
    if (object_ != nullptr) object_->DropReference();
  }

  T* Get() const noexcept { return object_; }
  T* operator->() const noexcept { return object_; }
  T& operator*() const noexcept { return *object_; }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  friend bool operator==(const Ref& a, const Ref& b) noexcept { return a.object_ == b.object_; }

 private:
  T* object_ = nullptr;
};

template <class T, class... Arguments>
Ref<T> MakeRef(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace sifter
