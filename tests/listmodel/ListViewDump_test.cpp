#include "listmodel/ListViewDump.h"

#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <string>

namespace sifter {

namespace {

TEST(ListViewDump, StartsWithTwoEmptyCollectionsThatKnowEachOther) {
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  EXPECT_EQ(Dump(*dump), "");
  const Ref<LVColHeadersDump> columns = dump->ColumnHeaders();
  const Ref<LVItemsDump> rows = dump->ListItems();
  EXPECT_EQ(columns, dump->ColumnHeaders());
  EXPECT_EQ(rows, dump->ListItems());
  rows->Add(0, u"", u"1", Value(), Value());
  columns->Add(0, u"", u"a", 0, 0, Value());
  columns->Add(0, u"", u"b", 0, 0, Value());
  rows->Add(0, u"", u"2", Value(), Value());
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", ""}, {"2", ""}}));
}

TEST(ListViewDump, IsRefilledAfterBothCollectionsWereCleared) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}});
  dump->ColumnHeaders()->Clear();
  dump->ListItems()->Clear();
  Fill(*dump, {"x", "y", "z"}, {{"1", "2", "3"}});
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2", "3"}}));
}

TEST(ListViewDump, RowsAndCellsOutliveIt) {
  Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  const Ref<LVSubItemsDump> cells = row->ListSubItems();
  const Ref<LVSubItemDump> cell = cells->Item(1);
  const Ref<LVColHeaderDump> column = dump->ColumnHeaders()->Item(2);
  dump = nullptr;
  row->SetText(u"x");
  row->SetKey(u"k");
  cell->SetText(u"y");
  row->SetSubItemNum(2);
  EXPECT_EQ(DumpRow(*row),
            R"( Key="k" Text="x" Tag="" ToolTipText="" Icon=Empty SmallIcon=Empty Bold=False )"
            R"(Checked=False Ghosted=False ForeColor=0
  cell 1: Key="" Text="y" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
  cell 2: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
)");
  EXPECT_EQ(cells->Count(), 2);
  EXPECT_EQ(column->Text(), u"b");
}

TEST(ListViewDump, ACollectionThatOutlivesItDoesNotReachForTheOther) {
  Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}});
  const Ref<LVItemsDump> rows = dump->ListItems();
  dump = nullptr;
  EXPECT_EQ(rows->Item(1)->SubItems(1), u"2");
  rows->SetItemSubItemNum(2);
  EXPECT_EQ(ErrorOf([&] { rows->Add(0, u"", u"x", Value(), Value()); }),
            "91: Object variable or With block variable not set");
  EXPECT_EQ(rows->Count(), 1);

  dump = MakeDump({"a", "b"}, {{"1", "2"}});
  const Ref<LVColHeadersDump> columns = dump->ColumnHeaders();
  dump = nullptr;
  columns->Add(0, u"", u"c", 0, 0, Value());
  EXPECT_EQ(columns->Count(), 3);
}

TEST(ListViewDump, ARowOutlivesItsRemoval) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}, {"3", "4"}});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  dump->ListItems()->Remove(1);
  row->SetSubItems(1, u"changed");
  EXPECT_EQ(row->SubItems(1), u"changed");
  EXPECT_EQ(Texts(*dump), (TextRows{{"3", "4"}}));
}

TEST(ListViewDump, EverythingEndsWithItsLastHolder) {
  int alive = 0;
  const auto probe = [&] { return Value(Ref<Object>(MakeRef<LifeProbe>(alive))); };
  Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1"}, {"2"}});
  for (const std::int32_t i : {1, 2}) {
    dump->ListItems()->Item(i)->SetIcon(probe());
    dump->ListItems()->Item(i)->ListSubItems()->Item(1)->SetReportIcon(probe());
  }
  EXPECT_EQ(alive, 4);
  Ref<LVItemDump> row = dump->ListItems()->Item(2);
  dump = nullptr;
  EXPECT_EQ(alive, 2);
  row = nullptr;
  EXPECT_EQ(alive, 0);
}

}  // namespace

}  // namespace sifter
