#pragma once

#include "container/SiteState.h"

#include <memory>
#include <ocidl.h>

namespace hosts {

// What a container offers to controls beyond other embedded objects: measures, and the keys that a
// control passes on.
class ControlSite : public IOleControlSite {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, IID_IOleControlSite); }

  // The keys of a control are asked for when one is pressed.
  HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** control) override;
  HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* himetric, POINTF* container,
                                            DWORD flags) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* key, DWORD modifiers) override;
  HRESULT STDMETHODCALLTYPE OnFocus(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override { return E_NOTIMPL; }

 protected:
  explicit ControlSite(const std::shared_ptr<SiteState>& state) : state_(state) {}
  ~ControlSite() = default;

 private:
  std::shared_ptr<SiteState> state_;
};

}  // namespace hosts
