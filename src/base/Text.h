#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace sifter {

// A read-only run of UTF-16 code units, as passed to functions that keep nothing.
using TextView = std::u16string_view;

namespace detail {

// The part of a text that its copies share. The code units follow it in memory.
struct TextBlock {
  std::uint32_t references;  // kImmortal: never counted, never freed
  std::uint32_t length;      // in code units

  static constexpr std::uint32_t kImmortal = 0xFFFFFFFF;
};

// A literal laid out like a block, so that a Text can point at it without any allocation.
template <std::size_t N>
struct TextLiteral {
  TextBlock block{TextBlock::kImmortal, static_cast<std::uint32_t>(N - 1)};
  char16_t units[N]{};

  consteval TextLiteral(const char16_t (&text)[N]) { std::copy_n(text, N, units); }
};

}  // namespace detail

// An immutable text of UTF-16 code units, one pointer wide.
//
// Copying copies the pointer. The share count is not atomic: a text belongs to the thread that
// made it. Texts written with the suffix _text are immortal and may be used from any thread.
// Equality and order go by code unit; there is no folding and no normalisation. Unpaired
// surrogates are legal and kept.
class Text {
 public:
  constexpr Text() noexcept = default;
  Text(TextView units) : block_(Make(units)) {}
  Text(const char16_t* units) : Text(TextView(units)) {}

  Text(const Text& other) noexcept : block_(other.block_) { AddReference(); }
  Text(Text&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
  Text& operator=(const Text& other) noexcept {
    Text copy(other);
    std::swap(block_, copy.block_);
    return *this;
  }
  Text& operator=(Text&& other) noexcept {
    std::swap(block_, other.block_);
    return *this;
  }
  ~Text() { DropReference(); }

  // Bytes that are no UTF-8 become U+FFFD, one for each offending byte.
  static Text FromUtf8(std::string_view bytes);

  // Unpaired surrogates become U+FFFD.
  std::string ToUtf8() const;

  TextView View() const noexcept {
    return block_ == nullptr ? TextView() : TextView(Units(block_), block_->length);
  }
  operator TextView() const noexcept { return View(); }

  std::size_t Length() const noexcept { return block_ == nullptr ? 0 : block_->length; }
  bool IsEmpty() const noexcept { return block_ == nullptr; }

  // True when both point at the same units; equal texts need not.
  bool SharesWith(const Text& other) const noexcept { return block_ == other.block_; }

  friend bool operator==(const Text& a, const Text& b) noexcept {
    return a.block_ == b.block_ || a.View() == b.View();
  }
  friend bool operator==(const Text& a, TextView b) noexcept { return a.View() == b; }
  friend bool operator==(const Text& a, const char16_t* b) noexcept { return a.View() == b; }
  friend std::strong_ordering operator<=>(const Text& a, const Text& b) noexcept {
    return a.View() <=> b.View();
  }

  template <std::size_t N>
  explicit Text(const detail::TextLiteral<N>& literal) noexcept
      : block_(N == 1 ? nullptr : const_cast<detail::TextBlock*>(&literal.block)) {}

 private:
  static detail::TextBlock* Make(TextView units);
  static void Free(detail::TextBlock* block) noexcept;
  static const char16_t* Units(const detail::TextBlock* block) noexcept {
    return reinterpret_cast<const char16_t*>(block + 1);
  }

  void AddReference() noexcept {
    if (block_ != nullptr && block_->references != detail::TextBlock::kImmortal)
      ++block_->references;
  }
  void DropReference() noexcept {
    if (block_ != nullptr && block_->references != detail::TextBlock::kImmortal &&
        --block_->references == 0)
      Free(block_);
  }

  detail::TextBlock* block_ = nullptr;  // null is the empty text
};

// Joins any mix of texts and views into one.
Text Concat(std::initializer_list<TextView> parts);

// The decimal form of an integer: no blanks, "-" in front of a negative one.
Text IntegerToText(std::int64_t number);

inline namespace literals {
namespace detail_literals {
template <detail::TextLiteral L>
inline constexpr auto kLiteral = L;
}

// u"All"_text: an immortal text, made without an allocation.
template <detail::TextLiteral L>
Text operator""_text() noexcept {
  return Text(detail_literals::kLiteral<L>);
}
}  // namespace literals

}  // namespace sifter

template <>
struct std::hash<sifter::Text> {
  std::size_t operator()(const sifter::Text& text) const noexcept {
    return std::hash<std::u16string_view>()(text.View());
  }
};
