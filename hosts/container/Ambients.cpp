#include "container/Ambients.h"

#include "container/Failure.h"
#include "container/Variant.h"

#include <ole2.h>
#include <olectl.h>

namespace hosts {

namespace {

// A system colour, as properties of controls have it.
constexpr int SystemColor(int index) { return static_cast<int>(0x80000000U) | index; }

// The font of message boxes and menus, which the rest of the window has as well.
Variant Font() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  const LOGFONTW& look = metrics.lfMessageFont;
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);

  wchar_t face[LF_FACESIZE];
  lstrcpynW(face, look.lfFaceName, LF_FACESIZE);
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.lpstrName = face;
  description.cySize.int64 =
      MulDiv(look.lfHeight < 0 ? -look.lfHeight : look.lfHeight, 720000, dpi);
  description.sWeight = static_cast<SHORT>(look.lfWeight);
  description.sCharset = look.lfCharSet;
  ComRef<IDispatch> font;
  Check(OleCreateFontIndirect(&description, IID_IDispatch, font.ReceiveVoid()), L"Making a font");
  return Variant(font.Get());
}

struct Ambient {
  DISPID id;
  Variant (*value)();
};

constexpr Ambient kAmbients[] = {
    {DISPID_AMBIENT_BACKCOLOR, [] { return Variant(SystemColor(COLOR_BTNFACE)); }},
    {DISPID_AMBIENT_FORECOLOR, [] { return Variant(SystemColor(COLOR_BTNTEXT)); }},
    {DISPID_AMBIENT_FONT, Font},
    {DISPID_AMBIENT_LOCALEID, [] { return Variant(static_cast<int>(GetUserDefaultLCID())); }},
    {DISPID_AMBIENT_USERMODE, [] { return Variant(true); }},
    {DISPID_AMBIENT_UIDEAD, [] { return Variant(false); }},
    {DISPID_AMBIENT_SHOWGRABHANDLES, [] { return Variant(false); }},
    {DISPID_AMBIENT_SHOWHATCHING, [] { return Variant(false); }},
    {DISPID_AMBIENT_DISPLAYASDEFAULT, [] { return Variant(false); }},
    {DISPID_AMBIENT_SUPPORTSMNEMONICS, [] { return Variant(true); }},
    {DISPID_AMBIENT_MESSAGEREFLECT, [] { return Variant(false); }},
};

}  // namespace

HRESULT Ambients::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT Ambients::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  return DISP_E_BADINDEX;
}

// Controls ask by the numbers that are agreed upon.
HRESULT Ambients::GetIDsOfNames(REFIID, LPOLESTR*, UINT count, LCID, DISPID* ids) {
  if (ids == nullptr) return E_POINTER;
  for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
  return DISP_E_UNKNOWNNAME;
}

HRESULT Ambients::Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS*, VARIANT* result,
                         EXCEPINFO*, UINT*) {
  if ((kind & DISPATCH_PROPERTYGET) == 0) return DISP_E_MEMBERNOTFOUND;
  if (result == nullptr) return E_POINTER;
  for (const Ambient& ambient : kAmbients)
    if (ambient.id == id) return ComBody([&] { ambient.value().MoveTo(result); });
  return DISP_E_MEMBERNOTFOUND;
}

}  // namespace hosts
