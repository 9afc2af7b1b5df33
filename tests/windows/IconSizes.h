#pragma once

#include <algorithm>
#include <vector>
#include <windows.h>

namespace sifter {

// How large the images of an icon resource are, in pixels. Loading an icon wouldn't tell: it scales
// whatever is there.
inline std::vector<int> IconSizes(HMODULE module, const wchar_t* name) {
  constexpr int kGroupIcon = 14;
  constexpr int kHead = 6;
  constexpr int kEntry = 14;
  const HRSRC found = FindResourceW(module, name, MAKEINTRESOURCEW(kGroupIcon));
  if (found == nullptr) return {};
  const auto* const bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
  const int count = bytes[4] + 256 * bytes[5];
  std::vector<int> sizes;
  for (int i = 0; i < count; ++i) sizes.push_back(bytes[kHead + kEntry * i]);
  std::sort(sizes.begin(), sizes.end());
  return sizes;
}

}  // namespace sifter
