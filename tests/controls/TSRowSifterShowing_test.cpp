#include "SifterOnAForm.h"
#include "TalkativeList.h"
#include "support/LifeProbe.h"
#include "support/ListObserverRecorder.h"

#include <set>

namespace sifter {

namespace {

using SifterShowing = SifterOnAForm;

const char* const kShown = "show modal \"Tarvenn Software Row Sifter\"";
const char* const kNoCloseEntry = "delete system menu entry 6";
const char* const kAsked = "focus cboCriteria(0)";  // an operator was chosen
const char* const kEnds = "modal showing ends";
const char* const kAlreadyShown = "400: Form already displayed; can't show modally";

TEST_F(SifterShowing, WithoutAListThereIsNone) {
  control.ShowFilter();
  LoadActive();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterShowing, OfAnEmptyListThereIsNoneAndThePromptStays) {
  const auto empty = Foreign(MakeList({"Name", "Qty"}));
  control.SetListview(empty);
  control.SetFilterMessage(u"What?");
  control.SetFilterCaption(u"Trees");
  const std::string before = DumpForm(dialog);
  recorder.Clear();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({"ListItems", "ListItems.Count"}));
  EXPECT_EQ(DumpForm(dialog), before);
}

TEST_F(SifterShowing, OfAnEmptyListThereIsOneWhileAFilterIsInForce) {
  LoadActive();
  const Ref<MemoryListView> empty = MakeList({"Name", "Qty"});
  control.SetListview(empty);
  UserHides();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                              "raise FilterDeactivated, Active True"}));
  EXPECT_EQ(dialog.UsersListview, empty);
  EXPECT_EQ(dialog.ColumnCount(), 2);
}

TEST_F(SifterShowing, ThatIsHiddenRaisesDeactivated) {
  control.SetListview(list);
  UserHides();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                              "raise FilterDeactivated, Active False"}));
  EXPECT_FALSE(control.Active());
}

TEST_F(SifterShowing, ThatAppliesRaisesActivatedAndThenBecomesActive) {
  control.SetListview(list);
  UserFilters(u"a");
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, kAsked, "focus cmdReset", "hide", kEnds,
                              "raise FilterActivated, Active False"}));
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
}

TEST_F(SifterShowing, ThatResetsRaisesDeactivatedAndThenBecomesInactive) {
  control.SetListview(list);
  Filter(u"a");
  UserResets();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                              "raise FilterDeactivated, Active True"}));
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(SifterShowing, RaisesOneEventEachTimeThoughNothingHasChanged) {
  control.SetListview(list);
  Filter(u"a");
  for (int i = 0; i < 2; ++i) {
    UserHides();
    recorder.Clear();
    control.ShowFilter();
    EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                                "raise FilterActivated, Active True"}));
  }
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
}

TEST_F(SifterShowing, ThatChangesActiveHasChangedASetting) {
  control.SetListview(list);
  int changes = 0;
  control.SettingChanged = [&] { ++changes; };
  UserHides();
  control.ShowFilter();
  EXPECT_EQ(changes, 0);
  UserApplies();
  control.ShowFilter();
  EXPECT_EQ(changes, 1);
  UserApplies();
  control.ShowFilter();
  EXPECT_EQ(changes, 1);
  UserResets();
  control.ShowFilter();
  EXPECT_EQ(changes, 2);
}

TEST_F(SifterShowing, WorksWithoutHandlers) {
  control.FilterActivated = nullptr;
  control.FilterDeactivated = nullptr;
  control.SetListview(list);
  Filter(u"a");
  EXPECT_TRUE(control.Active());
  UserResets();
  control.ShowFilter();
  EXPECT_FALSE(control.Active());
}

TEST_F(SifterShowing, CarriesTheTitleAndPromptOfNow) {
  control.SetListview(list);
  Filter(u"a");
  EXPECT_EQ(dialog.lblCaption.Caption(), u"Please enter criteria to apply to your listview");
  control.SetFilterCaption(u"Trees");
  control.SetFilterMessage(u"Which trees?");
  UserHides();
  recorder.Clear();
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows({"show modal \"Trees\"", kNoCloseEntry, "focus cmdReset", "hide",
                              kEnds, "raise FilterActivated, Active True"}));
  EXPECT_EQ(dialog.lblCaption.Caption(), u"Which trees?");
}

TEST_F(SifterShowing, IsWhatAClickOnTheButtonGives) {
  control.SetListview(list);
  UserHides();
  control.cmdFilter.SetValue(true);
  EXPECT_TRUE(recorder.Shows({kShown, kNoCloseEntry, "focus cmdReset", "hide", kEnds,
                              "raise FilterDeactivated, Active False"}));
}

TEST_F(SifterShowing, OnAFormThatIsBeingDesignedNoClickGives) {
  control.SetUserMode(false);
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  control.cmdFilter.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
  control.SetUserMode(true);
  UserHides();
  control.cmdFilter.SetValue(true);
  EXPECT_EQ(recorder.Lines().back(), "raise FilterDeactivated, Active False");
}

TEST_F(SifterShowing, PassesAnErrorOfTheListOnAsItIs) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItems.Count", 1, RuntimeError(35601, u"Element not found"));
  recorder.Clear();
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(); }), "35601: Element not found");
  EXPECT_TRUE(recorder.Shows({"ListItems", "ListItems.Count", "raises 35601"}));
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(SifterShowing, ByAClickShowsSuchAnErrorInTheErrorBox) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItems.Count", 1, RuntimeError(35601, u"Element not found"));
  control.cmdFilter.SetValue(true);
  EXPECT_EQ(prompts.Boxes(), Names{ErrorBox("35601, Element not found")});
}

TEST_F(SifterShowing, ThatTheScreenRefusesIsAnErrorWithoutAnEvent) {
  control.SetListview(list);
  forms.RefuseToShow(RuntimeError(ErrorNumber::kOutOfMemory));
  EXPECT_EQ(ErrorOf([&] { control.ShowFilter(); }), "7: Out of memory");
  EXPECT_TRUE(recorder.Shows({kShown}));
  EXPECT_FALSE(control.Active());
  forms.ShowAgain();
  Filter(u"a");
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterShowing, InsideAShowingIsAnErrorBeforeAnythingIsPrepared) {
  control.SetListview(list);
  forms.During([this] {
    AddRow(*list, {"Fir", "1"});
    Ask(u"a");
    control.SetFilterCaption(u"Trees");
    const std::string before = DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1);
    EXPECT_EQ(ErrorOf([&] { control.ShowFilter(); }), kAlreadyShown);
    EXPECT_EQ(ErrorOf([&] { control.SetActive(true); }), kAlreadyShown);
    control.cmdFilter.SetValue(true);
    EXPECT_EQ(DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1), before);
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter();
  EXPECT_EQ(prompts.Boxes(), Names{ErrorBox("400, Form already displayed; can't show modally")});
  EXPECT_TRUE(recorder.Shows(
      {kShown, kNoCloseEntry, kAsked, "changed \"FilterCaption\"",
       "box \"Error\" ! \"Error number is 400, Form already displayed; can't show modally\"",
       "focus cmdReset", "hide", kEnds, "raise FilterDeactivated, Active False"}));
}

// A host's timer that goes off while a box of the preparation is up.
TEST_F(SifterShowing, WhileOneIsBeingPreparedIsAnErrorToo) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  foreign->Lack("ColumnHeader.Alignment");
  control.SetListview(foreign);
  Names errors;
  prompts.WhileUp([&] { errors.push_back(ErrorOf([&] { control.ShowFilter(); })); });
  UserHides();
  control.ShowFilter();
  EXPECT_EQ(errors, (Names{kAlreadyShown, kAlreadyShown}));
}

// A reset hides the dialog first and puts the rows back then; whoever opens it on a notice of one
// of them would have what is there by then taken for the full list.
TEST_F(SifterShowing, WhileAResetPutsTheRowsBackIsAnErrorToo) {
  control.SetListview(list);
  Filter(u"a");
  bool hidden = false;
  std::set<std::string> errors;
  ListObserverRecorder observer(*list, recorder);
  observer.During([&](ListMessage, std::intptr_t) {
    hidden = hidden || !dialog.Visible();
    errors.insert(ErrorOf([&] { control.ShowFilter(); }));
  });
  UserResets();
  control.ShowFilter();
  EXPECT_TRUE(hidden);
  EXPECT_EQ(errors, std::set<std::string>{kAlreadyShown});
  EXPECT_EQ(Texts(*list), kTrees);
  EXPECT_EQ(Texts(*dialog.ListView1), kTrees);
}

TEST_F(SifterShowing, CanFollowFromAHandlerOfItsEvent) {
  control.SetListview(list);
  int alive = 0;
  control.FilterActivated = [this, &alive, probe = MakeRef<LifeProbe>(alive)] {
    recorder.Line("raise FilterActivated, Active " + Shown(Value(control.Active())));
    control.FilterActivated = nullptr;
    EXPECT_EQ(alive, 1) << "the handler has gone while it runs";
    UserResets();
    control.ShowFilter();
    recorder.Line("handler ends, Active " + Shown(Value(control.Active())));
  };
  UserFilters(u"a");
  control.ShowFilter();
  EXPECT_TRUE(recorder.Shows(
      {kShown, kNoCloseEntry, kAsked, "focus cmdReset", "hide", kEnds,
       "raise FilterActivated, Active False", kShown, kNoCloseEntry, "focus cmdReset", "hide",
       kEnds, "raise FilterDeactivated, Active False", "handler ends, Active False"}));
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(Texts(*list), kTrees);
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterShowing, TheHostMayAttachAnotherListOnBeingAskedForTheRows) {
  int alive = 0;
  auto talkative = MakeRef<TalkativeList>(list);
  talkative->OnRows = [this, probe = MakeRef<LifeProbe>(alive)] {
    control.SetListview(MakeList({"Other"}, {{"Fir"}}));
  };
  Ref<HostListView> handed = talkative;
  talkative = nullptr;
  control.SetListview(std::move(handed));
  UserFilters(u"a");
  control.ShowFilter();
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  UserHides();
  control.ShowFilter();
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(dialog.UsersListview, control.Listview());
  EXPECT_EQ(Texts(*dialog.ListView1), (TextRows{{"Fir"}}));
}

TEST_F(SifterShowing, AListAttachedMeanwhileIsForTheNextOne) {
  const Ref<MemoryListView> other = MakeList({"Other"}, {{"Fir"}});
  control.SetListview(list);
  forms.During([&] {
    control.SetListview(other);
    Ask(u"a");
    dialog.cmdApply.SetValue(true);
  });
  control.ShowFilter();
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(FirstTexts(*other), Names{"Fir"});
  UserHides();
  control.ShowFilter();
  EXPECT_EQ(dialog.UsersListview, other);
  EXPECT_FALSE(control.Active());
}

TEST_F(SifterShowing, AFilterThatNoRowPassesOpensAgainAsItWasLeft) {
  control.SetListview(list);
  Filter(u"zzz");
  EXPECT_EQ(list->ListItems()->Count(), 0);
  EXPECT_TRUE(control.Active());
  const std::string before = DumpDialog(dialog);
  UserHides();
  control.ShowFilter();
  EXPECT_EQ(DumpDialog(dialog), before);
  UserResets();
  control.ShowFilter();
  EXPECT_EQ(Texts(*list), kTrees);
  EXPECT_FALSE(control.Active());
}

TEST_F(SifterShowing, LeavesTheFilterTextOfTheControlAlone) {
  PropertyBagFake bag(recorder);
  bag.entries[u"Filter"] = u"as loaded";
  control.ReadProperties(bag, container);
  control.SetListview(list);
  Filter(u"a");
  EXPECT_EQ(dialog.FilterString, u"(Name like '*a*')");
  EXPECT_EQ(control.Filter(), u"as loaded");
}

TEST_F(SifterShowing, HasNoExtraButton) {
  control.SetListview(list);
  UserHides();
  control.ShowFilter();
  EXPECT_FALSE(dialog.cmdReport.Visible());
  EXPECT_EQ(dialog.cmdReport.Caption(), u"");
}

}  // namespace

}  // namespace sifter
