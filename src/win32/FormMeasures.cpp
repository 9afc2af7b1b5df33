#include "win32/FormMeasures.h"

namespace sifter {

namespace {

// The system tells it as it is for the screen; a window may be on a monitor with another
// resolution.
HFONT MessageFont(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, DpiOf(nullptr));
  return CreateFontIndirectW(&metrics.lfMessageFont);
}

}  // namespace

FormMeasures::FormMeasures(HWND window) : dpi_(DpiOf(window)), font_(MessageFont(dpi_)) {}

}  // namespace sifter
