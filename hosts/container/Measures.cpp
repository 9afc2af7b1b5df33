#include "container/Measures.h"

namespace hosts {

// Programs that say they know about the screen's resolution have one for all windows.
int DpiOf(HWND window) {
  const HDC screen = GetDC(window);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(window, screen);
  return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

int Scaled(int pixels, HWND window) {
  return MulDiv(pixels, DpiOf(window), USER_DEFAULT_SCREEN_DPI);
}

SIZEL ToHimetric(SIZE pixels, HWND window) {
  const int dpi = DpiOf(window);
  return {MulDiv(pixels.cx, kHimetricPerInch, dpi), MulDiv(pixels.cy, kHimetricPerInch, dpi)};
}

}  // namespace hosts
