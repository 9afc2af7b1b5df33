#pragma once

#include "forms/Picture.h"

#include <windows.h>

namespace sifter {

// A picture that draws itself: one that a host has brought along, so it has no key. Whoever knows
// the host's kind of picture derives from this.
class DrawnPicture : public Picture {
 public:
  // The size that it was made for, in pixels of a screen with `dpi` dots to the inch. An empty
  // picture is 0 by 0 and is never drawn.
  virtual SIZE Size(int dpi) const noexcept = 0;

  // Draws the whole picture, scaled to fill `box` (in logical units of `dc`, which are pixels on a
  // window), over what is there; see-through parts stay as they are. Leaves `dc` as it was. One
  // that can't be drawn leaves the place as it is.
  virtual void Draw(HDC dc, const RECT& box) const noexcept = 0;
};

}  // namespace sifter
