#pragma once

#include "controls/TSLvwBannerFilter.h"
#include "library/MembersPart.h"
#include "library/PictureExchange.h"

#include <RowSifter.h>

namespace sifter {

// The members of the banner that filters a list view, as hosts call them.
class TSLvwBannerFilterPart final : public MembersPart<_TSLvwBannerFilter> {
 public:
  TSLvwBannerFilterPart(TSLvwBannerFilter& banner, IUnknown& whole)
      : MembersPart(whole), banner_(banner) {}

  HRESULT STDMETHODCALLTYPE get_Enabled(VARIANT_BOOL* Value) override;
  HRESULT STDMETHODCALLTYPE put_Enabled(VARIANT_BOOL Value) override;
  HRESULT STDMETHODCALLTYPE ReleaseListview() override;
  HRESULT STDMETHODCALLTYPE putref_Listview(VARIANT lv) override;
  HRESULT STDMETHODCALLTYPE put_Listview(VARIANT lv) override;
  HRESULT STDMETHODCALLTYPE get_Listview(VARIANT* lv) override;
  HRESULT STDMETHODCALLTYPE ShowFilter(VARIANT_BOOL ShowModal) override;
  HRESULT STDMETHODCALLTYPE DeactivateFilter() override;
  HRESULT STDMETHODCALLTYPE ApplyFilter(BSTR Filter) override;
  HRESULT STDMETHODCALLTYPE ResetFilter() override;
  HRESULT STDMETHODCALLTYPE TurnOffFilter() override;
  HRESULT STDMETHODCALLTYPE put_Active(VARIANT_BOOL Value) override;
  HRESULT STDMETHODCALLTYPE get_Active(VARIANT_BOOL* Value) override;
  HRESULT STDMETHODCALLTYPE get_ListOfTags(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE get_Filter(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE get_FilterInPlainEnglish(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_ItemDescription(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_ItemDescription(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_FilterMessage(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_FilterMessage(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_ColumnsToExclude(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_ColumnsToExclude(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_FilterCaption(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_FilterCaption(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE get_ExtraButtonVisible(VARIANT_BOOL* Value) override;
  HRESULT STDMETHODCALLTYPE put_ExtraButtonVisible(VARIANT_BOOL Value) override;
  HRESULT STDMETHODCALLTYPE get_ExtraButtonCaption(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE put_ExtraButtonCaption(BSTR Value) override;
  HRESULT STDMETHODCALLTYPE get_InitialSettings(BSTR* Value) override;
  HRESULT STDMETHODCALLTYPE get_BannerButtonVisible(VARIANT_BOOL* Value) override;
  HRESULT STDMETHODCALLTYPE put_BannerButtonVisible(VARIANT_BOOL Value) override;
  HRESULT STDMETHODCALLTYPE get_BannerButtonPicture(IPictureDisp** Value) override;
  HRESULT STDMETHODCALLTYPE putref_BannerButtonPicture(IPictureDisp* Value) override;

 private:
  TSLvwBannerFilter& banner_;
  PictureExchange pictures_;
};

}  // namespace sifter
