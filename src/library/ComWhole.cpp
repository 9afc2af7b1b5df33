#include "library/ComWhole.h"

namespace sifter {

HRESULT ComWhole::OwnUnknown::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (id == IID_IUnknown) {
    *object = this;
    AddRef();
    return S_OK;
  }
  for (const Offered& offered : whole_.offered_)
    if (*offered.id == id) {
      *object = offered.part;
      offered.part->AddRef();
      return S_OK;
    }
  return E_NOINTERFACE;
}

ULONG ComWhole::OwnUnknown::Release() {
  if (references_ > 1) return --references_;
  // Letting go of the host's objects may make it take and drop references of its own once more.
  constexpr ULONG kEnding = 0x40000000;
  references_ = kEnding;
  delete &whole_;
  return 0;
}

}  // namespace sifter
