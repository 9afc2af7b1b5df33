#include "win32/Dpi.h"

#include "win32/UniqueGdi.h"

#include <cmath>

namespace sifter {

namespace {

constexpr double kTwipsPerInch = 1440;

using DpiForWindow = UINT(WINAPI*)(HWND);

// Newer than the oldest system that we run on, so it can't be linked by name.
DpiForWindow FindDpiForWindow() {
  const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
  return reinterpret_cast<DpiForWindow>(reinterpret_cast<void*>(found));
}

int ScreenDpi() { return GetDeviceCaps(WindowDc(nullptr).Get(), LOGPIXELSX); }

}  // namespace

int DpiOf(HWND window) {
  static const DpiForWindow dpiForWindow = FindDpiForWindow();
  const UINT dpi = window != nullptr && dpiForWindow != nullptr ? dpiForWindow(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : ScreenDpi();
}

int TwipsToPixels(double twips, int dpi) {
  return static_cast<int>(std::lround(twips * dpi / kTwipsPerInch));
}

double PixelsToTwips(int pixels, int dpi) { return pixels * kTwipsPerInch / dpi; }

}  // namespace sifter
