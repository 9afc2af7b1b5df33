#pragma once

#include <new>
#include <objbase.h>
#include <string_view>
#include <windows.h>

namespace sifter {

// A text that the caller frees with CoTaskMemFree. std::bad_alloc when there is no memory.
inline LPOLESTR TaskText(std::wstring_view text) {
  auto* const copy = static_cast<LPOLESTR>(CoTaskMemAlloc((text.size() + 1) * sizeof(OLECHAR)));
  if (copy == nullptr) throw std::bad_alloc();
  text.copy(copy, text.size());
  copy[text.size()] = L'\0';
  return copy;
}

}  // namespace sifter
