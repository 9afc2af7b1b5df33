#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

// A list of our own in which rows have keys, cells have all they can have, and a key comes up
// again in `dump`.
class AddRowToDumpTest : public testing::Test {
 protected:
  AddRowToDumpTest() {
    AddRow(*list, {"Oak", "3", "green"}, "k1");
    AddRow(*list, {"Ash", "", "red"});
    const Ref<ListItem> row = list->ListItems()->Item(1);
    row->SetTag(u"t");
    row->SetToolTipText(u"tip");
    row->SetIcon(1);
    row->SetSmallIcon(u"pic");
    row->SetBold(true);
    row->SetChecked(true);
    row->SetGhosted(true);
    row->SetForeColor(255);
    const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
    cell->SetKey(u"c");
    cell->SetTag(u"ct");
    cell->SetReportIcon(2);
    cell->SetToolTipText(u"ctip");
    cell->SetForeColor(16);
    cell->SetBold(true);
  }

  const RowData& Row(std::int32_t position) { return list->Shared()->Rows().At(position); }

  // What becomes of a snapshot with these columns that the rows are appended to, twice.
  std::string Appended(const std::vector<std::string>& columns) {
    const Ref<ListViewDump> dump = MakeDump(columns);
    for (const std::int32_t i : {1, 2, 1}) dump->AddRowToDump(Row(i));
    return DumpRows(*dump) + KeyDump(*dump);
  }
  std::string AppendedLive(const std::vector<std::string>& columns) {
    const Ref<ListViewDump> dump = MakeDump(columns);
    for (const std::int32_t i : {1, 2, 1}) dump->AddItemToDump(*list->ListItems()->Item(i));
    return DumpRows(*dump) + KeyDump(*dump);
  }
  static std::string KeyDump(ListViewDump& dump) {
    dump.ListItems()->Item(3)->SetText(u"the second with this key");
    return DumpRow(*dump.ListItems()->Item(u"k1"));
  }

  const Ref<MemoryListView> list = MakeList({"Name", "Qty", "Colour"});
};

TEST_F(AddRowToDumpTest, GivesWhatALiveRowGives) {
  EXPECT_EQ(Appended({"Name", "Qty", "Colour"}), AppendedLive({"Name", "Qty", "Colour"}));
}

TEST_F(AddRowToDumpTest, TheRowGetsAsManyCellsAsTheSnapshotHasColumns) {
  EXPECT_EQ(Appended({}), AppendedLive({}));
  EXPECT_EQ(Appended({"Name"}), AppendedLive({"Name"}));
  EXPECT_EQ(Appended({"Name", "Qty"}), AppendedLive({"Name", "Qty"}));
  EXPECT_EQ(Appended({"Name", "Qty", "Colour", "More", "Still more"}),
            AppendedLive({"Name", "Qty", "Colour", "More", "Still more"}));
}

TEST_F(AddRowToDumpTest, ATakenKeyCanStillBeReadButLeadsToTheFirstRow) {
  const Ref<ListViewDump> dump = MakeDump({"Name", "Qty", "Colour"});
  dump->AddRowToDump(Row(1));
  dump->AddRowToDump(Row(1));
  EXPECT_EQ(dump->ListItems()->Item(2)->Key(), u"k1");
  dump->ListItems()->Remove(u"k1");
  EXPECT_EQ(dump->ListItems()->Count(), 1);
  EXPECT_EQ(ErrorOf([&] { dump->ListItems()->Item(u"k1"); }), kBadKeyError);
}

TEST_F(AddRowToDumpTest, TheOtherListDoesNotSeeWhatIsWrittenLater) {
  const Ref<ListViewDump> dump = MakeDump({"Name", "Qty", "Colour"});
  const std::string before = DumpRows(*list);
  dump->AddRowToDump(Row(1));
  dump->AddRowToDump(Row(1));
  dump->ListItems()->Item(1)->SetText(u"new");
  dump->ListItems()->Item(2)->ListSubItems()->Item(1)->SetTag(u"new");
  EXPECT_EQ(DumpRows(*list), before);
  list->ListItems()->Item(1)->SetText(u"live");
  EXPECT_EQ(FirstTexts(*dump), (std::vector<std::string>{"new", "Oak"}));
}

}  // namespace

}  // namespace sifter
