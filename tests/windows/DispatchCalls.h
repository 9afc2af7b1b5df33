#pragma once

#include "base/Value.h"
#include "win32/ComRef.h"
#include "win32/Errors.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"
#include "win32/Variants.h"
#include "win32/WideText.h"

#include <initializer_list>
#include <oaidl.h>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

// Late-bound calls as a script makes them, for tests to read well. A failed call throws the error
// that it means.

namespace sifter {

inline DISPID IdOf(IDispatch* object, const std::wstring& name) {
  std::wstring copy = name;
  LPOLESTR names[] = {copy.data()};
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  if (FAILED(result)) throw ErrorFromResult(result);
  return id;
}

// Values that are empty are left out of the call.
inline HRESULT TryInvoke(IDispatch* object, DISPID id, WORD flags,
                         std::initializer_list<Value> arguments, UniqueVariant& result,
                         UniqueExcepInfo& error) {
  std::vector<UniqueVariant> owned;
  std::vector<VARIANT> variants;
  for (auto value = std::rbegin(arguments); value != std::rend(arguments); ++value)
    owned.push_back(value->IsEmpty() ? UniqueVariant::Omitted() : VariantFromValue(*value));
  for (const UniqueVariant& variant : owned) variants.push_back(variant.Get());
  const bool write = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{variants.data(), write ? &newValue : nullptr,
                        static_cast<UINT>(variants.size()), write ? 1u : 0u};
  return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                        write ? nullptr : result.Receive(), error.Address(), nullptr);
}

inline UniqueVariant Invoke(IDispatch* object, DISPID id, WORD flags,
                            std::initializer_list<Value> arguments) {
  UniqueVariant result;
  UniqueExcepInfo error;
  const HRESULT called = TryInvoke(object, id, flags, arguments, result, error);
  if (FAILED(called)) throw ErrorFromResult(called, &error.Fill());
  return result;
}

inline UniqueVariant Call(const ComRef<IDispatch>& object, const std::wstring& name,
                          std::initializer_list<Value> arguments = {}) {
  return Invoke(object.Get(), IdOf(object.Get(), name), DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                arguments);
}

inline Value Get(const ComRef<IDispatch>& object, const std::wstring& name,
                 std::initializer_list<Value> arguments = {}) {
  return ValueFromVariant(Call(object, name, arguments).Get());
}

inline ComRef<IDispatch> GetObject(const ComRef<IDispatch>& object, const std::wstring& name,
                                   std::initializer_list<Value> arguments = {}) {
  UniqueVariant result = Call(object, name, arguments);
  if (result.Type() != VT_DISPATCH) throw RuntimeError(ErrorNumber::kObjectRequired);
  return ComRef<IDispatch>::Adopt(result.Release().pdispVal);
}

// The new value stands first, behind it the index where the property has one.
inline void Put(const ComRef<IDispatch>& object, const std::wstring& name, const Value& value,
                std::initializer_list<Value> index = {}) {
  std::vector<UniqueVariant> owned;
  owned.push_back(VariantFromValue(value));
  for (const Value& one : index) owned.push_back(VariantFromValue(one));
  std::vector<VARIANT> variants;
  for (const UniqueVariant& variant : owned) variants.push_back(variant.Get());
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{variants.data(), &newValue, static_cast<UINT>(variants.size()), 1};
  UniqueExcepInfo error;
  const HRESULT called =
      object->Invoke(IdOf(object.Get(), name), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT,
                     &parameters, nullptr, error.Address(), nullptr);
  if (FAILED(called)) throw ErrorFromResult(called, &error.Fill());
}

// How many references there are, by taking and giving back one.
inline ULONG ReferencesOf(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

}  // namespace sifter
