#include "controls/FollowList.h"
#include "filterdialog/CopyListview.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// A list of a foreign make whose rows have as many cells as another list's: a live row may have
// fewer cells than there are columns, or more.
class RaggedList final : public HostListView {
 public:
  RaggedList(Ref<MemoryListView> columns, Ref<MemoryListView> rows)
      : columns_(std::move(columns)), rows_(std::move(rows)) {}

  Ref<ColumnHeaderCollection> ColumnHeaders() override { return columns_->ColumnHeaders(); }
  Ref<ListItemCollection> ListItems() override { return rows_->ListItems(); }
  std::int32_t hWnd() const override { return 0; }
  Value Sorted() const override { return rows_->Sorted(); }
  Value SortKey() const override { return rows_->SortKey(); }
  Value SortOrder() const override { return rows_->SortOrder(); }
  void SetSorted(const Value& sorted) override { rows_->SetSorted(sorted); }
  void SetSortKey(const Value& column) override { rows_->SetSortKey(column); }
  void SetSortOrder(const Value& order) override { rows_->SetSortOrder(order); }

 private:
  const Ref<MemoryListView> columns_;
  const Ref<MemoryListView> rows_;
};

Ref<RaggedList> Ragged(const std::vector<std::string>& columns, const Ref<MemoryListView>& rows) {
  return MakeRef<RaggedList>(MakeList(columns), rows);
}

// The cells that a row lacks count as empty ones; the plain comparison of a live row with a stored
// one would take it for another row each time, and its copies would multiply.
TEST(RowsOfALiveList, WithFewerCellsThanColumnsCountAsPadded) {
  const Ref<MemoryListView> rows = MakeList({"Name", "Qty"}, {{"oak", "1"}, {"elm", "3"}});
  const Ref<RaggedList> list = Ragged({"Name", "Qty", "Due", "By"}, rows);
  const Ref<ListViewDump> full = MakeDump({"Name", "Qty", "Due", "By"}, {{"oak", "1"}, {"ash"}});
  const Ref<ListViewDump> passed = MakeDump({"Name", "Qty", "Due", "By"}, {{"oak", "1"}});
  for (int i = 0; i < 2; ++i) {
    FollowList(*list, *passed, *full, Copies::kDoubtful);
    EXPECT_EQ(Texts(*full),
              (TextRows{{"oak", "1", "", ""}, {"ash", "", "", ""}, {"elm", "3", "", ""}}));
  }
  ForgetRow(*rows->ListItems()->Item(1), *passed, *full);
  EXPECT_EQ(FirstTexts(*full), (Strings{"ash", "elm"}));
  EXPECT_EQ(FirstTexts(*passed), (Strings{}));
}

TEST(RowsOfALiveList, WithMoreCellsThanColumnsCountAsCut) {
  const Ref<MemoryListView> rows = MakeList({"Name", "Qty", "Due"}, {{"oak", "1", "x"}, {"elm"}});
  const Ref<RaggedList> list = Ragged({"Name", "Qty"}, rows);
  const Ref<ListViewDump> full = MakeDump({"Name", "Qty"}, {{"oak", "1"}, {"ash"}});
  const Ref<ListViewDump> passed = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  for (int i = 0; i < 2; ++i) {
    FollowList(*list, *passed, *full, Copies::kDoubtful);
    EXPECT_EQ(Texts(*full), (TextRows{{"oak", "1"}, {"ash", ""}, {"elm", ""}}));
  }
  ForgetRow(*rows->ListItems()->Item(1), *passed, *full);
  EXPECT_EQ(FirstTexts(*full), (Strings{"ash", "elm"}));
}

TEST(AddUnknownRows, AppendsWhatIsMissingAndTakesNothingAway) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"elm", "3"}, {"oak", "1"}, {"fir"}});
  const Ref<ListViewDump> full = MakeDump({"Name", "Qty"}, {{"oak", "1"}, {"ash", "2"}});
  AddUnknownRows(*list, *full);
  EXPECT_EQ(Texts(*full), (TextRows{{"oak", "1"}, {"ash", "2"}, {"elm", "3"}, {"fir", ""}}));
}

TEST(TakeRows, ReplacesTheRowsAndKeepsTheColumns) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"elm", "3"}, {"elm", "3"}});
  list->ListItems()->Item(2)->SetKey(u"k");
  list->ListItems()->Item(2)->SetTag(u"t");
  const Ref<ListViewDump> full = MakeDump({"First", "Second"}, {{"oak", "1"}});
  const std::string columns = DumpColumns(*full);
  TakeRows(*list, *full);
  EXPECT_EQ(DumpRows(*full), DumpRows(*list));
  EXPECT_EQ(DumpColumns(*full), columns);
  EXPECT_EQ(full->ListItems()->Item(u"k")->Tag(), u"t");
}

TEST(TakeRows, GivesItsColumnsToACopyThatHasNone) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"elm", "3"}});
  const auto full = MakeRef<ListViewDump>();
  TakeRows(*list, *full);
  EXPECT_EQ(DumpRows(*full), DumpRows(*list));
  ASSERT_EQ(full->ColumnHeaders()->Count(), 2);
  EXPECT_EQ(full->ColumnHeaders()->Item(2)->Text(), u"Qty");
}

// All that a row may have to be told by.
template <class List>
void AddDressedRow(List& list, std::mt19937& random) {
  const auto sometimes = [&random] { return random() % 3 == 0; };
  const auto row = AddRow(list, {sometimes() ? "oak" : "ash", sometimes() ? "1" : "2"});
  if (sometimes()) row->SetTag(u"t");
  if (sometimes()) row->SetToolTipText(u"tip");
  if (sometimes()) row->SetIcon(std::int32_t{1});
  if (sometimes()) row->SetSmallIcon(u"pic");
  row->SetBold(sometimes());
  const auto cell = row->ListSubItems()->Item(1);
  if (sometimes()) cell->SetKey(u"c");
  if (sometimes()) cell->SetTag(u"ct");
  if (sometimes()) cell->SetReportIcon(std::int32_t{2});
  cell->SetBold(sometimes());
}

TEST(ForgetRow, TakesTheFirstEqualRowOutOfEitherCopy) {
  std::mt19937 random(20070615);
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"});
  const Ref<ListViewDump> full = MakeDump({"Name", "Qty"});
  const Ref<ListViewDump> passed = MakeDump({"Name", "Qty"});
  const Ref<ListViewDump> expectedFull = MakeDump({"Name", "Qty"});
  const Ref<ListViewDump> expectedPassed = MakeDump({"Name", "Qty"});
  for (int i = 0; i < 1000; ++i) AddDressedRow(*list, random);
  for (int i = 0; i < 2000; ++i) {
    AddDressedRow(*full, random);
    expectedFull->AddRowToDump(full->Shared()->Rows().At(i + 1));
    if (random() % 3 != 0) continue;
    passed->AddRowToDump(full->Shared()->Rows().At(i + 1));
    expectedPassed->AddRowToDump(full->Shared()->Rows().At(i + 1));
  }
  const std::int32_t before = full->ListItems()->Count();
  for (std::int32_t i = 1; i <= 1000; ++i) {
    const Ref<ListItem> row = list->ListItems()->Item(i);
    ForgetRow(*row, *passed, *full);
    expectedFull->RemoveItemFromDump(*row);
    expectedPassed->RemoveItemFromDump(*row);
    ASSERT_EQ(full->ListItems()->Count(), expectedFull->ListItems()->Count()) << DumpRow(*row);
  }
  EXPECT_EQ(DumpRows(*full), DumpRows(*expectedFull));
  EXPECT_EQ(DumpRows(*passed), DumpRows(*expectedPassed));
  EXPECT_LT(full->ListItems()->Count(), before - 300);
  EXPECT_GT(full->ListItems()->Count(), before - 1000);  // some were found in neither
}

TEST(ForgetRow, KeyAndTagTellARowFromItsLikes) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"});
  for (const char* key : {"a", "b", "c"}) AddRow(*list, {"oak", "1"}, key);
  list->ListItems()->Item(2)->SetTag(std::int32_t{7});
  const auto full = MakeRef<ListViewDump>();
  CopyListview(static_cast<HostListView*>(list.Get()), full.Get());
  const Ref<ListViewDump> passed = MakeDump({"Name", "Qty"});
  ForgetRow(*list->ListItems()->Item(2), *passed, *full);
  ASSERT_EQ(full->ListItems()->Count(), 2);
  EXPECT_EQ(full->ListItems()->Item(1)->Key(), u"a");
  EXPECT_EQ(full->ListItems()->Item(2)->Key(), u"c");
}

TEST(ForgetRow, ARowThatNobodyKnowsChangesNothing) {
  const Ref<MemoryListView> list = MakeList({"Name"}, {{"yew"}});
  const Ref<ListViewDump> full = MakeDump({"Name"}, {{"oak"}});
  const Ref<ListViewDump> passed = MakeDump({"Name"}, {{"oak"}});
  ForgetRow(*list->ListItems()->Item(1), *passed, *full);
  Recorder recorder;
  const auto mute = MakeRef<RecordingListView>(list, recorder);
  mute->Lack("ListItem.Text");
  EXPECT_EQ(ErrorOf([&] { ForgetRow(*mute->ListItems()->Item(1), *passed, *full); }), "nothing");
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak"}));
  EXPECT_EQ(FirstTexts(*passed), (Strings{"oak"}));
}

}  // namespace

}  // namespace sifter
