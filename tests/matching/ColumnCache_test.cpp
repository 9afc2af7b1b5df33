#include "matching/ColumnCache.h"

#include "Criteria.h"
#include "EngineRun.h"
#include "listmodel/MemoryListView.h"
#include "listmodel/RowStore.h"
#include "support/ClockFake.h"
#include "support/Lists.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace sifter {
namespace {

class AlignedCache : public testing::Test {
 protected:
  void Align() {
    std::vector<const RowData*> rows;
    list_->Shared()->Rows().CollectRows(rows);
    cache_.Align(rows, conversions_);
  }

  std::vector<Text> TextsOf(std::size_t column, bool caseSensitive) {
    const TextColumn& texts = cache_.Texts(column, CaseFolding(caseSensitive, conversions_));
    std::vector<Text> copies;
    for (std::size_t i = 0; i < static_cast<std::size_t>(list_->ListItems()->Count()); ++i)
      copies.emplace_back(texts[i]);
    return copies;
  }

  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  ColumnCache cache_;
  Ref<MemoryListView> list_ =
      MakeList({"Name", "Qty", "Due"}, {{"oak", "3x", "1/5"}, {"Élan", "", ""}, {"", "y", "soon"}});
};

TEST_F(AlignedCache, ReadsTextsFoldedOrAsTheyAre) {
  Align();
  EXPECT_EQ(TextsOf(0, true), (std::vector<Text>{u"oak", u"Élan", u""}));
  EXPECT_EQ(TextsOf(0, false), (std::vector<Text>{u"OAK", u"ÉLAN", u""}));
  EXPECT_EQ(TextsOf(1, false), (std::vector<Text>{u"3X", u"", u"Y"}));
}

TEST_F(AlignedCache, ReadsNumbersAndWhichCellsAreEmpty) {
  Align();
  const NumberColumn& column = cache_.Numbers(1);
  EXPECT_EQ(column.numbers, (std::vector<double>{3, 0, 0}));
  EXPECT_EQ(column.empty, (std::vector<std::uint8_t>{0, 1, 0}));
}

TEST_F(AlignedCache, ReadsDatesAndWhichCellsAreEmptyOrBad) {
  Align();
  const DateColumn& column = cache_.Dates(2, conversions_);
  EXPECT_EQ(column.moments, (std::vector<double>{Day(2007, 1, 5).serial, 0, 0}));
  EXPECT_EQ(column.empty, (std::vector<std::uint8_t>{0, 1, 0}));
  EXPECT_EQ(column.bad, (std::vector<std::uint8_t>{0, 0, 1}));
}

TEST_F(AlignedCache, KeepsWhatItKnowsWhileTheRowsAreTheSame) {
  Align();
  const NumberColumn* const known = &cache_.Numbers(1);
  const std::uint64_t alignment = cache_.Alignment();
  Align();
  EXPECT_EQ(&cache_.Numbers(1), known);
  EXPECT_EQ(cache_.Alignment(), alignment);
}

TEST_F(AlignedCache, ReadsAgainAfterACellHasChanged) {
  Align();
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{3, 0, 0}));
  list_->ListItems()->Item(2)->SetSubItems(1, u"7");
  const std::uint64_t alignment = cache_.Alignment();
  Align();
  EXPECT_NE(cache_.Alignment(), alignment);
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{3, 7, 0}));
}

TEST_F(AlignedCache, ReadsAgainAfterRowsHaveComeGoneOrMoved) {
  Align();
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{3, 0, 0}));
  AddRow(*list_, {"elm", "8"});
  Align();
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{3, 0, 0, 8}));
  list_->ListItems()->Remove(2);
  Align();
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{3, 0, 8}));
  list_->SetSorted(true);
  Align();
  EXPECT_EQ(cache_.Numbers(1).numbers, (std::vector<double>{0, 8, 3}));
}

TEST_F(AlignedCache, ReadsDatesAgainInAnotherYear) {
  Align();
  EXPECT_EQ(cache_.Dates(2, conversions_).moments[0], Day(2007, 1, 5).serial);
  clock_.Set({.year = 2008, .month = 1, .day = 1});
  Align();
  EXPECT_EQ(cache_.Dates(2, conversions_).moments[0], Day(2008, 1, 5).serial);
}

TEST_F(AlignedCache, HasAsManyColumnsAsTheShortestRow) {
  EXPECT_EQ(cache_.Columns(), 0u);
  Align();
  EXPECT_EQ(cache_.Columns(), 3u);
  list_->ListItems()->Item(1)->ListSubItems()->Add(0, Text(), u"more", Value(), Text());
  Align();
  EXPECT_EQ(cache_.Columns(), 3u);
  list_->ListItems()->Clear();
  Align();
  EXPECT_EQ(cache_.Columns(), std::numeric_limits<std::size_t>::max());
  cache_.Clear();
  EXPECT_EQ(cache_.Columns(), 0u);
}

// The rows that the cache knows stay alive in it, so another row can't come to stand in the place
// of one of them in memory and pass for it.
TEST_F(AlignedCache, KeepsTheRowsThatItKnowsAlive) {
  Align();
  const RowData* const known = &list_->Shared()->Rows().At(1);
  const Ref<MemoryListView> other = MakeList({"Name"});
  list_->ListItems()->Clear();
  for (int i = 0; i < 100; ++i) AddRow(*other, {"new"});
  for (int i = 1; i <= 100; ++i) EXPECT_NE(&other->Shared()->Rows().At(i), known);
  EXPECT_EQ(known->ColumnText(0), u"oak");
}

TEST(EngineWithACache, SeesWhatHasChangedBetweenTwoRuns) {
  EngineRun run;
  const std::vector<FilterCriterion> criteria = {TextRow("Name", "equals", "oak"),
                                                 NumberRow("Qty", "is greater than", "1")};
  const Ref<MemoryListView> full =
      MakeList({"Name", "Qty"}, {{"oak", "1"}, {"oak", "2"}, {"elm", "3"}});
  const auto filtered = [&](MatchCase matchCase = MatchCase::kOff) {
    const Ref<MemoryListView> list = MakeList({"Name", "Qty"});
    for (std::int32_t i = 1; i <= full->ListItems()->Count(); ++i)
      list->Shared()->AppendShared(full->Shared()->Rows().At(i));
    run.Apply(list, criteria, matchCase);
    return Texts(*list);
  };
  EXPECT_EQ(filtered(), (TextRows{{"oak", "2"}}));
  EXPECT_EQ(filtered(), (TextRows{{"oak", "2"}}));
  full->ListItems()->Item(1)->SetSubItems(1, u"5");
  full->ListItems()->Item(3)->SetText(u"OAK");
  EXPECT_EQ(filtered(), (TextRows{{"oak", "5"}, {"oak", "2"}, {"OAK", "3"}}));
  EXPECT_EQ(filtered(MatchCase::kOn), (TextRows{{"oak", "5"}, {"oak", "2"}}));
  full->ListItems()->Remove(1);
  EXPECT_EQ(filtered(), (TextRows{{"oak", "2"}, {"OAK", "3"}}));
}

}  // namespace
}  // namespace sifter
