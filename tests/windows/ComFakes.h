#pragma once

#include <oaidl.h>
#include <objidl.h>
#include <windows.h>

namespace sifter {

// A COM object with two interfaces at two addresses, whose references a test can count. It lives on
// the test's stack: the count goes down to 0 without ending it.
class ComObjectFake final : public IDispatch, public IPersist {
 public:
  // One that can't be called late-bound has IPersist alone.
  explicit ComObjectFake(bool isDispatch = true) : isDispatch_(isDispatch) {}

  int References() const { return references_; }
  IUnknown* Identity() { return static_cast<IPersist*>(this); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    *object = nullptr;
    if (id == IID_IUnknown || id == IID_IPersist) *object = static_cast<IPersist*>(this);
    if (id == IID_IDispatch && isDispatch_) *object = static_cast<IDispatch*>(this);
    if (*object == nullptr) return E_NOINTERFACE;
    ++references_;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
  ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--references_); }

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }

 private:
  bool isDispatch_;
  int references_ = 0;
};

}  // namespace sifter
