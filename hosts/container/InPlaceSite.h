#pragma once

#include "container/SiteState.h"

#include <memory>

namespace hosts {

// The place in the container's window where a control shows its own. The control gets that place
// and no other.
class InPlaceSite : public IOleInPlaceSite {
 public:
  static bool Answers(REFIID id) {
    return IsEqualIID(id, IID_IOleInPlaceSite) || IsEqualIID(id, IID_IOleWindow);
  }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL) override { return S_OK; }

  HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnUIActivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                             IOleInPlaceUIWindow** document, RECT* place,
                                             RECT* clip, OLEINPLACEFRAMEINFO* info) override;
  HRESULT STDMETHODCALLTYPE Scroll(SIZE) override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnPosRectChange(const RECT* wanted) override;

 protected:
  explicit InPlaceSite(const std::shared_ptr<SiteState>& state) : state_(state) {}
  ~InPlaceSite() = default;

 private:
  std::shared_ptr<SiteState> state_;
};

}  // namespace hosts
