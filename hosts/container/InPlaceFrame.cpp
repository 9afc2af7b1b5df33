#include "container/InPlaceFrame.h"

#include "container/Failure.h"

namespace hosts {

HRESULT InPlaceFrame::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = state_->window;
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceFrame::SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR) {
  state_->active = ComRef<IOleInPlaceActiveObject>(active);
  return S_OK;
}

HRESULT InPlaceFrame::EnableModeless(BOOL enable) {
  return ComBody([&] {
    if (state_->onModal) state_->onModal(enable != FALSE);
  });
}

}  // namespace hosts
