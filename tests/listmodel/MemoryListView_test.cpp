#include "listmodel/MemoryListView.h"

#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

TEST(MemoryListView, HasNoWindowUntilItIsGivenOne) {
  const Ref<MemoryListView> list = MakeList({});
  EXPECT_EQ(list->hWnd(), 0);
  list->SetWindow(0x12345);
  EXPECT_EQ(list->hWnd(), 0x12345);
}

TEST(MemoryListView, RowsAreBornInTheColourOfWindowText) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1"}});
  EXPECT_EQ(DumpRows(*list),
            R"(row 1: Key="" Text="1" Tag="" ToolTipText="" Icon=Empty SmallIcon=Empty Bold=False )"
            R"(Checked=False Ghosted=False ForeColor=-2147483640
  cell 1: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=-2147483640 Bold=False
)");
}

struct Mistake {
  const char* name;
  std::function<void(MemoryListView&)> make;
  std::string error;
};

// On a list of two columns, the first with key c1, and two rows, the first with key r1.
const Mistake kMistakes[] = {
    {"row 0", [](auto& list) { list.ListItems()->Item(0); }, kBadPositionError},
    {"row -1", [](auto& list) { list.ListItems()->Item(-1); }, kBadPositionError},
    {"row 3", [](auto& list) { list.ListItems()->Item(3); }, kBadPositionError},
    {"row 2.6", [](auto& list) { list.ListItems()->Item(2.6); }, kBadPositionError},
    {"row never set", [](auto& list) { list.ListItems()->Item(Value()); }, kBadPositionError},
    {"row Null", [](auto& list) { list.ListItems()->Item(Value::Null()); },
     "94: Invalid use of Null"},
    {"row too far", [](auto& list) { list.ListItems()->Item(1e10); }, kOverflowError},
    {"key of no row", [](auto& list) { list.ListItems()->Item(u"r2"); }, kBadKeyError},
    {"key in another case", [](auto& list) { list.ListItems()->Item(u"R1"); }, kBadKeyError},
    {"empty row key", [](auto& list) { list.ListItems()->Item(u""); }, kBadKeyError},
    {"text is a key", [](auto& list) { list.ListItems()->Item(u"2"); }, kBadKeyError},
    {"remove row 3", [](auto& list) { list.ListItems()->Remove(3); }, kBadPositionError},
    {"remove row 0", [](auto& list) { list.ListItems()->Remove(0); }, kBadPositionError},
    {"remove key", [](auto& list) { list.ListItems()->Remove(u"2"); }, kBadKeyError},
    {"add row 4", [](auto& list) { list.ListItems()->Add(4, u"", u"x", Value(), Value()); },
     kBadPositionError},
    {"add taken row key", [](auto& list) { AddRow(list, {"x"}, "r1"); }, kTakenKeyError},
    {"add Null text",
     [](auto& list) { list.ListItems()->Add(0, u"", Value::Null(), Value(), Value()); },
     "94: Invalid use of Null"},
    {"set taken row key", [](auto& list) { list.ListItems()->Item(2)->SetKey(u"r1"); },
     kTakenKeyError},
    {"column 0", [](auto& list) { list.ColumnHeaders()->Item(0); }, kBadPositionError},
    {"column 3", [](auto& list) { list.ColumnHeaders()->Item(3); }, kBadPositionError},
    {"key of no column", [](auto& list) { list.ColumnHeaders()->Item(u"1"); }, kBadKeyError},
    {"empty column key", [](auto& list) { list.ColumnHeaders()->Item(u""); }, kBadKeyError},
    {"add column 4", [](auto& list) { list.ColumnHeaders()->Add(4, u"", u"x", 0, 0, Value()); },
     kBadPositionError},
    {"add taken column key", [](auto& list) { AddColumn(list, "x", "c1"); }, kTakenKeyError},
    {"set taken column key", [](auto& list) { list.ColumnHeaders()->Item(2)->SetKey(u"c1"); },
     kTakenKeyError},
    {"column width no number",
     [](auto& list) { list.ColumnHeaders()->Add(0, u"", u"x", u"wide", 0, Value()); },
     "13: Type mismatch"},
    {"cell 0", [](auto& list) { list.ListItems()->Item(1)->SubItems(0); }, kBadPositionError},
    {"cell -1", [](auto& list) { list.ListItems()->Item(1)->SubItems(-1); }, kBadPositionError},
    {"cell 2", [](auto& list) { list.ListItems()->Item(1)->SubItems(2); }, kBadPositionError},
    {"set cell 2", [](auto& list) { list.ListItems()->Item(1)->SetSubItems(2, u"x"); },
     kBadPositionError},
    {"sub-item 0", [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Item(0); },
     kBadPositionError},
    {"sub-item 2", [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Item(2); },
     kBadPositionError},
    {"key of no sub-item",
     [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Item(u"1"); }, kBadKeyError},
    {"empty sub-item key", [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Item(u""); },
     kBadKeyError},
    {"add sub-item 3",
     [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Add(3, u"", u"x", Value(), u""); },
     kBadPositionError},
    {"add taken sub-item key",
     [](auto& list) {
       list.ListItems()->Item(1)->ListSubItems()->Add(0, u"s1", u"x", Value(), u"");
     },
     kTakenKeyError},
    {"bold no Boolean", [](auto& list) { list.ListItems()->Item(1)->SetBold(u"very"); },
     "13: Type mismatch"},
    {"colour too large", [](auto& list) { list.ListItems()->Item(1)->SetForeColor(3e9); },
     kOverflowError},
    {"cell colour too large",
     [](auto& list) { list.ListItems()->Item(1)->ListSubItems()->Item(1)->SetForeColor(3e9); },
     kOverflowError},
    {"tag Null", [](auto& list) { list.ListItems()->Item(1)->SetTag(Value::Null()); },
     "94: Invalid use of Null"},
    {"sort order 2", [](auto& list) { list.SetSortOrder(2); }, "380: Invalid property value"},
    {"sort order -1", [](auto& list) { list.SetSortOrder(-1); }, "380: Invalid property value"},
};

TEST(MemoryListView, AMistakeHasItsErrorAndChangesNothing) {
  for (const Mistake& mistake : kMistakes) {
    SCOPED_TRACE(mistake.name);
    const Ref<MemoryListView> list = MakeRef<MemoryListView>();
    AddColumn(*list, "a", "c1");
    AddColumn(*list, "b");
    AddRow(*list, {"Oak", "3"}, "r1")->ListSubItems()->Item(1)->SetKey(u"s1");
    AddRow(*list, {"Ash", "5"});
    const std::string before = Dump(*list);
    EXPECT_EQ(ErrorOf([&] { mistake.make(*list); }), mistake.error);
    EXPECT_EQ(Dump(*list), before);
  }
}

TEST(MemoryListView, KeysThatDifferInCaseOrFormAreDifferentKeys) {
  const Ref<MemoryListView> list = MakeList({"a"});
  const Strings keys = {"a", "A", "\xC3\xA9", "e\xCC\x81", "ss", "\xC3\x9F", " a"};
  for (const std::string& key : keys) {
    AddRow(*list, {key}, key);
    AddColumn(*list, key, key);
  }
  for (const std::string& key : keys) {
    EXPECT_EQ(list->ListItems()->Item(Text::FromUtf8(key))->Text(), Value(Text::FromUtf8(key)));
    EXPECT_EQ(list->ColumnHeaders()->Item(Text::FromUtf8(key))->Text(), Value(Text::FromUtf8(key)));
  }
}

TEST(MemoryListView, AKeyThatWasGivenUpIsFree) {
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  AddColumn(*list, "a", "k");
  AddRow(*list, {"Oak"}, "k");
  list->ColumnHeaders()->Item(1)->SetKey(u"l");
  list->ListItems()->Item(1)->SetKey(u"l");
  AddColumn(*list, "b", "k");
  AddRow(*list, {"Ash"}, "k");
  EXPECT_EQ(list->ListItems()->Item(u"k")->Text(), Value(u"Ash"));
  list->ListItems()->Item(u"k")->SetKey(u"k");
  list->ColumnHeaders()->Item(u"k")->SetKey(u"k");
  list->ListItems()->Clear();
  list->ColumnHeaders()->Clear();
  AddColumn(*list, "a", "k");
  AddRow(*list, {"Elm"}, "k");
  EXPECT_EQ(list->ColumnHeaders()->Item(u"k")->Text(), Value(u"a"));
  EXPECT_EQ(list->ListItems()->Item(u"k")->Text(), Value(u"Elm"));
}

TEST(MemoryListView, AnEmptyKeyAndAnIconThatIsEmptyReadBackAsNeverSet) {
  const Ref<MemoryListView> list = MakeList({"a", "b"});
  list->ListItems()->Add(0, Text(), u"x", Value(), Value());
  list->ListItems()->Add(0, Value(), u"x", Value(), Value());
  list->ListItems()->Item(2)->ListSubItems()->Item(1)->SetReportIcon(Value());
  EXPECT_EQ(DumpRow(*list->ListItems()->Item(1)), DumpRow(*list->ListItems()->Item(2)));
  EXPECT_EQ(list->ListItems()->Item(1)->Key(), Value(u""));
  EXPECT_TRUE(list->ListItems()->Item(1)->Icon().IsEmpty());
  EXPECT_TRUE(list->ListItems()->Item(1)->SmallIcon().IsEmpty());
}

TEST(MemoryListView, IconsKeepTheValueThatWasWrittenLast) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"x"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
  const Value icons[] = {0,   false,   u"",     u"pic", true,         -1, std::int16_t{1},
                         1.5, Value(), Date{1}, 1.0,    Value::Null()};
  for (const Value& icon : icons) {
    row->SetIcon(icon);
    row->SetSmallIcon(icon);
    cell->SetReportIcon(icon);
    EXPECT_EQ(Shown(row->Icon()), Shown(icon));
    EXPECT_EQ(Shown(row->SmallIcon()), Shown(icon));
    EXPECT_EQ(Shown(cell->ReportIcon()), Shown(icon));
  }
}

TEST(MemoryListView, TextsAreKeptUnitByUnit) {
  const Ref<MemoryListView> list = MakeList({"a"});
  const Text text(TextView(u"\xD800x\0y\r\n", 6));
  list->ListItems()->Add(0, u"", text, Value(), Value());
  EXPECT_EQ(list->ListItems()->Item(1)->Text(), Value(text));
}

TEST(MemoryListView, AddingAColumnGivesEveryRowAnEmptyCellAtItsEnd) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}, {"3", "4"}});
  list->ListItems()->Item(1)->ListSubItems()->Item(1)->SetBold(true);
  list->ColumnHeaders()->Add(1, u"", u"front", 0, 0, Value());
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "2", ""}, {"3", "4", ""}}));
  EXPECT_EQ(DumpCell(*list->ListItems()->Item(1)->ListSubItems()->Item(2)),
            " Key=\"\" Text=\"\" Tag=\"\" ReportIcon=Empty ToolTipText=\"\" "
            "ForeColor=-2147483640 Bold=False");
  EXPECT_EQ(list->ListItems()->Item(1)->ListSubItems()->Item(1)->Bold(), Value(true));
}

TEST(MemoryListView, TheFirstColumnIsTheRowsOwnText) {
  const Ref<MemoryListView> list = MakeList({}, {{"1"}});
  EXPECT_EQ(Texts(*list), (TextRows{{"1"}}));
  AddColumn(*list, "a");
  EXPECT_EQ(Texts(*list), (TextRows{{"1"}}));
  AddColumn(*list, "b");
  EXPECT_EQ(Texts(*list), (TextRows{{"1", ""}}));
}

TEST(MemoryListView, CellsThatOutlivedTheirColumnsAreTakenIntoUseAgain) {
  const Ref<MemoryListView> list = MakeList({"a", "b", "c"}, {{"1", "2", "3"}});
  list->ColumnHeaders()->Clear();
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "2", "3"}}));
  EXPECT_EQ(ErrorOf([&] { list->ListItems()->Item(1)->SubItems(1); }), kBadPositionError);
  for (const char* caption : {"a", "b", "c", "d"}) AddColumn(*list, caption);
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "2", "3", ""}}));
  EXPECT_EQ(list->ListItems()->Item(1)->SubItems(1), Value(u"2"));
}

TEST(MemoryListView, CellsAreInsertedAndFoundByKey) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}});
  const Ref<ListSubItemCollection> cells = list->ListItems()->Item(1)->ListSubItems();
  cells->Add(0, u"last", u"z", 5, u"tip");
  cells->Add(1, u"first", u"x", Value(), u"");
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "x", "2", "z"}}));
  EXPECT_EQ(cells->Item(u"last")->Text(), Value(u"z"));
  EXPECT_EQ(cells->Item(u"first")->ForeColor(), Value(kWindowTextColor));
}

TEST(MemoryListView, ColumnsKnowTheirPlaceUntilTheyAreTakenAway) {
  const Ref<MemoryListView> list = MakeList({"a", "b"});
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(2);
  list->ColumnHeaders()->Add(1, u"", u"front", 0, 0, Value());
  EXPECT_EQ(column->Index(), Value(3));
  list->ColumnHeaders()->Clear();
  EXPECT_EQ(column->Index(), Value(0));
  AddColumn(*list, "new", "k");
  column->SetKey(u"k");
  column->SetText(u"still here");
  EXPECT_EQ(column->Text(), Value(u"still here"));
  EXPECT_EQ(list->ColumnHeaders()->Item(u"k")->Text(), Value(u"new"));
}

TEST(MemoryListView, ARowGoesOnWorkingAfterItHasLeftTheList) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}, {"3", "4"}});
  const Ref<ListItem> row = list->ListItems()->Item(2);
  const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
  list->ListItems()->Remove(1);
  EXPECT_EQ(row->Index(), Value(1));
  list->ListItems()->Remove(1);
  EXPECT_EQ(row->Index(), Value(0));
  row->SetText(u"x");
  row->SetKey(u"k");
  cell->SetText(u"y");
  EXPECT_EQ(row->Text(), Value(u"x"));
  EXPECT_EQ(row->SubItems(1), Value(u"y"));
  AddRow(*list, {"new"}, "k");
  EXPECT_EQ(FirstTexts(*list), (Strings{"new"}));
}

TEST(MemoryListView, AColumnOutlivesTheList) {
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}});
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(2);
  list = nullptr;
  EXPECT_EQ(column->Index(), Value(0));
  column->SetKey(u"k");
  column->SetWidth(99);
  EXPECT_EQ(column->Text(), Value(u"b"));
  EXPECT_EQ(column->Width(), Value(99));
}

TEST(MemoryListView, WhatIsHeldGoesOnWorkingAfterTheListWasLetGo) {
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  const Ref<ListItemCollection> rows = list->ListItems();
  const Ref<ColumnHeaderCollection> columns = list->ColumnHeaders();
  list = nullptr;
  EXPECT_EQ(row->Index(), Value(1));
  EXPECT_EQ(rows->Count(), 1);
  EXPECT_EQ(columns->Count(), 2);
  row->SetSubItems(1, u"x");
  EXPECT_EQ(rows->Item(1)->SubItems(1), Value(u"x"));
}

TEST(MemoryListView, CellsGoOnWorkingAfterTheListWasLetGo) {
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}});
  const Ref<ListSubItem> cell = list->ListItems()->Item(1)->ListSubItems()->Item(1);
  const Ref<ListSubItemCollection> cells = list->ListItems()->Item(1)->ListSubItems();
  list = nullptr;
  cell->SetText(u"changed");
  EXPECT_EQ(cells->Item(1)->Text(), Value(u"changed"));
  cells->Add(0, u"", u"new", Value(), u"");
  EXPECT_EQ(cells->Count(), 2);
}

TEST(MemoryListView, ObjectsOfTheHostEndWithTheLastRowThatHasThem) {
  int alive = 0;
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1"}, {"2"}, {"3"}, {"4"}});
  for (std::int32_t i = 1; i <= 4; ++i) {
    list->ListItems()->Item(i)->SetIcon(Value(Ref<Object>(MakeRef<LifeProbe>(alive))));
    list->ListItems()->Item(i)->ListSubItems()->Item(1)->SetReportIcon(
        Value(Ref<Object>(MakeRef<LifeProbe>(alive))));
  }
  EXPECT_EQ(alive, 8);
  list->ListItems()->Remove(4);
  EXPECT_EQ(alive, 6);
  list->ListItems()->Item(1)->SetIcon(3);
  EXPECT_EQ(alive, 5);
  {
    const Ref<ListSubItem> held = list->ListItems()->Item(2)->ListSubItems()->Item(1);
    list->ListItems()->Remove(2);
    EXPECT_EQ(alive, 5);
  }
  EXPECT_EQ(alive, 3);
  list = nullptr;
  EXPECT_EQ(alive, 0);
}

TEST(MemoryListView, HoldsMoreRowsThanA16BitCounterCounts) {
  const Ref<MemoryListView> list = MakeList({"a"});
  for (int i = 0; i < 40000; ++i) AddRow(*list, {"x"});
  AddRow(*list, {"last"}, "k");
  EXPECT_EQ(list->ListItems()->Count(), 40001);
  EXPECT_EQ(list->ListItems()->Item(u"k")->Index(), Value(40001));
}

}  // namespace

}  // namespace sifter
