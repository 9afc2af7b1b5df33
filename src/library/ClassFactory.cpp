#include "library/ClassFactory.h"

#include "win32/ComRef.h"
#include "win32/ComResult.h"

namespace sifter {

HRESULT ClassFactory::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
  *object = static_cast<IClassFactory*>(this);
  AddRef();
  return S_OK;
}

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  // Whoever makes a control part of an object needs the control's own IUnknown to hold it by.
  if (outer != nullptr && id != IID_IUnknown) return CLASS_E_NOAGGREGATION;
  HRESULT found = E_NOINTERFACE;
  const HRESULT made = ComResult([&] {
    const ComRef<IUnknown> control = made_.create(made_, outer);
    found = control->QueryInterface(id, object);
  });
  return FAILED(made) ? made : found;
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  if (lock)
    LockModule();
  else
    UnlockModule();
  return S_OK;
}

}  // namespace sifter
