#include "listmodel/ListDisplay.h"

#include "listmodel/MemoryListView.h"
#include "listmodel/RowStore.h"
#include "support/Errors.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

const char* NameOf(RowChange change) {
  switch (change) {
    case RowChange::kText:
      return "text";
    case RowChange::kLook:
      return "look";
    case RowChange::kIcon:
      return "icon";
    case RowChange::kCellIcon:
      return "cell icon";
    case RowChange::kToolTip:
      return "tool tip";
    case RowChange::kChecked:
      return "checked";
    case RowChange::kGhosted:
      return "ghosted";
  }
  return "?";
}

// Records what it is told, with the number of rows or columns that the list has at that moment.
class DisplayRecorder final : public ListDisplay {
 public:
  DisplayRecorder(MemoryListView& list, Recorder& recorder) : list_(list), recorder_(recorder) {}

  // What happens inside the next call.
  void DuringTheNext(std::function<void()> work) { work_ = std::move(work); }

  // What a user's dragging at a column's edge does.
  void DragWidthTo(double width) { width_ = width; }

  void InsertRow(const RowHandle& row) override {
    Line("insert " + Name(row) + " at " + std::to_string(row.Position()) + ", " + Rows());
  }
  void RemoveRow(const RowHandle& row) override {
    Line("remove " + Name(row) + " at " + std::to_string(row.Position()) + ", " + Rows());
  }
  void RemoveAllRows() override { Line("remove all, " + Rows()); }
  void RowChanged(const RowHandle& row, RowChange change) override {
    Line(std::string(NameOf(change)) + " of " + Name(row));
  }
  void RowsReordered(const std::vector<std::int32_t>& order) override {
    std::string line = "order";
    for (const std::int32_t position : order) line += ' ' + std::to_string(position);
    Line(line);
  }
  void ColumnChanged(std::int32_t position) override { Line("column " + std::to_string(position)); }
  void InsertColumn(std::int32_t position, double width) override {
    Line("insert column " + std::to_string(position) + " of " + Shown(width) + ", " + Columns());
  }
  void RemoveColumn(std::int32_t position) override {
    Line("remove column " + std::to_string(position) + ", " + Columns());
  }
  void ColumnResized(std::int32_t position, double width) override {
    Line("column " + std::to_string(position) + " to " + Shown(width));
  }
  double ColumnWidth(std::int32_t, double given) const override {
    return width_ == 0 ? given : width_;
  }
  void SetFocus() override { Line("focus"); }
  void BeginUpdate() noexcept override { Line("begin"); }
  void EndUpdate() noexcept override { Line("end"); }

 private:
  void Line(const std::string& line) {
    recorder_.Line(line);
    if (const auto work = std::exchange(work_, nullptr)) work();
  }
  static std::string Name(const RowHandle& row) { return row.Row().ColumnText(0).ToUtf8(); }
  std::string Rows() const { return std::to_string(list_.ListItems()->Count()) + " rows"; }
  std::string Columns() const {
    return std::to_string(list_.ColumnHeaders()->Count()) + " columns";
  }

  MemoryListView& list_;
  Recorder& recorder_;
  std::function<void()> work_;
  double width_ = 0;
};

class ListDisplayTest : public testing::Test {
 protected:
  ListDisplayTest() {
    auto made = std::make_unique<DisplayRecorder>(*list, recorder);
    display = made.get();
    list->SetDisplay(std::move(made));
  }

  Ref<ListItem> Row(std::int32_t position) { return list->ListItems()->Item(position); }

  Recorder recorder;
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}, {"3", "z"}});
  DisplayRecorder* display = nullptr;  // the list's
};

TEST_F(ListDisplayTest, ANewRowIsCountedAndARowThatGoesIsStillThere) {
  AddRow(*list, {"4"});
  list->ListItems()->Add(1, u"", u"0", Value(), Value());
  list->ListItems()->Remove(2);
  list->ListItems()->Clear();
  EXPECT_TRUE(recorder.Shows({"insert 4 at 4, 4 rows", "insert 0 at 1, 5 rows",
                              "remove 1 at 2, 5 rows", "remove all, 4 rows"}));
}

TEST_F(ListDisplayTest, ObserversAreToldBeforeIt) {
  const ListObserverRecorder observer(*list, recorder);
  AddRow(*list, {"4"});
  list->ListItems()->Remove(4);
  list->ListItems()->Clear();
  EXPECT_TRUE(
      recorder.Shows({"InsertItem 0, 4 rows", "insert 4 at 4, 4 rows", "DeleteItem 3, 4 rows",
                      "remove 4 at 4, 4 rows", "DeleteAllItems 0, 3 rows", "remove all, 3 rows"}));
}

TEST_F(ListDisplayTest, SharedRowsAreToldOneByOne) {
  const Ref<MemoryListView> source = MakeList({"a", "b"}, {{"4", ""}, {"5", ""}});
  for (std::int32_t i = 1; i <= 2; ++i)
    list->Shared()->AppendShared(source->Shared()->Rows().At(i));
  list->Shared()->RemoveRows({1, 3, 4});
  EXPECT_TRUE(recorder.Shows({"insert 4 at 4, 4 rows", "insert 5 at 5, 5 rows", "begin",
                              "remove 4 at 4, 5 rows", "remove 3 at 3, 4 rows",
                              "remove 1 at 1, 3 rows", "end"}));
  EXPECT_EQ(FirstTexts(*list), (Strings{"2", "5"}));
}

TEST_F(ListDisplayTest, WritesToARowAreToldByWhatTheyChange) {
  const Ref<ListItem> row = Row(2);
  row->SetText(u"two");
  row->SetSubItems(1, u"Y");
  row->SetBold(true);
  row->SetForeColor(255);
  row->SetIcon(1);
  row->SetSmallIcon(u"pic");
  row->SetToolTipText(u"tip");
  row->SetChecked(true);
  row->SetGhosted(true);
  row->SetTag(u"t");
  row->SetKey(u"k");
  EXPECT_TRUE(
      recorder.Shows({"text of two", "text of two", "look of two", "look of two", "icon of two",
                      "icon of two", "tool tip of two", "checked of two", "ghosted of two"}));
}

TEST_F(ListDisplayTest, WritesToACellAreToldByWhatTheyChange) {
  const Ref<ListSubItem> cell = Row(2)->ListSubItems()->Item(1);
  cell->SetText(u"Y");
  cell->SetBold(true);
  cell->SetForeColor(255);
  cell->SetReportIcon(1);
  cell->SetToolTipText(u"tip");
  cell->SetTag(u"t");
  cell->SetKey(u"k");
  EXPECT_TRUE(
      recorder.Shows({"text of 2", "look of 2", "look of 2", "cell icon of 2", "tool tip of 2"}));
}

TEST_F(ListDisplayTest, WritesThatFailAndRowsThatHaveLeftAreNotTold) {
  const Ref<ListItem> row = Row(2);
  const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
  ErrorOf([&] { row->SetChecked(u"maybe"); });
  ErrorOf([&] { row->SetSubItems(2, u"x"); });
  list->ListItems()->Remove(2);
  recorder.Clear();
  row->SetText(u"gone");
  cell->SetText(u"gone");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ListDisplayTest, ACellOutlivesItsList) {
  const Ref<ListSubItem> cell = Row(2)->ListSubItems()->Item(1);
  list = nullptr;
  cell->SetText(u"still");
  EXPECT_EQ(cell->Text(), Value(u"still"));
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ListDisplayTest, ColumnsComeChangeAndGo) {
  AddColumn(*list, "c");
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(3);
  column->SetText(u"C");
  column->SetWidth(100);
  column->SetAlignment(1);
  column->SetIcon(2);
  column->SetTag(u"t");
  column->SetKey(u"k");
  list->ColumnHeaders()->Clear();
  column->SetText(u"gone");
  column->SetWidth(50);
  EXPECT_TRUE(recorder.Shows({"insert column 3 of 1440, 3 columns", "column 3", "column 3 to 100",
                              "column 3", "column 3", "remove column 3, 3 columns",
                              "remove column 2, 2 columns", "remove column 1, 1 columns"}));
}

TEST_F(ListDisplayTest, AColumnIsAsWideAsTheUserHasMadeIt) {
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(1);
  EXPECT_EQ(column->Width(), Value(1440));
  display->DragWidthTo(777);
  EXPECT_EQ(column->Width(), Value(777));
}

TEST_F(ListDisplayTest, TheFocusIsItsToTake) {
  list->SetFocus();
  EXPECT_TRUE(recorder.Shows({"focus"}));
  EXPECT_EQ(ErrorOf([&] { MakeList({"a"})->SetFocus(); }), kMissingMemberError);
}

TEST_F(ListDisplayTest, SortingTellsTheOldPositionsInTheirNewOrder) {
  list->SetSortKey(1);
  list->SetSortOrder(1);
  list->SetSorted(true);
  AddRow(*list, {"0"});
  EXPECT_TRUE(recorder.Shows({"order 3 2 1", "insert 0 at 4, 4 rows"}));
}

TEST_F(ListDisplayTest, BracketsReachIt) {
  { const UpdateScope update(list.Get()); }
  EXPECT_TRUE(recorder.Shows({"begin", "end"}));
}

TEST_F(ListDisplayTest, ARowThatCannotBeShownIsNotInTheList) {
  display->DuringTheNext([] { throw RuntimeError(ErrorNumber::kOutOfMemory); });
  EXPECT_EQ(ErrorOf([&] { AddRow(*list, {"4"}, "k"); }), "7: Out of memory");
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2", "3"}));
  EXPECT_EQ(ErrorOf([&] { AddRow(*list, {"4"}, "k"); }), "nothing");
}

TEST_F(ListDisplayTest, AColumnThatCannotBeShownIsNotInTheList) {
  display->DuringTheNext([] { throw RuntimeError(ErrorNumber::kOutOfMemory); });
  EXPECT_EQ(ErrorOf([&] { AddColumn(*list, "c", "k"); }), "7: Out of memory");
  EXPECT_EQ(list->ColumnHeaders()->Count(), 2);
  EXPECT_EQ(ErrorOf([&] { AddColumn(*list, "c", "k"); }), "nothing");
  EXPECT_EQ(list->ColumnHeaders()->Count(), 3);
}

TEST_F(ListDisplayTest, TheListMayBeChangedMeanwhile) {
  display->DuringTheNext([&] { list->ListItems()->Remove(1); });
  const Ref<ListItem> row = AddRow(*list, {"4"});
  EXPECT_EQ(row->Index(), Value(3));
  display->DuringTheNext([&] { list->ListItems()->Remove(3); });
  list->ListItems()->Remove(3);
  EXPECT_EQ(FirstTexts(*list), (Strings{"2", "3"}));
  display->DuringTheNext([&] { AddRow(*list, {"5"}); });
  list->ListItems()->Clear();
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(ListDisplayTest, TheListMayBeLetGoMeanwhile) {
  const Ref<ListItemCollection> rows = list->ListItems();
  display->DuringTheNext([&] { list = nullptr; });
  rows->Remove(1);
  EXPECT_EQ(rows->Count(), 2);
}

TEST(RowStoreAssign, ReplacesTheRowsAndJumpsOverTheVersionsOfSingleChanges) {
  const Ref<MemoryListView> source = MakeList({"a"}, {{"1"}, {"2"}});
  AddRow(*source, {"3"}, "k");
  std::vector<const RowData*> rows;
  source->Shared()->Rows().CollectRows(rows);
  RowStore store;
  store.AppendShared(*rows[0]);
  const std::uint64_t before = store.Version();
  store.Assign({RowPtr::Share(rows[2]), RowPtr::Share(rows[1])});
  EXPECT_EQ(store.Count(), 2);
  EXPECT_EQ(&store.At(1), rows[2]);
  EXPECT_EQ(&store.At(2), rows[1]);
  EXPECT_EQ(store.PositionOfKey(u"k"), 1);
  EXPECT_GE(store.Version() - before, std::uint64_t{1} << 32);
}

TEST(RowPtrIsShared, TellsWhetherSomebodyElseHasAShare) {
  const RowPtr row = RowData::Make(1, 0);
  EXPECT_FALSE(row.IsShared());
  {
    const RowPtr other = row;
    EXPECT_TRUE(row.IsShared());
  }
  EXPECT_FALSE(row.IsShared());
}

}  // namespace

}  // namespace sifter
