#include "win32/Pictures.h"

#include "win32/DrawnPicture.h"
#include "win32/ThisModule.h"
#include "win32/WideText.h"

#include <algorithm>

namespace sifter {

namespace {

constexpr int kSmallIcon = 16;  // at 96 dots to the inch

// In the middle of the box; with less room than that in its own proportions as large as fits.
RECT Fit(SIZE size, const RECT& box) {
  const LONG width = box.right - box.left;
  const LONG height = box.bottom - box.top;
  if (size.cx > width) size = {width, std::max<LONG>(1, MulDiv(size.cy, width, size.cx))};
  if (size.cy > height) size = {std::max<LONG>(1, MulDiv(size.cx, height, size.cy)), height};
  const LONG left = box.left + (width - size.cx) / 2;
  const LONG top = box.top + (height - size.cy) / 2;
  return {left, top, left + size.cx, top + size.cy};
}

void DrawOwn(HDC dc, const RECT& box, const Text& key, int dpi) {
  const int wanted = MulDiv(kSmallIcon, dpi, USER_DEFAULT_SCREEN_DPI);
  const RECT place = Fit({wanted, wanted}, box);
  const int pixels = static_cast<int>(place.right - place.left);
  if (const UniqueIcon icon = OwnPicture(key, pixels))
    DrawIconEx(dc, place.left, place.top, icon.Get(), pixels, pixels, 0, nullptr, DI_NORMAL);
}

}  // namespace

UniqueIcon OwnPicture(const Text& key, int pixels) {
  return UniqueIcon(static_cast<HICON>(LoadImageW(ThisModule(), Wide(key.View()).c_str(),
                                                  IMAGE_ICON, pixels, pixels, LR_DEFAULTCOLOR)));
}

void DrawPicture(HDC dc, const RECT& box, const Picture& picture, int dpi) {
  if (box.right <= box.left || box.bottom <= box.top) return;
  if (!picture.Key().IsEmpty()) return DrawOwn(dc, box, picture.Key(), dpi);
  const auto* const drawn = dynamic_cast<const DrawnPicture*>(&picture);
  const SIZE size = drawn != nullptr ? drawn->Size(dpi) : SIZE{};
  if (size.cx > 0 && size.cy > 0) drawn->Draw(dc, Fit(size, box));
}

}  // namespace sifter
