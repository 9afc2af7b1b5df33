#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using SetUpForm = DialogFixture;

TEST_F(SetUpForm, BuildsARowForEachColumnInOrder) {
  Prepare(MakeList({"Name", "Qty", "Shipped", "Note"},
                   {{"Oak", "3", "1/5/2007", ""}, {"Ash", "", "", ""}}));
  EXPECT_EQ(dialog.ColumnCount(), 4);
  EXPECT_EQ(DumpDialog(dialog),
            R"(active False
filter ""
english ""
"Name" type "0" "All" text "" from "" to "" dates #39248# #39248# shows
"Qty" type "1" "All" text "" from "" to "" dates #39248# #39248# shows
"Shipped" type "2" "All" text "" from "" to "" dates #39248# #39248# shows
"Note" type "0" "All" text "" from "" to "" dates #39248# #39248# shows
)");
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

TEST_F(SetUpForm, EachTypeOffersItsOperatorsWithAllSelected) {
  Prepare(MakeList({"t", "n", "d"}, {{"x", "1", "1/5/2007"}}));
  using Words = std::vector<Text>;
  EXPECT_EQ(dialog.cboOperator[0].Entries(),
            (Words{u"All", u"contains", u"does not contain", u"does not equal", u"ends with",
                   u"equals", u"starts with"}));
  EXPECT_EQ(dialog.cboOperator[1].Entries(),
            (Words{u"All", u"does not equal", u"equals", u"is between", u"is greater than",
                   u"is less than", u"is not between"}));
  EXPECT_EQ(dialog.cboOperator[2].Entries(),
            (Words{u"All", u"does not equal", u"equals", u"is after", u"is before", u"is between",
                   u"is not between", u"is empty"}));
  for (std::int32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(dialog.cboOperator[i].ListIndex(), 0);
    EXPECT_EQ(dialog.cboOperator[i].Text(), u"All");
    EXPECT_TRUE(dialog.cboOperator[i].Visible());
    EXPECT_TRUE(dialog.lblColumnHeaderText[i].Visible());
  }
}

TEST_F(SetUpForm, PickersStartAtTodaysMidnight) {
  Prepare(MakeList({"d"}, {{"1/5/2007"}}));
  EXPECT_EQ(dialog.dtpFrom[0].Value(), Day(2007, 6, 15));
  EXPECT_EQ(dialog.dtpTo[0].Value(), Day(2007, 6, 15));
}

TEST_F(SetUpForm, EarlierRowsAreRemovedFirst) {
  Prepare(MakeList({"a", "b", "c"}, {{"1", "2", "3"}}));
  Prepare(MakeList({"x"}, {{"1"}}));
  EXPECT_EQ(dialog.ColumnCount(), 1);
  EXPECT_EQ(dialog.cboOperator.Count(), 1);
  EXPECT_EQ(dialog.lblAnd.Count(), 1);
}

// Row 0 is part of the design and stays; nothing of its former column may shine through.
TEST_F(SetUpForm, RowZeroIsAsNewWhateverItWasBefore) {
  const std::vector<Ref<MemoryListView>> lists = {
      MakeList({"d", "x"}, {{"1/5/2007", "a"}}),
      MakeList({"n"}, {{"5"}}),
      MakeList({"t", "d", "n"}, {{"a", "1/5/2007", "2"}}),
      MakeList({"d"}, {{"1/5/2007"}}),
      MakeRef<MemoryListView>(),
      MakeList({"n", "n"}, {{"5", "6"}})};
  for (const Ref<MemoryListView>& list : lists) {
    Prepare(list);
    frmFilter fresh({host, prompts, conversions, clock});
    fresh.UsersListview = list;
    fresh.SetUpForm();
    if (dialog.ColumnCount() > 0) {
      EXPECT_EQ(DumpForm(dialog), DumpForm(fresh));
      // What the user leaves behind.
      dialog.cboOperator[0].SetListIndex(3);
      dialog.cboCriteria[0].SetText(u"typed");
      dialog.txtFrom[0].SetText(u"[n]");
      dialog.txtTo[0].SetText(u"[n]");
      dialog.dtpFrom[0].SetValue(Day(1999, 1, 1));
      dialog.dtpTo[0].SetValue(Day(1999, 1, 2));
    }
  }
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

TEST_F(SetUpForm, BuildingTheRowsMovesNoFocus) {
  dialog.UsersListview = MakeList({"t", "n", "d"}, {{"x", "1", "1/5/2007"}});
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  dialog.SetUpForm();
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(SetUpForm, TheFocusIsNotRememberedOnARowThatHasGone) {
  Prepare(MakeList({"t", "n"}, {{"x", "1"}}));
  dialog.Show(ShowMode::kModeless);
  Pick(1, u"equals");
  ASSERT_EQ(dialog.ActiveControl(), &dialog.txtFrom[1]);
  dialog.SetUpForm();
  EXPECT_EQ(dialog.ActiveControl(), nullptr);
}

TEST_F(SetUpForm, TakesAFullCopyOfTheListFirst) {
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}});
  Prepare(list);
  EXPECT_EQ(DumpRows(*dialog.ListView1), DumpRows(*list));
  EXPECT_EQ(dialog.ListView1->ColumnHeaders()->Count(), 2);
}

// The controls take the copy's columns away before they hand over a list with other columns.
TEST_F(SetUpForm, KeepsTheColumnsThatTheCopyHasAndBuildsTheRowsWhateverBecomesOfTheCopy) {
  Prepare(MakeList({"a", "b"}, {{"1", "2"}}));
  dialog.UsersListview = MakeList({"x", "y", "z"}, {{"1", "2", "3"}, {"4", "5", "6"}});
  dialog.SetUpForm();
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("9, Subscript out of range")});
  EXPECT_EQ(Texts(*dialog.ListView1), (TextRows{{"1", "2"}}));
  EXPECT_EQ(dialog.ListView1->ColumnHeaders()->Item(1)->Text(), u"a");
  EXPECT_EQ(dialog.ColumnCount(), 3);
}

TEST_F(SetUpForm, ReadsTheListOnceForTheCopyAndOnceForEachColumnsType) {
  const Ref<RecordingListView> list =
      MakeRef<RecordingListView>(MakeList({"Name", "Qty"}, {{"Oak", "3"}}), recorder);
  list->RecordOnly(
      {"ListView", "ColumnHeaders", "ListItems", "ListItem.Text", "ListItem.SubItems"});
  dialog.UsersListview = list;
  dialog.SetUpForm();
  EXPECT_TRUE(recorder.Shows({
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ColumnHeaders.Item(1)",
      "ColumnHeaders.Item(2)",
      "ListItems",
      "ListItems.Count",
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ListItems.Item(1)",
      "ListItems(1).Text",
      "ListItems(1).SubItems(1)",
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).Text",
      "ColumnHeaders.Item(1)",
      "ListItems",
      "ListItems.Count",
      "ListItems.Item(1)",
      "ListItems(1).SubItems(1)",
      "ColumnHeaders.Item(2)",
  }));
}

TEST_F(SetUpForm, TypesComeFromTheHostsListAndNotFromTheCopy) {
  const Ref<RecordingListView> list =
      MakeRef<RecordingListView>(MakeList({"Name", "Qty"}, {{"Oak", "3"}}), recorder);
  list->FailOn("ListItem.Key", 1, RuntimeError(1000, u"no copy today"));
  Prepare(list);
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("1000, no copy today")});
  EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 0);
  EXPECT_EQ(dialog.lblColumnHeaderText[0].Tag(), u"0");
  EXPECT_EQ(dialog.lblColumnHeaderText[1].Tag(), u"1");
}

TEST_F(SetUpForm, AnErrorOfTheListWhileTheRowsAreBuiltLeavesThoseBuiltSoFar) {
  const Ref<RecordingListView> list =
      MakeRef<RecordingListView>(MakeList({"a", "b", "c"}, {{"1", "2", "3"}}), recorder);
  list->RecordNothing();
  list->FailOn("ColumnHeaders.Item", 5, RuntimeError(35600, u"Index out of bounds"));
  Prepare(list);
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("35600, Index out of bounds")});
  EXPECT_EQ(dialog.ColumnCount(), 1);
  EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 1);
}

TEST_F(SetUpForm, WithoutAListShowsTheErrorOfTheCopyAndItsOwn) {
  Prepare(MakeList({"Name"}, {{"Oak"}}));
  Prepare(nullptr);
  const std::string box = ErrorBox("91, Object variable or With block variable not set");
  EXPECT_EQ(Boxes(), (std::vector<std::string>{box, box}));
  EXPECT_EQ(dialog.ColumnCount(), 0);
  EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 0);
}

TEST_F(SetUpForm, ColumnCaptionsMayRepeatOrBeEmpty) {
  Prepare(MakeList({"a", "", "a"}, {{"1", "2", "3"}}));
  EXPECT_EQ(dialog.lblColumnHeaderText[0].Caption(), u"a");
  EXPECT_EQ(dialog.lblColumnHeaderText[1].Caption(), u"");
  EXPECT_EQ(dialog.lblColumnHeaderText[2].Caption(), u"a");
}

}  // namespace

}  // namespace sifter
