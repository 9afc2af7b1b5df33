#include "HostedBanner.h"

namespace sifter {

namespace {

// What a banner's window says while the host and the user work with the list.
class BannerFollowing : public HostedBanner {
 protected:
  // "contains" and this text on the names, by the dialog.
  void FilterNamesFor(const std::string& text) {
    FilterNames("contains", text);
    recorder.Clear();
  }
};

TEST_F(BannerFollowing, AttachingSaysThatAllAreShown) {
  EXPECT_EQ(Caption(), "Displaying all Items");
}

TEST_F(BannerFollowing, WithoutAFilterTheCaptionCounts) {
  AddRow(*rows, {"Yew", "13"});
  EXPECT_EQ(Caption(), "Displaying 6 of 6 Items");
  rows->ListItems()->Remove(2);
  EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
  Put(control, L"ItemDescription", u"Trees");
  EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
  rows->ListItems()->Clear();
  EXPECT_EQ(Caption(), "Displaying 0 of 0 Trees");
}

TEST_F(BannerFollowing, AShowingEndsWithAnEventCaptionAndTexts) {
  events.handlers[1] = [&] {
    recorder.Line(Caption() + ", Active " + Shown(Active()) + ", Filter " +
                  Shown(Get(control, L"Filter")));
  };
  FilterNames("contains", "r");
  EXPECT_TRUE(recorder.Shows({"frame.EnableModeless False", "frame.EnableModeless True", "event 1",
                              "Displaying 2 of 5 Items, Active False, Filter \"\""}));
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(Active(), Value(true));
  EXPECT_NE(Get(control, L"Filter"), Value(u""));
  EXPECT_NE(Get(control, L"FilterInPlainEnglish"), Value(u""));
  EXPECT_EQ(GetFocus(), form.List());
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(recorder.Lines().back(), "event 2");
  EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"}));
  EXPECT_EQ(Active(), Value(false));
}

TEST_F(BannerFollowing, RowsAddedUnderAFilterAreFilteredALittleLater) {
  FilterNamesFor("r");
  AddRow(*rows, {"Cherry", "13"});
  AddRow(*rows, {"Yew", "15"});
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch", "Cherry", "Yew"}));
  EXPECT_EQ(Caption(), "Displaying 2 of 5 Items");
  WaitForCaption("Displaying 3 of 7 Items");
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch", "Cherry"}));
  EXPECT_TRUE(recorder.Shows({}));
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch", "Cherry", "Yew"}));
}

TEST_F(BannerFollowing, TheTimerNeedsNoWindow) {
  FilterNamesFor("r");
  ASSERT_EQ(container.As<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
  AddRow(*rows, {"Yew", "15"});
  user.Does([&] { user.WaitsFor([&] { return Names() == Strings{"Larch", "Birch"}; }); });
  user.PumpUntilDone();
  container.Activate();
  EXPECT_EQ(Caption(), "Displaying 2 of 6 Items");
}

TEST_F(BannerFollowing, ADeletedRowIsGoneForGood) {
  FilterNamesFor("r");
  rows->ListItems()->Remove(1);
  EXPECT_EQ(Caption(), "Displaying 1 of 4 Items");
  Show([&] { dialog.PressesByMessage("&Reset Filter"); });
  EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Birch"}));
}

TEST_F(BannerFollowing, AClearedListUnderAFilterCountsWhatItHad) {
  FilterNamesFor("r");
  rows->ListItems()->Clear();
  EXPECT_EQ(Caption(), "Displaying 0 of 5 Items");
}

TEST_F(BannerFollowing, ANewColumnEndsTheFilter) {
  FilterNamesFor("r");
  AddColumn(*rows, "Colour");
  EXPECT_TRUE(recorder.Shows({"event 2"}));
  EXPECT_EQ(Caption(), "Displaying all Items");
  EXPECT_EQ(Active(), Value(false));
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
}

TEST_F(BannerFollowing, AFilterAsTextIsAppliedWithoutTheUser) {
  Call(control, L"ApplyFilter", {u"Name..11==r2==*?"});
  EXPECT_EQ(CriteriaDialog::Window(), nullptr);
  EXPECT_TRUE(recorder.Shows({"event 1"}));
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  EXPECT_EQ(Caption(), "Displaying 2 of 5 Items");
  EXPECT_EQ(Active(), Value(true));
}

TEST_F(BannerFollowing, TextsThatAreNoFilterEndInAReset) {
  for (const char16_t* text :
       {u"Name", u"Name..11==r", u"Name11==r==*?", u"Name..1r==*?", u"name..11==r==*?",
        u"Tree..11==r==*?", u"Name..x1==r==*?", u"Name..991==r==*?", u"Name..-11==r==*?",
        u"Name..999991==r==*?", u"*?*?*?", u"..1==*?", u"==*?"}) {
    recorder.Clear();
    EXPECT_EQ(ErrorOf([&] { Call(control, L"ApplyFilter", {text}); }), "nothing")
        << Text(text).ToUtf8();
    EXPECT_TRUE(recorder.Shows({"event 2"})) << Text(text).ToUtf8();
    EXPECT_EQ(CriteriaDialog::Window(), nullptr);
    EXPECT_EQ(Names(), (Strings{"Oak", "Ash", "Elm", "Larch", "Birch"}));
    EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
    EXPECT_EQ(Active(), Value(false));
  }
  recorder.Clear();
  Call(control, L"ApplyFilter", {u""});
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerFollowing, ClicksOnTheHeaderSortTheListWhileItIsAttached) {
  const auto click = [&](int column) {
    NMLISTVIEW notice{};
    notice.hdr.hwndFrom = form.List();
    notice.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(form.List()));
    notice.hdr.code = static_cast<UINT>(LVN_COLUMNCLICK);
    notice.iItem = -1;
    notice.iSubItem = column;
    SendMessageW(form.Parent(), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
  };
  click(0);
  EXPECT_EQ(Names(), (Strings{"Ash", "Birch", "Elm", "Larch", "Oak"}));
  click(0);
  EXPECT_EQ(Names(), (Strings{"Oak", "Larch", "Elm", "Birch", "Ash"}));
  Call(control, L"ReleaseListview");
  click(0);
  EXPECT_EQ(Names(), (Strings{"Oak", "Larch", "Elm", "Birch", "Ash"}));
}

TEST_F(BannerFollowing, ShowFilterWithoutAnArgumentReturnsAtOnce) {
  Call(control, L"ShowFilter");
  EXPECT_NE(CriteriaDialog::Window(), nullptr);
  user.Does([&] {
    dialog.PressesByMessage("&Hide Filter");
    dialog.Goes();
  });
  user.PumpUntilDone();
  EXPECT_EQ(recorder.Lines(), Strings{});
}

TEST_F(BannerFollowing, ASecondModalShowingIsRefused) {
  std::string error;
  Show([&] { error = ErrorOf([&] { Call(control, L"ShowFilter", {true}); }); });
  EXPECT_EQ(error, "400: Form already displayed; can't show modally");
}

TEST_F(BannerFollowing, ADesignedFormIsLeftAlone) {
  container.Remove();
  ListViewOnAForm designed;
  ComRef<IDispatch> object;
  ASSERT_EQ(CreateListViewObject(designed.List(), object.Receive()), S_OK);
  const LONG_PTR procedure = GetWindowLongPtrW(designed.List(), GWLP_WNDPROC);
  Container second(designed.Parent(), recorder);
  second.Offers(DISPID_AMBIENT_USERMODE, false);
  const ComRef<IDispatch> banner = Create(kBanner);
  second.Place(banner);
  PutRef(banner, L"Listview", ObjectValue(object.Get()));
  EXPECT_EQ(GetWindowLongPtrW(designed.List(), GWLP_WNDPROC), procedure);
  second.Offers(DISPID_AMBIENT_USERMODE, true);
  second.Tells(DISPID_AMBIENT_USERMODE);
  EXPECT_NE(GetWindowLongPtrW(designed.List(), GWLP_WNDPROC), procedure);
}

TEST_F(BannerFollowing, BothControlsWorkOnOneList) {
  Container second(form.Parent(), recorder);
  second.site.position = {10, 45, 110, 75};
  const ComRef<IDispatch> button = Create();
  second.Place(button);
  second.Activate();
  PutRef(button, L"Listview", ObjectValue(list.Get()));
  FilterNamesFor("r");
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
  ShowBy([&] { Call(button, L"ShowFilter"); },
         [&] { dialog.FiltersByMessages(0, "contains", "a"); });
  EXPECT_EQ(Names(), (Strings{"Larch"}));
  EXPECT_EQ(Get(button, L"Active"), Value(true));
  EXPECT_EQ(Caption(), "Displaying 1 of 4 Items") << "as if the host had taken a row out";
  ShowBy([&] { Call(button, L"ShowFilter"); }, [&] { dialog.PressesByMessage("&Reset Filter"); });
  user.Does([&] { user.WaitsFor([&] { return Caption() == "Displaying 2 of 5 Items"; }); });
  user.PumpUntilDone();
  EXPECT_EQ(Names(), (Strings{"Larch", "Birch"}));
}

}  // namespace

}  // namespace sifter
