#include "filterdialog/CopyListview.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

class CopyOrder : public testing::Test {
 protected:
  Ref<RecordingListView> Recorded(const Ref<MemoryListView>& list) {
    return MakeRef<RecordingListView>(list, recorder);
  }

  Recorder recorder;
};

TEST_F(CopyOrder, ReadsAndWritesTheMembersInTheirOrder) {
  const Ref<MemoryListView> from = MakeList({"Name", "Qty"}, {{"Oak", "3"}});
  const Ref<MemoryListView> to = MakeRef<MemoryListView>();
  Recorder writes;
  CopyListview<HostListView, HostListView>(Recorded(from).Get(),
                                           MakeRef<RecordingListView>(to, writes).Get());
  EXPECT_TRUE(recorder.Shows({
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ColumnHeaders.Item(1)",
      "ColumnHeaders(1).Key",
      "ColumnHeaders(1).Text",
      "ColumnHeaders(1).Width",
      "ColumnHeaders(1).Alignment",
      "ColumnHeaders(1).Icon",
      "ColumnHeaders.Item(2)",
      "ColumnHeaders(2).Key",
      "ColumnHeaders(2).Text",
      "ColumnHeaders(2).Width",
      "ColumnHeaders(2).Alignment",
      "ColumnHeaders(2).Icon",
      "ListItems",
      "ListItems.Count",
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ListItems.Item(1)",
      "ListItems(1).Key",
      "ListItems(1).Text",
      "ListItems(1).Icon",
      "ListItems(1).SmallIcon",
      "ListItems(1).Bold",
      "ListItems(1).Tag",
      "ListItems(1).Checked",
      "ListItems(1).ForeColor",
      "ListItems(1).Ghosted",
      "ListItems(1).ToolTipText",
      "ListItems(1).SubItems(1)",
      "ListItems(1).ListSubItems",
      "ListItems(1).ListSubItems.Count",
      "ListItems(1).ListSubItems.Item(1)",
      "ListItems(1).ListSubItems(1).Bold",
      "ListItems(1).ListSubItems(1).ForeColor",
      "ListItems(1).ListSubItems(1).Key",
      "ListItems(1).ListSubItems(1).ReportIcon",
      "ListItems(1).ListSubItems(1).Tag",
      "ListItems(1).ListSubItems(1).ToolTipText",
  }));
  EXPECT_TRUE(writes.Shows({
      "BeginUpdate",
      "ListItems",
      "ListItems.Clear",
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ColumnHeaders",
      "ColumnHeaders.Add(0, \"\", \"Name\", 1440, 0, Empty)",
      "ColumnHeaders.Add(0, \"\", \"Qty\", 1440, 0, Empty)",
      "ListItems",
      "ListItems.Add(0, \"\", \"Oak\", Empty, Empty)",
      "ListItems(1).SetBold False",
      "ListItems(1).SetTag \"\"",
      "ListItems(1).SetChecked False",
      "ListItems(1).SetForeColor -2147483640",
      "ListItems(1).SetGhosted False",
      "ListItems(1).SetToolTipText \"\"",
      "ListItems(1).SetSubItems(1) \"3\"",
      "ListItems(1).ListSubItems",
      "ListItems(1).ListSubItems.Count",
      "ListItems(1).ListSubItems.Item(1)",
      "ListItems(1).ListSubItems(1).SetBold False",
      "ListItems(1).ListSubItems(1).SetForeColor -2147483640",
      "ListItems(1).ListSubItems(1).SetKey \"\"",
      "ListItems(1).ListSubItems(1).SetReportIcon Empty",
      "ListItems(1).ListSubItems(1).SetTag \"\"",
      "ListItems(1).ListSubItems(1).SetToolTipText \"\"",
      "EndUpdate",
  }));
}

TEST_F(CopyOrder, EmptyCellsAreWrittenToo) {
  const Ref<MemoryListView> target = MakeRef<MemoryListView>();
  const Ref<RecordingListView> recorded = Recorded(target);
  recorded->RecordOnly({"ListItem.SetSubItems"});
  CopyListview<ListViewDump, HostListView>(MakeDump({"a", "b", "c"}, {{"1", "", "3"}}).Get(),
                                           recorded.Get());
  EXPECT_TRUE(
      recorder.Shows({"ListItems(1).SetSubItems(1) \"\"", "ListItems(1).SetSubItems(2) \"3\""}));
}

TEST_F(CopyOrder, TheUpdateBracketIsClosedAfterAnErrorToo) {
  const Ref<RecordingListView> target = Recorded(MakeList({"Name"}));
  target->RecordOnly({"ListView.BeginUpdate", "ListView.EndUpdate"});
  target->FailOn("ListItems.Add", 1, RuntimeError(1000, u"full"));
  EXPECT_EQ(ErrorOf([&] {
              CopyListview<ListViewDump, HostListView>(MakeDump({"Name"}, {{"Oak"}}).Get(),
                                                       target.Get());
            }),
            "1000: full");
  EXPECT_TRUE(recorder.Shows({"BeginUpdate", "EndUpdate"}));
}

TEST_F(CopyOrder, AMissingTargetIsAnErrorBeforeTheSourceIsTouched) {
  const Ref<RecordingListView> source = Recorded(MakeList({"Name"}, {{"Oak"}}));
  EXPECT_EQ(ErrorOf([&] { CopyListview<HostListView, ListViewDump>(source.Get(), nullptr); }),
            "91: Object variable or With block variable not set");
  EXPECT_TRUE(recorder.Shows({}));
}

}  // namespace

}  // namespace sifter
