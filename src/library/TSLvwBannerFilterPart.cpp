#include "library/TSLvwBannerFilterPart.h"

#include "library/HostLists.h"

namespace sifter {

HRESULT TSLvwBannerFilterPart::get_Enabled(VARIANT_BOOL* Value) {
  return Give(banner_.Enabled(), Value);
}

HRESULT TSLvwBannerFilterPart::put_Enabled(VARIANT_BOOL Value) {
  return Do([&] { banner_.SetEnabled(Value != VARIANT_FALSE); });
}

HRESULT TSLvwBannerFilterPart::ReleaseListview() {
  return Do([&] { banner_.ReleaseListview(); });
}

HRESULT TSLvwBannerFilterPart::putref_Listview(VARIANT lv) {
  return Do([&] {
    // The one that the dialog knows is remembered too: its copies belong to that very list.
    const Ref<HostListView> prepared = banner_.Dialog().UsersListview;
    banner_.SetListview(ListFromVariant(lv, {banner_.Listview(), prepared}));
  });
}

HRESULT TSLvwBannerFilterPart::put_Listview(VARIANT lv) { return putref_Listview(lv); }

HRESULT TSLvwBannerFilterPart::get_Listview(VARIANT* lv) {
  if (lv == nullptr) return E_POINTER;
  VariantInit(lv);
  return Do([&] { *lv = VariantFromList(banner_.Listview()); });
}

HRESULT TSLvwBannerFilterPart::ShowFilter(VARIANT_BOOL ShowModal) {
  return Do([&] { banner_.ShowFilter(ShowModal != VARIANT_FALSE); });
}

HRESULT TSLvwBannerFilterPart::DeactivateFilter() {
  return Do([&] { banner_.DeactivateFilter(); });
}

HRESULT TSLvwBannerFilterPart::ApplyFilter(BSTR Filter) {
  return Do([&] { banner_.ApplyFilter(TextOf(Filter)); });
}

HRESULT TSLvwBannerFilterPart::ResetFilter() {
  return Do([&] { banner_.ResetFilter(); });
}

HRESULT TSLvwBannerFilterPart::TurnOffFilter() {
  return Do([&] { banner_.TurnOffFilter(); });
}

HRESULT TSLvwBannerFilterPart::put_Active(VARIANT_BOOL Value) {
  return Do([&] { banner_.SetActive(Value != VARIANT_FALSE); });
}

HRESULT TSLvwBannerFilterPart::get_Active(VARIANT_BOOL* Value) {
  return Give(banner_.Active(), Value);
}

HRESULT TSLvwBannerFilterPart::get_ListOfTags(BSTR* Value) {
  if (Value == nullptr) return E_POINTER;
  *Value = nullptr;
  return Do([&] { *Value = UniqueBstr(banner_.ListOfTags().View()).Release(); });
}

HRESULT TSLvwBannerFilterPart::get_Filter(BSTR* Value) { return Give(banner_.Filter(), Value); }

HRESULT TSLvwBannerFilterPart::get_FilterInPlainEnglish(BSTR* Value) {
  return Give(banner_.FilterInPlainEnglish(), Value);
}

HRESULT TSLvwBannerFilterPart::put_ItemDescription(BSTR Value) {
  return Do([&] { banner_.SetItemDescription(TextOf(Value)); });
}

HRESULT TSLvwBannerFilterPart::get_ItemDescription(BSTR* Value) {
  return Give(banner_.ItemDescription(), Value);
}

HRESULT TSLvwBannerFilterPart::put_FilterMessage(BSTR Value) {
  return Do([&] { banner_.SetFilterMessage(TextOf(Value)); });
}

HRESULT TSLvwBannerFilterPart::get_FilterMessage(BSTR* Value) {
  return Give(banner_.FilterMessage(), Value);
}

HRESULT TSLvwBannerFilterPart::put_ColumnsToExclude(BSTR Value) {
  return Do([&] { banner_.SetColumnsToExclude(TextOf(Value)); });
}

HRESULT TSLvwBannerFilterPart::get_ColumnsToExclude(BSTR* Value) {
  return Give(banner_.ColumnsToExclude(), Value);
}

HRESULT TSLvwBannerFilterPart::put_FilterCaption(BSTR Value) {
  return Do([&] { banner_.SetFilterCaption(TextOf(Value)); });
}

HRESULT TSLvwBannerFilterPart::get_FilterCaption(BSTR* Value) {
  return Give(banner_.FilterCaption(), Value);
}

HRESULT TSLvwBannerFilterPart::get_ExtraButtonVisible(VARIANT_BOOL* Value) {
  return Give(banner_.ExtraButtonVisible(), Value);
}

HRESULT TSLvwBannerFilterPart::put_ExtraButtonVisible(VARIANT_BOOL Value) {
  return Do([&] { banner_.SetExtraButtonVisible(Value != VARIANT_FALSE); });
}

HRESULT TSLvwBannerFilterPart::get_ExtraButtonCaption(BSTR* Value) {
  return Give(banner_.ExtraButtonCaption(), Value);
}

HRESULT TSLvwBannerFilterPart::put_ExtraButtonCaption(BSTR Value) {
  return Do([&] { banner_.SetExtraButtonCaption(TextOf(Value)); });
}

HRESULT TSLvwBannerFilterPart::get_InitialSettings(BSTR* Value) {
  return Give(banner_.InitialSettings(), Value);
}

HRESULT TSLvwBannerFilterPart::get_BannerButtonVisible(VARIANT_BOOL* Value) {
  return Give(banner_.BannerButtonVisible(), Value);
}

HRESULT TSLvwBannerFilterPart::put_BannerButtonVisible(VARIANT_BOOL Value) {
  return Do([&] { banner_.SetBannerButtonVisible(Value != VARIANT_FALSE); });
}

HRESULT TSLvwBannerFilterPart::get_BannerButtonPicture(IPictureDisp** Value) {
  if (Value == nullptr) return E_POINTER;
  *Value = nullptr;
  return Do([&] { *Value = pictures_.ForHost(banner_.BannerButtonPicture()).Release(); });
}

HRESULT TSLvwBannerFilterPart::putref_BannerButtonPicture(IPictureDisp* Value) {
  return Do([&] { banner_.SetBannerButtonPicture(pictures_.FromHost(Value)); });
}

}  // namespace sifter
