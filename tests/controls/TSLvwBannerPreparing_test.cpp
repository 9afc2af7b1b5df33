#include "BannerOnAForm.h"
#include "TalkativeList.h"

namespace sifter {

namespace {

// How a showing makes the dialog ready.
class BannerPreparing : public BannerOnAForm {
 protected:
  void Show() {
    UserHides();
    control.ShowFilter(true);
  }
  void Reset() {
    UserResets();
    control.ShowFilter(true);
  }
};

TEST_F(BannerPreparing, TheFirstShowingStartsAfresh) {
  Attach();
  Show();
  EXPECT_EQ(DumpRows(*dialog.ListView1), DumpRows(*list));
  EXPECT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 0);
  EXPECT_EQ(DumpDialog(dialog),
            R"(active False
filter ""
english ""
"Name" type "0" "All" text "" from "" to "" dates #39248# #39248# shows
"Qty" type "1" "All" text "" from "" to "" dates #39248# #39248# shows
"Planted" type "2" "All" text "" from "" to "" dates #39248# #39248# shows
)");
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(BannerPreparing, PromptTitleAndExtraButtonComeInThisOrder) {
  Attach();
  control.SetFilterMessage(u"Which?");
  control.SetFilterCaption(u"Trees");
  control.SetExtraButtonVisible(true);
  control.SetExtraButtonCaption(u"Print");
  recorder.Clear();
  WatchDialog();
  Show();
  EXPECT_EQ(Names(recorder.Lines().begin(), recorder.Lines().begin() + 4),
            (Names{"lblCaption.Caption \"Which?\"", "title \"Trees\"", "cmdReport.Visible True",
                   "cmdReport.Caption \"Print\""}));
}

// Which is before the dialog is given the list, and after the notices have been turned off.
TEST_F(BannerPreparing, TheListIsHandedOverBehindThem) {
  Attach();
  control.SetFilterCaption(u"Trees");
  Names seen;
  dialog.Changed = [&] {
    if (!seen.empty()) return;
    const Text before = Caption();
    AddRow(*list, {"Oak 41", "1", "1/1/2005"});
    seen = {dialog.UsersListview ? "handed over" : "not handed over",
            Caption() == before ? "busy" : "not busy"};
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(seen, (Names{"not handed over", "busy"}));
  EXPECT_EQ(Caption(), u"Displaying 13 of 41 Items");
}

// The criteria are cleared, the columns go and come back with the rows.
TEST_F(BannerPreparing, StartingAfreshGoesInOrder) {
  const Ref<MemoryListView> trees = MakeList({"Name"}, {{"Oak"}, {"Elm"}});
  const auto foreign = Foreign(trees);
  foreign->RecordNothing();
  control.SetListview(foreign);
  control.ShowFilter(false);
  Ask(u"a");
  trees->ColumnHeaders()->Item(1)->SetText(u"Tree");
  foreign->RecordOnly({"ListItems.Count", "ColumnHeaders.Count", "ColumnHeader.Text"});
  recorder.Clear();
  WatchDialog();
  Show();
  EXPECT_EQ(prompts.Boxes(), Names{});
  const Names start(recorder.Lines().begin(), recorder.Lines().begin() + 8);
  EXPECT_EQ(start, (Names{
                       "ListItems.Count",  // is it empty?
                       "cboOperator(0).ListIndex 0",
                       "cboCriteria(0).Visible False",
                       "focus cmdReset",
                       "hide",
                       "ColumnHeaders.Count",
                       "ColumnHeaders(1).Text",
                       "ListItems.Count",
                   }));
  EXPECT_EQ(DumpColumns(*dialog.ListView1),
            "column 1: Key=\"\" Text=\"Tree\" Width=1440 Alignment=0 Icon=0\n");
}

TEST_F(BannerPreparing, AMereHideShowsNoBoxTheNextTime) {
  Attach();
  for (int i = 0; i < 3; ++i) Show();
  EXPECT_EQ(prompts.Boxes(), Names{});
  EXPECT_EQ(Texts(*dialog.ListView1), kTrees);
  EXPECT_EQ(dialog.ColumnCount(), 3);
  Filter(u"Oak");
  Reset();
  Show();
  Show();
  EXPECT_EQ(prompts.Boxes(), Names{});
  EXPECT_EQ(Texts(*dialog.ListView1), kTrees);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerPreparing, WithoutAFilterTheUsersCriteriaAreCleared) {
  Attach();
  forms.During([this] {
    Ask(u"half-typed");
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"contains");
  Show();
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
}

TEST_F(BannerPreparing, AFilterIsShownAsItWasLeftWithoutReadingTheList) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  control.SetListview(foreign);
  Filter(u"Oak");
  dialog.cboCriteria[0].SetText(u"half-typed");
  const std::string before = DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) +
                             Dump(*dialog.lvwCopyOfFiltered);
  foreign->RecordAll();
  recorder.Clear();
  forms.During([&] {
    EXPECT_TRUE(recorder.Shows({"ListItems", "ListItems.Count",
                                "show modal \"Tarvenn Software Row Sifter\"",
                                "delete system menu entry 6"}));
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) +
                Dump(*dialog.lvwCopyOfFiltered),
            before);
}

TEST_F(BannerPreparing, AFilterIsShownWithTheRowsThatCameSince) {
  AttachAndFilter();
  const std::string before = DumpDialog(dialog);
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  AddRow(*list, {"Fir 42", "1", "1/1/2005"});
  forms.During([&] {
    EXPECT_EQ(list->ListItems()->Count(), 13);
    EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 42);
    EXPECT_EQ(dialog.UsersListview, list);
    EXPECT_EQ(DumpDialog(dialog), before);
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 13 of 42 Items");
  Reset();
  EXPECT_EQ(Caption(), u"Displaying 42 of 42 Items");
}

// The rows that came are not forgotten by the showing, so the timer looks at the list once more.
TEST_F(BannerPreparing, TheTimerFollowsOnceMoreBehindIt) {
  AttachAndFilter();
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  Show();
  EXPECT_TRUE(control.Timer1.Enabled());
  recorder.Clear();
  Tick();
  EXPECT_TRUE(recorder.Shows({"Timer1.Enabled False"}));
  EXPECT_EQ(Caption(), u"Displaying 13 of 41 Items");
}

// Active alone says nothing about the dialog's copy of the rows.
TEST_F(BannerPreparing, AControlLoadedActiveStartsAfreshAndApplyKeepsTheRows) {
  LoadActive();
  Attach();
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
  EXPECT_EQ(Caption(), u"Displaying 40 of 40 Items");
  EXPECT_TRUE(control.Active());
}

TEST_F(BannerPreparing, ActivePutOnAnEmptyListStartsAfreshAndApplyKeepsTheRows) {
  const Ref<MemoryListView> trees = MakeList({"Name"});
  const MemoryListWindow treesWindow(windows, *trees);
  control.SetListview(trees);
  control.SetActive(true);
  AddRow(*trees, {"Oak"});
  AddRow(*trees, {"Elm"});
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 2 of 2 Items");
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*trees), (Names{"Oak", "Elm"}));
}

TEST_F(BannerPreparing, AnotherListStartsAfreshAndApplyKeepsItsRows) {
  AttachAndFilter();
  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Fir"}, {"Yew"}});
  const MemoryListWindow otherWindow(windows, *other);
  control.SetListview(other);
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*other), (Names{"Fir", "Yew"}));
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerPreparing, TheSameListInAnotherWindowStartsAfresh) {
  AttachAndFilter();
  control.SetListview(nullptr);
  list->SetWindow(0);
  control.SetListview(list);
  Show();
  EXPECT_EQ(FirstTexts(*dialog.ListView1), Oaks());
  list->SetWindow(window.Handle());
}

TEST_F(BannerPreparing, TheSameListDetachedAndAttachedIsShownAsItWasLeft) {
  AttachAndFilter();
  const std::string before = DumpDialog(dialog) + Dump(*dialog.ListView1);
  control.SetListview(nullptr);
  control.SetListview(list);
  Show();
  EXPECT_EQ(DumpDialog(dialog) + Dump(*dialog.ListView1), before);
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  Reset();
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerPreparing, RowsThatCameAndWentWhileItWasDetachedAreTakenOverByTheNextApply) {
  AttachAndFilter();
  control.SetListview(nullptr);
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  list->ListItems()->Remove(1);
  control.SetListview(list);
  Reset();
  TextRows expected(kTrees.begin() + 1, kTrees.end());
  expected.push_back({"Oak 41", "1", "1/1/2005"});
  EXPECT_EQ(Texts(*list), expected);
}

// What happens to the other list must not touch the copies of the first one.
TEST_F(BannerPreparing, AListAttachedInBetweenLeavesTheCopiesOfTheFirstAlone) {
  AttachAndFilter();
  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Fir"}, {"Yew"}});
  AddRow(*other, {"Oak 1"});
  const MemoryListWindow otherWindow(windows, *other);
  control.SetListview(other);
  AddRow(*other, {"Oak 41"});
  Tick();
  other->ListItems()->Remove(1);
  other->ListItems()->Clear();
  control.SetListview(list);
  Reset();
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerPreparing, AHostThatDeactivatesMeanwhileEndsTheShowingBeforeItStarts) {
  const auto talkative = MakeRef<TalkativeList>(list);
  control.SetListview(talkative);
  recorder.Clear();
  int asked = 0;
  talkative->OnRows = [&] {
    if (++asked == 2) control.DeactivateFilter();
  };
  control.ShowFilter(true);
  EXPECT_GE(asked, 2);
  EXPECT_TRUE(recorder.Shows({"cmdFilter.ToolTipText \"List is not Filtered\""}));
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items") << "still busy";
}

TEST_F(BannerPreparing, AfterADeactivationStartsAfreshFromTheRowsOnView) {
  AttachAndFilter();
  control.DeactivateFilter();
  control.SetActive(false);
  Show();
  EXPECT_EQ(FirstTexts(*dialog.ListView1), Oaks());
  EXPECT_EQ(Caption(), u"Displaying 12 of 12 Items");
}

}  // namespace

}  // namespace sifter
