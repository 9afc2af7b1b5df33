#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/ListObserverRecorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// Whoever shows the dialog follows what the host does to its list meanwhile, and has the last
// criteria applied again.
class Reapplying : public DialogFixture {
 protected:
  Reapplying() {
    list->RecordOnly({"ListItems.Clear", "ListItems.Add", "ListItems.Remove",
                      "ListView.BeginUpdate", "ListView.EndUpdate"});
    Prepare(list);
    PickText(0, u"contains", u"a");
    recorder.Clear();
  }

  void Note(const char* what) {
    recorder.Line(std::string(what) + ", rows " + std::to_string(memory->ListItems()->Count()) +
                  ", active " + (dialog.blnFilterActive ? "True" : "False") + ", operator " +
                  dialog.cboOperator[0].Text().ToUtf8());
  }
  void NoteBoth() {
    dialog.BeforeRefill = [this] { Note("before refill"); };
    dialog.BeforeFiltering = [this] { Note("before filtering"); };
  }

  const Ref<MemoryListView> memory =
      MakeList({"Name", "Qty"}, {{"Oak", "1"}, {"Elm", "2"}, {"Ash", "3"}});
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
};

TEST_F(Reapplying, AnApplyTellsBeforeItRefillsTheListAndBeforeItTakesRowsOut) {
  NoteBoth();
  Apply();
  EXPECT_TRUE(recorder.Shows({
      "BeginUpdate",
      "before refill, rows 3, active False, operator contains",
      "BeginUpdate",
      "ListItems.Clear",
      "ListItems.Add(0, \"\", \"Oak\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Elm\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Ash\", Empty, Empty)",
      "EndUpdate",
      "before filtering, rows 3, active False, operator contains",
      "BeginUpdate",
      "ListItems.Remove(2)",
      "EndUpdate",
      "EndUpdate",
  }));
}

TEST_F(Reapplying, AResetTellsBeforeAnythingHasChanged) {
  Apply();
  NoteBoth();
  recorder.Clear();
  Reset();
  EXPECT_TRUE(recorder.Shows({
      "before refill, rows 2, active True, operator contains",
      "BeginUpdate",
      "ListItems.Clear",
      "ListItems.Add(0, \"\", \"Oak\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Elm\", Empty, Empty)",
      "ListItems.Add(0, \"\", \"Ash\", Empty, Empty)",
      "EndUpdate",
  }));
}

TEST_F(Reapplying, AResetWithNothingToPutBackTellsNobody) {
  NoteBoth();
  Reset();
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(Reapplying, RowsTakenOverBeforeTheRefillAreFilteredWithTheOthers) {
  dialog.BeforeRefill = [this] {
    AddRow(*dialog.ListView1, {"Larch"});
    AddRow(*dialog.ListView1, {"Fir"});
  };
  Apply();
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Ash", "Larch"}));
  dialog.BeforeRefill = [this] { AddRow(*dialog.ListView1, {"Yew"}); };
  Reset();
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Elm", "Ash", "Larch", "Fir", "Yew"}));
}

TEST_F(Reapplying, RowsTakenOverBeforeTheFilteringAreInTheFullCopyFromThenOn) {
  dialog.BeforeFiltering = [this] { AddRow(*dialog.ListView1, {"Larch"}); };
  Apply();
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Ash"}));
  EXPECT_EQ(FirstTexts(*dialog.ListView1), (Names{"Oak", "Elm", "Ash", "Larch"}));
}

// Rows that were taken out then could never come back.
TEST_F(Reapplying, AnApplyWhoseFullCopyIsGivenUpTakesNothingOut) {
  dialog.FilterString = u"former";
  const auto giveUp = [this] { dialog.ListView1 = MakeRef<ListViewDump>(); };
  dialog.BeforeFiltering = giveUp;
  dialog.Show(ShowMode::kModeless);
  Apply();
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Elm", "Ash"}));
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_FALSE(dialog.Visible());
  EXPECT_FALSE(dialog.InWork());
  EXPECT_EQ(dialog.FilterString, u"former");
  EXPECT_EQ(Boxes(), Names());
}

TEST_F(Reapplying, GivenUpByAHostThatIsToldOfTheRowsItEndsUnfilteredToo) {
  ListObserverRecorder notices(*memory, recorder);
  for (const ListMessage told : {kInsertItem, kDeleteItem}) {
    SCOPED_TRACE(told);
    dialog.SetUpForm();
    PickText(0, u"contains", u"a");
    dialog.blnFilterActive = true;
    notices.During([&](ListMessage message, std::intptr_t) {
      if (message == told) dialog.ListView1 = MakeRef<ListViewDump>();
    });
    Apply();
    EXPECT_FALSE(dialog.blnFilterActive);
    notices.During(nullptr);
  }
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Ash"}));
}

TEST_F(Reapplying, TheLastCriteriaAreAppliedToAnyList) {
  Apply();
  dialog.UsersListview = nullptr;
  const Ref<MemoryListView> other = MakeList({"Name", "Qty"}, {{"Fir"}, {"Larch"}, {"Yew"}});
  dialog.ReapplyCriteria(other);
  EXPECT_EQ(FirstTexts(*other), (Names{"Larch"}));
}

TEST_F(Reapplying, WhatTheUserHasChangedSinceDoesNotCount) {
  Apply();
  Pick(0, u"equals");
  dialog.cboCriteria[0].SetText(u"Elm");
  PickNumber(1, u"equals", u"77");
  dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
  dialog.lblColumnHeaderText[0].SetCaption(u"other");
  AddRow(*memory, {"ALDER", "9"});
  AddRow(*memory, {"Fir", "9"});
  dialog.ReapplyCriteria(list);
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak", "Ash", "ALDER"}));
}

TEST_F(Reapplying, MatchCaseAsLastAppliedCounts) {
  dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
  Apply();
  dialog.chkCaseSensitive.SetValue(CheckValue::kUnchecked);
  AddRow(*memory, {"ALDER"});
  dialog.ReapplyCriteria(list);
  EXPECT_EQ(FirstTexts(*memory), (Names{"Oak"}));
}

TEST_F(Reapplying, NothingButTheRowsChanges) {
  Apply();
  const std::string before = DumpDialog(dialog);
  const std::string full = Dump(*dialog.ListView1);
  const std::string passed = Dump(*dialog.lvwCopyOfFiltered);
  AddRow(*memory, {"Fir"});
  NoteBoth();
  recorder.Clear();
  dialog.ReapplyCriteria(list);
  EXPECT_TRUE(recorder.Shows({"BeginUpdate", "ListItems.Remove(3)", "EndUpdate"}));
  EXPECT_EQ(DumpDialog(dialog), before);
  EXPECT_EQ(Dump(*dialog.ListView1), full);
  EXPECT_EQ(Dump(*dialog.lvwCopyOfFiltered), passed);
}

TEST_F(Reapplying, AnErrorOfTheListGoesNowhere) {
  Apply();
  AddRow(*memory, {"Fir"});
  list->FailOn("ListItems.Remove", 1, RuntimeError(35600, u"no"));
  dialog.ReapplyCriteria(list);
  EXPECT_EQ(Boxes(), Names());
  EXPECT_FALSE(dialog.InWork());
}

TEST_F(Reapplying, NoticesFindTheDialogInWork) {
  Apply();
  AddRow(*memory, {"Fir"});
  ListObserverRecorder notices(*memory, recorder);
  bool inWork = false;
  notices.During([&](ListMessage, std::intptr_t) { inWork = dialog.InWork(); });
  dialog.ReapplyCriteria(list);
  EXPECT_TRUE(inWork);
  EXPECT_FALSE(dialog.InWork());
}

TEST_F(Reapplying, TheRecordHoldsTheRowsAsApplied) {
  EXPECT_EQ(dialog.AppliedCriteria().size(), 0u);
  Apply();
  dialog.cboCriteria[0].SetText(u"later");
  ASSERT_EQ(dialog.AppliedCriteria().size(), 2u);
  EXPECT_EQ(dialog.AppliedCriteria()[0].caption, u"Name");
  EXPECT_EQ(dialog.AppliedCriteria()[0].operatorWord, u"contains");
  EXPECT_EQ(dialog.AppliedCriteria()[1].operatorWord, u"All");
}

TEST_F(Reapplying, WithoutARecordNothingIsTakenOut) {
  using Forget = std::function<void()>;
  const std::vector<std::pair<const char*, Forget>> ways = {
      {"ClearCriteria", [this] { dialog.ClearCriteria(); }},
      {"ForgetCriteria", [this] { dialog.ForgetCriteria(); }},
      {"a reset", [this] { Reset(); }}};
  for (const auto& [way, forget] : ways) {
    SCOPED_TRACE(way);
    PickText(0, u"contains", u"a");
    Apply();
    forget();
    EXPECT_EQ(dialog.AppliedCriteria().size(), 0u);
    const Names before = FirstTexts(*memory);
    PickText(0, u"contains", u"nothing of this");
    dialog.ReapplyCriteria(list);
    EXPECT_EQ(FirstTexts(*memory), before);
  }
}

}  // namespace

}  // namespace sifter
