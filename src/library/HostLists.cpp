#include "library/HostLists.h"

#include "base/RuntimeError.h"
#include "win32/ComRef.h"
#include "win32/LateBoundList.h"

namespace sifter {

namespace {

IDispatch* DispatchBehind(const Ref<HostListView>& list) {
  const auto* const host = dynamic_cast<const LateBoundList*>(list.Get());
  return host == nullptr ? nullptr : host->Dispatch();
}

// Arguments may come by reference, and that may be a reference to a variant; but that one must not
// lead to yet another, which might lead in a circle.
IUnknown* ObjectIn(const VARIANT& argument) {
  switch (argument.vt) {
    case VT_DISPATCH:
      return argument.pdispVal;
    case VT_UNKNOWN:
      return argument.punkVal;
    case VT_DISPATCH | VT_BYREF:
      if (argument.ppdispVal != nullptr) return *argument.ppdispVal;
      break;
    case VT_UNKNOWN | VT_BYREF:
      if (argument.ppunkVal != nullptr) return *argument.ppunkVal;
      break;
    case VT_VARIANT | VT_BYREF:
      if (argument.pvarVal != nullptr && argument.pvarVal->vt != argument.vt)
        return ObjectIn(*argument.pvarVal);
      break;
    default:
      break;
  }
  throw RuntimeError(ErrorNumber::kObjectRequired);
}

}  // namespace

Ref<HostListView> ListFromVariant(const VARIANT& argument,
                                  std::initializer_list<Ref<HostListView>> known) {
  IUnknown* const object = ObjectIn(argument);
  if (object == nullptr) return nullptr;
  for (const Ref<HostListView>& list : known)
    if (list && IsSameComObject(object, DispatchBehind(list))) return list;
  auto dispatch = ComRef<IUnknown>(object).As<IDispatch>(IID_IDispatch);
  // It has none of the members that make an object a list.
  if (!dispatch) throw RuntimeError(ErrorNumber::kObjectRequired);
  return MakeRef<LateBoundList>(std::move(dispatch));
}

VARIANT VariantFromList(const Ref<HostListView>& list) {
  VARIANT variant{};
  variant.vt = VT_DISPATCH;
  variant.pdispVal = ComRef<IDispatch>(DispatchBehind(list)).Release();
  return variant;
}

}  // namespace sifter
