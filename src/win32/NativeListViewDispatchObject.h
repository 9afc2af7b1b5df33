#pragma once

#include "base/Ref.h"
#include "win32/NativeListViewDispatchCall.h"

#include <oaidl.h>
#include <span>
#include <windows.h>

namespace sifter {

// A part of a list as an object that hosts call by name: the members of a table, found whatever the
// case of their letters. Errors come out as automation errors with number, text and source.
//
// It starts with one reference, the maker's.
class DispatchObject : public IDispatch {
 public:
  // `members` is kept and must outlive the object.
  DispatchObject(Ref<Object> part, std::span<const DispatchMember> members)
      : part_(std::move(part)), members_(members) {}
  DispatchObject(const DispatchObject&) = delete;
  DispatchObject& operator=(const DispatchObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* error,
                                   UINT* badArgument) override;

 protected:
  virtual ~DispatchObject() = default;

  // An interface beyond IDispatch, without a reference; null when there is none.
  virtual void* OtherInterface(REFIID) { return nullptr; }

 private:
  const DispatchMember* Find(DISPID id) const;
  HRESULT Read(const DispatchMember& member, DISPPARAMS& arguments, VARIANT* result,
               EXCEPINFO* error);
  HRESULT Write(const DispatchMember& member, DISPPARAMS& arguments, EXCEPINFO* error);
  HRESULT ReadFromCollection(const DispatchMember& member, DISPPARAMS& arguments, VARIANT* result,
                             EXCEPINFO* error);

  ULONG references_ = 1;
  Ref<Object> part_;
  std::span<const DispatchMember> members_;
};

}  // namespace sifter
