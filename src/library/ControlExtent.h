#pragma once

#include "win32/Dpi.h"

#include <windows.h>

namespace sifter {

// Sizes as containers negotiate them: hundredths of a millimetre.

constexpr double kHimetricPerTwip = 2540.0 / 1440.0;

// The size in which a control comes to a form that doesn't care: 80 by 24 pixels at 96 to the inch.
inline constexpr SIZEL kFirstExtent = {2117, 635};

inline double HimetricToTwips(LONG himetric) { return himetric / kHimetricPerTwip; }

inline LONG TwipsToHimetric(double twips) {
  return static_cast<LONG>(twips * kHimetricPerTwip + 0.5);
}

inline LONG PixelsToHimetric(int pixels, int dpi) {
  return TwipsToHimetric(PixelsToTwips(pixels, dpi));
}

}  // namespace sifter
