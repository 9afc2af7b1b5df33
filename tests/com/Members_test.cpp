#include "DispatchSpy.h"
#include "HostedSifter.h"
#include "listmodel/MemoryListView.h"
#include "win32/NativeListViewObject.h"
#include "win32/UniqueBstr.h"

namespace sifter {

namespace {

// The members of a control that a script has made: no site, no window, nobody listening.
class Members : public ComTest {
 protected:
  ComRef<IDispatch> ListObject() {
    ComRef<IDispatch> object;
    EXPECT_EQ(CreateListViewObject(form.List(), object.Receive()), S_OK);
    return object;
  }

  Strings Fields() { return FieldsOf(control); }

  HRESULT ResultOf(const wchar_t* name, WORD flags, std::initializer_list<Value> arguments) {
    UniqueVariant result;
    UniqueExcepInfo error;
    return TryInvoke(control.Get(), IdOf(control.Get(), name), flags, arguments, result, error);
  }

  ListViewOnAForm form;
  ComRef<IDispatch> control = Create();
};

TEST_F(Members, HaveTheirInitialValuesAtOnce) {
  EXPECT_EQ(Fields(), DefaultFields());
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
}

TEST_F(Members, KeepTheComponentLoaded) {
  EXPECT_EQ(Library::Built().CanUnload(), S_FALSE);
  control.Reset();
  EXPECT_EQ(Library::Built().CanUnload(), S_OK);
}

TEST_F(Members, AreThoseOfTheOneClassThatCanBeMade) {
  CLSID id{};
  EXPECT_TRUE(FAILED(CLSIDFromProgID(L"RowSifter.HookClass", &id)));
  EXPECT_TRUE(FAILED(CLSIDFromProgID(L"RowSifter.frmFilter", &id)));
  ASSERT_EQ(CLSIDFromProgID(L"RowSifter.TSRowSifter.1", &id), S_OK);
  EXPECT_EQ(id, Library::Built().IdOf(L"TSRowSifter"));
}

TEST_F(Members, HaveTheirNumbers) {
  const struct {
    const wchar_t* name;
    unsigned long id;
  } members[] = {{L"FilterCaption", 0x68030000}, {L"ColumnsToExclude", 0x68030001},
                 {L"FilterMessage", 0x68030002}, {L"Filter", 0x68030003},
                 {L"Active", 0x68030004},        {L"Listview", 0x68030005},
                 {L"ShowFilter", 0x60030006},    {L"ApplyFilter", 0x6003000B},
                 {L"ResetFilter", 0x6003000C},   {L"TurnOffFilter", 0x6003000D}};
  for (const auto& member : members)
    EXPECT_EQ(static_cast<unsigned long>(IdOf(control.Get(), member.name)), member.id)
        << Text(FromWide(member.name)).ToUtf8();
  EXPECT_EQ(IdOf(control.Get(), L"LISTVIEW"), IdOf(control.Get(), L"Listview"));
}

TEST_F(Members, OfTextTypeTakeAnyText) {
  for (const wchar_t* name : {L"FilterCaption", L"ColumnsToExclude", L"FilterMessage"}) {
    for (const char16_t* text : {u"Trees", u"", u"\x00E9\x4E2D\xD83C\xDF33"}) {
      Put(control, name, text);
      EXPECT_EQ(Get(control, name), Value(text));
    }
    Put(control, name, 12);
    EXPECT_EQ(Get(control, name), Value(u"12"));
  }
}

TEST_F(Members, FilterCannotBeWritten) {
  EXPECT_EQ(ErrorOf([&] { Put(control, L"Filter", u"Name = 'x'"); }), kMissingMemberError);
  EXPECT_EQ(Fields(), DefaultFields());
}

TEST_F(Members, UnknownNamesAndSurplusArgumentsAreTold) {
  EXPECT_EQ(ErrorOf([&] { Call(control, L"FilterInPlainEnglish"); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { Call(control, L"ShowFilter", {1}); }),
            "450: Wrong number of arguments or invalid property assignment");
  EXPECT_EQ(ResultOf(L"ApplyFilter", DISPATCH_METHOD, {u"a", u"b"}), DISP_E_BADPARAMCOUNT);
  EXPECT_TRUE(FAILED(ResultOf(L"ApplyFilter", DISPATCH_METHOD, {})));
}

TEST_F(Members, ApplyFilterChangesNothing) {
  Call(control, L"ApplyFilter", {u"Name = 'x'"});
  EXPECT_EQ(Fields(), DefaultFields());
}

TEST_F(Members, ResetAndTurnOffChangeNothing) {
  for (int round = 0; round < 2; ++round) {
    Call(control, L"ResetFilter");
    Call(control, L"TurnOffFilter");
  }
  EXPECT_EQ(Fields(), DefaultFields());
}

TEST_F(Members, ShowFilterAndActiveNeedAList) {
  Call(control, L"ShowFilter");
  Put(control, L"Active", true);
  EXPECT_EQ(Fields(), DefaultFields());
}

TEST_F(Members, ListviewIsSetEitherWayAndReadBackAsTheSameObject) {
  const ComRef<IDispatch> list = ListObject();
  ListViewOnAForm second;
  ComRef<IDispatch> other;
  ASSERT_EQ(CreateListViewObject(second.List(), other.Receive()), S_OK);
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
  Put(control, L"Listview", ObjectValue(other.Get()));
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), other.Get()));
  control.Reset();
}

TEST_F(Members, ListviewTakesEveryFormOfAnObject) {
  const ComRef<IDispatch> list = ListObject();
  IDispatch* dispatch = list.Get();
  IUnknown* unknown = list.Get();
  VARIANT plain{};
  plain.vt = VT_DISPATCH;
  plain.pdispVal = dispatch;
  VARIANT asUnknown{};
  asUnknown.vt = VT_UNKNOWN;
  asUnknown.punkVal = unknown;
  VARIANT byReference{};
  byReference.vt = VT_DISPATCH | VT_BYREF;
  byReference.ppdispVal = &dispatch;
  VARIANT inVariant{};
  inVariant.vt = VT_VARIANT | VT_BYREF;
  inVariant.pvarVal = &plain;
  for (VARIANT value : {plain, asUnknown, byReference, inVariant})
    for (const WORD flags : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}}) {
      control = Create();
      DISPID newValue = DISPID_PROPERTYPUT;
      DISPPARAMS parameters{&value, &newValue, 1, 1};
      EXPECT_EQ(control->Invoke(IdOf(control.Get(), L"Listview"), IID_NULL, LOCALE_USER_DEFAULT,
                                flags, &parameters, nullptr, nullptr, nullptr),
                S_OK)
          << value.vt;
      EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get())) << value.vt;
    }
}

TEST_F(Members, NothingLeavesTheListviewAttached) {
  Put(control, L"Listview", ObjectValue(nullptr));
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
  const ComRef<IDispatch> list = ListObject();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  PutRef(control, L"Listview", ObjectValue(nullptr));
  Put(control, L"Listview", ObjectValue(nullptr));
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
}

TEST_F(Members, WhatIsNoObjectIsNoListview) {
  const ComRef<IDispatch> list = ListObject();
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  for (const Value& value :
       {Value(u"list"), Value(5), Value(true), Value(2.5), Value(Value::Null())}) {
    EXPECT_EQ(ErrorOf([&] { Put(control, L"Listview", value); }), "424: Object required")
        << Shown(value);
    EXPECT_EQ(ErrorOf([&] { PutRef(control, L"Listview", value); }), "424: Object required")
        << Shown(value);
  }
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
}

TEST_F(Members, AnObjectWithoutAWindowHandleIsRefusedButStays) {
  const ComRef<IDispatch> other = Create();
  EXPECT_EQ(ErrorOf([&] { PutRef(control, L"Listview", ObjectValue(other.Get())); }),
            kMissingMemberError);
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), other.Get()));
  EXPECT_EQ(ErrorOf([&] { PutRef(control, L"Listview", ObjectValue(other.Get())); }), "nothing")
      << "it is attached by now";
}

// A list of a foreign make, which is spied on.
class MembersWithAForeignList : public Members {
 protected:
  MembersWithAForeignList() { PutRef(control, L"Listview", ObjectValue(foreign.Get())); }

  Ref<MemoryListView> memory = MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}});
  std::shared_ptr<DispatchSpyLog> log = std::make_shared<DispatchSpyLog>();
  ComRef<IDispatch> foreign = SpyOn(ListViewObject(memory), log);
};

TEST_F(MembersWithAForeignList, AttachingReadsTheWindowHandleAndNothingElse) {
  EXPECT_EQ(log->calls, (Strings{"get hWnd"}));
  PutRef(control, L"Listview", ObjectValue(foreign.Get()));
  EXPECT_EQ(log->calls, (Strings{"get hWnd"})) << "the same list again";
}

TEST_F(MembersWithAForeignList, ErrorsOfTheListKeepNumberAndDescription) {
  log->failures["Count"] = {DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A8B12), L"out of order"};
  EXPECT_EQ(ErrorOf([&] { Call(control, L"ShowFilter"); }), "35602: out of order");
  log->failures["Count"] = {static_cast<HRESULT>(0x80040001), 0, L""};
  EXPECT_EQ(ErrorOf([&] { Call(control, L"ShowFilter"); }), "-2147221503: Automation error");
}

TEST_F(MembersWithAForeignList, ErrorsSayWhereTheyComeFrom) {
  log->failures["Count"] = {DISP_E_EXCEPTION, static_cast<HRESULT>(0x800A8B12), L"out of order"};
  UniqueVariant result;
  UniqueExcepInfo error;
  EXPECT_EQ(TryInvoke(control.Get(), IdOf(control.Get(), L"ShowFilter"), DISPATCH_METHOD, {},
                      result, error),
            DISP_E_EXCEPTION);
  EXPECT_EQ(error.Fill().scode, static_cast<HRESULT>(0x800A8B12));
  EXPECT_EQ(BstrView(error.Fill().bstrSource), u"RowSifter");
  EXPECT_EQ(BstrView(error.Fill().bstrDescription), u"out of order");
}

TEST_F(MembersWithAForeignList, AnEmptyListIsNotShown) {
  memory->ListItems()->Clear();
  log->calls.clear();
  Call(control, L"ShowFilter");
  EXPECT_EQ(log->calls, (Strings{"get ListItems", "get Count"}));
}

}  // namespace

}  // namespace sifter
