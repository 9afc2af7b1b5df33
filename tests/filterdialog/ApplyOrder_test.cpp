#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

class ApplyOrder : public DialogFixture {
 protected:
  ApplyOrder() {
    prompts.WhileUp([this] {
      recorder.Line("  then active " + std::string(dialog.blnFilterActive ? "True" : "False") +
                    ", filter " + Quoted(dialog.FilterString) + ", english " +
                    Quoted(dialog.FilterPlainEnglish) + ", rows " +
                    std::to_string(memory->ListItems()->Count()));
    });
    Prepare(list);
    PickText(0, u"equals", u"oak");
    PickNumber(1, u"is between", u"2", u"9");
    dialog.FilterString = u"former";
    dialog.FilterPlainEnglish = u"former too";
    dialog.Show(ShowMode::kModeless);
    recorder.Clear();
  }

  const Ref<MemoryListView> memory = MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "7"}});
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
};

TEST_F(ApplyOrder, RefillsMatchesRecordsDescribesAndHides) {
  Apply();
  EXPECT_TRUE(recorder.Shows({
      // the full list comes back
      "BeginUpdate",
      "BeginUpdate",
      "ListItems",
      "ListItems.Clear",
      "ColumnHeaders",
      "ColumnHeaders.Count",
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
      "ListItems.Add(0, \"\", \"Ash\", Empty, Empty)",
      "ListItems(2).SetBold False",
      "ListItems(2).SetTag \"\"",
      "ListItems(2).SetChecked False",
      "ListItems(2).SetForeColor -2147483640",
      "ListItems(2).SetGhosted False",
      "ListItems(2).SetToolTipText \"\"",
      "ListItems(2).SetSubItems(1) \"7\"",
      "ListItems(2).ListSubItems",
      "ListItems(2).ListSubItems.Count",
      "ListItems(2).ListSubItems.Item(1)",
      "ListItems(2).ListSubItems(1).SetBold False",
      "ListItems(2).ListSubItems(1).SetForeColor -2147483640",
      "ListItems(2).ListSubItems(1).SetKey \"\"",
      "ListItems(2).ListSubItems(1).SetReportIcon Empty",
      "ListItems(2).ListSubItems(1).SetTag \"\"",
      "ListItems(2).ListSubItems(1).SetToolTipText \"\"",
      "EndUpdate",
      // rows are tested and removed, criterion by criterion
      "BeginUpdate",
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).Text",
      "ListItems.Item(2)",
      "ListItems(2).Text",
      "ListItems",
      "ListItems.Remove(2)",
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).SubItems(1)",
      "ListItems",
      "EndUpdate",
      "EndUpdate",
      // what is left is recorded
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
      // the filter is described; the message is about a list that has changed already
      "box \"RowSifter\" \"data type is number but parameter equals 2@\"",
      "  then active True, filter \" AND (Name = 'oak')\", english \" AND Name equals oak\", rows "
      "1",
      // the dialog closes
      "focus cmdReset",
      "hide",
  }));
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(dialog.FilterString, u"(Name = 'oak') AND ()");
  EXPECT_EQ(dialog.FilterPlainEnglish, u"Name equals oak AND Qty is between 2 & 9");
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}}));
  EXPECT_EQ(DumpRows(*dialog.lvwCopyOfFiltered), DumpRows(*memory));
}

// Up to the second copy the former filter is still the one in force.
TEST_F(ApplyOrder, TheFormerFilterStandsUntilTheRowsThatPassedAreRecorded) {
  list->RecordNothing();
  list->FailOn("ListItem.SmallIcon", 1, RuntimeError(1000, u"in the second copy"));
  Apply();
  EXPECT_TRUE(recorder.Shows({
      "box \"Error\" ! \"Error number is 1000, in the second copy\"",
      "  then active False, filter \"former\", english \"former too\", rows 1",
      "box \"RowSifter\" \"data type is number but parameter equals 2@\"",
      "  then active True, filter \" AND (Name = 'oak')\", english \" AND Name equals oak\", rows "
      "1",
      "focus cmdReset",
      "hide",
  }));
}

TEST_F(ApplyOrder, TheWindowAndTheSortingOfTheListAreNotTouched) {
  Apply();
  EXPECT_EQ(list->WindowReads(), 0);
  for (const std::string& line : recorder.Lines())
    EXPECT_EQ(line.find("Sort"), std::string::npos) << line;
}

TEST_F(ApplyOrder, OnAHiddenDialogThereIsNothingToHide) {
  dialog.Hide();
  recorder.Clear();
  list->RecordNothing();
  Apply();
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(recorder.Lines().size(), 2u);  // the message alone
}

}  // namespace

}  // namespace sifter
