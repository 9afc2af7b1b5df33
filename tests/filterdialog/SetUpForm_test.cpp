#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace sifter {

namespace {

class SetUpForm : public DialogFixture {
 protected:
  // The tops of the labels relative to the first one's.
  std::vector<double> RowTops() const {
    std::vector<double> tops;
    for (std::int32_t i = 0; i < dialog.ColumnCount(); ++i)
      tops.push_back(dialog.lblColumnHeaderText[i].Top() - dialog.lblColumnHeaderText[0].Top());
    return tops;
  }

  // What the last step of the layout sets.
  std::vector<double> Layout() const {
    return {dialog.Frame1.Height(), dialog.chkCaseSensitive.Top(),
            dialog.cmdApply.Top(),  dialog.cmdHideFilter.Top(),
            dialog.cmdReset.Top(),  dialog.cmdReport.Top(),
            dialog.Height()};
  }
  std::vector<double> LayoutFor(int rows) const {
    const double top = dialog.lblColumnHeaderText[0].Top() + (rows - 1) * 400 + 1400;
    return {(rows + 1) * 400.0, top, top, top, top, top, top + dialog.cmdApply.Height() + 400};
  }

  static Ref<MemoryListView> Columns(int count) {
    std::vector<std::string> captions;
    for (int i = 1; i <= count; ++i) captions.push_back("c" + std::to_string(i));
    return MakeList(captions, {{"x"}});
  }
};

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

TEST_F(SetUpForm, RowsStandFourHundredTwipsApart) {
  Prepare(MakeList({"t", "n", "d"}, {{"x", "1", "1/5/2007"}}));
  EXPECT_EQ(RowTops(), (std::vector<double>{0, 400, 800}));
  for (std::int32_t i = 0; i < 3; ++i) {
    const double top = dialog.lblColumnHeaderText[i].Top();
    const std::vector<double> tops = {dialog.cboOperator[i].Top(), dialog.cboCriteria[i].Top(),
                                      dialog.lblAnd[i].Top(), dialog.dtpFrom[i].Top(),
                                      dialog.dtpTo[i].Top()};
    EXPECT_EQ(tops, std::vector<double>(5, top)) << "row " << i;
  }
}

TEST_F(SetUpForm, RowsOfTextAndNumbersHaveTheirTextBoxesBesideThem) {
  Prepare(MakeList({"t", "n"}, {{"x", "1"}}));
  for (std::int32_t i = 0; i < 2; ++i)
    for (const TextBox* box : {&dialog.txtFrom[i], &dialog.txtTo[i]}) {
      EXPECT_EQ(box->Top(), dialog.lblColumnHeaderText[i].Top()) << NameOf(*box);
      EXPECT_EQ(box->Container(), &dialog.Frame1) << NameOf(*box);
      EXPECT_FALSE(box->Locked()) << NameOf(*box);
      EXPECT_EQ(box->BorderStyle(), BorderStyle::kSingle) << NameOf(*box);
    }
}

TEST_F(SetUpForm, ARowOfDatesHasItsLockedTextBoxesInsideThePickers) {
  const Ref<MemoryListView> list = MakeList({"t", "d"}, {{"x", "1/5/2007"}});
  Prepare(list);
  const auto expectInside = [](const TextBox& box, const DatePicker& picker) {
    EXPECT_EQ(box.Container(), &picker) << NameOf(box);
    EXPECT_EQ((std::vector<double>{box.Left(), box.Top(), box.Width(), box.Height()}),
              (std::vector<double>{0, 0, picker.Width(), picker.Height()}))
        << NameOf(box);
    EXPECT_TRUE(box.Locked()) << NameOf(box);
    EXPECT_EQ(box.BorderStyle(), BorderStyle::kNone) << NameOf(box);
    EXPECT_EQ(box.BackColor(), picker.BackColor()) << NameOf(box);
  };
  expectInside(dialog.txtFrom[1], dialog.dtpFrom[1]);
  expectInside(dialog.txtTo[1], dialog.dtpTo[1]);
  // The pickers have taken the places that the text boxes have in another row.
  for (const auto& [picker, box] : {std::pair(&dialog.dtpFrom[1], &dialog.txtFrom[0]),
                                    std::pair(&dialog.dtpTo[1], &dialog.txtTo[0])})
    EXPECT_EQ(
        (std::vector<double>{picker->Left(), picker->Top(), picker->Width(), picker->Height()}),
        (std::vector<double>{box->Left(), box->Top() + 400, box->Width(), box->Height()}));
}

TEST_F(SetUpForm, AnOverlayLooksLikeItsPicker) {
  TextBox box(dialog, u"box", 0);
  DatePicker picker(dialog, u"picker", 0);
  picker.SetBackColor(0x00C0FFC0);
  picker.Move(10, 20, 300, 40);
  EmbedTextInPicker(picker, box);
  EXPECT_EQ(DumpControl(box),
            "box(0): Container picker(0), Left 0, Top 0, Width 300, Height 40, Visible True, "
            "Enabled True, ToolTipText \"\", Text \"\", Locked False, BorderStyle 0, BackColor "
            "12648384, Tag \"\"");
}

TEST_F(SetUpForm, PickersStartAtTodaysMidnight) {
  Prepare(MakeList({"d"}, {{"1/5/2007"}}));
  EXPECT_EQ(dialog.dtpFrom[0].Value(), Day(2007, 6, 15));
  EXPECT_EQ(dialog.dtpTo[0].Value(), Day(2007, 6, 15));
}

TEST_F(SetUpForm, FrameButtonsAndHeightFollowTheRows) {
  for (const int rows : {1, 2, 5, 20, 79, 80}) {
    Prepare(Columns(rows));
    EXPECT_EQ(Layout(), LayoutFor(rows)) << rows << " rows";
    EXPECT_EQ(Boxes(), std::vector<std::string>{}) << rows << " rows";
  }
}

TEST_F(SetUpForm, TheButtonsStandAtAWholeNumberOfTwips) {
  for (const auto& [labelTop, buttonTop] :
       {std::pair(240.4, 1640.0), std::pair(240.6, 1641.0), std::pair(241.0, 1641.0)}) {
    dialog.lblColumnHeaderText[0].SetTop(labelTop);
    Prepare(Columns(1));
    EXPECT_EQ(dialog.cmdApply.Top(), buttonTop) << labelTop;
    EXPECT_EQ(dialog.Height(), buttonTop + dialog.cmdApply.Height() + 400) << labelTop;
  }
}

// The frame's height is counted in 16 bits. Hosts with that many columns see the error, keep the
// former layout and can use every row.
TEST_F(SetUpForm, MoreThanEightyRowsOverflowTheLayoutAndNothingElse) {
  Prepare(Columns(3));
  const std::vector<double> before = Layout();
  Prepare(Columns(81));
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("6, Overflow")});
  EXPECT_EQ(Layout(), before);
  EXPECT_EQ(dialog.ColumnCount(), 81);
  EXPECT_EQ(RowTops().back(), 80 * 400);
  PickText(80, u"equals", u"nothing");
  Apply();
  EXPECT_EQ(dialog.FilterString, u"(c81 = 'nothing')");
  EXPECT_EQ(dialog.UsersListview->ListItems()->Count(), 0);
}

TEST_F(SetUpForm, AListWithoutColumnsHasNoRowsAndNoError) {
  Prepare(MakeList({"d"}, {{"1/5/2007"}}));
  Prepare(MakeRef<MemoryListView>());
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
  EXPECT_EQ(dialog.ColumnCount(), 0);
  EXPECT_FALSE(dialog.lblColumnHeaderText[0].Visible());
  EXPECT_FALSE(dialog.cboOperator[0].Visible());
  EXPECT_EQ(ShownParameters(dialog, 0), std::vector<std::string>{});
  const double top = dialog.lblColumnHeaderText[0].Top() + 1400;
  EXPECT_EQ(Layout(), (std::vector<double>{400, top, top, top, top, top,
                                           top + dialog.cmdApply.Height() + 400}));
}

TEST_F(SetUpForm, EarlierRowsAreRemovedFirst) {
  Prepare(Columns(3));
  HeadlessWatcher watcher(dialog, recorder);
  Prepare(Columns(1));
  EXPECT_EQ(dialog.ColumnCount(), 1);
  EXPECT_EQ(dialog.cboOperator.Count(), 1);
  EXPECT_EQ(dialog.lblAnd.Count(), 1);
  dialog.Watch(nullptr);
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
