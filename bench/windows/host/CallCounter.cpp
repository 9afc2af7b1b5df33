#include "host/ListObject.h"

#include <oleauto.h>

namespace sifter::bench {

namespace {

class CallCounter final : public IDispatch {
 public:
  CallCounter(IDispatch* object, std::uint64_t& calls, std::uint64_t& nameQuestions)
      : object_(object), calls_(calls), nameQuestions_(nameQuestions) {
    object_->AddRef();
  }

  // It isn't asked for anything but its members: the rows are not to be transferred.
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = id == IID_IUnknown || id == IID_IDispatch ? this : nullptr;
    if (*object == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    return object_->GetTypeInfoCount(count);
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return object_->GetTypeInfo(index, locale, info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* ids) override {
    ++nameQuestions_;
    return object_->GetIDsOfNames(reserved, names, count, locale, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                   DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* error,
                                   UINT* badArgument) override {
    ++calls_;
    const HRESULT called =
        object_->Invoke(id, reserved, locale, flags, arguments, result, error, badArgument);
    if (SUCCEEDED(called) && result != nullptr && result->vt == VT_DISPATCH) {
      IDispatch* counted = CountCalls(result->pdispVal, calls_, nameQuestions_);
      result->pdispVal->Release();
      result->pdispVal = counted;
    }
    return called;
  }

 private:
  ~CallCounter() { object_->Release(); }

  ULONG references_ = 1;
  IDispatch* object_;
  std::uint64_t& calls_;
  std::uint64_t& nameQuestions_;
};

}  // namespace

IDispatch* CountCalls(IDispatch* object, std::uint64_t& calls, std::uint64_t& nameQuestions) {
  return new CallCounter(object, calls, nameQuestions);
}

}  // namespace sifter::bench
