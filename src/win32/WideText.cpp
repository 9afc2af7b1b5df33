#include "win32/WideText.h"

namespace sifter {

Text WindowText(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return FromWide(std::wstring_view(text.data(), static_cast<std::size_t>(length)));
}

}  // namespace sifter
