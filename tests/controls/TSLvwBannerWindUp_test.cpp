#include "BannerOnAForm.h"
#include "TalkativeList.h"
#include "support/LifeProbe.h"

namespace sifter {

namespace {

// How a showing ends, and what a host may do meanwhile.
class BannerWindUp : public BannerOnAForm {
 protected:
  Names Said() const {
    return {Shown(Value(control.Active())), Quoted(control.Filter()),
            Quoted(control.FilterInPlainEnglish())};
  }
};

TEST_F(BannerWindUp, HandlersSeeTheNewFaceAndTheOldState) {
  Attach();
  Names seen;
  control.FilterActivated = [&] {
    seen = Said();
    for (const std::string& line : Face()) seen.push_back(line);
    seen.push_back(dialog.UsersListview ? "list there" : "list gone");
    AddRow(*list, {"Oak 41", "1", "1/1/2005"});  // ignored as yet
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(seen, (Names{"False", "\"\"", "\"\"", "FilterFull", "Displaying 12 of 40 Items",
                         "List is Filtered", "list there"}));
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  EXPECT_FALSE(control.Timer1.Enabled());
  EXPECT_EQ(Said(), (Names{"True", "\"(Name like '*Oak*')\"", "\"Name contains Oak\""}));
}

// The row that the handler has added is in no copy of the dialog's.
TEST_F(BannerWindUp, RowsThatHandlersAddAreNotLost) {
  Attach();
  control.FilterActivated = [&] { AddRow(*list, {"Oak 41", "1", "1/1/2005"}); };
  Filter(u"Oak");
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(list->ListItems()->Count(), 41);
}

// By then it is active and not busy any more; the texts come behind.
TEST_F(BannerWindUp, TheFocusComesAfterTheEventAndBeforeTheTexts) {
  const auto talkative = MakeRef<TalkativeList>(list);
  control.SetListview(talkative);
  Names seen;
  talkative->OnFocus = [&] {
    seen = Said();
    seen.push_back(dialog.UsersListview ? "list there" : "list gone");
    AddRow(*list, {"Oak 41", "1", "1/1/2005"});
    seen.push_back(control.Timer1.Enabled() ? "noticed" : "ignored");
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(seen, (Names{"True", "\"\"", "\"\"", "list there", "noticed"}));
  EXPECT_EQ(dialog.UsersListview, nullptr);
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
  EXPECT_EQ(windows.Focus(), 0) << "given to the window though the list took it";
}

TEST_F(BannerWindUp, AListThatLacksTheMemberHasItsWindowFocused) {
  AttachAndFilter();
  EXPECT_EQ(windows.Focus(), 101);
}

TEST_F(BannerWindUp, AListThatRefusesTheFocusIsAnErrorBehindAllElse) {
  const auto talkative = MakeRef<TalkativeList>(list);
  control.SetListview(talkative);
  talkative->OnFocus = [] { throw RuntimeError(ErrorNumber::kInvalidProcedureCall); };
  UserFilters(u"Oak");
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), kBadKeyError);
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(dialog.UsersListview, nullptr);
  EXPECT_EQ(windows.Focus(), 0);
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  EXPECT_TRUE(control.Timer1.Enabled()) << "still busy";
}

TEST_F(BannerWindUp, AListDetachedByTheHandlerIsLeftOut) {
  Attach();
  control.FilterActivated = [&] { control.SetListview(nullptr); };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(Face(), (Names{"FilterFull", "Displaying 12 of 40 Items", "List is Filtered"}));
  EXPECT_EQ(Said(), (Names{"True", "\"(Name like '*Oak*')\"", "\"Name contains Oak\""}));
  EXPECT_EQ(windows.Focus(), 0);
  EXPECT_EQ(dialog.UsersListview, nullptr);
}

TEST_F(BannerWindUp, AListDetachedDuringTheShowingIsLeftOut) {
  Attach();
  forms.During([this] {
    Ask(u"Oak");
    dialog.cmdApply.SetValue(true);
    control.SetListview(nullptr);
    recorder.Clear();
  });
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows({"modal showing ends", "cmdFilter.Picture \"FilterFull\"",
                              "cmdFilter.ToolTipText \"List is Filtered\"",
                              "raise FilterActivated, Active False, Filter \"\""}));
  EXPECT_EQ(Caption(), u"Displaying all Items");
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerWindUp, AShowingCanFollowFromAHandler) {
  Attach();
  int alive = 0;
  control.FilterActivated = [this, &alive, probe = MakeRef<LifeProbe>(alive)] {
    control.FilterActivated = nullptr;
    EXPECT_EQ(alive, 1) << "the handler has gone while it runs";
    UserResets();
    control.ShowFilter(true);
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(Texts(*list), kTrees);
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying 40 of 40 Items", "List is not Filtered"}));
  EXPECT_EQ(Said(), (Names{"False", "\"\"", "\"\""}));
}

// Active is still False then, but the dialog holds all rows and must not be set up from those that
// are left.
TEST_F(BannerWindUp, AHandlersShowingFindsAllRows) {
  Attach();
  control.FilterActivated = [this] {
    control.FilterActivated = nullptr;
    UserHides();
    control.ShowFilter(true);
    EXPECT_EQ(Texts(*dialog.ListView1), kTrees);
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_TRUE(control.Active());
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerWindUp, AHandlersShowingOfAFilterThatNoRowPassesFindsAllRows) {
  Attach();
  control.FilterActivated = [this] {
    control.FilterActivated = nullptr;
    UserResets();
    control.ShowFilter(true);
  };
  UserFilters(u"zzz");
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerWindUp, AHandlerMayDeactivate) {
  Attach();
  control.FilterActivated = [&] { control.DeactivateFilter(); };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  UserApplies();
  control.FilterActivated = nullptr;
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*list), Oaks()) << "an emptied copy was put into the list";
  EXPECT_EQ(dialog.ListView1->ColumnHeaders()->Count(), 3) << "not set up again";
}

TEST_F(BannerWindUp, ShowsPlainNumbersAndTheWordOfNow) {
  control.SetItemDescription(u"");
  AttachAndFilter();
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 ");
  control.SetItemDescription(u"Trees");
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 ");
  UserFilters(u"zzz");
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 0 of 40 Trees");
}

TEST_F(BannerWindUp, AChangeOfActiveIsAChangedSetting) {
  Attach();
  int changes = 0;
  control.SettingChanged = [&] { ++changes; };
  UserHides();
  control.ShowFilter(true);
  EXPECT_EQ(changes, 0);
  Filter(u"Oak");
  Filter(u"Elm");
  EXPECT_EQ(changes, 1);
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(changes, 2);
}

// Rows that were filtered out can only come back as long as the control knows that they were.
TEST_F(BannerWindUp, MoreRowsThanTheCaptionCanCountAreAnErrorThatLosesNone) {
  const Ref<MemoryListView> many = MakeList({"Name"});
  const MemoryListWindow manyWindow(windows, *many);
  for (int i = 1; i <= 32767; ++i) AddRow(*many, {i == 7 ? "Oak" : "Elm"});
  control.SetListview(many);
  Filter(u"Oak");
  EXPECT_EQ(Caption(), u"Displaying 1 of 32767 Items");
  AddRow(*many, {"Fir"});
  UserHides();
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), kOverflowError);
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(FirstTexts(*many), Names{"Oak"});
  UserResets();
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), kOverflowError);
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(many->ListItems()->Count(), 32768);
}

TEST_F(BannerWindUp, OfAControlThatIsTakenDownMeanwhileThereIsNone) {
  Attach();
  forms.During([this] {
    control.Terminate();
    recorder.Clear();
  });
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows({"modal showing ends"}));
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows({"modal showing ends"}));
}

TEST_F(BannerWindUp, AColumnInsertedUnderAnOpenDialogTakesTheFilterAndNoRow) {
  AttachAndFilter();
  forms.During([this] {
    recorder.Clear();
    AddColumn(*list, "Height");
    EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide", "cmdFilter.Picture \"FilterEmpty\"",
                                "lblDisplaying.Caption \"Displaying all Items\"",
                                "cmdFilter.ToolTipText \"List is not Filtered\"",
                                "raise FilterDeactivated, Active False, Filter \"\""}));
    EXPECT_FALSE(dialog.Visible());
    dialog.cmdApply.SetValue(true);
    dialog.cmdReset.SetValue(true);
    EXPECT_EQ(FirstTexts(*list), Oaks());
  });
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
  for (const bool apply : {true, false}) {
    apply ? UserApplies() : UserResets();
    control.ShowFilter(true);
    EXPECT_EQ(FirstTexts(*list), Oaks());
  }
}

}  // namespace

}  // namespace sifter
