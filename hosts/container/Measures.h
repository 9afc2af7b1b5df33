#pragma once

#include <windows.h>

namespace hosts {

// The unit of embedded objects is 1/100 mm.
constexpr int kHimetricPerInch = 2540;

// Dots per inch of the screen that a window stands on.
int DpiOf(HWND window);

// Pixels of a window for what takes so many at 96 dots per inch.
int Scaled(int pixels, HWND window);

SIZEL ToHimetric(SIZE pixels, HWND window);

}  // namespace hosts
