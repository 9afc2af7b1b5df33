#pragma once

#include "base/RuntimeError.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace sifter {

// Controls that share one name and are told apart by their index, 0 upward without gaps. Member 0
// is part of the form's design and stays.
template <class T>
class ControlArray {
 public:
  // Makes the member with the given index, as designed.
  using Factory = std::function<std::unique_ptr<T>(std::int16_t index)>;

  explicit ControlArray(Factory make) : make_(std::move(make)) { Load(); }

  std::int32_t Count() const { return static_cast<std::int32_t>(members_.size()); }

  // A member that doesn't exist is error 340.
  T& operator[](std::int32_t index) const {
    if (index < 0 || index >= Count()) throw RuntimeError::ControlArrayElement(index);
    return *members_[static_cast<std::size_t>(index)];
  }

  // Adds the member behind the last one.
  T& Load() {
    members_.push_back(make_(static_cast<std::int16_t>(members_.size())));
    return *members_.back();
  }

  // Takes the members away again, from the last one on, until only member 0 is left.
  void UnloadAllButFirst() {
    while (members_.size() > 1) members_.pop_back();
  }

 private:
  Factory make_;
  std::vector<std::unique_ptr<T>> members_;
};

}  // namespace sifter
