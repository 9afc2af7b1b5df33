#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

class DialogLayout : public DialogFixture {
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

TEST_F(DialogLayout, RowsStandFourHundredTwipsApart) {
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

TEST_F(DialogLayout, RowsOfTextAndNumbersHaveTheirTextBoxesBesideThem) {
  Prepare(MakeList({"t", "n"}, {{"x", "1"}}));
  for (std::int32_t i = 0; i < 2; ++i)
    for (const TextBox* box : {&dialog.txtFrom[i], &dialog.txtTo[i]}) {
      EXPECT_EQ(box->Top(), dialog.lblColumnHeaderText[i].Top()) << NameOf(*box);
      EXPECT_EQ(box->Container(), &dialog.Frame1) << NameOf(*box);
      EXPECT_FALSE(box->Locked()) << NameOf(*box);
      EXPECT_EQ(box->BorderStyle(), BorderStyle::kSingle) << NameOf(*box);
    }
}

TEST_F(DialogLayout, ARowOfDatesHasItsLockedTextBoxesInsideThePickers) {
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

TEST_F(DialogLayout, AnOverlayLooksLikeItsPicker) {
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

TEST_F(DialogLayout, FrameButtonsAndHeightFollowTheRows) {
  for (const int rows : {1, 2, 5, 20, 79, 80}) {
    Prepare(Columns(rows));
    EXPECT_EQ(Layout(), LayoutFor(rows)) << rows << " rows";
    EXPECT_EQ(Boxes(), std::vector<std::string>{}) << rows << " rows";
  }
}

TEST_F(DialogLayout, TheButtonsStandAtAWholeNumberOfTwips) {
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
TEST_F(DialogLayout, MoreThanEightyRowsOverflowTheLayoutAndNothingElse) {
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

TEST_F(DialogLayout, AListWithoutColumnsHasNoRowsAndNoError) {
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

}  // namespace

}  // namespace sifter
