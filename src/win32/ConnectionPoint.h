#pragma once

#include "win32/ComRef.h"

#include <map>
#include <ocidl.h>
#include <vector>
#include <windows.h>

namespace sifter {

// Where a host connects its sinks for one outgoing interface. An object of its own, which lives as
// long as the one that it belongs to and keeps that one alive.
class ConnectionPoint final : public IConnectionPoint {
 public:
  // A sink is asked for this interface and, failing that, for IDispatch if `isDispatch`. The owner
  // outlives the point.
  ConnectionPoint(IUnknown& owner, IConnectionPointContainer& container, REFIID id,
                  bool isDispatch);

  // The sinks in the order of their coming, through the interface that they gave. They may come and
  // go while they are called, so this is a copy.
  std::vector<ComRef<IUnknown>> Sinks() const;

  const IID& Id() const noexcept { return id_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }

  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override;
  HRESULT STDMETHODCALLTYPE
  GetConnectionPointContainer(IConnectionPointContainer** container) override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

 private:
  IUnknown& owner_;
  IConnectionPointContainer& container_;
  const IID id_;
  const bool isDispatch_;
  DWORD lastCookie_ = 0;
  std::map<DWORD, ComRef<IUnknown>> sinks_;
};

}  // namespace sifter
