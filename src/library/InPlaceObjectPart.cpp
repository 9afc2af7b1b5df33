#include "library/InPlaceObjectPart.h"

#include "library/ControlFrame.h"

namespace sifter {

HRESULT InPlaceObjectPart::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = Frame().InPlace().Window();
  return *window != nullptr ? S_OK : E_FAIL;
}

// There is no help to point at.
HRESULT InPlaceObjectPart::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

HRESULT InPlaceObjectPart::InPlaceDeactivate() {
  return Answer([&] {
    Frame().InPlace().Deactivate();
    return S_OK;
  });
}

HRESULT InPlaceObjectPart::UIDeactivate() {
  return Answer([&] {
    Frame().InPlace().UiDeactivate();
    return S_OK;
  });
}

HRESULT InPlaceObjectPart::SetObjectRects(LPCRECT box, LPCRECT visible) {
  if (box == nullptr) return E_POINTER;
  return Answer([&] {
    Frame().InPlace().SetRects(*box, visible != nullptr ? *visible : *box);
    return S_OK;
  });
}

}  // namespace sifter
