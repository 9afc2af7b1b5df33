#pragma once

#include "win32/Dpi.h"
#include "win32/UniqueGdi.h"

#include <windows.h>

namespace sifter {

// How a form is measured where a window is on the screen, and the font of the user's messages
// there.
class FormMeasures {
 public:
  explicit FormMeasures(HWND window);

  int Pixels(double twips) const { return TwipsToPixels(twips, dpi_); }
  int Dpi() const { return dpi_; }
  HFONT Font() const { return font_.Get(); }

 private:
  int dpi_;
  UniqueFont font_;
};

}  // namespace sifter
