#include "HostedBanner.h"

namespace sifter {

namespace {

// The members of a banner that a script has made: no site and no window.
class BannerMembers : public ComTest {
 protected:
  BannerMembers() { EXPECT_EQ(CreateListViewObject(form.List(), list.Receive()), S_OK); }

  Recorder recorder;
  ListViewOnAForm form;
  ComRef<IDispatch> list;
  ComRef<IDispatch> control = Create(kBanner);
};

TEST_F(BannerMembers, HaveTheirInitialValuesAtOnce) {
  EXPECT_EQ(BannerFieldsOf(control), DefaultBannerFields());
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
  EXPECT_EQ(Shown(Get(control, L"BannerButtonPicture")), "Nothing");
}

TEST_F(BannerMembers, HaveTheirNumbers) {
  const struct {
    const wchar_t* name;
    unsigned long id;
  } members[] = {{L"Enabled", 0xFFFFFDFE},
                 {L"ReleaseListview", 0x60030001},
                 {L"Listview", 0x68030002},
                 {L"ShowFilter", 0x60030003},
                 {L"DeactivateFilter", 0x60030004},
                 {L"ApplyFilter", 0x60030005},
                 {L"ResetFilter", 0x60030006},
                 {L"TurnOffFilter", 0x60030007},
                 {L"Active", 0x68030008},
                 {L"ListOfTags", 0x68030009},
                 {L"Filter", 0x6803000A},
                 {L"FilterInPlainEnglish", 0x6803000B},
                 {L"ItemDescription", 0x6803000C},
                 {L"FilterMessage", 0x6803000D},
                 {L"ColumnsToExclude", 0x6803000E},
                 {L"FilterCaption", 0x6803000F},
                 {L"ExtraButtonVisible", 0x68030010},
                 {L"ExtraButtonCaption", 0x68030011},
                 {L"InitialSettings", 0x68030012},
                 {L"BannerButtonVisible", 0x68030013},
                 {L"BannerButtonPicture", 0x68030014}};
  for (const auto& member : members)
    EXPECT_EQ(static_cast<unsigned long>(IdOf(control.Get(), member.name)), member.id)
        << FromWide(member.name).ToUtf8();
}

TEST_F(BannerMembers, OfTextTypeTakeAnyText) {
  for (const wchar_t* name : {L"ItemDescription", L"FilterMessage", L"ColumnsToExclude",
                              L"FilterCaption", L"ExtraButtonCaption"})
    for (const char16_t* text : {u"Trees", u"", u"\x00E9\x4E2D\xD83C\xDF33"}) {
      Put(control, name, text);
      EXPECT_EQ(Get(control, name), Value(text));
    }
}

TEST_F(BannerMembers, SomeCannotBeWritten) {
  for (const wchar_t* name :
       {L"Filter", L"FilterInPlainEnglish", L"ListOfTags", L"InitialSettings"})
    EXPECT_EQ(ErrorOf([&] { Put(control, name, u"x"); }), kMissingMemberError)
        << FromWide(name).ToUtf8();
  EXPECT_EQ(BannerFieldsOf(control), DefaultBannerFields());
}

TEST_F(BannerMembers, OnlySomeReportThatTheyHaveChanged) {
  PropertySink properties(recorder);
  const Connection connected(control.Get(), IID_IPropertyNotifySink, &properties);
  for (const wchar_t* name : {L"ItemDescription", L"FilterMessage", L"ColumnsToExclude",
                              L"FilterCaption", L"ExtraButtonCaption"})
    Put(control, name, u"Trees");
  EXPECT_TRUE(recorder.Shows({}));
  Put(control, L"Enabled", false);
  Put(control, L"ExtraButtonVisible", true);
  Put(control, L"BannerButtonVisible", true);
  PutRef(control, L"BannerButtonPicture", ObjectValue(NewPicture().Get()));
  EXPECT_TRUE(recorder.Shows(
      {"changed 0xFFFFFDFE", "changed 0x68030010", "changed 0x68030013", "changed 0x68030014"}));
  EXPECT_EQ(Get(control, L"Enabled"), Value(false));
}

TEST_F(BannerMembers, ListviewIsAttachedAndDetached) {
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
  PutRef(control, L"Listview", ObjectValue(nullptr));
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
  Put(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_TRUE(IsSameComObject(GetObject(control, L"Listview").Get(), list.Get()));
  Call(control, L"ReleaseListview");
  EXPECT_EQ(Shown(Get(control, L"Listview")), "Nothing");
}

TEST_F(BannerMembers, WhatIsNoObjectIsNoListview) {
  for (const Value& value : {Value(u"list"), Value(5), Value(Value::Null())})
    EXPECT_EQ(ErrorOf([&] { PutRef(control, L"Listview", value); }), "424: Object required");
}

TEST_F(BannerMembers, UnknownNamesAndSurplusArgumentsAreTold) {
  EXPECT_EQ(ErrorOf([&] { Call(control, L"Reset"); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] {
              Call(control, L"ShowFilter", {true, true});
            }),
            "450: Wrong number of arguments or invalid property assignment");
}

TEST_F(BannerMembers, ActivePutTrueWithoutAListReadsTrue) {
  Put(control, L"Active", true);
  EXPECT_EQ(Get(control, L"Active"), Value(true));
  Put(control, L"Active", false);
  EXPECT_EQ(BannerFieldsOf(control), DefaultBannerFields());
}

TEST_F(BannerMembers, ListOfTagsHasACommaBeforeEachTag) {
  const Ref<HostListView> rows = NativeListView(form.List());
  Fill(*rows, {"Name"}, {{"Oak"}, {"Ash"}, {"Elm"}});
  rows->ListItems()->Item(1)->SetTag(u"a");
  rows->ListItems()->Item(3)->SetTag(u"c");
  PutRef(control, L"Listview", ObjectValue(list.Get()));
  EXPECT_EQ(Get(control, L"ListOfTags"), Value(u",a,,c"));
}

TEST_F(BannerMembers, APictureComesBackAsTheSameObject) {
  const ComRef<IPictureDisp> picture = NewPicture();
  PutRef(control, L"BannerButtonPicture", ObjectValue(picture.Get()));
  EXPECT_TRUE(IsSameComObject(PictureOf(control).Get(), picture.Get()));
  PutRef(control, L"BannerButtonPicture", ObjectValue(nullptr));
  EXPECT_EQ(Shown(Get(control, L"BannerButtonPicture")), "Nothing");
}

TEST_F(BannerMembers, WhatIsNoPictureIsRefused) {
  EXPECT_NE(ErrorOf([&] { PutRef(control, L"BannerButtonPicture", ObjectValue(list.Get())); }),
            "nothing");
  EXPECT_NE(ErrorOf([&] { PutRef(control, L"BannerButtonPicture", 5); }), "nothing");
  EXPECT_EQ(Shown(Get(control, L"BannerButtonPicture")), "Nothing");
}

}  // namespace

}  // namespace sifter
