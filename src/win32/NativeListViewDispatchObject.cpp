#include "win32/NativeListViewDispatchObject.h"

#include "win32/ComRef.h"
#include "win32/ComResult.h"
#include "win32/UniqueVariant.h"

#include <algorithm>

namespace sifter {

namespace {

char16_t LowerCase(char16_t unit) {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

bool IsNamed(TextView name, LPCOLESTR asked) {
  const TextView other(reinterpret_cast<const char16_t*>(asked));
  return std::equal(name.begin(), name.end(), other.begin(), other.end(),
                    [](char16_t a, char16_t b) { return LowerCase(a) == LowerCase(b); });
}

DISPID PlaceOfParameter(const DispatchMember& member, LPCOLESTR asked) {
  for (std::size_t i = 0; i < member.parameters.size(); ++i)
    if (IsNamed(member.parameters[i], asked)) return static_cast<DISPID>(i);
  return DISPID_UNKNOWN;
}

}  // namespace

HRESULT DispatchObject::QueryInterface(REFIID id, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = id == IID_IUnknown || id == IID_IDispatch ? static_cast<IDispatch*>(this)
                                                      : OtherInterface(id);
  if (*object == nullptr) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG DispatchObject::AddRef() { return ++references_; }

ULONG DispatchObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                      DISPID* ids) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || ids == nullptr || count == 0) return E_INVALIDARG;
  std::fill_n(ids, count, DISPID_UNKNOWN);
  const auto member =
      std::find_if(members_.begin(), members_.end(),
                   [&](const DispatchMember& one) { return IsNamed(one.name, names[0]); });
  if (member == members_.end()) return DISP_E_UNKNOWNNAME;
  ids[0] = member->id;
  for (UINT i = 1; i < count; ++i) ids[i] = PlaceOfParameter(*member, names[i]);
  const bool allKnown = std::find(ids + 1, ids + count, DISPID_UNKNOWN) == ids + count;
  return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
}

const DispatchMember* DispatchObject::Find(DISPID id) const {
  const auto member = std::find_if(members_.begin(), members_.end(),
                                   [id](const DispatchMember& one) { return one.id == id; });
  return member == members_.end() ? nullptr : &*member;
}

HRESULT DispatchObject::Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* arguments,
                               VARIANT* result, EXCEPINFO* error, UINT*) {
  if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_INVALIDARG;
  if (result != nullptr) VariantInit(result);
  const DispatchMember* member = Find(id);
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  // The host may let go of the object while it is being called.
  const ComRef<IDispatch> alive(this);
  const bool isWrite = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  return isWrite ? Write(*member, *arguments, error) : Read(*member, *arguments, result, error);
}

HRESULT DispatchObject::Read(const DispatchMember& member, DISPPARAMS& arguments, VARIANT* result,
                             EXCEPINFO* error) {
  if (member.read == nullptr) return DISP_E_MEMBERNOTFOUND;
  if (member.isCollection && arguments.cArgs > 0)
    return ReadFromCollection(member, arguments, result, error);
  const DispatchCall call(arguments, member.parameters.size(), false);
  if (FAILED(call.Result())) return call.Result();
  for (std::size_t i = 0; i < member.required; ++i)
    if (!call.Has(i)) return DISP_E_PARAMNOTOPTIONAL;
  UniqueVariant unwanted;
  return ComResult(
      error, [&] { member.read(*part_, call, result != nullptr ? result : unwanted.Receive()); });
}

HRESULT DispatchObject::ReadFromCollection(const DispatchMember& member, DISPPARAMS& arguments,
                                           VARIANT* result, EXCEPINFO* error) {
  DISPPARAMS none{};
  UniqueVariant collection;
  const HRESULT read = Read(member, none, collection.Receive(), error);
  if (FAILED(read)) return read;
  return collection.Get().pdispVal->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT,
                                           DISPATCH_PROPERTYGET, &arguments, result, error,
                                           nullptr);
}

HRESULT DispatchObject::Write(const DispatchMember& member, DISPPARAMS& arguments,
                              EXCEPINFO* error) {
  if (member.write == nullptr) return DISP_E_MEMBERNOTFOUND;
  const DispatchCall call(arguments, member.parameters.size(), true);
  if (FAILED(call.Result())) return call.Result();
  for (std::size_t i = 0; i < member.required; ++i)
    if (!call.Has(i)) return DISP_E_PARAMNOTOPTIONAL;
  return ComResult(error, [&] { member.write(*part_, call); });
}

}  // namespace sifter
