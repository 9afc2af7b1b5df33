#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace sifter {

namespace {

struct Change {
  const char* name;
  std::function<void(HostListView&)> make;
  bool equal = false;
};

// Whether the host's list still shows what the dialog left in it.
class DialogEquality : public DialogFixture {
 protected:
  Ref<MemoryListView> List() const {
    const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}});
    list->ListItems()->Item(1)->SetIcon(1);
    return list;
  }

  Ref<ListViewDump> Copy(const Ref<HostListView>& list) {
    const Ref<ListViewDump> copy = MakeRef<ListViewDump>();
    dialog.CopyListview(list, copy);
    return copy;
  }

  // For our own lists, whose rows are compared whole, and for one of a foreign make.
  void Expect(const Change& change) {
    const Ref<MemoryListView> list = List();
    const Ref<ListViewDump> copy = Copy(list);
    const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(list, recorder);
    foreign->RecordNothing();
    ASSERT_TRUE(dialog.ListviewsAreEqual(list, copy)) << change.name;
    ASSERT_TRUE(dialog.ListviewsAreEqual(foreign, copy)) << change.name;
    change.make(*list);
    EXPECT_EQ(dialog.ListviewsAreEqual(list, copy), change.equal) << change.name;
    EXPECT_EQ(dialog.ListviewsAreEqual(foreign, copy), change.equal) << change.name;
    EXPECT_EQ(Boxes(), std::vector<std::string>{}) << change.name;
  }

  static Ref<ListItem> Row(HostListView& list) { return list.ListItems()->Item(1); }
  static Ref<ListSubItem> Cell(HostListView& list) { return Row(list)->ListSubItems()->Item(1); }
};

TEST_F(DialogEquality, SeesEveryChangeOfARowOrCell) {
  const std::vector<Change> changes = {
      {"ForeColor", [](HostListView& l) { Row(l)->SetForeColor(1); }},
      {"Text", [](HostListView& l) { Row(l)->SetText(u"oak"); }},
      {"Tag", [](HostListView& l) { Row(l)->SetTag(u"t"); }},
      {"Key", [](HostListView& l) { Row(l)->SetKey(u"k"); }},
      {"Bold", [](HostListView& l) { Row(l)->SetBold(true); }},
      {"Checked", [](HostListView& l) { Row(l)->SetChecked(true); }},
      {"Ghosted", [](HostListView& l) { Row(l)->SetGhosted(true); }},
      {"SmallIcon", [](HostListView& l) { Row(l)->SetSmallIcon(0); }},
      {"ToolTipText", [](HostListView& l) { Row(l)->SetToolTipText(u"t"); }},
      {"Icon", [](HostListView& l) { Row(l)->SetIcon(u"1"); }},
      {"cell ForeColor", [](HostListView& l) { Cell(l)->SetForeColor(1); }},
      {"cell Bold", [](HostListView& l) { Cell(l)->SetBold(true); }},
      {"cell Key", [](HostListView& l) { Cell(l)->SetKey(u"k"); }},
      {"cell ReportIcon", [](HostListView& l) { Cell(l)->SetReportIcon(0); }},
      {"cell Tag", [](HostListView& l) { Cell(l)->SetTag(u"t"); }},
      {"cell Text", [](HostListView& l) { Cell(l)->SetText(u"4"); }},
      {"cell ToolTipText", [](HostListView& l) { Cell(l)->SetToolTipText(u"t"); }},
      {"a row more", [](HostListView& l) { AddRow(l, {"Elm"}); }},
      {"a row less", [](HostListView& l) { l.ListItems()->Remove(2); }},
      {"another order",
       [](HostListView& l) {
         l.ListItems()->Remove(1);
         AddRow(l, {"Oak", "3"})->SetIcon(1);
       }},
      {"a cell that the copy lacks", [](HostListView& l) { AddColumn(l, "Note"); }},
  };
  for (const Change& change : changes) Expect(change);
}

TEST_F(DialogEquality, DoesNotSeeWhatItDoesNotCompare) {
  const std::vector<Change> changes = {
      {"column caption", [](HostListView& l) { l.ColumnHeaders()->Item(1)->SetText(u"x"); }, true},
      {"column width", [](HostListView& l) { l.ColumnHeaders()->Item(1)->SetWidth(1); }, true},
      {"an icon of the same number", [](HostListView& l) { Row(l)->SetIcon(1.0); }, true},
      {"a text written again", [](HostListView& l) { Row(l)->SetText(u"Oak"); }, true},
      {"sorting", [](HostListView& l) { l.SetSortKey(1); }, true},
  };
  for (const Change& change : changes) Expect(change);
}

TEST_F(DialogEquality, CellsThatOnlyTheSnapshotHasAreOverlooked) {
  const Ref<MemoryListView> list = List();
  const Ref<ListViewDump> copy = Copy(list);
  copy->ColumnHeaders()->Add(0, Text(), u"more", 1, 0, 0);
  EXPECT_TRUE(dialog.ListviewsAreEqual(list, copy));
}

TEST_F(DialogEquality, EmptyListsAreEqual) {
  EXPECT_TRUE(dialog.ListviewsAreEqual(MakeRef<MemoryListView>(), MakeRef<ListViewDump>()));
}

TEST_F(DialogEquality, AMissingListEqualsNothing) {
  EXPECT_FALSE(dialog.ListviewsAreEqual(List(), nullptr));
  EXPECT_FALSE(dialog.ListviewsAreEqual(nullptr, MakeRef<ListViewDump>()));
  EXPECT_FALSE(dialog.ListviewsAreEqual(List(), dialog.lvwCopyOfFiltered));
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

TEST_F(DialogEquality, AnErrorOfTheListIsSilentAndMakesThemDiffer) {
  const Ref<MemoryListView> memory = List();
  const Ref<ListViewDump> copy = Copy(memory);
  const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(memory, recorder);
  foreign->RecordNothing();
  foreign->FailOn("ListItem.Ghosted", 2, RuntimeError(1000, u"no"));
  EXPECT_FALSE(dialog.ListviewsAreEqual(foreign, copy));
  EXPECT_TRUE(dialog.ListviewsAreEqual(foreign, copy));
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

TEST_F(DialogEquality, OverThirtyTwoThousandRowsDifferFromThemselvesWithoutABox) {
  const Ref<MemoryListView> list = MakeList({"n"});
  for (int i = 0; i < 32767; ++i) AddRow(*list, {"x"});
  EXPECT_TRUE(dialog.ListviewsAreEqual(list, Copy(list)));
  AddRow(*list, {"x"});
  EXPECT_FALSE(dialog.ListviewsAreEqual(list, Copy(list)));
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

}  // namespace

}  // namespace sifter
