#pragma once

#include "container/SiteState.h"

#include <memory>
#include <oaidl.h>

namespace hosts {

// The container's ambient properties: what a control may ask to look and behave like the rest of
// the window.
class Ambients : public IDispatch {
 public:
  static bool Answers(REFIID id) { return IsEqualIID(id, IID_IDispatch); }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                          DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO*, UINT*) override;

 protected:
  explicit Ambients(const std::shared_ptr<SiteState>&) {}
  ~Ambients() = default;
};

}  // namespace hosts
