#pragma once

#include "win32/UniqueGdi.h"
#include "win32/WideText.h"

#include <cmath>
#include <string>
#include <vector>
#include <windows.h>

// What can be seen of windows from outside, as values to compare.

namespace sifter {

// Left, top, width and height.
using Box = std::vector<LONG>;

inline Box BoxOf(const RECT& area) {
  return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

inline RECT OnScreen(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

inline RECT ClientOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return area;
}

// Where a window stands within another one's client area.
inline RECT WithinClient(HWND window, HWND of) {
  RECT area = OnScreen(window);
  MapWindowPoints(nullptr, of, reinterpret_cast<POINT*>(&area), 2);
  return area;
}

inline bool Contains(const RECT& outer, const RECT& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

inline bool Overlap(const RECT& a, const RECT& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

inline std::string ClassOf(HWND window) {
  wchar_t name[64] = L"";
  GetClassNameW(window, name, 64);
  return FromWide(name).ToUtf8();
}

inline std::string TextOf(HWND window) { return WindowText(window).ToUtf8(); }

inline int ScreenDpi() { return GetDeviceCaps(WindowDc(nullptr).Get(), LOGPIXELSX); }

inline LONG PixelsOf(double twips, int dpi) { return std::lround(twips * dpi / 1440); }

// How much room a text takes in the font of a window. An "&" that marks a letter takes none.
inline SIZE ExtentIn(HWND window, std::wstring text) {
  std::erase(text, L'&');
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
  const WindowDc context(window);
  const SelectedObject selected(context.Get(), font);
  SIZE size{};
  GetTextExtentPoint32W(context.Get(), text.c_str(), static_cast<int>(text.size()), &size);
  return size;
}

}  // namespace sifter
