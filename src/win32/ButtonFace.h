#pragma once

#include "forms/Picture.h"

#include <windows.h>

namespace sifter {

struct ButtonLook {
  bool pressed = false;
  bool enabled = true;
  bool focused = false;  // with the frame that tells so
};

// Draws a push button with a picture on it, or with none (null), as the system draws buttons.
// `window` tells the visual style; without one (null) it is the plain look. `dpi` is the picture's.
// Around the corners of a button that is round `dc` stays as it is.
void DrawPictureButton(HDC dc, const RECT& box, const Picture* picture, const ButtonLook& look,
                       HWND window, int dpi);

}  // namespace sifter
