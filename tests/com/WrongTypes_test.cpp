#include "HostedSifter.h"
#include "win32/UniqueBstr.h"

#include <RowSifter.h>
#include <ocidl.h>

namespace sifter {

namespace {

// Values of other types than the member's.
class WrongTypes : public HostedSifter {
 protected:
  HRESULT Write(const wchar_t* name, const VARIANT& value, WORD flags = DISPATCH_PROPERTYPUT) {
    VARIANT argument = value;
    DISPID newValue = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument, &newValue, 1, 1};
    UniqueExcepInfo error;
    const HRESULT result = control->Invoke(IdOf(control.Get(), name), IID_NULL, LOCALE_USER_DEFAULT,
                                           flags, &parameters, nullptr, error.Address(), nullptr);
    return result == DISP_E_EXCEPTION ? error.Fill().scode : result;
  }
};

TEST_F(WrongTypes, AreRefusedByTextAndBoolean) {
  VARIANT object{};
  object.vt = VT_UNKNOWN;
  object.punkVal = control.Get();
  VARIANT array{};
  array.vt = VT_ARRAY | VT_VARIANT;
  array.parray = SafeArrayCreateVector(VT_VARIANT, 0, 3);
  VARIANT null{};
  null.vt = VT_NULL;
  VARIANT notBoolean{};
  notBoolean.vt = VT_BSTR;
  notBoolean.bstrVal = SysAllocString(L"maybe");
  for (const wchar_t* name : {L"FilterCaption", L"FilterMessage", L"ColumnsToExclude", L"Active"})
    for (const VARIANT& value : {object, array, null})
      EXPECT_EQ(Write(name, value), DISP_E_TYPEMISMATCH)
          << FromWide(name).ToUtf8() << ' ' << value.vt;
  EXPECT_EQ(Write(L"Active", notBoolean), DISP_E_TYPEMISMATCH);
  VariantClear(&array);
  VariantClear(&notBoolean);
}

TEST_F(WrongTypes, AReferenceThatLeadsInACircleIsNoListview) {
  const auto direct = control.As<_TSRowSifter>(__uuidof(_TSRowSifter));
  VARIANT circle{};
  circle.vt = VT_BYREF | VT_VARIANT;
  circle.pvarVal = &circle;
  EXPECT_EQ(direct->putref_Listview(circle), static_cast<HRESULT>(0x800A01A8));
}

TEST_F(WrongTypes, AreNoListview) {
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

TEST_F(WrongTypes, AnObjectThatCannotBeCalledByNameIsNoListview) {
  ViewSink noDispatch(recorder);
  VARIANT object{};
  object.vt = VT_UNKNOWN;
  object.punkVal = &noDispatch;
  EXPECT_EQ(Write(L"Listview", object), static_cast<HRESULT>(0x800A01A8));
}

// What is left on the thread for callers that don't come by name.
TEST_F(WrongTypes, ErrorInformationIsLeftForDirectCallers) {
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

}  // namespace

}  // namespace sifter
