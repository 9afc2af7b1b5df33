#pragma once

#include "base/Text.h"

#include <string>
#include <windows.h>

namespace sifter {

// The platform's wide characters are UTF-16 code units too, under another type.

inline std::wstring Wide(TextView text) { return std::wstring(text.begin(), text.end()); }

inline Text FromWide(std::wstring_view text) {
  return Text(TextView(reinterpret_cast<const char16_t*>(text.data()), text.size()));
}

// The text of a window of this process.
Text WindowText(HWND window);

}  // namespace sifter
