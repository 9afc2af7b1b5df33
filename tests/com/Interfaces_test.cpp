#include "PlacedSifter.h"

#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

class Interfaces : public PlacedSifter {};

TEST_F(Interfaces, AreThoseOfAControlAndNoOthers) {
  const struct {
    const char* name;
    IID id;
    bool offered;
  } interfaces[] = {
      {"IOleObject", IID_IOleObject, true},
      {"IOleControl", IID_IOleControl, true},
      {"IOleWindow", IID_IOleWindow, true},
      {"IOleInPlaceObject", IID_IOleInPlaceObject, true},
      {"IOleInPlaceActiveObject", IID_IOleInPlaceActiveObject, true},
      {"IViewObject", IID_IViewObject, true},
      {"IViewObject2", IID_IViewObject2, true},
      {"IDataObject", IID_IDataObject, true},
      {"IPersist", IID_IPersist, true},
      {"IPersistPropertyBag", IID_IPersistPropertyBag, true},
      {"IPersistStreamInit", IID_IPersistStreamInit, true},
      {"IPersistStorage", IID_IPersistStorage, true},
      {"IConnectionPointContainer", IID_IConnectionPointContainer, true},
      {"IProvideClassInfo", IID_IProvideClassInfo, true},
      {"IProvideClassInfo2", IID_IProvideClassInfo2, true},
      {"IQuickActivate", IID_IQuickActivate, true},
      {"ISupportErrorInfo", IID_ISupportErrorInfo, true},
      {"IDispatch", IID_IDispatch, true},
      {"_TSRowSifter", Library::Built().IdOf(L"_TSRowSifter"), true},
      {"_TSLvwBannerFilter", Library::Built().IdOf(L"_TSLvwBannerFilter"), false},
      {"ISpecifyPropertyPages", IID_ISpecifyPropertyPages, false},
      {"IObjectSafety",
       {0xcb5bdc81, 0x93c1, 0x11cf, {0x8f, 0x20, 0x00, 0x80, 0x5f, 0x2c, 0xd0, 0x64}},
       false},
      {"IMarshal", IID_IMarshal, false},
  };
  for (const auto& i : interfaces) {
    ComRef<IUnknown> found;
    const HRESULT result = control->QueryInterface(i.id, found.ReceiveVoid());
    EXPECT_EQ(result, i.offered ? S_OK : E_NOINTERFACE) << i.name;
    EXPECT_EQ(static_cast<bool>(found), i.offered) << i.name;
    if (!found) continue;
    EXPECT_TRUE(IsSameComObject(found.Get(), control.Get())) << i.name;
    for (const auto& j : interfaces) {
      ComRef<IUnknown> other;
      EXPECT_EQ(found->QueryInterface(j.id, other.ReceiveVoid()), j.offered ? S_OK : E_NOINTERFACE)
          << i.name << " to " << j.name;
    }
  }
}

}  // namespace

}  // namespace sifter
