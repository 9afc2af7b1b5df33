#include "BannerOnAForm.h"
#include "TalkativeList.h"

namespace sifter {

namespace {

using BannerShowing = BannerOnAForm;

const char* const kShown = "show modal \"Tarvenn Software Row Sifter\"";
const char* const kNoCloseEntry = "delete system menu entry 6";
const char* const kEnds = "modal showing ends";
const char* const kAlreadyShown = "400: Form already displayed; can't show modally";

TEST_F(BannerShowing, WithoutAListThereIsNoneAndTheNextListIsWatched) {
  control.ShowFilter(true);
  control.ShowFilter(false);
  LoadActive();
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(control.Active());
  Attach();
  AddRow(*list, {"Fir", "1", ""});
  EXPECT_TRUE(recorder.Shows({"Timer1.Enabled True"}));
}

TEST_F(BannerShowing, OfAnEmptyListThereIsNoneAndItsRowsAreWatched) {
  const Ref<MemoryListView> empty = MakeList({"Name"});
  const MemoryListWindow emptyWindow(windows, *empty);
  const auto foreign = Foreign(empty);
  control.SetListview(foreign);
  control.SetFilterCaption(u"Trees");
  const std::string before = DumpForm(dialog);
  recorder.Clear();
  control.ShowFilter(true);
  control.ShowFilter(false);
  EXPECT_TRUE(recorder.Shows({"ListItems", "ListItems.Count", "ListItems", "ListItems.Count"}));
  EXPECT_EQ(DumpForm(dialog), before);
  AddRow(*empty, {"Oak"});
  EXPECT_EQ(Caption(), u"Displaying 1 of 1 Items");
}

TEST_F(BannerShowing, OfAnEmptyListThereIsOneWhileAFilterIsInForce) {
  AttachAndFilter();
  list->ListItems()->Clear();
  UserResets();
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
}

TEST_F(BannerShowing, ThatFiltersEndsInThisOrder) {
  Attach();
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cboCriteria(0)", "focus cmdReset",
                              "hide", kEnds, "cmdFilter.Picture \"FilterFull\"",
                              "lblDisplaying.Caption \"Displaying 12 of 40 Items\"",
                              "cmdFilter.ToolTipText \"List is Filtered\"",
                              "raise FilterActivated, Active False, Filter \"\"", "focus to 101"}));
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
  EXPECT_EQ(control.FilterInPlainEnglish(), u"Name contains Oak");
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerShowing, ThatResetsEndsInThisOrder) {
  AttachAndFilter();
  UserResets();
  control.ShowFilter(true);
  EXPECT_TRUE(recorder.Shows(
      {kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds, "cmdFilter.Picture \"FilterEmpty\"",
       "lblDisplaying.Caption \"Displaying 40 of 40 Items\"",
       "cmdFilter.ToolTipText \"List is not Filtered\"",
       "raise FilterDeactivated, Active True, Filter \"(Name like '*Oak*')\"", "focus to 101"}));
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_EQ(control.FilterInPlainEnglish(), u"");
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerShowing, ThatIsHiddenCountsTheRowsAndRaisesDeactivatedEachTime) {
  Attach();
  UserHides();
  control.ShowFilter(true);
  EXPECT_TRUE(
      recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                      "lblDisplaying.Caption \"Displaying 40 of 40 Items\"",
                      "cmdFilter.ToolTipText \"List is not Filtered\"",
                      "raise FilterDeactivated, Active False, Filter \"\"", "focus to 101"}));
  recorder.Clear();
  UserHides();
  control.ShowFilter(true);
  EXPECT_TRUE(
      recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                      "raise FilterDeactivated, Active False, Filter \"\"", "focus to 101"}));
}

TEST_F(BannerShowing, ThatIsHiddenUnderAFilterRaisesActivatedEachTime) {
  AttachAndFilter();
  for (int i = 0; i < 2; ++i) {
    UserHides();
    recorder.Clear();
    control.ShowFilter(true);
    EXPECT_TRUE(recorder.Shows(
        {kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
         "raise FilterActivated, Active True, Filter \"(Name like '*Oak*')\"", "focus to 101"}));
  }
}

TEST_F(BannerShowing, WorksWithoutHandlers) {
  control.FilterActivated = nullptr;
  control.FilterDeactivated = nullptr;
  AttachAndFilter();
  EXPECT_TRUE(control.Active());
  UserResets();
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
}

TEST_F(BannerShowing, IsWhatAClickOnTheFilterButtonGives) {
  Attach();
  UserHides();
  control.cmdFilter.SetValue(true);
  EXPECT_EQ(recorder.Lines().front(), kShown);
  control.SetUserMode(false);
  recorder.Clear();
  control.cmdFilter.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerShowing, ByAClickShowsAnErrorInTheErrorBox) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItems.Count", 1, RuntimeError(35601, u"Element not found"));
  control.cmdFilter.SetValue(true);
  EXPECT_EQ(prompts.Boxes(), Names{ErrorBox("35601, Element not found")});
}

TEST_F(BannerShowing, IgnoresWhatHappensToTheRowsMeanwhile) {
  Attach();
  forms.During([this] {
    recorder.Clear();
    AddRow(*list, {"Oak 41", "1", "1/1/2005"});
    list->ListItems()->Remove(1);
    EXPECT_TRUE(recorder.Shows({}));
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(Face()[1], "Displaying 40 of 40 Items");
}

// The dialog refills the list and filters it: 40 rows come and 28 go.
TEST_F(BannerShowing, TheDialogsOwnApplyAndResetChangeNoCaption) {
  AttachAndFilter();
  const auto quietly = [this](CommandButton& button) {
    forms.During([this, &button] {
      recorder.Clear();
      button.SetValue(true);
      EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide"}));
    });
    control.ShowFilter(true);
  };
  quietly(dialog.cmdApply);
  EXPECT_FALSE(control.Timer1.Enabled());
  quietly(dialog.cmdReset);
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerShowing, ModelessReturnsAtOnceAndFollowsNothing) {
  Attach();
  control.ShowFilter(false);
  EXPECT_TRUE(recorder.Shows({"show \"Tarvenn Software Row Sifter\"", kNoCloseEntry}));
  EXPECT_TRUE(dialog.Visible());
  recorder.Clear();
  Ask(u"Oak");
  dialog.cmdApply.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"focus cboCriteria(0)", "focus cmdReset", "hide"}));
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all Items", ""}));
}

TEST_F(BannerShowing, ModelessLeavesNoticesIgnoredUntilAModalOneHasEnded) {
  Attach();
  control.ShowFilter(false);
  dialog.cmdHideFilter.SetValue(true);
  recorder.Clear();
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  list->ListItems()->Remove(1);
  EXPECT_TRUE(recorder.Shows({}));
  UserHides();
  control.ShowFilter(true);
  recorder.Clear();
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  EXPECT_TRUE(recorder.Shows({"lblDisplaying.Caption \"Displaying 41 of 41 Items\""}));
}

// What the user filtered in a modeless dialog is all there is for the next modal one.
TEST_F(BannerShowing, ModalAfterAModelessOneStartsFromTheRowsOnView) {
  Attach();
  control.ShowFilter(false);
  Ask(u"Oak");
  dialog.cmdApply.SetValue(true);
  UserHides();
  control.ShowFilter(true);
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying 12 of 12 Items", "List is not Filtered"}));
  EXPECT_EQ(FirstTexts(*dialog.ListView1), Oaks());
}

TEST_F(BannerShowing, ModalHidesAModelessOneFirst) {
  Attach();
  control.ShowFilter(false);
  recorder.Clear();
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(recorder.Lines()[0], "focus cmdReset");
  EXPECT_EQ(recorder.Lines()[1], "hide");
  EXPECT_EQ(recorder.Lines()[2], kShown);
  control.ShowFilter(false);
  EXPECT_TRUE(dialog.Visible());
  UserResets();
  recorder.Clear();
  control.ShowFilter(true);
  EXPECT_EQ(recorder.Lines()[0], "hide");
  EXPECT_EQ(recorder.Lines()[1], kShown);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerShowing, InsideAModalOneIsAnErrorBeforeAnythingIsPrepared) {
  Attach();
  forms.During([this] {
    Ask(u"Oak");
    control.SetFilterCaption(u"Trees");
    const std::string before = DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1);
    EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), kAlreadyShown);
    EXPECT_EQ(ErrorOf([&] { control.SetActive(true); }), kAlreadyShown);
    control.ShowFilter(false);
    EXPECT_EQ(DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1), before);
    AddRow(*list, {"Oak 41", "1", "1/1/2005"});
    EXPECT_EQ(Caption(), u"Displaying all Items") << "no longer busy";
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
}

TEST_F(BannerShowing, PassesAnErrorOfTheListOnAsItIs) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItems.Count", 1, RuntimeError(35601, u"Element not found"));
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), "35601: Element not found");
  EXPECT_EQ(prompts.Boxes(), Names{});
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items");
}

TEST_F(BannerShowing, PassesAnErrorOfTheListInFollowingItsRowsOn) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  control.SetListview(foreign);
  Filter(u"Oak");
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  foreign->Lack("ListView.ColumnHeaders");
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(true); }), kMissingMemberError);
  EXPECT_FALSE(dialog.Visible());
  EXPECT_TRUE(control.Active());
  control.Timer1.SetEnabled(false);
  AddRow(*list, {"Oak 42", "1", "1/1/2005"});
  EXPECT_TRUE(control.Timer1.Enabled()) << "still busy";
}

TEST_F(BannerShowing, ThatTheScreenRefusesIsAnErrorAndNoticesGoOn) {
  Attach();
  forms.RefuseToShow(RuntimeError(ErrorNumber::kOutOfMemory));
  for (const bool modal : {true, false}) {
    EXPECT_EQ(ErrorOf([&] { control.ShowFilter(modal); }), "7: Out of memory");
    recorder.Clear();
    AddRow(*list, {"Fir", "1", "1/1/2005"});
    EXPECT_EQ(recorder.Lines().size(), 1u);
  }
  EXPECT_EQ(Caption(), u"Displaying 42 of 42 Items");
  EXPECT_FALSE(control.Active());
  forms.ShowAgain();
  Filter(u"Oak");
  EXPECT_TRUE(control.Active());
}

}  // namespace

}  // namespace sifter
