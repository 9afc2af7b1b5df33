#include "win32/NativeListViewDispatchEnum.h"

#include "win32/ComResult.h"

#include <oleauto.h>

namespace sifter {

HRESULT DispatchEnum::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = id == IID_IUnknown || id == IID_IEnumVARIANT ? this : nullptr;
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG DispatchEnum::AddRef() { return ++references_; }

ULONG DispatchEnum::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT DispatchEnum::Next(ULONG wanted, VARIANT* items, ULONG* fetched) {
  if (items == nullptr || (fetched == nullptr && wanted != 1)) return E_POINTER;
  ULONG got = 0;
  const HRESULT result = ComResult([&] {
    for (; got < wanted && next_ <= source_.count(); ++got, ++next_) {
      ComRef<IDispatch> item = source_.item(next_);
      VariantInit(&items[got]);
      items[got].vt = VT_DISPATCH;
      items[got].pdispVal = item.Release();
    }
  });
  if (fetched != nullptr) *fetched = got;
  if (FAILED(result)) return result;
  return got == wanted ? S_OK : S_FALSE;
}

HRESULT DispatchEnum::Skip(ULONG count) {
  const std::int32_t left = source_.count() - next_ + 1;
  const bool enough = left > 0 && count <= static_cast<ULONG>(left);
  next_ = enough ? next_ + static_cast<std::int32_t>(count) : source_.count() + 1;
  return enough || count == 0 ? S_OK : S_FALSE;
}

HRESULT DispatchEnum::Reset() {
  next_ = 1;
  return S_OK;
}

HRESULT DispatchEnum::Clone(IEnumVARIANT** copy) {
  if (copy == nullptr) return E_POINTER;
  *copy = nullptr;
  return ComResult([&] { *copy = new DispatchEnum(source_, next_); });
}

}  // namespace sifter
