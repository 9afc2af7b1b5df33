#include "filterdialog/CopyListview.h"

#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

// A list in which every attribute of rows and cells differs from what it starts as.
template <class List>
void FillRichly(List& list) {
  list.ColumnHeaders()->Add(0, u"n", u"Name", 1500, 0, 1);
  list.ColumnHeaders()->Add(0, u"", u"Qty", 720, 1, 0);
  list.ColumnHeaders()->Add(0, u"d", u"Due", 900, 2, 7);
  const auto plain = AddRow(list, {"Ash", "5", "1/5/2020"});
  plain->SetForeColor(0);
  const auto rich = list.ListItems()->Add(0, u"k1", u"Oak", 3, u"small");
  rich->SetBold(true);
  rich->SetTag(u"tag");
  rich->SetChecked(true);
  rich->SetForeColor(255);
  rich->SetGhosted(true);
  rich->SetToolTipText(u"tip");
  rich->SetSubItems(1, u"3");
  for (std::int32_t j = 1; j <= 2; ++j) {
    const auto cell = rich->ListSubItems()->Item(j);
    cell->SetBold(j == 1);
    cell->SetForeColor(65280 + j);
    cell->SetKey(j == 1 ? u"c1" : u"c2");
    cell->SetReportIcon(j == 1 ? Value(4) : Value(u"pic"));
    cell->SetTag(j == 1 ? u"t1" : u"t2");
    cell->SetToolTipText(j == 1 ? u"tip1" : u"tip2");
  }
  AddRow(list, {"", "", ""}, "k2")->SetForeColor(1);
}

Ref<MemoryListView> RichList() {
  const Ref<MemoryListView> list = MakeRef<MemoryListView>();
  FillRichly(*list);
  return list;
}

Ref<ListViewDump> RichDump() {
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  FillRichly(*dump);
  return dump;
}

// Columns and rows without what only a live list has.
template <class List>
std::string Content(List& list) {
  std::string columns = DumpColumns(list);
  for (std::size_t at; (at = columns.find(" Tag=\"\"")) != std::string::npos;) columns.erase(at, 7);
  return columns + DumpRows(list);
}

class CopyListviewTest : public testing::Test {
 protected:
  Ref<RecordingListView> Recorded(const Ref<MemoryListView>& list) {
    return MakeRef<RecordingListView>(list, recorder);
  }
  Ref<RecordingListView> Foreign(const Ref<MemoryListView>& list) {
    const Ref<RecordingListView> foreign = Recorded(list);
    foreign->RecordNothing();
    return foreign;
  }

  Recorder recorder;
};

// Each direction with lists of our own, and with lists that are spoken to member by member.
TEST_F(CopyListviewTest, CarriesEveryAttributeInEveryDirection) {
  const std::string wanted = Content(*RichDump());
  ASSERT_NE(wanted, Content(*RichList()));  // new cells of a live list have another colour
  {
    const Ref<ListViewDump> target = MakeRef<ListViewDump>();
    const Ref<MemoryListView> source = RichList();
    CopyListview<HostListView>(source.Get(), target.Get());
    EXPECT_EQ(Content(*target), Content(*source));
  }
  {
    const Ref<ListViewDump> target = MakeRef<ListViewDump>();
    const Ref<MemoryListView> source = RichList();
    CopyListview<HostListView>(Foreign(source).Get(), target.Get());
    EXPECT_EQ(Content(*target), Content(*source));
  }
  {
    const Ref<MemoryListView> target = MakeRef<MemoryListView>();
    CopyListview<ListViewDump, HostListView>(RichDump().Get(), target.Get());
    EXPECT_EQ(Content(*target), wanted);
  }
  {
    const Ref<MemoryListView> target = MakeRef<MemoryListView>();
    CopyListview<ListViewDump, HostListView>(RichDump().Get(), Foreign(target).Get());
    EXPECT_EQ(Content(*target), wanted);
  }
  {
    const Ref<ListViewDump> target = MakeRef<ListViewDump>();
    CopyListview(RichDump().Get(), target.Get());
    EXPECT_EQ(Content(*target), wanted);
  }
  {
    const Ref<MemoryListView> target = MakeRef<MemoryListView>();
    const Ref<MemoryListView> source = RichList();
    CopyListview<HostListView, HostListView>(source.Get(), Foreign(target).Get());
    EXPECT_EQ(Content(*target), Content(*source));
  }
}

TEST_F(CopyListviewTest, ThereAndBackNothingIsLost) {
  const Ref<MemoryListView> list = RichList();
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  const std::string before = Dump(*list);
  CopyListview<HostListView>(list.Get(), dump.Get());
  list->ListItems()->Clear();
  list->ColumnHeaders()->Clear();
  CopyListview<ListViewDump, HostListView>(dump.Get(), list.Get());
  EXPECT_EQ(Dump(*list), before);
}

TEST_F(CopyListviewTest, TheTargetsRowsGoFirst) {
  const Ref<ListViewDump> target = MakeDump({"x", "y"}, {{"old", "1"}, {"older", "2"}});
  CopyListview(MakeDump({"Name", "Qty"}, {{"Oak", "3"}}).Get(), target.Get());
  EXPECT_EQ(Texts(*target), (TextRows{{"Oak", "3"}}));
}

TEST_F(CopyListviewTest, ATargetWithColumnsKeepsThemEvenWhereTheyDiffer) {
  for (const bool ours : {true, false}) {
    const Ref<MemoryListView> target = MakeList({"x", "y", "z"}, {{"old", "1", "2"}});
    const std::string columns = DumpColumns(*target);
    const Ref<HostListView> spokenTo = ours ? Ref<HostListView>(target) : Foreign(target);
    CopyListview<ListViewDump, HostListView>(MakeDump({"Name", "Qty"}, {{"Oak", "3"}}).Get(),
                                             spokenTo.Get());
    EXPECT_EQ(DumpColumns(*target), columns);
    EXPECT_EQ(Texts(*target), (TextRows{{"Oak", "3", ""}}));
  }
}

TEST_F(CopyListviewTest, AnEmptySourceEmptiesTheTargetAndGivesItColumnsWhenItHasNone) {
  const Ref<ListViewDump> source = MakeDump({"Name", "Qty"});
  const Ref<ListViewDump> bare = MakeRef<ListViewDump>();
  AddRow(*bare, {"old"});
  CopyListview(source.Get(), bare.Get());
  EXPECT_EQ(Content(*bare), Content(*source));
  const Ref<ListViewDump> other = MakeDump({"x"}, {{"old"}});
  CopyListview(source.Get(), other.Get());
  EXPECT_EQ(other->ListItems()->Count(), 0);
  EXPECT_EQ(other->ColumnHeaders()->Count(), 1);
}

TEST_F(CopyListviewTest, RowsWithACellLessThanColumnsAreAnError) {
  const Ref<ListViewDump> source = MakeDump({"a", "b"}, {{"1", "2"}, {"3", "4"}, {"5", "6"}});
  source->ListItems()->Item(2)->SetSubItemNum(0);
  const Ref<ListViewDump> target = MakeRef<ListViewDump>();
  EXPECT_EQ(ErrorOf([&] { CopyListview(source.Get(), target.Get()); }), kBadPositionError);
  EXPECT_EQ(Texts(*target), (TextRows{{"1", "2"}, {"3", ""}}));
}

// A snapshot whose columns were taken away keeps its rows' cells; its copy has none.
TEST_F(CopyListviewTest, CellsThatTheNewRowDoesNotHaveArePassedOver) {
  for (const bool toLive : {false, true}) {
    const Ref<ListViewDump> source = RichDump();
    source->ColumnHeaders()->Clear();
    const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
    const Ref<MemoryListView> live = MakeRef<MemoryListView>();
    if (toLive)
      CopyListview<ListViewDump, HostListView>(source.Get(), live.Get());
    else
      CopyListview(source.Get(), dump.Get());
    EXPECT_EQ(toLive ? Texts(*live) : Texts(*dump), (TextRows{{"Ash"}, {"Oak"}, {""}}));
  }
}

TEST_F(CopyListviewTest, CellsBehindTheColumnsArePassedOverAsWell) {
  const Ref<ListViewDump> source = MakeDump({"a", "b", "c"}, {{"1", "2", "3"}});
  source->ListItems()->Item(1)->ListSubItems()->Item(2)->SetTag(u"kept by nobody");
  source->ColumnHeaders()->Remove(3);
  const Ref<ListViewDump> target = MakeRef<ListViewDump>();
  CopyListview(source.Get(), target.Get());
  EXPECT_EQ(Texts(*target), (TextRows{{"1", "2"}}));
}

TEST_F(CopyListviewTest, AListCopiedOntoItselfEndsEmpty) {
  const Ref<ListViewDump> list = MakeDump({"Name"}, {{"Oak"}});
  CopyListview(list.Get(), list.Get());
  EXPECT_EQ(list->ListItems()->Count(), 0);
  EXPECT_EQ(list->ColumnHeaders()->Count(), 1);
}

TEST_F(CopyListviewTest, AMissingSourceLeavesTheTargetEmpty) {
  const Ref<ListViewDump> target = MakeDump({"Name"}, {{"Oak"}});
  EXPECT_EQ(ErrorOf([&] { CopyListview<HostListView>(nullptr, target.Get()); }),
            "91: Object variable or With block variable not set");
  EXPECT_EQ(target->ListItems()->Count(), 0);
  EXPECT_EQ(target->ColumnHeaders()->Count(), 1);
}

struct HeaderCase {
  Value width, alignment, icon;
  std::string outcome;
};

// A snapshot keeps these in 16 bits.
TEST_F(CopyListviewTest, ColumnsThatASnapshotCannotHoldAreAnError) {
  const HeaderCase cases[] = {
      {32767.9, 0, Value(), "column 1: Key=\"\" Text=\"c\" Width=32767 Alignment=0 Icon=0\n"},
      {40000.0, 0, Value(), kOverflowError},
      {720, 40000, Value(), kOverflowError},
      {720, 0, 40000, kOverflowError},
      {720, 0, u"pic", "column 1: Key=\"\" Text=\"c\" Width=720 Alignment=0 Icon=0\n"},
  };
  for (const HeaderCase& c : cases) {
    const Ref<MemoryListView> source = MakeRef<MemoryListView>();
    source->ColumnHeaders()->Add(0, Text(), u"c", c.width, c.alignment, c.icon);
    AddRow(*source, {"Oak"});
    const Ref<ListViewDump> target = MakeRef<ListViewDump>();
    const std::string error =
        ErrorOf([&] { CopyListview<HostListView>(source.Get(), target.Get()); });
    EXPECT_EQ(error == "nothing" ? DumpColumns(*target) : error, c.outcome);
    EXPECT_EQ(target->ListItems()->Count(), error == "nothing" ? 1 : 0);
  }
}

}  // namespace

}  // namespace sifter
