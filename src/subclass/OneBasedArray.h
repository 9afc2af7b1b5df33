#pragma once

#include "base/Integers.h"
#include "base/RuntimeError.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace sifter {

// A growing table with positions from 1 and a 16-bit count: it is never larger than its count, and
// holds at most 32767 entries.
template <class T>
class OneBasedArray {
 public:
  std::int16_t Count() const { return static_cast<std::int16_t>(entries_.size()); }

  // A position that doesn't exist is error 9.
  T& operator[](std::int16_t position) { return entries_[IndexOf(position)]; }
  const T& operator[](std::int16_t position) const { return entries_[IndexOf(position)]; }

  // Adds an entry at the end. Error 6 when the table is full; it is unchanged then.
  void Append(T entry) {
    ToInt16(static_cast<std::int64_t>(entries_.size()) + 1);
    entries_.push_back(std::move(entry));
  }

  // The later entries move down one place.
  void RemoveAt(std::int16_t position) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(IndexOf(position)));
  }

  // The first position whose entry fulfils the condition, or 0.
  template <class Condition>
  std::int16_t Find(Condition condition) const {
    for (std::size_t i = 0; i < entries_.size(); ++i)
      if (condition(entries_[i])) return static_cast<std::int16_t>(i + 1);
    return 0;
  }

 private:
  std::size_t IndexOf(std::int16_t position) const {
    if (position < 1 || position > Count()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    return static_cast<std::size_t>(position) - 1;
  }

  std::vector<T> entries_;
};

}  // namespace sifter
