#pragma once

#include "controls/TSRowSifter.h"
#include "library/MembersPart.h"

#include <RowSifter.h>

namespace sifter {

// The members of the button that filters a list view, as hosts call them.
class TSRowSifterPart final : public MembersPart<_TSRowSifter> {
 public:
  TSRowSifterPart(TSRowSifter& sifter, IUnknown& whole) : MembersPart(whole), sifter_(sifter) {}

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
  TSRowSifter& sifter_;
};

}  // namespace sifter
