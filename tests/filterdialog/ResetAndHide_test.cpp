#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

class ResetFilter : public DialogFixture {
 protected:
  ResetFilter() {
    list->RecordNothing();
    Prepare(list);
  }

  void Filter() {
    PickText(0, u"contains", u"a");
    PickNumber(1, u"is not between", u"4", u"6");
    PickDate(2, u"is between", Day(2020, 1, 1), Day(2020, 1, 31));
    dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
    Apply();
    ASSERT_EQ(FirstTexts(*memory), std::vector<std::string>{"Oak"});
    prompts.Forget();
    recorder.Clear();
  }

  const TextRows kAll = {{"Oak", "3", "1/5/2020"},
                         {"ash", "5", "1/6/2020"},
                         {"Elm", "7", ""},
                         {"Yew", "", "1/8/2020"},
                         {"Fir", "9", "1/9/2020"}};
  const Ref<MemoryListView> memory = MakeList({"Name", "Qty", "Shipped"}, kAll);
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
};

constexpr const char* kClearedDialog = R"(active False
filter ""
english ""
"Name" type "0" "All" text "a" from "" to "" dates #39248# #39248# shows
"Qty" type "1" "All" text "" from "4" to "6" dates #39248# #39248# shows
"Shipped" type "2" "All" text "" from "" to "" dates #43831# #43861# shows
)";

TEST_F(ResetFilter, PutsTheFullListBackAndClearsEverything) {
  Filter();
  Reset();
  EXPECT_EQ(Texts(*memory), kAll);
  EXPECT_EQ(DumpDialog(dialog), kClearedDialog);
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

TEST_F(ResetFilter, HidesTheDialogBeforeTheRowsComeBack) {
  Filter();
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  list->RecordOnly({"ListItems.Clear", "ListItems.Add"});
  Reset();
  EXPECT_TRUE(recorder.Shows({
      "focus cmdReset",
      "hide",
      "ListItems.Clear",
      "ListItems.Add(0, \"\", \"Oak\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"ash\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Elm\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Yew\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Fir\", Empty, Empty)",
  }));
}

TEST_F(ResetFilter, WithoutAFilterInForceOnlyHides) {
  PickText(0, u"contains", u"a");
  PickNumber(1, u"is between", u"4", u"6");
  dialog.FilterString = u"kept";
  const std::string before = DumpDialog(dialog);
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  list->RecordAll();
  Reset();
  EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide"}));
  EXPECT_EQ(DumpDialog(dialog), before);
}

TEST_F(ResetFilter, ASecondResetOnlyHides) {
  Filter();
  Reset();
  list->RecordAll();
  Reset();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(Texts(*memory), kAll);
}

TEST_F(ResetFilter, RowsThatTheHostPutInMeanwhileGo) {
  Filter();
  AddRow(*memory, {"new", "1", ""});
  Reset();
  EXPECT_EQ(Texts(*memory), kAll);
}

TEST_F(ResetFilter, AnErrorOfTheListIsShownAndTheTextsAreEmpty) {
  Filter();
  list->FailOn("ListItems.Add", 3, RuntimeError(35602, u"Key is not unique in collection"));
  Reset();
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("35602, Key is not unique in collection")});
  EXPECT_EQ(FirstTexts(*memory), (std::vector<std::string>{"Oak", "ash"}));
  EXPECT_EQ(DumpDialog(dialog), kClearedDialog);
  EXPECT_EQ(Texts(*dialog.ListView1), kAll);
}

TEST_F(ResetFilter, WithoutAListShowsTheErrorAndClearsAllTheSame) {
  Filter();
  dialog.UsersListview = nullptr;
  Reset();
  EXPECT_EQ(Boxes(), std::vector<std::string>{
                         ErrorBox("91, Object variable or With block variable not set")});
  EXPECT_EQ(DumpDialog(dialog), kClearedDialog);
}

using ClearCriteria = ResetFilter;

TEST_F(ClearCriteria, ForgetsTheFilterAndLeavesTheListAndItsFullCopy) {
  Filter();
  dialog.ClearCriteria();
  EXPECT_EQ(DumpDialog(dialog), kClearedDialog);
  EXPECT_EQ(FirstTexts(*memory), std::vector<std::string>{"Oak"});
  EXPECT_EQ(Texts(*dialog.ListView1), kAll);
  EXPECT_EQ(dialog.ListView1->ColumnHeaders()->Count(), 3);
}

// Columns go too: the host may have others by the next apply.
TEST_F(ClearCriteria, EmptiesTheRowsThatPassedWithTheirColumns) {
  Filter();
  ASSERT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 1);
  ListViewDump* const before = dialog.lvwCopyOfFiltered.Get();
  dialog.ClearCriteria();
  EXPECT_EQ(dialog.lvwCopyOfFiltered.Get(), before);
  EXPECT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 0);
  EXPECT_EQ(dialog.lvwCopyOfFiltered->ColumnHeaders()->Count(), 0);
}

TEST_F(ClearCriteria, LeavesMatchCaseAsItIs) {
  Filter();
  dialog.ClearCriteria();
  EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kChecked);
  PickText(0, u"contains", u"A");
  Reset();
  dialog.SetUpForm();
  PickText(0, u"contains", u"O");
  Apply();
  EXPECT_EQ(FirstTexts(*memory), std::vector<std::string>{"Oak"});
}

TEST_F(ClearCriteria, ClosesTheDialogByItsHideButton) {
  Filter();
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  dialog.cmdHideFilter.Click = [&] {
    recorder.Line("pressed with active " + std::string(dialog.blnFilterActive ? "True" : "False") +
                  ", filter " + Quoted(dialog.FilterString) + ", english " +
                  Quoted(dialog.FilterPlainEnglish) + ", operator " +
                  Quoted(dialog.cboOperator[0].Text()) + ", passed " +
                  std::to_string(dialog.lvwCopyOfFiltered->ListItems()->Count()));
  };
  dialog.ClearCriteria();
  EXPECT_TRUE(
      recorder.Shows({"pressed with active False, filter \"\", english \"\", operator "
                      "\"All\", passed 0"}));
}

TEST_F(ClearCriteria, OnADialogThatWasNeverSetUpChangesNothingThatCanBeSeen) {
  frmFilter fresh({host, prompts, conversions, clock});
  const std::string before = DumpForm(fresh);
  recorder.Clear();
  fresh.ClearCriteria();
  fresh.cmdReset.SetValue(true);
  EXPECT_EQ(DumpForm(fresh), before);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_FALSE(fresh.blnFilterActive);
}

TEST_F(ClearCriteria, RaisesNoChangeOfRowsThatAreOnAllAlready) {
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  HeadlessWatcher watcher(dialog, recorder);
  dialog.ClearCriteria();
  dialog.Watch(nullptr);
  EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide"}));
}

TEST_F(ClearCriteria, TakesARowBackThatHasNoWordAtAll) {
  dialog.cboOperator[0].SetListIndex(-1);
  dialog.ClearCriteria();
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
  EXPECT_EQ(ShownParameters(dialog, 0), std::vector<std::string>{});
}

using HideFilter = ResetFilter;

TEST_F(HideFilter, MovesTheFocusToResetAndEndsTheShowing) {
  host.During([&] { dialog.cmdHideFilter.SetValue(true); });
  dialog.Show(ShowMode::kModal);
  EXPECT_TRUE(recorder.Shows({
      "show modal \"Tarvenn Software Row Sifter\"",
      "delete system menu entry 6",
      "focus cmdReset",
      "hide",
      "modal showing ends",
  }));
}

TEST_F(HideFilter, OnAHiddenDialogDoesNothing) {
  dialog.cmdHideFilter.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(HideFilter, IsDoneWhenMovingTheFocusHasHiddenTheDialog) {
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  host.OnFocus([&] { dialog.Hide(); });
  dialog.cmdHideFilter.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide"}));
}

TEST_F(HideFilter, ChangesNeitherTheFilterNorTheCriteria) {
  Filter();
  const std::string before = DumpDialog(dialog);
  dialog.Show(ShowMode::kModeless);
  dialog.cmdHideFilter.SetValue(true);
  EXPECT_EQ(DumpDialog(dialog), before);
  EXPECT_EQ(FirstTexts(*memory), std::vector<std::string>{"Oak"});
}

}  // namespace

}  // namespace sifter
