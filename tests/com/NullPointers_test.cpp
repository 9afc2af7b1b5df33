#include "HostedSifter.h"
#include "win32/UniqueBstr.h"
#include "win32/UniqueGdi.h"

#include <RowSifter.h>
#include <functional>
#include <ocidl.h>
#include <olectl.h>

namespace sifter {

namespace {

struct BadCall {
  const char* name;
  std::function<HRESULT()> call;
  HRESULT result = E_POINTER;
};

void Check(const std::vector<BadCall>& calls) {
  for (const BadCall& bad : calls) {
    const HRESULT result = bad.call();
    EXPECT_EQ(result, bad.result) << bad.name << ' ' << std::hex << result;
  }
}

// Hosts that pass no place for what they ask for get an error and not a crash, and the control goes
// on as before.
class NullPointersToAControl : public HostedControl {
 protected:
  using HostedControl::HostedControl;

  void TearDown() override { EXPECT_EQ(FieldsOf(control), DefaultFields()); }

  template <class T>
  ComRef<T> As() {
    ComRef<T> found = control.As<T>();
    EXPECT_TRUE(found);
    return found;
  }
};

class NullPointersToASifter : public NullPointersToAControl {
 protected:
  NullPointersToASifter() : NullPointersToAControl(kSifter) {}
};

TEST_F(NullPointersToASifter, ToTheControlsOwnMembers) {
  const auto sifter = control.As<_TSRowSifter>(Library::Built().IdOf(L"_TSRowSifter"));
  ASSERT_TRUE(sifter);
  Check({{"get_Listview", [&] { return sifter->get_Listview(nullptr); }},
         {"get_Active", [&] { return sifter->get_Active(nullptr); }},
         {"get_Filter", [&] { return sifter->get_Filter(nullptr); }},
         {"get_FilterMessage", [&] { return sifter->get_FilterMessage(nullptr); }},
         {"get_ColumnsToExclude", [&] { return sifter->get_ColumnsToExclude(nullptr); }},
         {"get_FilterCaption", [&] { return sifter->get_FilterCaption(nullptr); }},
         // A text that is null is the empty one.
         {"ApplyFilter", [&] { return sifter->ApplyFilter(nullptr); }, S_OK},
         {"put_ColumnsToExclude", [&] { return sifter->put_ColumnsToExclude(nullptr); }, S_OK},
         {"put_FilterMessage", [&] { return sifter->put_FilterMessage(nullptr); }, S_OK},
         {"put_FilterCaption", [&] { return sifter->put_FilterCaption(nullptr); }, S_OK}});
  EXPECT_EQ(FieldsOf(control), (Strings{"False", "\"\"", "\"\"", "\"\"", "\"\""}));
  Put(control, L"FilterCaption", u"Tarvenn Software Row Sifter");
  Put(control, L"FilterMessage", u"Please enter criteria to apply to your listview");
}

class NullPointersToABanner : public NullPointersToAControl {
 protected:
  NullPointersToABanner() : NullPointersToAControl(kBanner) {}
};

TEST_F(NullPointersToABanner, ToTheControlsOwnMembers) {
  const auto banner = control.As<_TSLvwBannerFilter>(Library::Built().IdOf(L"_TSLvwBannerFilter"));
  ASSERT_TRUE(banner);
  Check({{"get_Enabled", [&] { return banner->get_Enabled(nullptr); }},
         {"get_Listview", [&] { return banner->get_Listview(nullptr); }},
         {"get_Active", [&] { return banner->get_Active(nullptr); }},
         {"get_ListOfTags", [&] { return banner->get_ListOfTags(nullptr); }},
         {"get_Filter", [&] { return banner->get_Filter(nullptr); }},
         {"get_FilterInPlainEnglish", [&] { return banner->get_FilterInPlainEnglish(nullptr); }},
         {"get_ItemDescription", [&] { return banner->get_ItemDescription(nullptr); }},
         {"get_FilterMessage", [&] { return banner->get_FilterMessage(nullptr); }},
         {"get_ColumnsToExclude", [&] { return banner->get_ColumnsToExclude(nullptr); }},
         {"get_FilterCaption", [&] { return banner->get_FilterCaption(nullptr); }},
         {"get_ExtraButtonVisible", [&] { return banner->get_ExtraButtonVisible(nullptr); }},
         {"get_ExtraButtonCaption", [&] { return banner->get_ExtraButtonCaption(nullptr); }},
         {"get_InitialSettings", [&] { return banner->get_InitialSettings(nullptr); }},
         {"get_BannerButtonVisible", [&] { return banner->get_BannerButtonVisible(nullptr); }},
         {"get_BannerButtonPicture", [&] { return banner->get_BannerButtonPicture(nullptr); }},
         // A text that is null is the empty one, and a picture that is null is none.
         {"ApplyFilter", [&] { return banner->ApplyFilter(nullptr); }, S_OK},
         {"put_ItemDescription", [&] { return banner->put_ItemDescription(nullptr); }, S_OK},
         {"put_ColumnsToExclude", [&] { return banner->put_ColumnsToExclude(nullptr); }, S_OK},
         {"put_FilterMessage", [&] { return banner->put_FilterMessage(nullptr); }, S_OK},
         {"put_FilterCaption", [&] { return banner->put_FilterCaption(nullptr); }, S_OK},
         {"put_ExtraButtonCaption", [&] { return banner->put_ExtraButtonCaption(nullptr); }, S_OK},
         {"putref_BannerButtonPicture", [&] { return banner->putref_BannerButtonPicture(nullptr); },
          S_OK}});
  EXPECT_EQ(FieldsOf(control), (Strings{"False", "\"\"", "\"\"", "\"\"", "\"\""}));
  EXPECT_EQ(Get(control, L"ItemDescription"), Value(u""));
  Put(control, L"FilterCaption", u"Tarvenn Software Row Sifter");
  Put(control, L"FilterMessage", u"Please enter criteria to apply to your listview");
}

class NullPointers : public NullPointersToAControl,
                     public testing::WithParamInterface<const wchar_t*> {
 protected:
  NullPointers() : NullPointersToAControl(GetParam()) {}
};

TEST_P(NullPointers, ToDispatch) {
  std::wstring name = L"FilterCaption";
  LPOLESTR names[] = {name.data()};
  DISPID id = 0;
  const DISPID caption = IdOf(control.Get(), L"FilterCaption");
  DISPPARAMS none{};
  Check({{"GetTypeInfoCount", [&] { return control->GetTypeInfoCount(nullptr); }},
         {"GetTypeInfo", [&] { return control->GetTypeInfo(0, 0, nullptr); }},
         {"GetIDsOfNames without names",
          [&] { return control->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &id); }},
         {"GetIDsOfNames without numbers",
          [&] { return control->GetIDsOfNames(IID_NULL, names, 1, 0, nullptr); }},
         {"Invoke without parameters",
          [&] {
            return control->Invoke(caption, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr,
                                   nullptr, nullptr);
          },
          E_POINTER},
         {"Invoke of another interface",
          [&] {
            return control->Invoke(caption, IID_IUnknown, 0, DISPATCH_PROPERTYGET, &none, nullptr,
                                   nullptr, nullptr);
          },
          DISP_E_UNKNOWNINTERFACE},
         {"Invoke of an unknown member",
          [&] {
            return control->Invoke(12345, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr,
                                   nullptr);
          },
          DISP_E_MEMBERNOTFOUND},
         {"GetTypeInfo of a second information",
          [&] {
            ComRef<ITypeInfo> information;
            return control->GetTypeInfo(1, 0, information.Receive());
          },
          DISP_E_BADINDEX}});
}

TEST_P(NullPointers, ToIdentityAndClass) {
  IID id{};
  Check({{"QueryInterface", [&] { return control->QueryInterface(IID_IUnknown, nullptr); }},
         {"GetClassInfo", [&] { return As<IProvideClassInfo2>()->GetClassInfo(nullptr); }},
         {"GetGUID",
          [&] {
            return As<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr);
          }},
         {"GetGUID of another kind", [&] { return As<IProvideClassInfo2>()->GetGUID(0, &id); },
          E_INVALIDARG}});
}

TEST_P(NullPointers, ToPersistence) {
  Check({{"bag GetClassID", [&] { return As<IPersistPropertyBag>()->GetClassID(nullptr); }},
         {"bag Load", [&] { return As<IPersistPropertyBag>()->Load(nullptr, nullptr); }},
         {"bag Save", [&] { return As<IPersistPropertyBag>()->Save(nullptr, TRUE, TRUE); }},
         {"stream GetClassID", [&] { return As<IPersistStreamInit>()->GetClassID(nullptr); }},
         {"stream Load", [&] { return As<IPersistStreamInit>()->Load(nullptr); }},
         {"stream Save", [&] { return As<IPersistStreamInit>()->Save(nullptr, TRUE); }},
         {"stream GetSizeMax", [&] { return As<IPersistStreamInit>()->GetSizeMax(nullptr); }},
         {"storage GetClassID", [&] { return As<IPersistStorage>()->GetClassID(nullptr); }},
         {"storage InitNew", [&] { return As<IPersistStorage>()->InitNew(nullptr); }},
         {"storage Load", [&] { return As<IPersistStorage>()->Load(nullptr); }},
         {"storage Save", [&] { return As<IPersistStorage>()->Save(nullptr, FALSE); }}});
}

TEST_P(NullPointers, ToTheObject) {
  const auto object = As<IOleObject>();
  Check(
      {{"GetClientSite", [&] { return object->GetClientSite(nullptr); }},
       {"SetMoniker", [&] { return object->SetMoniker(OLEWHICHMK_OBJREL, nullptr); }, E_NOTIMPL},
       {"GetMoniker",
        [&] { return object->GetMoniker(OLEGETMONIKER_ONLYIFTHERE, OLEWHICHMK_OBJREL, nullptr); }},
       {"EnumVerbs", [&] { return object->EnumVerbs(nullptr); }},
       {"GetUserClassID", [&] { return object->GetUserClassID(nullptr); }},
       {"GetUserType", [&] { return object->GetUserType(USERCLASSTYPE_FULL, nullptr); }},
       {"SetExtent", [&] { return object->SetExtent(DVASPECT_CONTENT, nullptr); }},
       {"GetExtent", [&] { return object->GetExtent(DVASPECT_CONTENT, nullptr); }},
       {"Advise without a sink",
        [&] {
          DWORD cookie = 0;
          return object->Advise(nullptr, &cookie);
        }},
       {"Unadvise of nobody", [&] { return object->Unadvise(99); }, OLE_E_NOCONNECTION},
       {"EnumAdvise", [&] { return object->EnumAdvise(nullptr); }},
       {"GetMiscStatus", [&] { return object->GetMiscStatus(DVASPECT_CONTENT, nullptr); }},
       {"GetClipboardData", [&] { return object->GetClipboardData(0, nullptr); }}});
  ViewSink views(recorder);
  EXPECT_EQ(object->Advise(&views, nullptr), E_POINTER);
  EXPECT_EQ(views.References(), 0);
}

TEST_P(NullPointers, ToActivation) {
  const RECT box{0, 0, 10, 10};
  Check(
      {{"GetWindow", [&] { return As<IOleInPlaceObject>()->GetWindow(nullptr); }},
       {"SetObjectRects without a place",
        [&] { return As<IOleInPlaceObject>()->SetObjectRects(nullptr, &box); }},
       {"SetObjectRects without a clip",
        [&] { return As<IOleInPlaceObject>()->SetObjectRects(&container.site.position, nullptr); },
        S_OK},
       {"active GetWindow", [&] { return As<IOleInPlaceActiveObject>()->GetWindow(nullptr); }},
       {"TranslateAccelerator",
        [&] { return As<IOleInPlaceActiveObject>()->TranslateAccelerator(nullptr); }},
       {"GetControlInfo", [&] { return As<IOleControl>()->GetControlInfo(nullptr); }},
       {"QuickActivate", [&] { return As<IQuickActivate>()->QuickActivate(nullptr, nullptr); }},
       {"SetContentExtent", [&] { return As<IQuickActivate>()->SetContentExtent(nullptr); }},
       {"GetContentExtent", [&] { return As<IQuickActivate>()->GetContentExtent(nullptr); }}});
}

TEST_P(NullPointers, ToConnections) {
  ComRef<IConnectionPoint> point;
  ASSERT_EQ(As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink,
                                                                 point.Receive()),
            S_OK);
  Check(
      {{"EnumConnectionPoints",
        [&] { return As<IConnectionPointContainer>()->EnumConnectionPoints(nullptr); }},
       {"FindConnectionPoint",
        [&] {
          return As<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink,
                                                                      nullptr);
        }},
       {"GetConnectionInterface", [&] { return point->GetConnectionInterface(nullptr); }},
       {"GetConnectionPointContainer", [&] { return point->GetConnectionPointContainer(nullptr); }},
       {"EnumConnections", [&] { return point->EnumConnections(nullptr); }}});
}

TEST_P(NullPointers, ToViewAndData) {
  const auto view = As<IViewObject2>();
  const auto data = As<IDataObject>();
  FORMATETC format{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
  STGMEDIUM medium{};
  DWORD cookie = 0;
  const WindowDc screen(nullptr);
  Check({{"Draw without bounds",
          [&] {
            return view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, screen.Get(),
                              nullptr, nullptr, nullptr, 0);
          },
          E_INVALIDARG},
         {"GetExtent", [&] { return view->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr); }},
         {"GetAdvise", [&] { return view->GetAdvise(nullptr, nullptr, nullptr); }, S_OK},
         {"GetData without a format", [&] { return data->GetData(nullptr, &medium); }},
         {"GetData without a medium", [&] { return data->GetData(&format, nullptr); }},
         {"GetDataHere", [&] { return data->GetDataHere(nullptr, nullptr); }},
         {"QueryGetData", [&] { return data->QueryGetData(nullptr); }},
         {"EnumFormatEtc", [&] { return data->EnumFormatEtc(DATADIR_GET, nullptr); }},
         {"DAdvise", [&] { return data->DAdvise(&format, 0, nullptr, &cookie); }},
         {"EnumDAdvise", [&] { return data->EnumDAdvise(nullptr); }}});
}

TEST_P(NullPointers, ToTheExports) {
  using GetClass = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClass = reinterpret_cast<GetClass>(
      reinterpret_cast<void*>(GetProcAddress(Library::Built().Module(), "DllGetClassObject")));
  const CLSID id = Library::Built().IdOf(GetParam());
  EXPECT_EQ(getClass(id, IID_IClassFactory, nullptr), E_POINTER);
  ComRef<IClassFactory> factory;
  ASSERT_EQ(getClass(id, IID_IClassFactory, factory.ReceiveVoid()), S_OK);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(factory->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, NullPointers, testing::Values(kSifter, kBanner),
                         ControlName);

}  // namespace

}  // namespace sifter
