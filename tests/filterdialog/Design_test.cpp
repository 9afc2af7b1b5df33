#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

namespace sifter {

namespace {

using DialogDesign = DialogFixture;

TEST_F(DialogDesign, TitleAndPromptAreTheLibrarysUntilAControlSetsItsOwn) {
  EXPECT_EQ(dialog.Caption(), u"Tarvenn Software Row Sifter");
  EXPECT_EQ(dialog.lblCaption.Caption(),
            u"Please enter the criteria by which you wish to filter the listview");
  dialog.SetCaption(u"Mine");
  dialog.lblCaption.SetCaption(u"Choose");
  Prepare(MakeList({"Name"}, {{"Oak"}}));
  EXPECT_EQ(dialog.Caption(), u"Mine");
  EXPECT_EQ(dialog.lblCaption.Caption(), u"Choose");
}

TEST_F(DialogDesign, ButtonsCarryTheirCaptions) {
  EXPECT_EQ(dialog.cmdApply.Caption(), u"&Apply Criteria");
  EXPECT_EQ(dialog.cmdReset.Caption(), u"&Reset Filter");
  EXPECT_EQ(dialog.cmdHideFilter.Caption(), u"&Hide Filter");
  EXPECT_EQ(dialog.chkCaseSensitive.Caption(), u"Match Case");
  EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kUnchecked);
  EXPECT_EQ(dialog.cmdReport.Caption(), u"");
  EXPECT_FALSE(dialog.cmdReport.Visible());
}

TEST_F(DialogDesign, RowZeroIsPartOfTheDesignAndHidden) {
  const std::vector<std::string> row = {"lblColumnHeaderText(0)",
                                        "cboOperator(0)",
                                        "cboCriteria(0)",
                                        "txtFrom(0)",
                                        "txtTo(0)",
                                        "dtpFrom(0)",
                                        "dtpTo(0)",
                                        "lblAnd(0)"};
  std::vector<std::string> found;
  for (const Control* control : dialog.Controls())
    if (control->Index() == 0) {
      found.push_back(NameOf(*control));
      EXPECT_FALSE(control->Visible()) << NameOf(*control);
      EXPECT_EQ(control->Container(), &dialog.Frame1) << NameOf(*control);
    }
  EXPECT_EQ(found, row);
  EXPECT_EQ(dialog.ColumnCount(), 0);
}

TEST_F(DialogDesign, EveryControlHasItsNameAndComesOnce) {
  Prepare(MakeList({"a", "b"}, {{"x", "1"}}));
  std::vector<std::string> names;
  for (const Control* control : dialog.Controls()) names.push_back(NameOf(*control));
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"Frame1",
                                             "cboCriteria(0)",
                                             "cboCriteria(1)",
                                             "cboOperator(0)",
                                             "cboOperator(1)",
                                             "chkCaseSensitive",
                                             "cmdApply",
                                             "cmdHideFilter",
                                             "cmdReport",
                                             "cmdReset",
                                             "dtpFrom(0)",
                                             "dtpFrom(1)",
                                             "dtpTo(0)",
                                             "dtpTo(1)",
                                             "lblAnd(0)",
                                             "lblAnd(1)",
                                             "lblCaption",
                                             "lblColumnHeaderText(0)",
                                             "lblColumnHeaderText(1)",
                                             "txtFrom(0)",
                                             "txtFrom(1)",
                                             "txtTo(0)",
                                             "txtTo(1)"}));
}

TEST_F(DialogDesign, ValueBoxesCanBeTypedIntoAndOperatorsCannot) {
  EXPECT_EQ(dialog.cboOperator[0].Style(), ComboStyle::kDropDownList);
  EXPECT_EQ(dialog.cboCriteria[0].Style(), ComboStyle::kDropDown);
}

TEST_F(DialogDesign, TheLabelBetweenTwoValuesSaysAnd) {
  Prepare(MakeList({"a", "b"}, {{"1", "1"}}));
  EXPECT_EQ(dialog.lblAnd[0].Caption(), u"and");
  EXPECT_EQ(dialog.lblAnd[1].Caption(), u"and");
}

TEST_F(DialogDesign, PublicFieldsStandInTheirOrder) {
  const std::vector<const void*> fields = {&dialog.UsersListview,     &dialog.lvwCopyOfFiltered,
                                           &dialog.ListView1,         &dialog.blnFilterActive,
                                           &dialog.gstrListviewCode,  &dialog.FilterString,
                                           &dialog.FilterPlainEnglish};
  EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<>()));
  EXPECT_FALSE(dialog.UsersListview);
  EXPECT_FALSE(dialog.lvwCopyOfFiltered);
  EXPECT_FALSE(dialog.ListView1);
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(dialog.gstrListviewCode, u"");
}

TEST_F(DialogDesign, TheTextHelpersAreTheDialogsToo) {
  EXPECT_EQ(frmFilter::TrimData(u",,3,7,,", u","), u"3,7");
  EXPECT_EQ(frmFilter::TrimData(u" AND a AND b AND ", u" AND "), u"a AND b");
  std::vector<Text> texts = {u"z", u"c", u"a", u"B"};
  frmFilter::InsertionSort(texts);
  EXPECT_EQ(texts, (std::vector<Text>{u"z", u"B", u"a", u"c"}));
}

TEST_F(DialogDesign, TwoDialogsShareNothing) {
  frmFilter other({host, prompts, conversions, clock});
  const Ref<MemoryListView> list = MakeList({"Name"}, {{"Oak"}, {"Ash"}});
  other.UsersListview = MakeList({"Qty"}, {{"5"}});
  other.SetUpForm();
  const std::string before = DumpDialog(other) + DumpForm(other) + DumpRows(*other.ListView1);
  Prepare(list);
  dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
  PickText(0, u"equals", u"Oak");
  Apply();
  EXPECT_EQ(DumpDialog(other) + DumpForm(other) + DumpRows(*other.ListView1), before);
  EXPECT_FALSE(other.lvwCopyOfFiltered);
}

TEST_F(DialogDesign, UnloadFindsEveryControlStillThere) {
  {
    frmFilter other({host, prompts, conversions, clock});
    other.UsersListview = MakeList({"a", "b"}, {{"x", "1"}});
    other.SetUpForm();
    recorder.Clear();
  }
  EXPECT_TRUE(recorder.Shows({"unload with 23 controls"}));
}

TEST_F(DialogDesign, AppliedCriteriaAreThoseOfTheLastApply) {
  Prepare(MakeList({"Name", "Qty", "Due"}, {{"Oak", "3", "1/5/2020"}}));
  EXPECT_TRUE(dialog.AppliedCriteria().empty());
  PickText(0, u"contains", u"O");
  PickNumber(1, u"is between", u"1", u"9");
  PickDate(2, u"is before", Day(2020, 1, 6), Day(2020, 1, 7));
  dialog.txtFrom[2].SetText(u"[Due]");
  Apply();
  const Date today = Day(2007, 6, 15);
  const std::vector<FilterCriterion> applied = {
      {u"Name", 0, u"contains", u"O", u"", u"", today, today},
      {u"Qty", 1, u"is between", u"", u"1", u"9", today, today},
      {u"Due", 2, u"is before", u"", u"[Due]", u"", Day(2020, 1, 6), Day(2020, 1, 7)},
  };
  EXPECT_EQ(dialog.AppliedCriteria(), applied);
  PickText(0, u"equals", u"x");
  EXPECT_EQ(dialog.AppliedCriteria(), applied);
}

}  // namespace

}  // namespace sifter
