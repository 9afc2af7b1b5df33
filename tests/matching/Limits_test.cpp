#include "Criteria.h"
#include "EngineRun.h"
#include "Textbook.h"
#include "listmodel/MemoryListView.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

// Positions of rows that are removed are 16-bit numbers. A list that is longer than they reach is
// filtered as far as they go, without an error and without wrapping round.

namespace sifter {
namespace {

constexpr int kMost = 32767;

Ref<MemoryListView> ListOf(int rows, const std::function<std::string(int)>& cell) {
  const Ref<MemoryListView> list = MakeList({"Name", "Number", "More"});
  for (int i = 1; i <= rows; ++i) AddRow(*list, {cell(i), std::to_string(i)});
  return list;
}

// How many rows are left, and the numbers of the first two and the last.
std::string Left(HostListView& list) {
  const Ref<ListItemCollection> items = list.ListItems();
  std::string left = std::to_string(items->Count()) + " rows:";
  for (std::int32_t i = 1; i <= items->Count(); ++i) {
    if (i > 2 && i < items->Count()) continue;
    left += ' ' + ValueToText(items->Item(i)->SubItems(1)).ToUtf8();
  }
  return left;
}

std::vector<FilterCriterion> Without(const char* name) {
  return {TextRow("Name", "does not equal", name), NumberRow("Number")};
}

// What is left, whichever kind of list it is.
std::string Filtered(int rows, const std::function<std::string(int)>& cell,
                     const std::vector<FilterCriterion>& criteria) {
  const Ref<MemoryListView> own = ListOf(rows, cell);
  EngineRun().Apply(own, criteria);

  Recorder calls;
  const Ref<MemoryListView> behind = ListOf(rows, cell);
  const auto foreign = MakeRef<RecordingListView>(behind, calls);
  foreign->RecordNothing();
  EngineRun().Apply(foreign, criteria);
  EXPECT_EQ(Left(*behind), Left(*own)) << "member by member";
  return Left(*own);
}

TEST(Limits, TheLongestListIsFilteredWhole) {
  EXPECT_EQ(Filtered(
                kMost, [](int i) { return i % 2 == 0 ? "x" : "a"; }, Without("x")),
            "16384 rows: 1 3 32767");
  EXPECT_EQ(Filtered(
                kMost, [](int i) { return i == kMost ? "x" : "a"; }, Without("x")),
            "32766 rows: 1 2 32766");
  EXPECT_EQ(Filtered(
                kMost, [](int) { return "x"; }, Without("x")),
            "0 rows:");
}

TEST(Limits, ARowBeyondTheLastPositionKeepsItsCriterionFromRemovingAny) {
  EXPECT_EQ(
      Filtered(
          kMost + 1, [](int i) { return i == 5 || i == kMost + 1 ? "x" : "a"; }, Without("x")),
      "32768 rows: 1 2 32768");
  EXPECT_EQ(Filtered(
                kMost + 1, [](int) { return "x"; }, Without("x")),
            "32768 rows: 1 2 32768");
}

TEST(Limits, RowsWithinReachGoFromALongerListToo) {
  EXPECT_EQ(Filtered(
                kMost + 3, [](int i) { return i == 2 || i == kMost ? "x" : "a"; }, Without("x")),
            "32768 rows: 1 3 32770");
}

// The row beyond the last position has moved up when its word comes up again.
TEST(Limits, TheSameWordInALaterRowTriesAgain) {
  const auto cell = [](int i) { return i == 5 || i == kMost + 1 ? "x" : "a"; };
  const std::vector<FilterCriterion> once = {TextRow("Name", "does not equal", "x"),
                                             NumberRow("Number", "does not equal", "2")};
  EXPECT_EQ(Filtered(kMost + 1, cell, once), "32767 rows: 1 3 32768");
  std::vector<FilterCriterion> twice = once;
  twice.push_back(TextRow("More", "does not equal", "x"));
  EXPECT_EQ(Filtered(kMost + 1, cell, twice), "32765 rows: 1 3 32767");
}

TEST(Limits, TheTextbookStopsAtTheSamePosition) {
  const auto cell = [](int i) { return i == 7 ? "a" : "x"; };
  const Ref<MemoryListView> list = ListOf(kMost + 1, cell);
  const EngineRun run;
  textbook::Engine(*list, Without("x"), false, run.EnUs()).ApplyCriteria();
  EXPECT_EQ(Left(*list), Filtered(kMost + 1, cell, Without("x")));
  EXPECT_EQ(Left(*list), "32768 rows: 1 2 32768");
}

}  // namespace
}  // namespace sifter
