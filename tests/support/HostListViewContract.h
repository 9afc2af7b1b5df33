#pragma once

#include "base/Ref.h"
#include "base/Value.h"
#include "listmodel/HostListView.h"
#include "listmodel/SharedRows.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

// What every list that the system is to work on has to do. A test program that has an
// implementation of HostListView includes this header in one file and runs the suite over it:
//
//   INSTANTIATE_TEST_SUITE_P(Memory, HostListViewContract,
//                            testing::Values(ListKind{"Memory", [] { ... }}), ListKindName);

namespace sifter {

struct ListKind {
  std::string name;
  std::function<Ref<HostListView>()> make;  // a list without columns and rows
};

inline void PrintTo(const ListKind& kind, std::ostream* out) { *out << kind.name; }

inline std::string ListKindName(const testing::TestParamInfo<ListKind>& info) {
  return info.param.name;
}

class HostListViewContract : public testing::TestWithParam<ListKind> {
 protected:
  Ref<HostListView> EmptyList() const { return GetParam().make(); }

  Ref<HostListView> List(const std::vector<std::string>& columns, const TextRows& rows) const {
    const Ref<HostListView> list = EmptyList();
    Fill(*list, columns, rows);
    return list;
  }
};

TEST_P(HostListViewContract, NewListIsEmptyAndUnsorted) {
  const Ref<HostListView> list = EmptyList();
  EXPECT_EQ(Dump(*list), "list: Sorted=False SortKey=0 SortOrder=0\n");
}

TEST_P(HostListViewContract, ColumnsReadBackAsAdded) {
  const Ref<HostListView> list = EmptyList();
  list->ColumnHeaders()->Add(0, u"k", u"Name", 1500.5, 1, 7);
  list->ColumnHeaders()->Add(0, Text(), u"Qty", 720, 0, Value());
  EXPECT_EQ(DumpColumns(*list),
            R"(column 1: Key="k" Text="Name" Width=1500.5 Alignment=1 Icon=7 Tag=""
column 2: Key="" Text="Qty" Width=720 Alignment=0 Icon=Empty Tag=""
)");
}

TEST_P(HostListViewContract, AddOfAColumnReturnsIt) {
  const Ref<HostListView> list = EmptyList();
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Add(0, Text(), u"Name", 1440, 0, Value());
  column->SetText(u"Label");
  EXPECT_EQ(list->ColumnHeaders()->Item(1)->Text(), Value(u"Label"));
}

TEST_P(HostListViewContract, ColumnWithAnIndexStandsAtIt) {
  const Ref<HostListView> list = List({"a", "b"}, {});
  const Ref<ColumnHeader> column =
      list->ColumnHeaders()->Add(2, Text(), u"between", 1440, 0, Value());
  EXPECT_EQ(column->Index(), Value(2));
  EXPECT_EQ(list->ColumnHeaders()->Item(1)->Text(), Value(u"a"));
  EXPECT_EQ(list->ColumnHeaders()->Item(2)->Text(), Value(u"between"));
  EXPECT_EQ(list->ColumnHeaders()->Item(3)->Text(), Value(u"b"));
}

TEST_P(HostListViewContract, ColumnIsFoundByItsKey) {
  const Ref<HostListView> list = EmptyList();
  AddColumn(*list, "Name", "n");
  AddColumn(*list, "Qty", "q");
  EXPECT_EQ(list->ColumnHeaders()->Item(u"q")->Index(), Value(2));
}

TEST_P(HostListViewContract, ColumnMembersReadBackAsWritten) {
  const Ref<HostListView> list = List({"Name"}, {});
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(1);
  column->SetKey(u"k");
  column->SetText(u"Label");
  column->SetWidth(99.5);
  column->SetAlignment(2);
  column->SetIcon(u"pic");
  column->SetTag(u"t");
  EXPECT_EQ(DumpColumns(*list),
            "column 1: Key=\"k\" Text=\"Label\" Width=99.5 Alignment=2 Icon=\"pic\" Tag=\"t\"\n");
}

TEST_P(HostListViewContract, ClearOfTheColumnsLeavesTheRows) {
  const Ref<HostListView> list = List({"Name", "Qty"}, {{"Oak", "3"}});
  list->ColumnHeaders()->Clear();
  EXPECT_EQ(list->ColumnHeaders()->Count(), 0);
  EXPECT_EQ(list->ListItems()->Count(), 1);
}

TEST_P(HostListViewContract, RowsReadBackAsAdded) {
  const Ref<HostListView> list = List({"Name"}, {});
  list->ListItems()->Add(0, u"k1", u"Oak", 3, u"small");
  list->ListItems()->Add(0, Text(), u"Ash", Value(), Value());
  const Ref<ListItem> oak = list->ListItems()->Item(1);
  const Ref<ListItem> ash = list->ListItems()->Item(2);
  const std::vector<Value> read = {oak->Index(),     oak->Key(),      oak->Text(), oak->Icon(),
                                   oak->SmallIcon(), ash->Index(),    ash->Key(),  ash->Text(),
                                   ash->Icon(),      ash->SmallIcon()};
  EXPECT_EQ(read,
            (std::vector<Value>{1, u"k1", u"Oak", 3, u"small", 2, u"", u"Ash", Value(), Value()}));
}

TEST_P(HostListViewContract, AddOfARowReturnsIt) {
  const Ref<HostListView> list = List({"Name"}, {{"Oak"}});
  list->ListItems()->Add(1, Text(), u"Ash", Value(), Value())->SetTag(u"new");
  EXPECT_EQ(list->ListItems()->Item(1)->Tag(), Value(u"new"));
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"Ash", "Oak"}));
}

TEST_P(HostListViewContract, ManyRowsMayBeWithoutAKey) {
  const Ref<HostListView> list = List({"Name"}, {{"Oak"}, {"Oak"}, {"Oak"}});
  EXPECT_EQ(list->ListItems()->Count(), 3);
}

TEST_P(HostListViewContract, RowIsFoundAndRemovedByPositionAndByKey) {
  const Ref<HostListView> list = List({"Name"}, {});
  for (const char* text : {"a", "b", "c", "d"}) AddRow(*list, {text}, text);
  EXPECT_EQ(list->ListItems()->Item(u"c")->Index(), Value(3));
  list->ListItems()->Remove(u"b");
  list->ListItems()->Remove(3);
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"a", "c"}));
  EXPECT_EQ(list->ListItems()->Item(u"c")->Index(), Value(2));
}

TEST_P(HostListViewContract, ClearOfTheRowsLeavesTheColumns) {
  const Ref<HostListView> list = List({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", ""}});
  list->ListItems()->Clear();
  EXPECT_EQ(list->ListItems()->Count(), 0);
  EXPECT_EQ(list->ColumnHeaders()->Count(), 2);
}

TEST_P(HostListViewContract, RowMembersReadBackAsWritten) {
  const Ref<HostListView> list = List({"Name"}, {{"Oak"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  row->SetKey(u"k");
  row->SetText(u"Ash");
  row->SetTag(u"t");
  row->SetToolTipText(u"tip");
  row->SetIcon(4);
  row->SetSmallIcon(u"pic");
  row->SetBold(true);
  row->SetChecked(true);
  row->SetGhosted(true);
  row->SetForeColor(255);
  EXPECT_EQ(DumpRows(*list),
            "row 1: Key=\"k\" Text=\"Ash\" Tag=\"t\" ToolTipText=\"tip\" Icon=4 SmallIcon=\"pic\" "
            "Bold=True Checked=True Ghosted=True ForeColor=255\n");
  EXPECT_EQ(list->ListItems()->Item(u"k")->Index(), Value(1));
}

TEST_P(HostListViewContract, FlagsAreKeptAsBooleansAndColoursAsWholeNumbers) {
  const Ref<HostListView> list = List({"Name", "Qty"}, {{"Oak", "3"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  row->SetBold(1);
  row->SetChecked(u"True");
  row->SetGhosted(0);
  row->SetForeColor(u"255");
  const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
  cell->SetBold(-1);
  cell->SetForeColor(16.0);
  EXPECT_EQ(Shown(row->Bold()), "True");
  EXPECT_EQ(Shown(row->Checked()), "True");
  EXPECT_EQ(Shown(row->Ghosted()), "False");
  EXPECT_EQ(Shown(row->ForeColor()), "255");
  EXPECT_EQ(Shown(cell->Bold()), "True");
  EXPECT_EQ(Shown(cell->ForeColor()), "16");
}

TEST_P(HostListViewContract, ARowHasACellForEveryColumnButTheFirst) {
  const Ref<HostListView> list = List({"a", "b", "c"}, {{"1", "2", "3"}, {"x"}});
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "2", "3"}, {"x", "", ""}}));
}

TEST_P(HostListViewContract, ColumnKIsSubItemKMinusOne) {
  const Ref<HostListView> list = List({"a", "b", "c"}, {{"1", "2", "3"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  EXPECT_EQ(row->SubItems(1), Value(u"2"));
  EXPECT_EQ(row->SubItems(2), Value(u"3"));
  row->SetSubItems(2, u"new");
  EXPECT_EQ(row->ListSubItems()->Item(2)->Text(), Value(u"new"));
  row->ListSubItems()->Item(1)->SetText(u"other");
  EXPECT_EQ(row->SubItems(1), Value(u"other"));
}

TEST_P(HostListViewContract, CellMembersReadBackAsWritten) {
  const Ref<HostListView> list = List({"a", "b"}, {{"1"}});
  const Ref<ListSubItem> cell = list->ListItems()->Item(1)->ListSubItems()->Item(1);
  cell->SetKey(u"k");
  cell->SetText(u"x");
  cell->SetTag(u"t");
  cell->SetReportIcon(2);
  cell->SetToolTipText(u"tip");
  cell->SetForeColor(255);
  cell->SetBold(true);
  EXPECT_EQ(DumpCell(*list->ListItems()->Item(1)->ListSubItems()->Item(1)),
            " Key=\"k\" Text=\"x\" Tag=\"t\" ReportIcon=2 ToolTipText=\"tip\" ForeColor=255 "
            "Bold=True");
}

TEST_P(HostListViewContract, AddOfACellReturnsIt) {
  const Ref<HostListView> list = List({"a"}, {{"1"}});
  const Ref<ListSubItemCollection> cells = list->ListItems()->Item(1)->ListSubItems();
  const Ref<ListSubItem> cell = cells->Add(0, u"k", u"x", 5, u"tip");
  cell->SetTag(u"t");
  EXPECT_EQ(cells->Count(), 1);
  const Ref<ListSubItem> found = cells->Item(1);
  const std::vector<Value> read = {found->Key(), found->Text(), found->ReportIcon(),
                                   found->ToolTipText(), found->Tag()};
  EXPECT_EQ(read, (std::vector<Value>{u"k", u"x", 5, u"tip", u"t"}));
}

TEST_P(HostListViewContract, AnIconThatWasNeverSetEqualsOnlyAnotherSuchIcon) {
  const Ref<HostListView> list = List({"a", "b"}, {{"1"}, {"2"}});
  const Ref<ListItem> row = list->ListItems()->Item(1);
  const Ref<ListItem> other = list->ListItems()->Item(2);
  const std::vector<Value> icons = {row->Icon(), row->SmallIcon(),
                                    row->ListSubItems()->Item(1)->ReportIcon()};
  for (const Value& icon : icons) {
    EXPECT_EQ(icon, Value());
    EXPECT_EQ(icon, other->Icon());
    EXPECT_NE(icon, Value(0));
    EXPECT_NE(icon, Value(u""));
    EXPECT_NE(icon, Value(false));
  }
}

TEST_P(HostListViewContract, AMissingRowOrColumnOrCellIsAnError) {
  const Ref<HostListView> list = List({"a", "b"}, {{"1", "2"}});
  const std::string before = Dump(*list);
  const Ref<ListItemCollection> rows = list->ListItems();
  const Ref<ListItem> row = rows->Item(1);
  const std::vector<std::function<void()>> mistakes = {
      [&] { rows->Item(0); },
      [&] { rows->Item(2); },
      [&] { rows->Item(u"none"); },
      [&] { rows->Remove(2); },
      [&] { rows->Remove(u"none"); },
      [&] { list->ColumnHeaders()->Item(0); },
      [&] { list->ColumnHeaders()->Item(3); },
      [&] { list->ColumnHeaders()->Item(u"none"); },
      [&] { row->ListSubItems()->Item(0); },
      [&] { row->ListSubItems()->Item(2); },
      [&] { row->SubItems(2); },
      [&] { row->SetSubItems(2, u"x"); },
  };
  for (std::size_t i = 0; i < mistakes.size(); ++i)
    EXPECT_NE(ErrorOf(mistakes[i]), "nothing") << "mistake " << i;
  EXPECT_EQ(Dump(*list), before);
}

TEST_P(HostListViewContract, ATakenKeyIsAnErrorAndAddsNothing) {
  const Ref<HostListView> list = EmptyList();
  AddColumn(*list, "Name", "c");
  AddRow(*list, {"Oak"}, "k");
  AddRow(*list, {"Ash"}, "l");
  const std::string before = Dump(*list);
  EXPECT_NE(ErrorOf([&] { AddColumn(*list, "Other", "c"); }), "nothing");
  EXPECT_NE(ErrorOf([&] { AddRow(*list, {"Elm"}, "k"); }), "nothing");
  EXPECT_NE(ErrorOf([&] { list->ListItems()->Item(2)->SetKey(u"k"); }), "nothing");
  EXPECT_EQ(Dump(*list), before);
}

TEST_P(HostListViewContract, SortedPutsTheRowsInTheOrderOfTheSortKey) {
  const Ref<HostListView> list = List({"a", "b"}, {{"x", "2"}, {"y", "3"}, {"z", "1"}});
  list->SetSortKey(1);
  list->SetSortOrder(1);
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"x", "y", "z"}));
  list->SetSorted(true);
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"y", "x", "z"}));
  list->SetSortOrder(0);
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"z", "x", "y"}));
  EXPECT_EQ(Dump(*list).substr(0, 41), "list: Sorted=True SortKey=1 SortOrder=0\nc");
}

TEST_P(HostListViewContract, BracketsOfALongChangeNestAndChangeNothing) {
  const Ref<HostListView> list = List({"a"}, {{"1"}});
  const std::string before = Dump(*list);
  {
    const UpdateScope outer(list.Get());
    const UpdateScope inner(list.Get());
    EXPECT_EQ(Dump(*list), before);
  }
  EXPECT_EQ(Dump(*list), before);
}

TEST_P(HostListViewContract, RowsOfferedForSharingAreTheRowsOfTheMembers) {
  const Ref<HostListView> list = List({"a", "b"}, {{"1", "2"}, {"3", "4"}});
  SharedRows* shared = list->Shared();
  if (shared == nullptr) return;
  ASSERT_EQ(shared->Rows().Count(), 2);
  EXPECT_EQ(shared->ColumnCount(), 2);
  EXPECT_EQ(shared->Rows().At(2).ColumnText(0), u"3");
  EXPECT_EQ(shared->Rows().At(2).ColumnText(1), u"4");
}

}  // namespace sifter
