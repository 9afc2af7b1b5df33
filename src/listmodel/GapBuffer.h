#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>

namespace sifter {

// A sequence whose insertions and removals cost the distance from the previous one. A filter
// takes rows out from the highest to the lowest, and every list in between must be a complete
// list that a host may look at; in a plain array that would be quadratic.
//
// Indexes are 0-based and not checked.
template <class T>
class GapBuffer {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  GapBuffer() = default;
  GapBuffer(GapBuffer&& other) noexcept { Swap(other); }
  GapBuffer& operator=(GapBuffer&& other) noexcept {
    Swap(other);
    return *this;
  }

  std::size_t Size() const noexcept { return capacity_ - (gapEnd_ - gapBegin_); }

  T& operator[](std::size_t index) noexcept { return items_[Place(index)]; }
  const T& operator[](std::size_t index) const noexcept { return items_[Place(index)]; }

  // The sequence is what stands before the gap followed by what stands behind it.
  std::span<const T> BeforeGap() const noexcept { return {items_.get(), gapBegin_}; }
  std::span<const T> BehindGap() const noexcept {
    return {items_.get() + gapEnd_, capacity_ - gapEnd_};
  }

  void Reserve(std::size_t size) {
    if (size > capacity_) Grow(size);
  }

  // Lets the next insertion do without memory.
  void MakeRoom() {
    if (gapBegin_ == gapEnd_) Grow(std::max<std::size_t>(16, capacity_ + capacity_ / 2));
  }

  void Append(T item) { Insert(Size(), item); }

  void Insert(std::size_t index, T item) {
    MakeRoom();
    MoveGap(index);
    items_[gapBegin_++] = item;
  }

  void Remove(std::size_t index) {
    MoveGap(index + 1);
    --gapBegin_;
  }

  // Forgets the items from `size` on.
  void Truncate(std::size_t size) {
    MoveGap(size);
    gapEnd_ = capacity_;
  }

  // One contiguous run of all items, to be read or overwritten in place.
  std::span<T> Contiguous() {
    MoveGap(Size());
    return {items_.get(), gapBegin_};
  }

 private:
  void Swap(GapBuffer& other) noexcept {
    std::swap(items_, other.items_);
    std::swap(capacity_, other.capacity_);
    std::swap(gapBegin_, other.gapBegin_);
    std::swap(gapEnd_, other.gapEnd_);
  }

  std::size_t Place(std::size_t index) const noexcept {
    return index < gapBegin_ ? index : index + (gapEnd_ - gapBegin_);
  }

  void MoveGap(std::size_t index) {
    if (index < gapBegin_) {
      const std::size_t moved = gapBegin_ - index;
      std::memmove(items_.get() + gapEnd_ - moved, items_.get() + index, moved * sizeof(T));
      gapBegin_ -= moved;
      gapEnd_ -= moved;
    } else if (index > gapBegin_) {
      const std::size_t moved = index - gapBegin_;
      std::memmove(items_.get() + gapBegin_, items_.get() + gapEnd_, moved * sizeof(T));
      gapBegin_ += moved;
      gapEnd_ += moved;
    }
  }

  void Grow(std::size_t capacity) {
    std::unique_ptr<T[]> items = std::make_unique_for_overwrite<T[]>(capacity);
    const std::size_t behind = capacity_ - gapEnd_;
    if (gapBegin_ > 0) std::memcpy(items.get(), items_.get(), gapBegin_ * sizeof(T));
    if (behind > 0)
      std::memcpy(items.get() + capacity - behind, items_.get() + gapEnd_, behind * sizeof(T));
    items_ = std::move(items);
    gapEnd_ = capacity - behind;
    capacity_ = capacity;
  }

  std::unique_ptr<T[]> items_;
  std::size_t capacity_ = 0;
  std::size_t gapBegin_ = 0;
  std::size_t gapEnd_ = 0;
};

}  // namespace sifter
