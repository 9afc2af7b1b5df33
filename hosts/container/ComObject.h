#pragma once

#include "container/ComRef.h"

#include <windows.h>

namespace hosts {

// An object made of parts, each of which implements one interface and tells by `Answers` under
// which identities it is asked for. The parts are all built from the same arguments.
template <class... Parts>
class ComObject final : public Parts... {
 public:
  template <class... Arguments>
  static ComRef<ComObject> Make(const Arguments&... arguments) {
    return ComRef<ComObject>::Adopt(new ComObject(arguments...));
  }

  // The first interface, which is the object's identity.
  IUnknown* Identity() noexcept { return First<Parts...>(); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (IsEqualIID(id, IID_IUnknown))
      *object = Identity();
    else
      (Offer<Parts>(id, object), ...);
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    return static_cast<ULONG>(InterlockedIncrement(&references_));
  }
  ULONG STDMETHODCALLTYPE Release() override {
    const auto left = static_cast<ULONG>(InterlockedDecrement(&references_));
    if (left == 0) delete this;
    return left;
  }

 private:
  template <class... Arguments>
  explicit ComObject(const Arguments&... arguments) : Parts(arguments...)... {}
  virtual ~ComObject() = default;

  template <class Part, class... Others>
  Part* First() noexcept {
    return this;
  }
  template <class Part>
  void Offer(REFIID id, void** object) noexcept {
    if (*object == nullptr && Part::Answers(id)) *object = static_cast<Part*>(this);
  }

  LONG references_ = 1;
};

}  // namespace hosts
