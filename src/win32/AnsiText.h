#pragma once

#include <cstddef>
#include <string>
#include <windows.h>

namespace sifter {

// Texts in the system's ANSI code page, which windows of the older kind still speak.

inline std::wstring WideFromAnsi(const char* ansi) {
  const int room = MultiByteToWideChar(CP_ACP, 0, ansi, -1, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(room), L'\0');
  MultiByteToWideChar(CP_ACP, 0, ansi, -1, wide.data(), room);
  wide.resize(wide.empty() ? 0 : wide.size() - 1);
  return wide;
}

// A character that the code page hasn't got becomes "?".
inline std::string AnsiFromWide(const std::wstring& wide) {
  const int units = static_cast<int>(wide.size());
  const int bytes =
      WideCharToMultiByte(CP_ACP, 0, wide.data(), units, nullptr, 0, nullptr, nullptr);
  std::string ansi(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.data(), units, ansi.data(), bytes, nullptr, nullptr);
  return ansi;
}

}  // namespace sifter
