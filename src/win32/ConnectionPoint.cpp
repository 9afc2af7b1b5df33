#include "win32/ConnectionPoint.h"

#include "win32/ComEnum.h"

#include <olectl.h>

namespace sifter {

namespace {

struct ConnectionItems {
  struct Kept {
    ComRef<IUnknown> sink;
    DWORD cookie;
  };
  static void Give(const Kept& kept, CONNECTDATA& out) {
    out.pUnk = ComRef<IUnknown>(kept.sink).Release();
    out.dwCookie = kept.cookie;
  }
};

}  // namespace

ConnectionPoint::ConnectionPoint(IUnknown& owner, IConnectionPointContainer& container, REFIID id,
                                 bool isDispatch)
    : owner_(owner), container_(container), id_(id), isDispatch_(isDispatch) {}

std::vector<ComRef<IUnknown>> ConnectionPoint::Sinks() const {
  std::vector<ComRef<IUnknown>> sinks;
  for (const auto& [cookie, sink] : sinks_) sinks.push_back(sink);
  return sinks;
}

HRESULT ConnectionPoint::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id != IID_IUnknown && id != IID_IConnectionPoint) return E_NOINTERFACE;
  *object = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* id) {
  if (id == nullptr) return E_POINTER;
  *id = id_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = ComRef<IConnectionPointContainer>(&container_).Release();
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
  if (cookie != nullptr) *cookie = 0;
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  const ComRef<IUnknown> given(sink);
  ComRef<IUnknown> usable = given.As<IUnknown>(id_);
  if (!usable && isDispatch_) usable = given.As<IUnknown>(IID_IDispatch);
  if (!usable) return CONNECT_E_CANNOTCONNECT;
  return ComResult([&] {
    sinks_.emplace(lastCookie_ + 1, std::move(usable));
    *cookie = ++lastCookie_;
  });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
  const auto found = sinks_.find(cookie);
  if (found == sinks_.end()) return CONNECT_E_NOCONNECTION;
  const ComRef<IUnknown> leaving = std::move(found->second);  // dropped when it is off the list
  sinks_.erase(found);
  return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  *connections = nullptr;
  return ComResult([&] {
    std::vector<ConnectionItems::Kept> kept;
    for (const auto& [cookie, sink] : sinks_) kept.push_back({sink, cookie});
    *connections = ComEnum<IEnumConnections, CONNECTDATA, ConnectionItems>::Make(std::move(kept));
  });
}

}  // namespace sifter
