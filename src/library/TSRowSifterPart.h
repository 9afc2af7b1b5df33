#pragma once

#include "base/Text.h"
#include "controls/TSRowSifter.h"
#include "library/DispatchPart.h"

#include <RowSifter.h>

namespace sifter {

// The members of the button that filters a list view, as hosts call them.
class TSRowSifterPart final : public DispatchPart<_TSRowSifter> {
 public:
  TSRowSifterPart(TSRowSifter& sifter, IUnknown& whole) : DispatchPart(whole), sifter_(sifter) {}

  // The dispatch identifier of a member; DISPID_UNKNOWN for a name that is none.
  DISPID IdOf(TextView name) const;

  HRESULT STDMETHODCALLTYPE putref_Listview(VARIANT lv) override;
  HRESULT STDMETHODCALLTYPE put_Listview(VARIANT lv) override;
  HRESULT STDMETHODCALLTYPE get_Listview(VARIANT* lv) override;
  HRESULT STDMETHODCALLTYPE ShowFilter() override;
  HRESULT STDMETHODCALLTYPE ApplyFilter(BSTR Filter) override;
  HRESULT STDMETHODCALLTYPE ResetFilter() override;
  HRESULT STDMETHODCALLTYPE TurnOffFilter() override;
  HRESULT STDMETHODCALLTYPE put_Active(VARIANT_BOOL Value) override;
  HRESULT STDMETHODCALLTYPE get_Active(VARIANT_BOOL* Value) override;
  HRESULT STDMETHODCALLTYPE get_Filter(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE get_FilterMessage(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_FilterMessage(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_ColumnsToExclude(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_ColumnsToExclude(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_FilterCaption(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_FilterCaption(BSTR Value) override;

 private:
  // The body of a method without a result of its own.
  template <class Work>
  HRESULT Do(Work&& work) noexcept {
    return Answer([&] {
      work();
      return S_OK;
    });
  }
  HRESULT Give(const Text& text, BSTR* out) noexcept;

  TSRowSifter& sifter_;
};

}  // namespace sifter
