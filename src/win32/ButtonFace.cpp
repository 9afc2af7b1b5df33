#include "win32/ButtonFace.h"

#include "win32/Metafile.h"
#include "win32/Pictures.h"
#include "win32/UniqueGdi.h"
#include "win32/UniqueTheme.h"

#include <vssym32.h>

namespace sifter {

namespace {

constexpr BYTE kHalf = 128;

// Draws the button without its picture and gives the room inside its edges.
RECT DrawFace(HDC dc, const RECT& box, const ButtonLook& look, HWND window) {
  RECT inside = box;
  const UniqueTheme theme(window != nullptr ? OpenThemeData(window, L"BUTTON") : nullptr);
  if (theme) {
    const int state = !look.enabled  ? PBS_DISABLED
                      : look.pressed ? PBS_PRESSED
                      : look.focused ? PBS_DEFAULTED
                                     : PBS_NORMAL;
    DrawThemeBackground(theme.Get(), dc, BP_PUSHBUTTON, state, &box, nullptr);
    GetThemeBackgroundContentRect(theme.Get(), dc, BP_PUSHBUTTON, state, &box, &inside);
    return inside;
  }
  const UINT state = (look.pressed ? DFCS_PUSHED : 0u) | (look.enabled ? 0u : UINT{DFCS_INACTIVE});
  DrawFrameControl(dc, &inside, DFC_BUTTON, DFCS_BUTTONPUSH | state);
  InflateRect(&inside, -2, -2);
  if (look.pressed) OffsetRect(&inside, 1, 1);
  return inside;
}

// A button that can't be pressed shows its picture half faded.
void DrawFaded(HDC dc, const RECT& box, const Picture& picture, int dpi) {
  const int width = box.right - box.left;
  const int height = box.bottom - box.top;
  const UniqueMemoryDc memory(CreateCompatibleDC(dc));
  const UniqueBitmap bitmap(CreateCompatibleBitmap(dc, width, height));
  if (!memory || !bitmap) return;
  const SelectedObject selected(memory.Get(), bitmap.Get());
  BitBlt(memory.Get(), 0, 0, width, height, dc, box.left, box.top, SRCCOPY);
  DrawPicture(memory.Get(), {0, 0, width, height}, picture, dpi);
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, kHalf, 0};
  GdiAlphaBlend(dc, box.left, box.top, width, height, memory.Get(), 0, 0, width, height, blend);
}

void DrawOn(HDC dc, const RECT& box, const Picture& picture, const ButtonLook& look, int dpi) {
  if (look.enabled)
    DrawPicture(dc, box, picture, dpi);
  else
    DrawFaded(dc, box, picture, dpi);
}

void DrawFocus(HDC dc, RECT inside) {
  InflateRect(&inside, -1, -1);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
  DrawFocusRect(dc, &inside);
}

}  // namespace

void DrawPictureButton(HDC dc, const RECT& box, const Picture* picture, const ButtonLook& look,
                       HWND window, int dpi) {
  const RECT inside = DrawFace(dc, box, look, window);
  if (inside.right <= inside.left || inside.bottom <= inside.top) return;
  if (picture != nullptr && IsMetafile(dc))
    DrawOpaque(dc, inside, GetSysColor(COLOR_BTNFACE),
               [&](HDC bitmap, const RECT& all) { DrawOn(bitmap, all, *picture, look, dpi); });
  else if (picture != nullptr)
    DrawOn(dc, inside, *picture, look, dpi);
  if (look.focused) DrawFocus(dc, inside);
}

}  // namespace sifter
