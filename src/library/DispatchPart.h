#pragma once

#include "library/ComPart.h"
#include "library/ParameterCounts.h"
#include "library/TypeLibrary.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// A dual interface: late-bound callers reach its methods by what the type library says about them.
template <class Interface>
class DispatchPart : public ComPart<Interface> {
 public:
  explicit DispatchPart(IUnknown& whole)
      : ComPart<Interface>(whole),
        information_(OwnTypeInfo(__uuidof(Interface))),
        parameters_(*information_.Get()) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** information) override {
    if (information == nullptr) return E_POINTER;
    *information = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    *information = ComRef<ITypeInfo>(information_).Release();
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr) return E_POINTER;
    if (count == 0) return E_INVALIDARG;
    return information_->GetIDsOfNames(names, count, ids);
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* error,
                                   UINT* badArgument) override {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (arguments == nullptr) return E_POINTER;
    if (parameters_.Refuses(id, flags, arguments->cArgs)) return DISP_E_BADPARAMCOUNT;
    const ComRef<IUnknown> alive(this);
    SetErrorInfo(0, nullptr);  // what an earlier call has left isn't this one's
    return information_->Invoke(static_cast<Interface*>(this), id, flags, arguments, result, error,
                                badArgument);
  }

 protected:
  ITypeInfo* Information() const noexcept { return information_.Get(); }

 private:
  ComRef<ITypeInfo> information_;
  ParameterCounts parameters_;
};

}  // namespace sifter
