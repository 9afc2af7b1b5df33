#include "library/TSRowSifterPart.h"

#include "library/HostLists.h"

namespace sifter {

HRESULT TSRowSifterPart::putref_Listview(VARIANT lv) {
  return Do([&] {
    // The one that the dialog knows is remembered too: its copies belong to that very list.
    const Ref<HostListView> prepared = sifter_.Dialog().UsersListview;
    sifter_.SetListview(ListFromVariant(lv, {sifter_.Listview(), prepared}));
  });
}

HRESULT TSRowSifterPart::put_Listview(VARIANT lv) { return putref_Listview(lv); }

HRESULT TSRowSifterPart::get_Listview(VARIANT* lv) {
  if (lv == nullptr) return E_POINTER;
  VariantInit(lv);
  return Do([&] { *lv = VariantFromList(sifter_.Listview()); });
}

HRESULT TSRowSifterPart::ShowFilter() {
  return Do([&] { sifter_.ShowFilter(); });
}

HRESULT TSRowSifterPart::ApplyFilter(BSTR Filter) {
  return Do([&] { sifter_.ApplyFilter(TextOf(Filter)); });
}

HRESULT TSRowSifterPart::ResetFilter() {
  return Do([&] { sifter_.ResetFilter(); });
}

HRESULT TSRowSifterPart::TurnOffFilter() {
  return Do([&] { sifter_.TurnOffFilter(); });
}

HRESULT TSRowSifterPart::put_Active(VARIANT_BOOL Value) {
  return Do([&] { sifter_.SetActive(Value != VARIANT_FALSE); });
}

HRESULT TSRowSifterPart::get_Active(VARIANT_BOOL* Value) { return Give(sifter_.Active(), Value); }

HRESULT TSRowSifterPart::get_Filter(BSTR* Value) { return Give(sifter_.Filter(), Value); }

HRESULT TSRowSifterPart::get_FilterMessage(BSTR* Value) {
  return Give(sifter_.FilterMessage(), Value);
}

HRESULT TSRowSifterPart::put_FilterMessage(BSTR Value) {
  return Do([&] { sifter_.SetFilterMessage(TextOf(Value)); });
}

HRESULT TSRowSifterPart::get_ColumnsToExclude(BSTR* Value) {
  return Give(sifter_.ColumnsToExclude(), Value);
}

HRESULT TSRowSifterPart::put_ColumnsToExclude(BSTR Value) {
  return Do([&] { sifter_.SetColumnsToExclude(TextOf(Value)); });
}

HRESULT TSRowSifterPart::get_FilterCaption(BSTR* Value) {
  return Give(sifter_.FilterCaption(), Value);
}

HRESULT TSRowSifterPart::put_FilterCaption(BSTR Value) {
  return Do([&] { sifter_.SetFilterCaption(TextOf(Value)); });
}

}  // namespace sifter
