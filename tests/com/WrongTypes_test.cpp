#include "HostedBanner.h"
#include "win32/UniqueBstr.h"

#include <RowSifter.h>
#include <ocidl.h>

namespace sifter {

namespace {

// Values of other types than the member's.
class WrongTypesOnAControl : public HostedControl {
 protected:
  using HostedControl::HostedControl;

  HRESULT Call(const wchar_t* name, const VARIANT& value, WORD flags) {
    VARIANT argument = value;
    const bool write = flags != DISPATCH_METHOD;
    DISPID newValue = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument, write ? &newValue : nullptr, 1, write ? 1u : 0u};
    UniqueExcepInfo error;
    const HRESULT result = control->Invoke(IdOf(control.Get(), name), IID_NULL, LOCALE_USER_DEFAULT,
                                           flags, &parameters, nullptr, error.Address(), nullptr);
    return result == DISP_E_EXCEPTION ? error.Fill().scode : result;
  }
  HRESULT Write(const wchar_t* name, const VARIANT& value, WORD flags = DISPATCH_PROPERTYPUT) {
    return Call(name, value, flags);
  }

  // What is neither a text nor a Boolean, and can't be made one.
  void RefusesOthers(const wchar_t* name, WORD flags = DISPATCH_PROPERTYPUT) {
    VARIANT object{};
    object.vt = VT_UNKNOWN;
    object.punkVal = control.Get();
    VARIANT array{};
    array.vt = VT_ARRAY | VT_VARIANT;
    array.parray = SafeArrayCreateVector(VT_VARIANT, 0, 3);
    VARIANT null{};
    null.vt = VT_NULL;
    for (const VARIANT& value : {object, array, null})
      EXPECT_EQ(Call(name, value, flags), DISP_E_TYPEMISMATCH)
          << FromWide(name).ToUtf8() << ' ' << value.vt;
    VariantClear(&array);
  }
  void RefusesText(const wchar_t* name, WORD flags = DISPATCH_PROPERTYPUT) {
    VARIANT notBoolean{};
    notBoolean.vt = VT_BSTR;
    notBoolean.bstrVal = SysAllocString(L"maybe");
    EXPECT_EQ(Call(name, notBoolean, flags), DISP_E_TYPEMISMATCH) << FromWide(name).ToUtf8();
    VariantClear(&notBoolean);
  }
};

class WrongTypesOnASifter : public WrongTypesOnAControl {
 protected:
  WrongTypesOnASifter() : WrongTypesOnAControl(kSifter) {}
};

TEST_F(WrongTypesOnASifter, AreRefusedByTextAndBoolean) {
  for (const wchar_t* name : {L"FilterCaption", L"FilterMessage", L"ColumnsToExclude", L"Active"})
    RefusesOthers(name);
  RefusesText(L"Active");
  EXPECT_EQ(FieldsOf(control), DefaultFields());
}

class WrongTypesOnABanner : public WrongTypesOnAControl {
 protected:
  WrongTypesOnABanner() : WrongTypesOnAControl(kBanner) {}
};

TEST_F(WrongTypesOnABanner, AreRefusedByTextAndBoolean) {
  Strings before = BannerFieldsOf(control);
  for (const wchar_t* name : {L"ItemDescription", L"FilterMessage", L"ColumnsToExclude",
                              L"FilterCaption", L"ExtraButtonCaption"})
    RefusesOthers(name);
  for (const wchar_t* name :
       {L"Enabled", L"Active", L"ExtraButtonVisible", L"BannerButtonVisible"}) {
    RefusesOthers(name);
    RefusesText(name);
  }
  EXPECT_EQ(BannerFieldsOf(control), before);
}

TEST_F(WrongTypesOnABanner, AreRefusedByItsMethods) {
  Strings before = BannerFieldsOf(control);
  RefusesOthers(L"ApplyFilter", DISPATCH_METHOD);
  RefusesOthers(L"ShowFilter", DISPATCH_METHOD);
  RefusesText(L"ShowFilter", DISPATCH_METHOD);
  EXPECT_EQ(BannerFieldsOf(control), before);
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(WrongTypesOnABanner, AreNoPicture) {
  const ComRef<IPictureDisp> picture = NewPicture();
  PutRef(control, L"BannerButtonPicture", ObjectValue(picture.Get()));
  VARIANT number{};
  number.vt = VT_I4;
  VARIANT null{};
  null.vt = VT_NULL;
  VARIANT object{};
  object.vt = VT_DISPATCH;
  object.pdispVal = list.Get();
  for (const VARIANT& value : {number, null, object})
    EXPECT_TRUE(FAILED(Write(L"BannerButtonPicture", value, DISPATCH_PROPERTYPUTREF))) << value.vt;
  EXPECT_TRUE(IsSameComObject(PictureOf(control).Get(), picture.Get()));
}

class WrongTypes : public WrongTypesOnAControl, public testing::WithParamInterface<const wchar_t*> {
 protected:
  WrongTypes() : WrongTypesOnAControl(GetParam()) {}
};

TEST_F(WrongTypesOnASifter, AReferenceThatLeadsInACircleIsNoListview) {
  const auto direct = control.As<_TSRowSifter>(__uuidof(_TSRowSifter));
  VARIANT circle{};
  circle.vt = VT_BYREF | VT_VARIANT;
  circle.pvarVal = &circle;
  EXPECT_EQ(direct->putref_Listview(circle), static_cast<HRESULT>(0x800A01A8));
}

TEST_F(WrongTypesOnABanner, AReferenceThatLeadsInACircleIsNoListview) {
  const auto direct = control.As<_TSLvwBannerFilter>(__uuidof(_TSLvwBannerFilter));
  VARIANT circle{};
  circle.vt = VT_BYREF | VT_VARIANT;
  circle.pvarVal = &circle;
  EXPECT_EQ(direct->putref_Listview(circle), static_cast<HRESULT>(0x800A01A8));
}

TEST_P(WrongTypes, AreNoListview) {
  const HRESULT objectRequired = static_cast<HRESULT>(0x800A01A8);
  VARIANT array{};
  array.vt = VT_ARRAY | VT_VARIANT;
  array.parray = SafeArrayCreateVector(VT_VARIANT, 0, 3);
  VARIANT number{};
  number.vt = VT_I4;
  VARIANT date{};
  date.vt = VT_DATE;
  VARIANT errorCode{};
  errorCode.vt = VT_ERROR;
  errorCode.scode = E_FAIL;
  for (const WORD flags : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}})
    for (const VARIANT& value : {array, number, date, errorCode})
      EXPECT_EQ(Write(L"Listview", value, flags), objectRequired) << value.vt;
  VariantClear(&array);
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
}

TEST_P(WrongTypes, AnObjectThatCannotBeCalledByNameIsNoListview) {
  ViewSink noDispatch(recorder);
  VARIANT object{};
  object.vt = VT_UNKNOWN;
  object.punkVal = &noDispatch;
  EXPECT_EQ(Write(L"Listview", object), static_cast<HRESULT>(0x800A01A8));
}

// What is left on the thread for callers that don't come by name.
TEST_F(WrongTypesOnASifter, ErrorInformationIsLeftForDirectCallers) {
  const auto sifter = control.As<_TSRowSifter>(Library::Built().IdOf(L"_TSRowSifter"));
  EXPECT_EQ(control.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(
                Library::Built().IdOf(L"_TSRowSifter")),
            S_OK);
  EXPECT_EQ(control.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IViewObject), S_FALSE);
  VARIANT number{};
  number.vt = VT_I4;
  SetErrorInfo(0, nullptr);
  EXPECT_EQ(sifter->put_Listview(number), static_cast<HRESULT>(0x800A01A8));
  ComRef<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  BSTR source = nullptr;
  BSTR description = nullptr;
  info->GetSource(&source);
  info->GetDescription(&description);
  EXPECT_EQ(Text(BstrView(source)), u"RowSifter");
  EXPECT_EQ(Text(BstrView(description)), u"Object required");
  SysFreeString(source);
  SysFreeString(description);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, WrongTypes, testing::Values(kSifter, kBanner),
                         ControlName);

}  // namespace

}  // namespace sifter
