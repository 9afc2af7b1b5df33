#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

Ref<ListViewDump> SnapshotOf(MemoryListView& list) {
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  for (std::int32_t i = 1; i <= list.ColumnHeaders()->Count(); ++i) AddColumn(*dump, "column");
  for (std::int32_t i = 1; i <= list.ListItems()->Count(); ++i)
    dump->AddItemToDump(*list.ListItems()->Item(i));
  return dump;
}

Ref<MemoryListView> ThreeRows() {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty", "Colour"});
  AddRow(*list, {"Oak", "3", "green"}, "k1");
  AddRow(*list, {"Ash", "5", "red"}, "k2");
  AddRow(*list, {"Elm", "", ""});
  return list;
}

TEST(RemoveItemFromDump, TakesOutTheRowThatEqualsTheLiveOne) {
  const Ref<MemoryListView> list = ThreeRows();
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  dump->RemoveItemFromDump(*list->ListItems()->Item(2));
  EXPECT_EQ(FirstTexts(*dump), (Strings{"Oak", "Elm"}));
  dump->RemoveItemFromDump(*list->ListItems()->Item(2));
  EXPECT_EQ(FirstTexts(*dump), (Strings{"Oak", "Elm"}));
  dump->RemoveItemFromDump(*list->ListItems()->Item(3));
  dump->RemoveItemFromDump(*list->ListItems()->Item(1));
  EXPECT_EQ(FirstTexts(*dump), Strings());
}

struct Difference {
  const char* name;
  std::function<void(ListItem&)> make;
  bool stillFound;
};

const Difference kDifferences[] = {
    {"none", [](ListItem&) {}, true},
    {"key", [](ListItem& row) { row.SetKey(u"x"); }, false},
    {"key in another case", [](ListItem& row) { row.SetKey(u"K1"); }, false},
    {"text", [](ListItem& row) { row.SetText(u"oak"); }, false},
    {"tool tip", [](ListItem& row) { row.SetToolTipText(u"x"); }, false},
    {"icon", [](ListItem& row) { row.SetIcon(1); }, false},
    {"icon 0 for none", [](ListItem& row) { row.SetIcon(0); }, false},
    {"icon \"\" for none", [](ListItem& row) { row.SetIcon(u""); }, false},
    {"small icon", [](ListItem& row) { row.SetSmallIcon(u"pic"); }, false},
    {"small icon 0 for none", [](ListItem& row) { row.SetSmallIcon(0); }, false},
    {"tag", [](ListItem& row) { row.SetTag(u"x"); }, false},
    {"cell key", [](ListItem& row) { row.ListSubItems()->Item(2)->SetKey(u"x"); }, false},
    {"cell text", [](ListItem& row) { row.SetSubItems(2, u"x"); }, false},
    {"cell icon", [](ListItem& row) { row.ListSubItems()->Item(1)->SetReportIcon(1); }, false},
    {"cell icon 0 for none", [](ListItem& row) { row.ListSubItems()->Item(1)->SetReportIcon(0); },
     false},
    {"cell tag", [](ListItem& row) { row.ListSubItems()->Item(1)->SetTag(u"x"); }, false},
    {"bold", [](ListItem& row) { row.SetBold(true); }, true},
    {"checked", [](ListItem& row) { row.SetChecked(true); }, true},
    {"colour", [](ListItem& row) { row.SetForeColor(255); }, true},
    {"ghosted", [](ListItem& row) { row.SetGhosted(true); }, true},
    {"cell tool tip", [](ListItem& row) { row.ListSubItems()->Item(1)->SetToolTipText(u"x"); },
     true},
    {"cell colour", [](ListItem& row) { row.ListSubItems()->Item(1)->SetForeColor(255); }, true},
    {"cell bold", [](ListItem& row) { row.ListSubItems()->Item(1)->SetBold(true); }, true},
};

TEST(RemoveItemFromDump, WhatIdentifiesARowMustBeEqualHowItLooksNeedNot) {
  for (const Difference& difference : kDifferences) {
    SCOPED_TRACE(difference.name);
    const Ref<MemoryListView> list = ThreeRows();
    const Ref<ListViewDump> dump = SnapshotOf(*list);
    const Ref<ListItem> row = list->ListItems()->Item(1);
    difference.make(*row);
    dump->RemoveItemFromDump(*row);
    EXPECT_EQ(FirstTexts(*dump),
              difference.stillFound ? (Strings{"Ash", "Elm"}) : (Strings{"Oak", "Ash", "Elm"}));
  }
}

struct IconPair {
  Value stored, live;
  bool equal;
};

TEST(RemoveItemFromDump, IconsAreComparedAsVariants) {
  const IconPair pairs[] = {
      {Value(), Value(), true}, {1, 1.0, true},         {1, std::int16_t{1}, true},
      {true, -1, true},         {u"pic", u"pic", true}, {u"pic", u"PIC", false},
      {1, u"1", false},         {0, Value(), false},    {u"", Value(), false},
      {false, Value(), false},  {0, false, true},       {1, 2, false},
  };
  for (const IconPair& pair : pairs) {
    SCOPED_TRACE(Shown(pair.stored) + " and " + Shown(pair.live));
    const std::vector<std::function<void(ListItem&, const Value&)>> places = {
        [](ListItem& row, const Value& icon) { row.SetIcon(icon); },
        [](ListItem& row, const Value& icon) { row.SetSmallIcon(icon); },
        [](ListItem& row, const Value& icon) { row.ListSubItems()->Item(1)->SetReportIcon(icon); }};
    for (const auto& set : places) {
      const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "2"}});
      const Ref<ListItem> row = list->ListItems()->Item(1);
      set(*row, pair.stored);
      const Ref<ListViewDump> dump = SnapshotOf(*list);
      set(*row, pair.live);
      dump->RemoveItemFromDump(*row);
      EXPECT_EQ(dump->ListItems()->Count(), pair.equal ? 0 : 1);
    }
  }
}

TEST(RemoveItemFromDump, OfEqualRowsOnlyTheFirstGoes) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1", "x"}, {"1", "x"}, {"1", "x"}});
  for (const std::int32_t i : {1, 2, 3}) list->ListItems()->Item(i)->SetForeColor(i);
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  dump->RemoveItemFromDump(*list->ListItems()->Item(3));
  ASSERT_EQ(dump->ListItems()->Count(), 2);
  EXPECT_EQ(dump->ListItems()->Item(1)->ForeColor(), 2);
  EXPECT_EQ(dump->ListItems()->Item(2)->ForeColor(), 3);
}

TEST(RemoveItemFromDump, ACellThatDiffersRejectsTheRowAndTheSearchGoesOn) {
  const Ref<MemoryListView> list =
      MakeList({"a", "b", "c"}, {{"1", "x", "y"}, {"1", "x", "z"}, {"1", "w", "z"}});
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  dump->RemoveItemFromDump(*list->ListItems()->Item(3));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "x", "y"}, {"1", "x", "z"}}));
  dump->RemoveItemFromDump(*list->ListItems()->Item(2));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "x", "y"}}));
}

TEST(RemoveItemFromDump, AListOfOneColumnHasNoCellsToCompare) {
  const Ref<MemoryListView> list = MakeList({"a"}, {{"1"}, {"2"}});
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  dump->RemoveItemFromDump(*list->ListItems()->Item(2));
  EXPECT_EQ(FirstTexts(*dump), (Strings{"1"}));
}

TEST(RemoveItemFromDump, AnItemWhoseCellsDoNotFitTheColumnsIsNotLookedFor) {
  const Ref<MemoryListView> list = ThreeRows();
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  const Ref<ListItem> row = list->ListItems()->Item(1);
  row->ListSubItems()->Add(0, u"", u"", Value(), u"");
  dump->RemoveItemFromDump(*row);
  EXPECT_EQ(dump->ListItems()->Count(), 3);
  dump->ColumnHeaders()->Remove(1);
  dump->RemoveItemFromDump(*list->ListItems()->Item(2));
  EXPECT_EQ(dump->ListItems()->Count(), 3);
}

TEST(RemoveItemFromDump, ASnapshotWithoutColumnsGivesUpNoRow) {
  const Ref<MemoryListView> list = MakeList({}, {{"1"}});
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  dump->RemoveItemFromDump(*list->ListItems()->Item(1));
  EXPECT_EQ(FirstTexts(*dump), (Strings{"1"}));
}

TEST(RemoveItemFromDump, ARowStoredWithoutItsTakenKeyIsFoundByItsKeyField) {
  const Ref<MemoryListView> list = MakeList({"a"});
  AddRow(*list, {"1"}, "k");
  const Ref<ListViewDump> dump = SnapshotOf(*list);
  list->ListItems()->Item(1)->SetText(u"2");
  dump->AddItemToDump(*list->ListItems()->Item(1));
  dump->RemoveItemFromDump(*list->ListItems()->Item(1));
  EXPECT_EQ(FirstTexts(*dump), (Strings{"1"}));
}

class RecordedRemovalTest : public testing::Test {
 protected:
  Ref<ListItem> Live(std::int32_t position) {
    const Ref<ListItem> row = list->ListItems()->Item(position);
    recorder.Clear();
    return row;
  }

  Recorder recorder;
  Ref<MemoryListView> memory =
      MakeList({"a", "b", "c"}, {{"1", "x", "y"}, {"2", "x", "y"}, {"2", "x", "z"}});
  Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
  Ref<ListViewDump> dump = SnapshotOf(*memory);
};

const Strings kReadsOfARow = {
    "ListItems(3).ListSubItems", "ListItems(3).ListSubItems.Count",
    "ListItems(3).Key",          "ListItems(3).Text",
    "ListItems(3).ToolTipText",  "ListItems(3).Icon",
    "ListItems(3).SmallIcon",    "ListItems(3).Tag",
};

TEST_F(RecordedRemovalTest, ReadsTheLiveRowOnceAndItsCellsAsFarAsTheyAreCompared) {
  dump->RemoveItemFromDump(*Live(3));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "x", "y"}, {"2", "x", "y"}}));
  Strings expected = kReadsOfARow;
  expected.push_back("ListItems(3).ListSubItems");
  for (const std::string j : {"1", "2"}) {
    expected.push_back("ListItems(3).ListSubItems.Item(" + j + ")");
    for (const char* member : {"Key", "Text", "ReportIcon", "Tag"})
      expected.push_back("ListItems(3).ListSubItems(" + j + ")." + member);
  }
  EXPECT_TRUE(recorder.Shows(expected));
}

TEST_F(RecordedRemovalTest, ReadsNoCellWhenNoStoredRowComesIntoQuestion) {
  memory->ListItems()->Item(3)->SetTag(u"another");
  dump->RemoveItemFromDump(*Live(3));
  EXPECT_TRUE(recorder.Shows(kReadsOfARow));
}

TEST_F(RecordedRemovalTest, ReadsNothingOfTheRowWhenItsCellsDoNotFit) {
  dump->ColumnHeaders()->Remove(1);
  dump->RemoveItemFromDump(*Live(3));
  EXPECT_TRUE(recorder.Shows({"ListItems(3).ListSubItems", "ListItems(3).ListSubItems.Count"}));
}

TEST_F(RecordedRemovalTest, ReadsNothingOfTheRowWhenThereIsNoneStored) {
  dump->ListItems()->Clear();
  dump->RemoveItemFromDump(*Live(3));
  EXPECT_TRUE(recorder.Shows({"ListItems(3).ListSubItems", "ListItems(3).ListSubItems.Count"}));
}

TEST_F(RecordedRemovalTest, ReadsNoCellBeyondTheOneThatDiffers) {
  memory->ListItems()->Item(3)->SetSubItems(1, u"another");
  const Ref<ListItem> row = Live(3);
  list->RecordOnly({"ListSubItems.Item"});
  dump->RemoveItemFromDump(*row);
  EXPECT_TRUE(recorder.Shows({"ListItems(3).ListSubItems.Item(1)"}));
}

TEST_F(RecordedRemovalTest, NeverRaisesAndRemovesNothingAfterAnError) {
  for (const char* member :
       {"ListItem.ListSubItems", "ListSubItems.Count", "ListItem.Key", "ListItem.Text",
        "ListItem.ToolTipText", "ListItem.Icon", "ListItem.SmallIcon", "ListItem.Tag",
        "ListSubItems.Item", "ListSubItem.Key", "ListSubItem.Text", "ListSubItem.ReportIcon",
        "ListSubItem.Tag"}) {
    SCOPED_TRACE(member);
    const Ref<ListItem> row = Live(2);
    list->FailOn(member, 1, RuntimeError(35600, u"no"));
    EXPECT_EQ(ErrorOf([&] { dump->RemoveItemFromDump(*row); }), "nothing");
    EXPECT_EQ(dump->ListItems()->Count(), 3);
  }
  dump->RemoveItemFromDump(*Live(2));
  EXPECT_EQ(dump->ListItems()->Count(), 2);
}

TEST_F(RecordedRemovalTest, MembersThatPlayNoPartNeedNotExist) {
  for (const char* member : {"ListItem.Bold", "ListItem.Checked", "ListItem.ForeColor",
                             "ListItem.Ghosted", "ListItem.SubItems", "ListSubItem.ToolTipText",
                             "ListSubItem.ForeColor", "ListSubItem.Bold"})
    list->Lack(member);
  dump->RemoveItemFromDump(*Live(2));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "x", "y"}, {"2", "x", "z"}}));
}

}  // namespace

}  // namespace sifter
