#include "matching/ListComparison.h"

#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"
#include "support/SparseListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace sifter {
namespace {

// Two rows with two cells each, with every attribute set that a row or cell can have.
template <class List>
void FillDressed(List& list) {
  Fill(list, {"Name", "Qty", "Due"}, {});
  for (const char* key : {"k1", "k2"}) {
    const auto item = AddRow(list, {"oak", "1", "2"}, key);
    item->SetTag(u"tag");
    item->SetToolTipText(u"tip");
    item->SetIcon(std::int32_t{3});
    item->SetSmallIcon(u"small");
    item->SetBold(true);
    item->SetChecked(true);
    item->SetGhosted(true);
    item->SetForeColor(std::int32_t{128});
    for (std::int32_t j = 1; j <= 2; ++j) {
      const auto cell = item->ListSubItems()->Item(j);
      cell->SetKey(Concat({u"c", IntegerToText(j).View()}));
      cell->SetTag(u"cell tag");
      cell->SetReportIcon(std::int32_t{5});
      cell->SetToolTipText(u"cell tip");
      cell->SetForeColor(std::int32_t{64});
      cell->SetBold(true);
    }
  }
}

// Rows of these texts with one look in every kind of list.
template <class List>
void FillPlain(List& list, const std::vector<std::string>& columns, const TextRows& rows) {
  for (const std::string& caption : columns) AddColumn(list, caption);
  for (const std::vector<std::string>& texts : rows) {
    const auto item = AddRow(list, texts);
    item->SetForeColor(std::int32_t{0});
    for (std::int32_t j = 1; j < static_cast<std::int32_t>(texts.size()); ++j)
      item->ListSubItems()->Item(j)->SetForeColor(std::int32_t{0});
  }
}

// Another value for one attribute of the second row or its second cell.
template <class List>
void Change(List& list, const std::string& attribute) {
  const auto item = list.ListItems()->Item(2);
  const auto cell = item->ListSubItems()->Item(2);
  const std::map<std::string, std::function<void()>> changes = {
      {"ForeColor", [&] { item->SetForeColor(std::int32_t{129}); }},
      {"Text", [&] { item->SetText(u"Oak"); }},
      {"Tag", [&] { item->SetTag(u"Tag"); }},
      {"Key", [&] { item->SetKey(u"K2"); }},
      {"Bold", [&] { item->SetBold(false); }},
      {"Checked", [&] { item->SetChecked(false); }},
      {"Ghosted", [&] { item->SetGhosted(false); }},
      {"SmallIcon", [&] { item->SetSmallIcon(Value()); }},
      {"ToolTipText", [&] { item->SetToolTipText(u""); }},
      {"Icon", [&] { item->SetIcon(u"3"); }},
      {"CellForeColor", [&] { cell->SetForeColor(std::int32_t{65}); }},
      {"CellBold", [&] { cell->SetBold(false); }},
      {"CellKey", [&] { cell->SetKey(u"C2"); }},
      {"CellReportIcon", [&] { cell->SetReportIcon(std::int32_t{6}); }},
      {"CellTag", [&] { cell->SetTag(u""); }},
      {"CellText", [&] { cell->SetText(u"2 "); }},
      {"CellToolTipText", [&] { cell->SetToolTipText(u"cell  tip"); }},
  };
  changes.at(attribute)();
}

// Hands `use` the three kinds of list, filled by `fill`.
template <class FillList, class Use>
void WithEveryKind(FillList fill, Use use) {
  const Ref<MemoryListView> own = MakeRef<MemoryListView>();
  fill(*own);
  use("list", *own);
  Recorder calls;
  const auto foreign = MakeRef<RecordingListView>(MakeRef<MemoryListView>(), calls);
  fill(*foreign);
  use("foreign list", *foreign);
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  fill(*dump);
  use("snapshot", *dump);
}

// Compares lists filled by `fillFirst` and `fillSecond`, in every pair of kinds.
template <class FillFirst, class FillSecond>
void ExpectOfEveryPair(bool equal, FillFirst fillFirst, FillSecond fillSecond) {
  WithEveryKind(fillFirst, [&](const char* firstKind, auto& first) {
    WithEveryKind(fillSecond, [&](const char* secondKind, auto& second) {
      EXPECT_EQ(ListviewsAreEqual(&first, &second), equal) << firstKind << " and " << secondKind;
    });
  });
}

template <class From, class To>
void ShareRows(From& from, To& to) {
  const RowStore& rows = from.Shared()->Rows();
  for (std::int32_t i = 1; i <= rows.Count(); ++i) to.Shared()->AppendShared(rows.At(i));
}

// The same for lists that share their rows, the second one being changed afterwards.
template <class First, class Second>
bool SharersAreEqual(const std::function<void(Second&)>& change) {
  const Ref<First> first = MakeRef<First>();
  const Ref<Second> second = MakeRef<Second>();
  FillDressed(*first);
  ShareRows(*first, *second);
  change(*second);
  return ListviewsAreEqual(first.Get(), second.Get());
}

template <class Second>
std::vector<bool> SharersAreEqual(const std::function<void(Second&)>& change) {
  return {SharersAreEqual<MemoryListView, Second>(change),
          SharersAreEqual<ListViewDump, Second>(change)};
}

const auto kFillDressed = [](auto& list) { FillDressed(list); };

TEST(ListviewsAreEqual, OfTheSameRowsWithTheSameLook) {
  ExpectOfEveryPair(true, kFillDressed, kFillDressed);
  EXPECT_EQ(SharersAreEqual<MemoryListView>([](auto&) {}), (std::vector<bool>{true, true}));
  EXPECT_EQ(SharersAreEqual<ListViewDump>([](auto&) {}), (std::vector<bool>{true, true}));
}

class ListviewsDiffer : public testing::TestWithParam<const char*> {};

TEST_P(ListviewsDiffer, InOneAttribute) {
  const auto fillChanged = [](auto& list) {
    FillDressed(list);
    Change(list, GetParam());
  };
  ExpectOfEveryPair(false, kFillDressed, fillChanged);
  ExpectOfEveryPair(false, fillChanged, kFillDressed);
  ExpectOfEveryPair(true, fillChanged, fillChanged);
}

TEST_P(ListviewsDiffer, InOneAttributeOfARowThatWasShared) {
  const auto change = [](auto& list) { Change(list, GetParam()); };
  EXPECT_EQ(SharersAreEqual<MemoryListView>(change), (std::vector<bool>{false, false}));
  EXPECT_EQ(SharersAreEqual<ListViewDump>(change), (std::vector<bool>{false, false}));
}

INSTANTIATE_TEST_SUITE_P(Attributes, ListviewsDiffer,
                         testing::Values("ForeColor", "Text", "Tag", "Key", "Bold", "Checked",
                                         "Ghosted", "SmallIcon", "ToolTipText", "Icon",
                                         "CellForeColor", "CellBold", "CellKey", "CellReportIcon",
                                         "CellTag", "CellText", "CellToolTipText"),
                         [](const auto& attribute) { return std::string(attribute.param); });

TEST(ListviewsAreEqual, OfTwoEmptyLists) {
  ExpectOfEveryPair(
      true, [](auto&) {}, [](auto&) {});
  ExpectOfEveryPair(
      true, [](auto& list) { AddColumn(list, "Name"); }, [](auto&) {});
}

TEST(ListviewsAreEqual, NotOfDifferentNumbersOfRows) {
  const auto longer = [](auto& list) {
    FillDressed(list);
    AddRow(list, {"", "", ""});
  };
  ExpectOfEveryPair(false, kFillDressed, longer);
  ExpectOfEveryPair(false, longer, kFillDressed);
  ExpectOfEveryPair(
      false, [](auto&) {}, kFillDressed);
}

TEST(ListviewsAreEqual, NotOfTheSameRowsInAnotherOrder) {
  ExpectOfEveryPair(
      false,
      [](auto& list) {
        FillPlain(list, {"Name"}, {{"oak"}, {"elm"}});
      },
      [](auto& list) {
        FillPlain(list, {"Name"}, {{"elm"}, {"oak"}});
      });
}

// A host that renames or moves a column keeps the criteria that were set for it.
TEST(ListviewsAreEqual, WhateverTheColumnHeadersAre) {
  ExpectOfEveryPair(
      true,
      [](auto& list) {
        FillPlain(list, {"Name", "Qty"}, {{"oak", "1"}});
      },
      [](auto& list) {
        list.ColumnHeaders()->Add(0, u"key", u"Number", 99, 1, Value());
        list.ColumnHeaders()->Add(0, Text(), u"Tree", 1440, 2, std::int32_t{4});
        FillPlain(list, {}, {{"oak", "1"}});
      });
}

// The second side's surplus cells are never looked at: the snapshot of a list that has lost a
// column still counts as its copy.
TEST(ListviewsAreEqual, EvenWhenTheSecondSidesRowsHaveMoreCells) {
  const auto two = [](auto& list) { FillPlain(list, {"a", "b"}, {{"oak", "1"}}); };
  const auto three = [](auto& list) { FillPlain(list, {"a", "b", "c"}, {{"oak", "1", "x"}}); };
  ExpectOfEveryPair(true, two, three);
  ExpectOfEveryPair(false, three, two);
}

TEST(ListviewsAreEqual, NotOfAMissingList) {
  const Ref<MemoryListView> list = MakeList({"Name"});
  ListViewDump* const noDump = nullptr;
  HostListView* const noList = nullptr;
  EXPECT_FALSE(ListviewsAreEqual(list.Get(), noDump));
  EXPECT_FALSE(ListviewsAreEqual(noList, list.Get()));
  EXPECT_FALSE(ListviewsAreEqual(noList, noDump));
}

TEST(ListviewsAreEqual, OfTheLongestListsButNotBeyond) {
  const Ref<MemoryListView> list = MakeList({"Name"});
  for (int i = 1; i <= 32767; ++i) AddRow(*list, {"x"});
  const Ref<ListViewDump> dump = MakeDump({"Name"});
  ShareRows(*list, *dump);
  Recorder calls;
  const auto foreign = MakeRef<RecordingListView>(list, calls);
  foreign->RecordNothing();
  EXPECT_TRUE(ListviewsAreEqual(list.Get(), dump.Get()));
  EXPECT_TRUE(ListviewsAreEqual(foreign.Get(), dump.Get()));
  AddRow(*list, {"x"});
  dump->Shared()->AppendShared(list->Shared()->Rows().At(32768));
  EXPECT_FALSE(ListviewsAreEqual(list.Get(), dump.Get()));
  EXPECT_FALSE(ListviewsAreEqual(foreign.Get(), dump.Get()));
}

TEST(ListviewsAreEqual, NotAfterAnErrorOfAList) {
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  FillDressed(*dump);
  for (const std::string member :
       {"ListView.ListItems", "ListItems.Count", "ListItems.Item", "ListItem.Ghosted",
        "ListItem.ListSubItems", "ListSubItems.Count", "ListSubItems.Item",
        "ListSubItem.ReportIcon"}) {
    SCOPED_TRACE(member);
    Recorder calls;
    const Ref<MemoryListView> behind = MakeRef<MemoryListView>();
    FillDressed(*behind);
    const auto list = MakeRef<RecordingListView>(behind, calls);
    list->Lack(member);
    EXPECT_FALSE(ListviewsAreEqual(list.Get(), dump.Get()));
    // The number of cells on the second side is never asked for.
    EXPECT_EQ(ListviewsAreEqual(dump.Get(), list.Get()), member == "ListSubItems.Count");
  }
}

// Otherwise a list whose tags were never set would never equal its own snapshot, and the rows
// hidden by the filter would be lost at every second opening.
TEST(ListviewsAreEqual, OfAListWhoseMembersWereNeverSetAndItsSnapshot) {
  const auto list = MakeRef<SparseListView>(SparseMembers{{"Text", u"oak"}, {"cell Text", u"1"}});
  const Ref<ListViewDump> dump = MakeDump({"Name", "Qty"}, {{"oak", "1"}});
  dump->ListItems()->Item(1)->SetForeColor(std::int32_t{0});
  dump->ListItems()->Item(1)->ListSubItems()->Item(1)->SetForeColor(std::int32_t{0});
  EXPECT_TRUE(ListviewsAreEqual(list.Get(), dump.Get()));
  EXPECT_TRUE(ListviewsAreEqual(dump.Get(), list.Get()));
}

bool SparseAreEqual(const SparseMembers& first, const SparseMembers& second) {
  const auto a = MakeRef<SparseListView>(first);
  const auto b = MakeRef<SparseListView>(second);
  return ListviewsAreEqual(a.Get(), b.Get());
}

struct ValuesCase {
  const char* name;
  const char* member;
  Value first;
  Value second;
  bool equal;
};

TEST(ListviewsAreEqual, ByTheRulesForValues) {
  const ValuesCase cases[] = {
      {"unset icons", "Icon", Value(), Value(), true},
      {"unset icon and icon 0", "Icon", Value(), 0, false},
      {"unset icon and empty name", "Icon", Value(), Text(), false},
      {"unset small icon and 0", "SmallIcon", Value(), 0, false},
      {"unset report icon and 0", "cell ReportIcon", Value(), 0, false},
      {"icon numbers of two widths", "Icon", std::int16_t{5}, std::int32_t{5}, true},
      {"icon number as double", "cell ReportIcon", 5.0, std::int32_t{5}, true},
      {"icon number and its digits", "SmallIcon", 1, u"1", false},
      {"icon names in two cases", "Icon", u"pic", u"Pic", false},
      {"unset text", "Text", Value(), Text(), true},
      {"unset tag", "Tag", Value(), Text(), true},
      {"unset tag and a tag", "Tag", Value(), u"x", false},
      {"tag number and its digits", "Tag", 1, u"1", false},
      {"unset key", "Key", Value(), Text(), true},
      {"unset tool tip", "cell ToolTipText", Value(), Text(), true},
      {"unset flag", "Bold", Value(), false, true},
      {"unset flag and a flag", "cell Bold", Value(), true, false},
      {"flag as number", "Checked", std::int32_t{-1}, true, true},
      {"another number is no flag", "Ghosted", std::int32_t{1}, true, false},
      {"colour as double", "ForeColor", 255.0, std::int32_t{255}, true},
      {"colour as text", "ForeColor", u"255", std::int32_t{255}, true},
      {"unset colour is black", "cell ForeColor", Value(), std::int32_t{0}, true},
      {"colour that is none", "ForeColor", u"red", u"red", false},
      {"null tag", "Tag", Value::Null(), Value::Null(), false},
      {"null cell tag", "cell Tag", Value::Null(), Text(), false},
  };
  for (const ValuesCase& c : cases) {
    EXPECT_EQ(SparseAreEqual({{c.member, c.first}}, {{c.member, c.second}}), c.equal) << c.name;
    EXPECT_EQ(SparseAreEqual({{c.member, c.second}}, {{c.member, c.first}}), c.equal) << c.name;
  }
}

TEST(ListviewsAreEqual, ReadsNoRowsWhenTheirNumbersDiffer) {
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(MakeList({"Name"}, {{"oak"}}), calls);
  const Ref<ListViewDump> dump = MakeDump({"Name"});
  EXPECT_FALSE(ListviewsAreEqual(list.Get(), dump.Get()));
  EXPECT_TRUE(calls.Shows({"ListItems", "ListItems.Count"}));
}

}  // namespace
}  // namespace sifter
