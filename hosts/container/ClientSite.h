#pragma once

#include "container/SiteState.h"

#include <memory>

namespace hosts {

// What a container is for a control at the least. It keeps no document and has no other objects.
class ClientSite : public IOleClientSite {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, IID_IOleClientSite); }

  HRESULT STDMETHODCALLTYPE SaveObject() override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override;
  HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

 protected:
  explicit ClientSite(const std::shared_ptr<SiteState>&) {}
  ~ClientSite() = default;
};

}  // namespace hosts
