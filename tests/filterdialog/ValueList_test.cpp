#include "filterdialog/ValueList.h"

#include "filterdialog/frmFilter.h"
#include "support/Errors.h"
#include "support/HeadlessDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

std::vector<Text> ValuesOf(ListViewDump& list, std::int32_t column) {
  std::vector<Text> values;
  CollectDistinctValues(list, column, values);
  return values;
}

TEST(DistinctValues, StandInOrderOfFirstAppearanceAndDifferInCase) {
  const Ref<ListViewDump> list = MakeDump(
      {"first", "second"}, {{"a", "z"}, {"A", ""}, {"a", "z"}, {"", "y"}, {"b", "z "}, {"B", "Z"}});
  EXPECT_EQ(ValuesOf(*list, 0), (std::vector<Text>{u"a", u"A", u"b", u"B"}));
  EXPECT_EQ(ValuesOf(*list, 1), (std::vector<Text>{u"z", u"y", u"z ", u"Z"}));
}

TEST(DistinctValues, OfNoRowsAreNone) {
  EXPECT_EQ(ValuesOf(*MakeDump({"first"}), 0), std::vector<Text>{});
}

TEST(DistinctValues, AMissingCellIsAnErrorThatKeepsTheValuesBeforeIt) {
  const Ref<ListViewDump> list = MakeDump({"a", "b"}, {{"1", "x"}, {"2", "y"}, {"3", "z"}});
  list->ListItems()->Item(2)->SetSubItemNum(0);
  std::vector<Text> values;
  EXPECT_EQ(ErrorOf([&] { CollectDistinctValues(*list, 1, values); }), kBadPositionError);
  EXPECT_EQ(values, std::vector<Text>{u"x"});
}

using PopulateCriteriaComboBox = DialogFixture;

TEST_F(PopulateCriteriaComboBox, FillsTheRowsListFromTheFullCopy) {
  Prepare(MakeList({"Name", "Note"}, {{"a", "x"}, {"A", ""}, {"a", "x"}}));
  PickText(1, u"equals", u"x");
  Apply();
  ASSERT_EQ(dialog.UsersListview->ListItems()->Count(), 2);
  dialog.PopulateCriteriaComboBox(0);
  dialog.PopulateCriteriaComboBox(1);
  EXPECT_EQ(dialog.cboCriteria[0].Entries(), (std::vector<Text>{u"a", u"A"}));
  EXPECT_EQ(dialog.cboCriteria[1].Entries(), (std::vector<Text>{u"x"}));
}

// The banner fills every list anew while a filter is in force; a value that went with it would
// change the filter at the next apply.
TEST_F(PopulateCriteriaComboBox, KeepsWhatTheUserHasTyped) {
  Prepare(MakeList({"Name"}, {{"abc"}, {"x"}}));
  PickText(0, u"contains", u"abc");
  dialog.ListView1->ListItems()->Remove(1);
  dialog.PopulateCriteriaComboBox(0);
  EXPECT_EQ(dialog.cboCriteria[0].Text(), u"abc");
  EXPECT_EQ(dialog.cboCriteria[0].Entries(), (std::vector<Text>{u"x"}));
}

TEST_F(PopulateCriteriaComboBox, ARowThatWasNotBuiltIsAnErrorBox) {
  Prepare(MakeList({"Name"}, {{"abc"}}));
  dialog.PopulateCriteriaComboBox(1);
  dialog.PopulateCriteriaComboBox(-1);
  EXPECT_EQ(Boxes(),
            (std::vector<std::string>{ErrorBox("340, Control array element '1' doesn't exist"),
                                      ErrorBox("340, Control array element '-1' doesn't exist")}));
}

TEST_F(PopulateCriteriaComboBox, AMissingCellIsAnErrorBoxBehindTheValuesBeforeIt) {
  Prepare(MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}}));
  dialog.ListView1->ListItems()->Item(2)->SetSubItemNum(0);
  dialog.cboCriteria[1].SetText(u"typed");
  dialog.PopulateCriteriaComboBox(1);
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("9, Subscript out of range")});
  EXPECT_EQ(dialog.cboCriteria[1].Entries(), std::vector<Text>{u"x"});
  EXPECT_EQ(dialog.cboCriteria[1].Text(), u"typed");
}

TEST_F(PopulateCriteriaComboBox, OnADialogThatWasNeverSetUpTheListIsEmpty) {
  dialog.PopulateCriteriaComboBox(0);
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
  EXPECT_TRUE(dialog.ListView1);
  EXPECT_EQ(dialog.cboCriteria[0].ListCount(), 0);
}

}  // namespace

}  // namespace sifter
