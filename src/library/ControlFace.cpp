#include "library/ControlFace.h"

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/PictureButton.h"
#include "win32/ButtonFace.h"
#include "win32/FormMeasures.h"
#include "win32/Metafile.h"
#include "win32/UniqueGdi.h"
#include "win32/UserControlWindow.h"
#include "win32/WideText.h"

#include <algorithm>
#include <cmath>
#include <vector>

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
LOGFONTW FontFor(double scale) {
  LOGFONTW font{};
  GetObjectW(FormMeasures(nullptr).Font(), sizeof font, &font);
  font.lfHeight = std::lround(font.lfHeight * scale);
  return font;
}

UniqueFont FontOf(const Label& label, double scale) {
  LOGFONTW font = FontFor(scale);
  if (!label.FontName().IsEmpty()) {
    constexpr double kPointsPerInch = 72;
    font.lfHeight = -std::lround(label.FontSize() * DpiOf(nullptr) / kPointsPerInch * scale);
    font.lfWidth = 0;
    const std::wstring name = Wide(label.FontName().View());
    font.lfFaceName[name.copy(font.lfFaceName, LF_FACESIZE - 1)] = L'\0';
  }
  return UniqueFont(CreateFontIndirectW(&font));
}

// Where a control is drawn, and how much larger or smaller than on the screen.
struct Surface {
  HDC context;
  RECT area;
  double across;  // units for a twip
  double down;
  double scale;
  HFONT font;    // the user's
  bool enabled;  // a control that nobody can use looks so in all its parts

  COLORREF InkOf(const Control& control) const {
    return GetSysColor(enabled && control.Enabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
  }
  RECT PlaceOf(const Control& control) const {
    return {area.left + std::lround(control.Left() * across),
            area.top + std::lround(control.Top() * down),
            area.left + std::lround((control.Left() + control.Width()) * across),
            area.top + std::lround((control.Top() + control.Height()) * down)};
  }
};

void DrawButton(const CommandButton& button, const Surface& surface, RECT box) {
  FillRect(surface.context, &box, GetSysColorBrush(COLOR_BTNFACE));
  DrawEdge(surface.context, &box, EDGE_RAISED, BF_RECT);
  SetTextColor(surface.context, surface.InkOf(button));
  DrawLine(surface.context, surface.font, Wide(button.Caption()), box, DT_CENTER);
}

void DrawLabel(const Label& label, const Surface& surface, RECT box) {
  if (label.BorderStyle() == BorderStyle::kSingle)
    DrawEdge(surface.context, &box, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
  const UniqueFont font = FontOf(label, surface.scale);
  SetTextColor(surface.context, surface.InkOf(label));
  DrawLine(surface.context, font.Get(), Wide(label.Caption()), box, DT_LEFT | DT_NOPREFIX);
}

void DrawButton(const PictureButton& button, const Surface& surface, const RECT& box) {
  const int dpi = static_cast<int>(std::lround(DpiOf(nullptr) * surface.scale));
  DrawPictureButton(surface.context, box, button.Picture().Get(),
                    {.enabled = surface.enabled && button.Enabled()}, nullptr, dpi);
}

void Draw(const Control& control, const Surface& surface) {
  if (!control.Visible()) return;
  const RECT place = surface.PlaceOf(control);
  switch (control.Kind()) {
    case ControlKind::kCommandButton:
      return DrawButton(static_cast<const CommandButton&>(control), surface, place);
    case ControlKind::kPictureButton:
      return DrawButton(static_cast<const PictureButton&>(control), surface, place);
    case ControlKind::kLabel:
      return DrawLabel(static_cast<const Label&>(control), surface, place);
    default:
      return;
  }
}

}  // namespace

// Controls that come first lie upon those behind them, as windows do.
void DrawControl(const UserControl& control, HDC context, const RECT& box) {
  const SavedContext saved(context);
  const RECT area = ToPixels(context, box);
  const UniqueBrush background(CreateSolidBrush(ColorOf(control.BackColor())));
  FillRect(context, &area, background.Get());
  if (control.Width() <= 0 || control.Height() <= 0) return;

  const double across = (area.right - area.left) / control.Width();
  const double down = (area.bottom - area.top) / control.Height();
  const double scale = down * PixelsToTwips(1, DpiOf(nullptr));
  const LOGFONTW userFont = FontFor(scale);
  const UniqueFont font(CreateFontIndirectW(&userFont));
  const Surface surface{context, area, across, down, scale, font.Get(), control.Enabled()};
  const std::vector<Control*>& controls = control.Controls();
  std::for_each(controls.rbegin(), controls.rend(),
                [&](const Control* each) { Draw(*each, surface); });
}

}  // namespace sifter
