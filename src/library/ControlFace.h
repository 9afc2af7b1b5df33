#pragma once

#include "forms/UserControl.h"

#include <windows.h>

namespace sifter {

// Draws a control as its window would look, where there is no window: on a design surface, on
// paper, into a metafile. `box` is in the units of `context`, which is left as it was.
void DrawControl(const UserControl& control, HDC context, const RECT& box);

}  // namespace sifter
