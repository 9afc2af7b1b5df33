#include "library/ControlFace.h"

#include "forms/CommandButton.h"
#include "win32/FormMeasures.h"
#include "win32/UniqueGdi.h"
#include "win32/UserControlWindow.h"
#include "win32/WideText.h"

#include <algorithm>
#include <cmath>

namespace sifter {

namespace {

class SavedContext {
 public:
  explicit SavedContext(HDC context) noexcept : context_(context), saved_(SaveDC(context)) {}
  SavedContext(const SavedContext&) = delete;
  SavedContext& operator=(const SavedContext&) = delete;
  ~SavedContext() { RestoreDC(context_, saved_); }

 private:
  HDC context_;
  int saved_;
};

// In a metafile the units are whatever they will be played at; elsewhere pixels draw the
// straightest edges, whichever way the host's units run.
RECT ToPixels(HDC context, const RECT& box) {
  RECT pixels = box;
  if (GetDeviceCaps(context, TECHNOLOGY) == DT_METAFILE || GetMapMode(context) == MM_TEXT)
    return pixels;
  LPtoDP(context, reinterpret_cast<POINT*>(&pixels), 2);
  SetMapMode(context, MM_TEXT);
  SetWindowOrgEx(context, 0, 0, nullptr);
  SetViewportOrgEx(context, 0, 0, nullptr);
  return {std::min(pixels.left, pixels.right), std::min(pixels.top, pixels.bottom),
          std::max(pixels.left, pixels.right), std::max(pixels.top, pixels.bottom)};
}

// The font of the user's messages, as much larger or smaller as the control is drawn.
UniqueFont FontFor(double scale) {
  LOGFONTW font{};
  GetObjectW(FormMeasures(nullptr).Font(), sizeof font, &font);
  font.lfHeight = std::lround(font.lfHeight * scale);
  return UniqueFont(CreateFontIndirectW(&font));
}

void DrawButton(const CommandButton& button, HDC context, RECT box) {
  FillRect(context, &box, GetSysColorBrush(COLOR_BTNFACE));
  DrawEdge(context, &box, EDGE_RAISED, BF_RECT);
  const std::wstring caption = Wide(button.Caption());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(button.Enabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
  DrawTextW(context, caption.c_str(), static_cast<int>(caption.size()), &box,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace

void DrawControl(const UserControl& control, HDC context, const RECT& box) {
  const SavedContext saved(context);
  const RECT area = ToPixels(context, box);
  const UniqueBrush background(CreateSolidBrush(ColorOf(control.BackColor())));
  FillRect(context, &area, background.Get());
  if (control.Width() <= 0 || control.Height() <= 0) return;

  const double across = (area.right - area.left) / control.Width();
  const double down = (area.bottom - area.top) / control.Height();
  const UniqueFont font = FontFor(down * PixelsToTwips(1, DpiOf(nullptr)));
  const SelectedObject selected(context, font.Get());
  for (const Control* const each : control.Controls()) {
    if (each->Kind() != ControlKind::kCommandButton || !each->Visible()) continue;
    RECT place{};
    place.left = area.left + std::lround(each->Left() * across);
    place.top = area.top + std::lround(each->Top() * down);
    place.right = area.left + std::lround((each->Left() + each->Width()) * across);
    place.bottom = area.top + std::lround((each->Top() + each->Height()) * down);
    DrawButton(static_cast<const CommandButton&>(*each), context, place);
  }
}

}  // namespace sifter
