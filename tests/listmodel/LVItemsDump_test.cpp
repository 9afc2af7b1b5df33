#include "listmodel/LVItemsDump.h"

#include "listmodel/ListViewDump.h"
#include "support/Errors.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// Rows a, b, c; b under the key kb.
Ref<ListViewDump> ThreeRows() {
  const Ref<ListViewDump> dump = MakeDump({"Name"}, {{"a"}});
  AddRow(*dump, {"b"}, "kb");
  AddRow(*dump, {"c"});
  return dump;
}

TEST(LVItemsDump, ANewRowHasACellForEveryColumnButTheFirst) {
  EXPECT_EQ(DumpRows(*MakeDump({"a", "b", "c"}, {{"1"}})),
            R"(row 1: Key="" Text="1" Tag="" ToolTipText="" Icon=Empty SmallIcon=Empty Bold=False )"
            R"(Checked=False Ghosted=False ForeColor=0
  cell 1: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
  cell 2: Key="" Text="" Tag="" ReportIcon=Empty ToolTipText="" ForeColor=0 Bold=False
)");
}

TEST(LVItemsDump, WithoutColumnsANewRowHasNoCells) {
  EXPECT_EQ(Texts(*MakeDump({}, {{"1"}})), (TextRows{{"1"}}));
}

TEST(LVItemsDump, AddReturnsTheRowAsStored) {
  const Ref<ListViewDump> dump = MakeDump({"a"});
  const Ref<LVItemDump> row = dump->ListItems()->Add(0, u"k", u"Oak", 3, u"pic");
  row->SetTag(u"t");
  EXPECT_EQ(DumpRows(*dump),
            "row 1: Key=\"k\" Text=\"Oak\" Tag=\"t\" ToolTipText=\"\" Icon=3 SmallIcon=\"pic\" "
            "Bold=False Checked=False Ghosted=False ForeColor=0\n");
}

TEST(LVItemsDump, WithAKeyARowIsAppendedWhateverTheIndex) {
  const Ref<ListViewDump> dump = ThreeRows();
  for (const std::int32_t index : {0, 1, 2, 99, -5}) {
    const Text key = IntegerToText(index);
    dump->ListItems()->Add(index, key, key, Value(), Value());
    EXPECT_EQ(FirstTexts(*dump).back(), key.ToUtf8());
    EXPECT_EQ(dump->ListItems()->Item(key)->Key(), key);
  }
}

TEST(LVItemsDump, WithoutAKeyARowGoesToItsIndex) {
  const Ref<ListViewDump> dump = ThreeRows();
  const auto add = [&](std::int32_t index, const char16_t* text) {
    return dump->ListItems()->Add(index, Text(), text, Value(), Value());
  };
  add(1, u"first");
  EXPECT_EQ(add(3, u"third")->Text(), u"third");
  add(6, u"at the end");
  add(0, u"appended");
  add(-7, u"too");
  EXPECT_EQ(FirstTexts(*dump),
            (Strings{"first", "a", "third", "b", "c", "at the end", "appended", "too"}));
  EXPECT_EQ(ErrorOf([&] { add(10, u"x"); }), kBadPositionError);
  EXPECT_EQ(dump->ListItems()->Count(), 8);
}

TEST(LVItemsDump, ATakenKeyIsAnErrorAndAddsNothing) {
  const Ref<ListViewDump> dump = ThreeRows();
  EXPECT_EQ(ErrorOf([&] { AddRow(*dump, {"x"}, "kb"); }), kTakenKeyError);
  EXPECT_EQ(FirstTexts(*dump), (Strings{"a", "b", "c"}));
  AddRow(*dump, {"x"}, "KB");
  AddRow(*dump, {"y"});
  EXPECT_EQ(FirstTexts(*dump), (Strings{"a", "b", "c", "x", "y"}));
}

TEST(LVItemsDump, ItemAndRemoveTakeAPositionOrAKey) {
  const Ref<ListViewDump> dump = ThreeRows();
  EXPECT_EQ(dump->ListItems()->Item(3)->Text(), u"c");
  EXPECT_EQ(dump->ListItems()->Item(1.6)->Text(), u"b");
  EXPECT_EQ(dump->ListItems()->Item(u"kb")->Text(), u"b");
  dump->ListItems()->Remove(u"kb");
  dump->ListItems()->Remove(1);
  EXPECT_EQ(FirstTexts(*dump), (Strings{"c"}));
}

TEST(LVItemsDump, WhatIsNotThereIsAnErrorAndChangesNothing) {
  const Ref<ListViewDump> dump = ThreeRows();
  const Ref<LVItemsDump> rows = dump->ListItems();
  for (const Value& position : {Value(0), Value(-1), Value(4), Value(Value())}) {
    EXPECT_EQ(ErrorOf([&] { rows->Item(position); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { rows->Remove(position); }), kBadPositionError);
  }
  for (const char16_t* key : {u"2", u"KB", u"", u"kb "}) {
    EXPECT_EQ(ErrorOf([&] { rows->Item(key); }), kBadKeyError);
    EXPECT_EQ(ErrorOf([&] { rows->Remove(key); }), kBadKeyError);
  }
  EXPECT_EQ(FirstTexts(*dump), (Strings{"a", "b", "c"}));
}

TEST(LVItemsDump, ClearEmptiesIt) {
  const Ref<ListViewDump> dump = ThreeRows();
  dump->ListItems()->Clear();
  dump->ListItems()->Clear();
  EXPECT_EQ(dump->ListItems()->Count(), 0);
  AddRow(*dump, {"again"}, "kb");
  EXPECT_EQ(dump->ListItems()->Item(u"kb")->Text(), u"again");
}

TEST(LVItemsDump, EnumerationGivesTheRowsThemselvesInOrder) {
  const Ref<ListViewDump> dump = ThreeRows();
  Strings seen;
  for (const Ref<LVItemDump>& row : *dump->ListItems()) {
    seen.push_back(row->Text().ToUtf8());
    row->SetTag(u"seen");
  }
  EXPECT_EQ(seen, (Strings{"a", "b", "c"}));
  for (std::int32_t i = 1; i <= 3; ++i) EXPECT_EQ(dump->ListItems()->Item(i)->Tag(), u"seen");
}

TEST(LVItemsDump, RowsMayGoDuringAnEnumeration) {
  Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}});
  Strings seen;
  for (const Ref<LVItemDump>& row : *dump->ListItems()) {
    seen.push_back(row->Text().ToUtf8());
    dump->ListItems()->Remove(1);
  }
  EXPECT_EQ(seen, (Strings{"1", "3", "5"}));
  for (const Ref<LVItemDump>& row : *dump->ListItems()) {
    dump->ListItems()->Clear();
    row->SetSubItems(1, u"still writable");
  }
  AddRow(*dump, {"x"});
  for (const Ref<LVItemDump>& row : *dump->ListItems()) {
    dump = nullptr;
    EXPECT_EQ(row->Text(), u"x");
  }
}

TEST(LVItemDump, SubItemsReadAndWriteTheTextsOfTheCells) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b", "c"}, {{"1", "2", "3"}});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  EXPECT_EQ(row->SubItems(1), u"2");
  EXPECT_EQ(row->SubItems(2), u"3");
  row->SetSubItems(2, 5);
  EXPECT_EQ(row->ListSubItems()->Item(2)->Text(), u"5");
  row->ListSubItems()->Item(1)->SetText(u"x");
  EXPECT_EQ(row->SubItems(1), u"x");
}

TEST(LVItemDump, ACellThatIsNotThereIsABadPosition) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1", "2"}});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  for (const std::int32_t j : {-1, 0, 2, 32767}) {
    EXPECT_EQ(ErrorOf([&] { row->SubItems(j); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { row->SetSubItems(j, u"x"); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { row->ListSubItems()->Item(j); }), kBadPositionError);
  }
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2"}}));
}

TEST(LVItemDump, MembersReadBackAsWritten) {
  const Ref<ListViewDump> dump = MakeDump({"a", "b"}, {{"1"}});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  row->SetKey(u"k");
  row->SetText(u"Oak");
  row->SetTag(u"t");
  row->SetToolTipText(u"tip");
  row->SetIcon(1);
  row->SetSmallIcon(u"pic");
  row->SetBold(1);
  row->SetChecked(u"true");
  row->SetGhosted(true);
  row->SetForeColor(255.4);
  const Ref<LVSubItemDump> cell = row->ListSubItems()->Item(1);
  cell->SetKey(u"ck");
  cell->SetText(u"x");
  cell->SetTag(u"ct");
  cell->SetReportIcon(2);
  cell->SetToolTipText(u"ctip");
  cell->SetForeColor(16);
  cell->SetBold(-1);
  EXPECT_EQ(
      DumpRows(*dump),
      R"(row 1: Key="k" Text="Oak" Tag="t" ToolTipText="tip" Icon=1 SmallIcon="pic" Bold=True )"
      R"(Checked=True Ghosted=True ForeColor=255
  cell 1: Key="ck" Text="x" Tag="ct" ReportIcon=2 ToolTipText="ctip" ForeColor=16 Bold=True
)");
}

// The key field is one thing, the key in the collection another: the copy of a row whose key is
// taken reads with its key and is not found by it.
TEST(LVItemDump, WritingTheKeyLeavesTheRowWhereItsCollectionHasIt) {
  const Ref<ListViewDump> dump = ThreeRows();
  dump->ListItems()->Item(u"kb")->SetKey(u"new");
  dump->ListItems()->Item(1)->SetKey(u"new");
  EXPECT_EQ(dump->ListItems()->Item(u"kb")->Key(), u"new");
  EXPECT_EQ(dump->ListItems()->Item(1)->Key(), u"new");
  EXPECT_EQ(ErrorOf([&] { dump->ListItems()->Item(u"new"); }), kBadKeyError);
  AddRow(*dump, {"x"}, "new");
  EXPECT_EQ(dump->ListItems()->Item(u"new")->Text(), u"x");
}

struct Resize {
  std::vector<std::string> cells;
  std::int32_t number;
  std::vector<std::string> left;
  std::string error;
};

std::vector<std::string> RowOf(const std::vector<std::string>& cells) {
  std::vector<std::string> row = {"row"};
  row.insert(row.end(), cells.begin(), cells.end());
  return row;
}

Ref<ListViewDump> DumpWithCells(const std::vector<std::string>& cells) {
  return MakeDump(std::vector<std::string>(cells.size() + 1, "column"), {RowOf(cells)});
}

const Resize kResizes[] = {
    {{}, 0, {}, "nothing"},
    {{}, -1, {}, "nothing"},
    {{}, 2, {"", ""}, "nothing"},
    {{"a"}, 3, {"a", "", ""}, "nothing"},
    {{"a", "b", "c"}, 3, {"a", "b", "c"}, "nothing"},
    {{"a", "b", "c"}, 2, {"a", "b"}, "nothing"},
    {{"a"}, 0, {}, "nothing"},
    {{"a"}, -1, {}, "nothing"},
    // Every second cell of a surplus of more than one stays, and the last removal finds nothing.
    {{"a", "b"}, 0, {"b"}, kBadPositionError},
    {{"a", "b"}, -1, {"b"}, kBadPositionError},
    {{"a", "b", "c"}, 1, {"a", "c"}, kBadPositionError},
    {{"a", "b", "c", "d"}, 0, {"b", "d"}, kBadPositionError},
    {{"a", "b", "c", "d", "e"}, 2, {"a", "b", "d"}, kBadPositionError},
};

TEST(LVItemDump, SetSubItemNumGrowsAtTheEndAndShrinksInItsOwnWay) {
  for (const Resize& resize : kResizes) {
    SCOPED_TRACE(std::to_string(resize.cells.size()) + " to " + std::to_string(resize.number));
    const Ref<ListViewDump> dump = DumpWithCells(resize.cells);
    const Ref<LVItemDump> row = dump->ListItems()->Item(1);
    EXPECT_EQ(ErrorOf([&] { row->SetSubItemNum(resize.number); }), resize.error);
    EXPECT_EQ(Texts(*dump), (TextRows{RowOf(resize.left)}));
  }
}

TEST(LVItemDump, GrownCellsHaveNothing) {
  const Ref<ListViewDump> dump = DumpWithCells({"a"});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  row->SetForeColor(255);
  row->ListSubItems()->Item(1)->SetForeColor(255);
  row->SetSubItemNum(2);
  EXPECT_EQ(DumpCell(*row->ListSubItems()->Item(2)),
            " Key=\"\" Text=\"\" Tag=\"\" ReportIcon=Empty ToolTipText=\"\" ForeColor=0 "
            "Bold=False");
}

TEST(LVItemDump, ShrinkingTakesTheAttributesOfTheCellsAlong) {
  const Ref<ListViewDump> dump = DumpWithCells({"a", "b", "c"});
  const Ref<LVItemDump> row = dump->ListItems()->Item(1);
  for (const std::int32_t j : {1, 2, 3}) row->ListSubItems()->Item(j)->SetForeColor(j * 10);
  ErrorOf([&] { row->SetSubItemNum(1); });
  ASSERT_EQ(row->ListSubItems()->Count(), 2);
  EXPECT_EQ(row->ListSubItems()->Item(1)->ForeColor(), 10);
  EXPECT_EQ(row->ListSubItems()->Item(2)->ForeColor(), 30);
}

TEST(LVItemsDump, SetItemSubItemNumGoesThroughTheRowsUntilOneFails) {
  const Ref<ListViewDump> dump = MakeDump(
      {"", "", "", ""}, {{"1", "a", "b", "c"}, {"2", "a", "b", "c"}, {"3", "a", "b", "c"}});
  dump->ListItems()->Item(1)->SetSubItemNum(2);
  EXPECT_EQ(ErrorOf([&] { dump->ListItems()->SetItemSubItemNum(1); }), kBadPositionError);
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "a"}, {"2", "a", "c"}, {"3", "a", "b", "c"}}));
  dump->ListItems()->Item(3)->SetSubItemNum(2);
  dump->ListItems()->SetItemSubItemNum(3);
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "a", "", ""}, {"2", "a", "c", ""}, {"3", "a", "b", ""}}));
}

}  // namespace

}  // namespace sifter
