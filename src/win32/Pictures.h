#pragma once

#include "forms/Picture.h"
#include "win32/UniqueIcon.h"

#include <windows.h>

namespace sifter {

// One of the library's own pictures, `pixels` wide and high, out of the module that this code is
// part of. Null when it has none under the key.
UniqueIcon OwnPicture(const Text& key, int pixels);

// Draws a picture into the middle of `box`, as large as it is meant to be at `dpi` dots to the
// inch, or smaller where there isn't room. `dc` is left as it was; it shows what is drawn, as a
// metafile's doesn't.
void DrawPicture(HDC dc, const RECT& box, const Picture& picture, int dpi);

}  // namespace sifter
