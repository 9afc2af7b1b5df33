#include "container/ClientSite.h"

namespace hosts {

HRESULT ClientSite::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT ClientSite::GetContainer(IOleContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = nullptr;
  return E_NOINTERFACE;
}

}  // namespace hosts
