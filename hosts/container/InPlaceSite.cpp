#include "container/InPlaceSite.h"

namespace hosts {

HRESULT InPlaceSite::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = state_->window;
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceSite::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document,
                                      RECT* place, RECT* clip, OLEINPLACEFRAMEINFO* info) {
  if (frame == nullptr || document == nullptr || place == nullptr || clip == nullptr ||
      info == nullptr)
    return E_POINTER;
  *frame = ComRef<IOleInPlaceFrame>(state_->frame).Release();
  *document = nullptr;
  *place = state_->place;
  *clip = state_->place;
  info->fMDIApp = FALSE;
  info->hwndFrame = GetAncestor(state_->window, GA_ROOT);
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return S_OK;
}

HRESULT InPlaceSite::OnPosRectChange(const RECT*) {
  if (!state_->control) return E_UNEXPECTED;
  return state_->control->SetObjectRects(&state_->place, &state_->place);
}

}  // namespace hosts
