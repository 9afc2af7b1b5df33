#include "SifterOnAForm.h"

namespace sifter {

namespace {

// When a showing prepares the dialog anew, and how.
class SifterPreparing : public SifterOnAForm {
 protected:
  void Show() {
    UserHides();
    control.ShowFilter();
  }
};

TEST_F(SifterPreparing, TheFirstShowingAlwaysDoes) {
  control.SetListview(list);
  Show();
  EXPECT_EQ(dialog.UsersListview, list);
  EXPECT_EQ(DumpRows(*dialog.ListView1), DumpRows(*list));
  EXPECT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 0);
  EXPECT_EQ(DumpDialog(dialog),
            R"(active False
filter ""
english ""
"Name" type "0" "All" text "" from "" to "" dates #39248# #39248# shows
"Qty" type "1" "All" text "" from "" to "" dates #39248# #39248# shows
)");
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(SifterPreparing, TheFirstShowingDoesForAnEmptyListToo) {
  LoadActive();
  const Ref<MemoryListView> empty = MakeList({"Name", "Qty"});
  control.SetListview(empty);
  UserApplies();
  control.ShowFilter();
  EXPECT_EQ(dialog.UsersListview, empty);
  EXPECT_EQ(dialog.ColumnCount(), 2);
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(SifterPreparing, AListThatIsAsItWasLeftFindsEverythingAsItWasLeft) {
  control.SetListview(list);
  Filter(u"a");
  dialog.cboCriteria[0].SetText(u"half-typed");
  const std::string before =
      DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) + Dump(*list);
  Show();
  EXPECT_EQ(DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) + Dump(*list), before);
}

TEST_F(SifterPreparing, PromptAndTitleComeBeforeTheComparison) {
  const auto foreign = Foreign(MakeList({"Name"}, {{"Oak"}}));
  foreign->RecordNothing();
  control.SetListview(foreign);
  Filter(u"a");
  foreign->RecordOnly({"ListView", "ListItems"});
  control.SetFilterCaption(u"Trees");
  control.SetFilterMessage(u"Which?");
  recorder.Clear();
  WatchDialog();
  Show();
  EXPECT_TRUE(
      recorder.Shows({"ListItems", "ListItems.Count", "lblCaption.Caption \"Which?\"",
                      "title \"Trees\"", "ListItems", "ListItems.Count", "ListItems.Item(1)",
                      "show modal \"Trees\"", "delete system menu entry 6", "focus cmdReset",
                      "hide", "modal showing ends", "raise FilterActivated, Active True"}));
}

// Cells that only the second side has play no part in the comparison.
TEST_F(SifterPreparing, TheListIsTheFirstSideOfTheComparison) {
  control.SetListview(list);
  Filter(u"a");
  dialog.lvwCopyOfFiltered->ListItems()->Item(1)->SetSubItemNum(2);
  Show();
  EXPECT_TRUE(control.Active());
  list->ListItems()->Item(1)->ListSubItems()->Add(0, Text(), u"", Value(), Value());
  list->ListItems()->Item(1)->ListSubItems()->Add(0, Text(), u"", Value(), Value());
  Show();
  EXPECT_FALSE(control.Active());
}

// What the user did is cleared, the list handed over and copied, its columns with it, and the rows
// are built.
TEST_F(SifterPreparing, GoesInOrder) {
  const Ref<MemoryListView> trees = MakeList({"Name"}, {{"Oak"}, {"Elm"}});
  const auto foreign = Foreign(trees);
  foreign->RecordNothing();
  control.SetListview(foreign);
  Filter(u"a");
  trees->ListItems()->Item(1)->SetChecked(true);
  trees->ColumnHeaders()->Item(1)->SetText(u"Tree");
  foreign->RecordOnly({"ListView", "ListItems.Count", "ColumnHeaders.Count", "ColumnHeader.Text"});
  WatchDialog();
  Show();
  EXPECT_EQ(prompts.Boxes(), Names{});
  EXPECT_TRUE(recorder.Shows({
      // is it empty?
      "ListItems",
      "ListItems.Count",

      // the comparison
      "ListItems",
      "ListItems.Count",

      // the criteria are cleared
      "cboOperator(0).ListIndex 0",
      "cboCriteria(0).Visible False",

      // the copy, into no columns
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ColumnHeaders(1).Text",
      "ListItems",
      "ListItems.Count",

      // the copy again, into the first one's columns
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ListItems",
      "ListItems.Count",

      // the rows are built
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "lblColumnHeaderText(0).Visible False",
      "lblColumnHeaderText(0).Caption \"\"",
      "cboOperator(0).Visible False",
      "cboOperator(0).List []",
      "cboOperator(0).Text \"\"",
      "cboCriteria(0).List []",
      "cboCriteria(0).Text \"\"",
      "ColumnHeaders",
      "ColumnHeaders.Count",
      "ListItems",
      "ListItems.Count",
      "ColumnHeaders(1).Text",
      "lblColumnHeaderText(0).Caption \"Tree\"",
      "lblColumnHeaderText(0).Visible True",
      "cboOperator(0).List []",
      "cboOperator(0).Visible True",
      "cboOperator(0).List [\"All\", \"contains\", \"does not contain\", \"does not equal\", "
      "\"ends with\", \"equals\", \"starts with\"]",
      "cboOperator(0).Text \"All\"",
      "show modal \"Tarvenn Software Row Sifter\"",
      "delete system menu entry 6",
      "focus cmdReset",
      "hide",
      "modal showing ends",
      "raise FilterDeactivated, Active True",
  }));
}

TEST_F(SifterPreparing, ARowThatTheHostChangesMakesWhatIsShownTheFullList) {
  control.SetListview(list);
  Filter(u"s");
  ASSERT_EQ(FirstTexts(*list), Names{"Ash"});
  list->ListItems()->Item(1)->SetChecked(true);
  Show();
  EXPECT_EQ(FirstTexts(*dialog.ListView1), Names{"Ash"});
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(dialog.FilterString, u"");
}

struct Change {
  const char* name;
  void (*make)(MemoryListView&);
  Names left;
};

class SifterPreparingAfter : public SifterPreparing, public testing::WithParamInterface<Change> {};

TEST_P(SifterPreparingAfter, AChangeTakesWhatIsShownForTheFullList) {
  control.SetListview(list);
  Filter(u"a");
  GetParam().make(*list);
  Show();
  EXPECT_EQ(FirstTexts(*dialog.ListView1), GetParam().left);
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
  EXPECT_EQ(recorder.Lines().back(), "raise FilterDeactivated, Active True");
  EXPECT_FALSE(control.Active());
}

INSTANTIATE_TEST_SUITE_P(Changes, SifterPreparingAfter,
                         testing::Values(Change{"CheckMark",
                                                [](MemoryListView& list) {
                                                  list.ListItems()->Item(2)->SetChecked(true);
                                                },
                                                {"Oak", "Ash", "Larch"}},
                                         Change{"Order",
                                                [](MemoryListView& list) { list.SetSorted(true); },
                                                {"Ash", "Larch", "Oak"}},
                                         Change{"AddedRow",
                                                [](MemoryListView& list) {
                                                  AddRow(list, {"Fir", "1"});
                                                },
                                                {"Oak", "Ash", "Larch", "Fir"}}),
                         [](const auto& change) { return std::string(change.param.name); });

TEST_F(SifterPreparing, AnotherListOfTheSameRowsIsPreparedForItself) {
  control.SetListview(list);
  Filter(u"a");
  const Ref<MemoryListView> twin =
      MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}, {"Larch", "4"}});
  ASSERT_TRUE(frmFilter::ListviewsAreEqual(twin, dialog.lvwCopyOfFiltered));
  control.SetListview(twin);
  UserFilters(u"sh");
  control.ShowFilter();
  EXPECT_EQ(FirstTexts(*twin), Names{"Ash"});
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(dialog.UsersListview, twin);
}

TEST_F(SifterPreparing, EveryColumnGetsARowWhateverIsToBeExcluded) {
  control.SetColumnsToExclude(u"Name,Qty");
  control.SetListview(list);
  Show();
  EXPECT_EQ(dialog.lblColumnHeaderText[0].Caption(), u"Name");
  EXPECT_EQ(dialog.lblColumnHeaderText[1].Caption(), u"Qty");
  EXPECT_EQ(dialog.ColumnCount(), 2);
  EXPECT_EQ(control.ColumnsToExclude(), u"Name,Qty");
}

// Each procedure of the dialog ends with its own box; the next one begins all the same.
TEST_F(SifterPreparing, GoesOnAfterTheErrorBoxOfACopy) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  foreign->Lack("ListItem.Tag");
  control.SetListview(foreign);
  Show();
  const std::string box = "box " + ErrorBox("438, Object doesn't support this property or method");
  EXPECT_TRUE(recorder.Shows({box, box, "show modal \"Tarvenn Software Row Sifter\"",
                              "delete system menu entry 6", "focus cmdReset", "hide",
                              "modal showing ends", "raise FilterDeactivated, Active False"}));
  EXPECT_EQ(dialog.ColumnCount(), 2);
}

}  // namespace

}  // namespace sifter
