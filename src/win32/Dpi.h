#pragma once

#include <windows.h>

namespace sifter {

// Forms are measured in twips, 1440 to the inch; windows in pixels.

// The dots per inch that a window is drawn at; with null the screen's. On systems that know no
// resolution for a single window it is the screen's for all.
int DpiOf(HWND window);

// To the nearest pixel.
int TwipsToPixels(double twips, int dpi);

double PixelsToTwips(int pixels, int dpi);

}  // namespace sifter
