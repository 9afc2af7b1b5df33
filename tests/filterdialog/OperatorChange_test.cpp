#include "filterdialog/frmFilter.h"
#include "matching/Operators.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// What choosing a word shows besides what is shown already, and where the focus goes.
struct WordCase {
  const char16_t* word;
  Names shows;
  const char* focus;
};

const Names kRange = {"txtFrom", "txtTo", "lblAnd"};
const Names kDateRange = {"lblAnd", "dtpFrom", "dtpTo"};

const std::vector<WordCase>& TextWords() {
  static const std::vector<WordCase> words = {
      {u"contains", {"cboCriteria"}, "cboCriteria(0)"},
      {u"does not contain", {"cboCriteria"}, "cboCriteria(0)"},
      {u"does not equal", {"cboCriteria"}, "cboCriteria(0)"},
      {u"ends with", {"cboCriteria"}, "cboCriteria(0)"},
      {u"equals", {"cboCriteria"}, "cboCriteria(0)"},
      {u"starts with", {"cboCriteria"}, "cboCriteria(0)"},
  };
  return words;
}

const std::vector<WordCase>& NumberWords() {
  static const std::vector<WordCase> words = {
      {u"does not equal", {"txtFrom"}, "txtFrom(0)"},
      {u"equals", {"txtFrom"}, "txtFrom(0)"},
      {u"is between", kRange, "txtFrom(0)"},
      {u"is greater than", {"txtFrom"}, "txtFrom(0)"},
      {u"is less than", {"txtFrom"}, "txtFrom(0)"},
      {u"is not between", kRange, "txtFrom(0)"},
  };
  return words;
}

const std::vector<WordCase>& DateWords() {
  static const std::vector<WordCase> words = {
      {u"does not equal", {"dtpFrom"}, "dtpFrom(0)"},
      {u"equals", {"dtpFrom"}, "dtpFrom(0)"},
      {u"is after", {"dtpFrom"}, "dtpFrom(0)"},
      {u"is before", {"dtpFrom"}, "dtpFrom(0)"},
      {u"is between", kDateRange, "dtpFrom(0)"},
      {u"is not between", kDateRange, "dtpFrom(0)"},
      {u"is empty", {}, "cmdApply"},
  };
  return words;
}

// In the order in which ShownParameters lists them.
Names Union(const Names& a, const Names& b) {
  Names both;
  for (const char* name : {"cboCriteria", "txtFrom", "txtTo", "lblAnd", "dtpFrom", "dtpTo"})
    if (std::find(a.begin(), a.end(), name) != a.end() ||
        std::find(b.begin(), b.end(), name) != b.end())
      both.emplace_back(name);
  return both;
}

class OperatorChange : public DialogFixture {
 protected:
  void Open(const char* value) {
    Prepare(MakeList({"c"}, {{value}}));
    dialog.Show(ShowMode::kModeless);
    recorder.Clear();
  }

  void Back() {
    Pick(0, u"All");
    recorder.Clear();
  }

  // Every walk of three words from a row that shows nothing. Choosing the word that is chosen
  // already is no change and moves no focus.
  void WalkAll(const std::vector<WordCase>& words) {
    for (const WordCase& a : words)
      for (const WordCase& b : words)
        for (const WordCase& c : words) {
          Names shown;
          Names focus;
          const WordCase* before = nullptr;
          for (const WordCase* word : {&a, &b, &c}) {
            Pick(0, word->word);
            shown = Union(shown, word->shows);
            EXPECT_EQ(ShownParameters(dialog, 0), shown) << Walk({&a, &b, &c}, word);
            if (word != before) focus.push_back(std::string("focus ") + word->focus);
            before = word;
          }
          EXPECT_TRUE(recorder.Shows(focus)) << Walk({&a, &b, &c}, nullptr);
          Back();
          EXPECT_EQ(ShownParameters(dialog, 0), Names{}) << Walk({&a, &b, &c}, nullptr);
        }
  }

  static std::string Walk(const std::vector<const WordCase*>& words, const WordCase* at) {
    std::string walk;
    for (const WordCase* word : words)
      walk += (word == at ? " >" : " ") + Text(word->word).ToUtf8();
    return walk;
  }
};

// Fields are only ever shown, never hidden, but for "All": a row that leaves a range keeps its
// second field, and hosts get both values in the condition.
TEST_F(OperatorChange, TextRowsOnlyEverShowTheirValueBox) {
  Open("x");
  WalkAll(TextWords());
}

TEST_F(OperatorChange, NumberRowsKeepTheSecondFieldOfARangeUntilAll) {
  Open("5");
  WalkAll(NumberWords());
}

TEST_F(OperatorChange, DateRowsKeepTheSecondPickerOfARangeUntilAll) {
  Open("1/5/2007");
  WalkAll(DateWords());
}

TEST_F(OperatorChange, TheTablesHereHoldEveryWord) {
  const std::vector<const std::vector<WordCase>*> tables = {&TextWords(), &NumberWords(),
                                                            &DateWords()};
  for (std::int32_t type = 0; type < 3; ++type) {
    std::vector<Text> words = {u"All"};
    for (const WordCase& c : *tables[static_cast<std::size_t>(type)]) words.emplace_back(c.word);
    EXPECT_EQ(OperatorWords(type), words) << "type " << type;
  }
}

TEST_F(OperatorChange, EmptyDatesNeedNoFieldAndTheFocusGoesToApply) {
  Open("1/5/2007");
  Pick(0, u"is empty");
  EXPECT_EQ(ShownParameters(dialog, 0), Names{});
  EXPECT_TRUE(recorder.Shows({"focus cmdApply"}));
}

TEST_F(OperatorChange, ATextRowLosesItsTypedValueAndGetsItsList) {
  Prepare(MakeList({"c"}, {{"Oak"}, {"Ash"}, {"Oak"}, {""}}));
  PickText(0, u"contains", u"abc");
  EXPECT_EQ(dialog.cboCriteria[0].Entries(), (std::vector<Text>{u"Oak", u"Ash"}));
  Pick(0, u"equals");
  EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
  EXPECT_EQ(dialog.cboCriteria[0].Entries(), (std::vector<Text>{u"Oak", u"Ash"}));
}

TEST_F(OperatorChange, AllKeepsTheValuesOfTheHiddenFields) {
  Open("5");
  PickNumber(0, u"is between", u"1", u"9");
  Pick(0, u"All");
  EXPECT_EQ(dialog.txtFrom[0].Text(), u"1");
  EXPECT_EQ(dialog.txtTo[0].Text(), u"9");
}

TEST_F(OperatorChange, OnAHiddenDialogFieldsAreShownAndNoFocusMoves) {
  Prepare(MakeList({"t", "n", "d"}, {{"x", "1", "1/5/2007"}}));
  Pick(0, u"equals");
  Pick(1, u"is between");
  Pick(2, u"is not between");
  EXPECT_EQ(ShownParameters(dialog, 0), (Names{"cboCriteria"}));
  EXPECT_EQ(ShownParameters(dialog, 1), kRange);
  EXPECT_EQ(ShownParameters(dialog, 2), kDateRange);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(OperatorChange, TheStepsComeInTheirOrder) {
  Open("x");
  HeadlessWatcher watcher(dialog, recorder);
  Pick(0, u"contains");
  dialog.cboCriteria[0].SetText(u"y");
  Pick(0, u"equals");
  Pick(0, u"All");
  dialog.Watch(nullptr);
  EXPECT_TRUE(recorder.Shows({
      "cboOperator(0).ListIndex 1",
      "cboCriteria(0).Visible True",
      "cboCriteria(0).List []",
      "cboCriteria(0).List [\"x\"]",
      "focus cboCriteria(0)",
      "cboCriteria(0).Text \"y\"",
      "cboOperator(0).ListIndex 5",
      "cboCriteria(0).List []",
      "cboCriteria(0).Text \"\"",
      "cboCriteria(0).List [\"x\"]",
      "focus cboCriteria(0)",
      "cboOperator(0).ListIndex 0",
      "cboCriteria(0).Visible False",
  }));
}

TEST_F(OperatorChange, OtherRowsAreLeftAlone) {
  Prepare(MakeList({"t", "n", "d"}, {{"x", "1", "1/5/2007"}}));
  PickText(0, u"equals", u"x");
  const std::string before = DumpCriterion(dialog, 0) + DumpCriterion(dialog, 2);
  Pick(1, u"is between");
  Pick(1, u"All");
  EXPECT_EQ(DumpCriterion(dialog, 0) + DumpCriterion(dialog, 2), before);
}

// A selection of nothing comes from hosts that set the index themselves.
TEST_F(OperatorChange, NoWordAtAllStillCountsAsAnActiveRow) {
  Prepare(MakeList({"Name", "Qty"}, {{"Oak", "3"}}));
  dialog.cboOperator[0].SetListIndex(-1);
  dialog.cboOperator[1].SetListIndex(-1);
  EXPECT_EQ(ShownParameters(dialog, 0), (Names{"cboCriteria"}));
  EXPECT_EQ(ShownParameters(dialog, 1), (Names{"txtFrom"}));
  dialog.txtFrom[1].SetText(u"5");
  Apply();
  EXPECT_EQ(dialog.UsersListview->ListItems()->Count(), 1);
  EXPECT_EQ(dialog.FilterString, u"() AND ()");
  EXPECT_EQ(dialog.FilterPlainEnglish, u"Name   AND Qty  5");
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(OperatorChange, ARowOfAnUnknownTypeShowsNothing) {
  Prepare(MakeList({"Name"}, {{"Oak"}}));
  dialog.lblColumnHeaderText[0].SetTag(u"7");
  Pick(0, u"equals");
  EXPECT_EQ(ShownParameters(dialog, 0), Names{});
}

TEST_F(OperatorChange, AnErrorInFillingTheListIsShownAndTheFocusStillMoves) {
  Prepare(MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}}));
  dialog.ListView1->ListItems()->Item(2)->SetSubItemNum(0);
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  Pick(1, u"equals");
  EXPECT_TRUE(recorder.Shows({
      "box \"Error\" ! \"Error number is 9, Subscript out of range\"",
      "focus cboCriteria(1)",
  }));
  EXPECT_EQ(dialog.cboCriteria[1].Entries(), std::vector<Text>{u"x"});
}

}  // namespace

}  // namespace sifter
