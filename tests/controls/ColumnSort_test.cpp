#include "controls/ColumnSort.h"

#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

class ColumnSortTest : public testing::Test {
 protected:
  void Click(const Value& column) { sort.Click(*list, column); }

  Recorder recorder;
  const Ref<MemoryListView> memory =
      MakeList({"Name", "Qty", "Due"}, {{"oak", "2", "a"}, {"ash", "3", "c"}, {"elm", "1", "b"}});
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
  ColumnSort sort;
};

TEST_F(ColumnSortTest, AnotherColumnIsSortedInTheOrderLastUsed) {
  Click(3);
  EXPECT_TRUE(recorder.Shows({"SetSortKey 2", "SortKey", "SetSorted True", "SortKey"}));
  EXPECT_EQ(FirstTexts(*memory), (Strings{"oak", "elm", "ash"}));
}

TEST_F(ColumnSortTest, TheSameColumnTurnsUpAndDown) {
  memory->SetSortOrder(1);
  Strings orders;
  for (int i = 0; i < 5; ++i) {
    Click(3);
    std::string rows = Shown(memory->SortOrder()) + ':';
    for (const std::string& text : FirstTexts(*memory)) rows += ' ' + text;
    orders.push_back(rows);
  }
  EXPECT_EQ(orders, (Strings{"1: ash elm oak", "0: oak elm ash", "1: ash elm oak", "0: oak elm ash",
                             "1: ash elm oak"}));
}

TEST_F(ColumnSortTest, EveryStepOfARepeatedClickIsMade) {
  Click(2);
  recorder.Clear();
  Click(2);
  Click(2);
  EXPECT_TRUE(
      recorder.Shows({"SetSortKey 1", "SortKey", "SetSortOrder 0", "SetSorted True", "SortKey",
                      "SetSortKey 1", "SortKey", "SetSortOrder 1", "SetSorted True", "SortKey"}));
}

TEST_F(ColumnSortTest, AFreshOneTakesTheFirstColumnForTheLast) {
  memory->SetSortOrder(1);
  Click(1);
  EXPECT_EQ(memory->SortOrder(), Value(0));
  EXPECT_EQ(FirstTexts(*memory), (Strings{"ash", "elm", "oak"}));
}

// A click on another column in between doesn't start anew: the phase is kept.
TEST_F(ColumnSortTest, AnotherColumnKeepsThePhase) {
  Click(1);  // ascending
  Click(2);  // as last used
  EXPECT_EQ(memory->SortOrder(), Value(0));
  EXPECT_EQ(FirstTexts(*memory), (Strings{"elm", "oak", "ash"}));
  Click(2);  // descending, because the last turn was up
  EXPECT_EQ(memory->SortOrder(), Value(1));
  EXPECT_EQ(FirstTexts(*memory), (Strings{"ash", "oak", "elm"}));
  Click(1);
  EXPECT_EQ(memory->SortOrder(), Value(1));
  Click(1);
  EXPECT_EQ(memory->SortOrder(), Value(0));
}

TEST_F(ColumnSortTest, ThePositionMayBeAnyNumber) {
  Click(u"2");
  EXPECT_EQ(memory->SortKey(), Value(1));
  Click(3.0);
  EXPECT_EQ(memory->SortKey(), Value(2));
}

TEST_F(ColumnSortTest, AStepThatFailsIsPassedOver) {
  struct Failure {
    const char* member;
    int occurrence;
    Strings recorded;
  };
  const Failure failures[] = {
      {"ListView.SetSortKey",
       1,
       {"SetSortKey 0", "raises 35600", "SortKey", "SetSortOrder 0", "SetSorted True", "SortKey"}},
      {"ListView.SortKey",
       1,
       {"SetSortKey 0", "SortKey", "raises 35600", "SetSorted True", "SortKey"}},
      {"ListView.SetSortOrder",
       1,
       {"SetSortKey 0", "SortKey", "SetSortOrder 0", "raises 35600", "SetSorted True", "SortKey"}},
      {"ListView.SetSorted",
       1,
       {"SetSortKey 0", "SortKey", "SetSortOrder 0", "SetSorted True", "raises 35600", "SortKey"}},
      {"ListView.SortKey",
       2,
       {"SetSortKey 0", "SortKey", "SetSortOrder 0", "SetSorted True", "SortKey", "raises 35600"}},
  };
  for (const Failure& failure : failures) {
    SCOPED_TRACE(failure.member);
    recorder.Clear();
    const auto broken = MakeRef<RecordingListView>(memory, recorder);
    broken->FailOn(failure.member, failure.occurrence, RuntimeError(35600, u"no"));
    ColumnSort fresh;
    EXPECT_EQ(ErrorOf([&] { fresh.Click(*broken, 1); }), "nothing");
    EXPECT_TRUE(recorder.Shows(failure.recorded));
  }
}

// The phase moves on although the list refuses the order: it is a step of its own.
TEST_F(ColumnSortTest, ARefusedOrderCountsAsATurn) {
  list->FailOn("ListView.SetSortOrder", 1, RuntimeError(35600, u"no"));
  Click(1);
  Click(1);
  EXPECT_EQ(memory->SortOrder(), Value(1));
}

TEST_F(ColumnSortTest, AnIndexThatIsNoNumberLeavesTheColumnAndSortsAllTheSame) {
  Click(u"oak");
  EXPECT_TRUE(recorder.Shows({"SortKey", "SetSortOrder 0", "SetSorted True", "SortKey"}));
}

TEST_F(ColumnSortTest, AListThatCannotSortIsLeftAlone) {
  for (const char* member : {"ListView.SortKey", "ListView.SortOrder", "ListView.Sorted"})
    list->Lack(member);
  EXPECT_EQ(ErrorOf([&] { Click(2); }), "nothing");
  EXPECT_EQ(FirstTexts(*memory), (Strings{"oak", "ash", "elm"}));
}

}  // namespace

}  // namespace sifter
