#include "container/ControlSite.h"

#include "container/Failure.h"
#include "container/Measures.h"

#include <cmath>

namespace hosts {

HRESULT ControlSite::GetExtendedControl(IDispatch** control) {
  if (control == nullptr) return E_POINTER;
  *control = nullptr;
  return E_NOTIMPL;
}

// The container's own unit is the pixel.
HRESULT ControlSite::TransformCoords(POINTL* himetric, POINTF* container, DWORD flags) {
  if (himetric == nullptr || container == nullptr) return E_POINTER;
  const double dpi = DpiOf(state_->window);
  if ((flags & XFORMCOORDS_HIMETRICTOCONTAINER) != 0) {
    container->x = static_cast<float>(himetric->x * dpi / kHimetricPerInch);
    container->y = static_cast<float>(himetric->y * dpi / kHimetricPerInch);
  } else if ((flags & XFORMCOORDS_CONTAINERTOHIMETRIC) != 0) {
    himetric->x = std::lround(container->x * kHimetricPerInch / dpi);
    himetric->y = std::lround(container->y * kHimetricPerInch / dpi);
  } else {
    return E_INVALIDARG;
  }
  return S_OK;
}

HRESULT ControlSite::TranslateAccelerator(MSG* key, DWORD) {
  if (key == nullptr) return E_POINTER;
  bool used = false;
  const HRESULT result = ComBody([&] { used = state_->onKey && state_->onKey(*key); });
  if (FAILED(result)) return result;
  return used ? S_OK : S_FALSE;
}

}  // namespace hosts
