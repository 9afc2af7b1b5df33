#include "base/Text.h"

#include <charconv>
#include <cstring>
#include <new>

namespace sifter {

namespace {

std::size_t BlockSize(std::size_t length) {
  return sizeof(detail::TextBlock) + length * sizeof(char16_t);
}

detail::TextBlock* NewBlock(std::size_t length) {
  if (length > 0x7FFFFFFF) throw std::bad_alloc();
  void* memory = ::operator new(BlockSize(length));
  return new (memory) detail::TextBlock{1, static_cast<std::uint32_t>(length)};
}

char16_t* WritableUnits(detail::TextBlock* block) { return reinterpret_cast<char16_t*>(block + 1); }

}  // namespace

detail::TextBlock* Text::Make(TextView units) {
  if (units.empty()) return nullptr;
  detail::TextBlock* block = NewBlock(units.size());
  std::memcpy(WritableUnits(block), units.data(), units.size() * sizeof(char16_t));
  return block;
}

void Text::Free(detail::TextBlock* block) noexcept { ::operator delete(block); }

Text Concat(std::initializer_list<TextView> parts) {
  std::size_t length = 0;
  for (TextView part : parts) length += part.size();
  std::u16string joined;
  joined.reserve(length);
  for (TextView part : parts) joined += part;
  return Text(joined);
}

Text IntegerToText(std::int64_t number) {
  char digits[24];
  const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
  char16_t units[24];
  char16_t* last = std::copy(digits, end.ptr, units);
  return Text(TextView(units, static_cast<std::size_t>(last - units)));
}

}  // namespace sifter
