#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

class DialogInput : public DialogFixture {
 protected:
  // Row 0 text, row 1 number, row 2 date, row 3 text, row 4 number, row 5 date.
  DialogInput() {
    Prepare(MakeList({"Name", "Qty", "Due", "City", "Price", "Shipped"},
                     {{"Oak", "3", "1/5/2020", "Oak", "3", "1/6/2020"},
                      {"Ash", "5", "1/7/2020", "Bonn", "4", "1/7/2020"}}));
  }

  Label& Header(std::int32_t i) { return dialog.lblColumnHeaderText[i]; }
};

TEST_F(DialogInput, EnterAppliesInEachKindOfParameterField) {
  const std::vector<const Control*> fields = {
      &dialog.cboCriteria[3], &dialog.txtFrom[4], &dialog.txtTo[4],   &dialog.dtpFrom[5],
      &dialog.dtpTo[5],       &dialog.txtFrom[5], &dialog.txtTo[5],   &dialog.cboCriteria[0],
      &dialog.txtFrom[0],     &dialog.txtTo[0],   &dialog.dtpFrom[0], &dialog.dtpTo[0]};
  for (const Control* field : fields) {
    dialog.blnFilterActive = false;
    field->PressKey(13);
    EXPECT_TRUE(dialog.blnFilterActive) << NameOf(*field);
  }
}

TEST_F(DialogInput, EnterAppliesAsTheButtonDoes) {
  PickText(0, u"equals", u"Oak");
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  dialog.cboCriteria[0].PressKey(13);
  EXPECT_TRUE(recorder.Shows({"focus cmdReset", "hide"}));
  EXPECT_EQ(FirstTexts(*dialog.UsersListview), std::vector<std::string>{"Oak"});
}

TEST_F(DialogInput, OtherKeysAreLeftToTheField) {
  for (const Control* field : std::initializer_list<const Control*>{
           &dialog.cboCriteria[0], &dialog.txtFrom[1], &dialog.txtTo[1], &dialog.dtpFrom[2],
           &dialog.dtpTo[2]})
    for (const int key : {0, 9, 10, 12, 14, 27, 32, 65}) {
      field->PressKey(static_cast<std::int16_t>(key));
      EXPECT_FALSE(dialog.blnFilterActive) << NameOf(*field) << " key " << key;
    }
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(DialogInput, NeitherOperatorsNorButtonsTakeKeys) {
  for (const Control* control : std::initializer_list<const Control*>{
           &dialog.cboOperator[0], &dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter,
           &dialog.cmdReport, &dialog.chkCaseSensitive})
    EXPECT_FALSE(control->KeyDown) << NameOf(*control);
}

TEST_F(DialogInput, AHeaderOfTheSameTypeBecomesAReference) {
  struct Case {
    std::int32_t source;
    Control* target;
    std::int32_t row;
    const char* dump;
  };
  const Case cases[] = {
      {3, &dialog.cboCriteria[0], 0, "text \"[City]\" from \"\" to \"\""},
      {4, &dialog.txtFrom[1], 1, "text \"\" from \"[Price]\" to \"\""},
      {4, &dialog.txtTo[1], 1, "text \"\" from \"\" to \"[Price]\""},
      {5, &dialog.txtFrom[2], 2, "text \"\" from \"[Shipped]\" to \"\""},
      {5, &dialog.txtTo[2], 2, "text \"\" from \"\" to \"[Shipped]\""},
      // What is dropped on a picker goes into the box that lies over its date.
      {5, &dialog.dtpFrom[2], 2, "text \"\" from \"[Shipped]\" to \"\""},
      {5, &dialog.dtpTo[2], 2, "text \"\" from \"\" to \"[Shipped]\""},
      {1, &dialog.txtFrom[1], 1, "text \"\" from \"[Qty]\" to \"\""},
  };
  for (const Case& c : cases) {
    dialog.cboCriteria[c.row].SetText(Text());
    dialog.txtFrom[c.row].SetText(Text());
    dialog.txtTo[c.row].SetText(Text());
    c.target->Drop(Header(c.source));
    EXPECT_NE(DumpCriterion(dialog, c.row).find(c.dump), std::string::npos)
        << NameOf(*c.target) << ": " << DumpCriterion(dialog, c.row);
  }
}

TEST_F(DialogInput, ADropReplacesWhatWasThere) {
  dialog.txtFrom[1].SetText(u"12");
  dialog.txtFrom[1].Drop(Header(4));
  EXPECT_EQ(dialog.txtFrom[1].Text(), u"[Price]");
  dialog.txtFrom[1].Drop(Header(1));
  EXPECT_EQ(dialog.txtFrom[1].Text(), u"[Qty]");
}

TEST_F(DialogInput, AHeaderOfAnotherTypeChangesNothing) {
  const std::string before = DumpDialog(dialog);
  dialog.cboCriteria[0].Drop(Header(1));
  dialog.cboCriteria[0].Drop(Header(2));
  dialog.txtFrom[1].Drop(Header(0));
  dialog.txtFrom[1].Drop(Header(2));
  dialog.txtTo[1].Drop(Header(2));
  dialog.txtFrom[2].Drop(Header(0));
  dialog.dtpTo[2].Drop(Header(1));
  EXPECT_EQ(DumpDialog(dialog), before);
}

TEST_F(DialogInput, AFieldSaysBeforehandWhetherItTakesADrop) {
  EXPECT_TRUE(dialog.cboCriteria[0].TakesDrop(Header(3)));
  EXPECT_FALSE(dialog.cboCriteria[0].TakesDrop(Header(1)));
  EXPECT_TRUE(dialog.txtFrom[1].TakesDrop(Header(4)));
  EXPECT_FALSE(dialog.txtTo[1].TakesDrop(Header(2)));
  EXPECT_TRUE(dialog.dtpTo[2].TakesDrop(Header(5)));
  EXPECT_FALSE(dialog.dtpTo[2].TakesDrop(Header(1)));
  EXPECT_FALSE(dialog.dtpTo[2].TakesDrop(dialog.cmdApply));
  EXPECT_FALSE(dialog.cmdApply.TakesDrop(Header(0)));
}

TEST_F(DialogInput, OnlyHeadersCanBeDropped) {
  const std::string before = DumpDialog(dialog);
  for (Control* source : std::initializer_list<Control*>{
           &dialog.cmdApply, &dialog.txtTo[1], &dialog.cboOperator[1], &dialog.dtpFrom[2],
           &dialog.lblAnd[1], &dialog.lblCaption, &dialog.Frame1}) {
    source->SetTag(source->Kind() == ControlKind::kLabel ? u"" : u"1");
    dialog.txtFrom[1].Drop(*source);
  }
  EXPECT_EQ(DumpDialog(dialog), before);
}

TEST_F(DialogInput, ALabelThatHeadsNoRowNeverMatches) {
  dialog.lblColumnHeaderText[1].SetTag(Text());
  dialog.txtFrom[1].Drop(dialog.lblAnd[1]);
  EXPECT_EQ(dialog.txtFrom[1].Text(), u"");
}

TEST_F(DialogInput, ADroppedReferenceComparesTwoCellsOfARow) {
  Pick(1, u"equals");
  dialog.txtFrom[1].Drop(Header(4));
  Apply();
  EXPECT_EQ(FirstTexts(*dialog.UsersListview), std::vector<std::string>{"Oak"});
}

TEST_F(DialogInput, AReferenceOverAPickerTakesTheDatesPlace) {
  PickDate(2, u"equals", Day(2020, 1, 5));
  dialog.dtpFrom[2].Drop(Header(5));
  Apply();
  EXPECT_EQ(FirstTexts(*dialog.UsersListview), std::vector<std::string>{"Ash"});
}

TEST_F(DialogInput, AnythingElseOverAPickerLeavesTheDateInForce) {
  for (const char16_t* text : {u"", u"[Nothing]", u"[shipped]", u"[Shipped", u"Shipped"}) {
    PickDate(2, u"equals", Day(2020, 1, 5));
    dialog.txtFrom[2].SetText(text);
    Apply();
    EXPECT_EQ(FirstTexts(*dialog.UsersListview), std::vector<std::string>{"Oak"}) << Quoted(text);
  }
}

TEST_F(DialogInput, AReferenceInADateRowStaysUntilTheRowsAreBuiltAnew) {
  dialog.dtpFrom[2].Drop(Header(5));
  Pick(2, u"equals");
  Apply();
  Reset();
  Pick(2, u"is after");
  EXPECT_EQ(dialog.txtFrom[2].Text(), u"[Shipped]");
  dialog.SetUpForm();
  EXPECT_EQ(dialog.txtFrom[2].Text(), u"");
}

TEST_F(DialogInput, OverAPickerOnlyAReferenceCanBeTyped) {
  TextBox& overlay = dialog.txtFrom[2];
  EXPECT_FALSE(overlay.Edit(u"5"));
  EXPECT_FALSE(overlay.Edit(u"1/5/2020"));
  EXPECT_EQ(overlay.Text(), u"");
  EXPECT_TRUE(overlay.Edit(u"["));
  EXPECT_TRUE(overlay.Edit(u"[Shipped]"));
  EXPECT_TRUE(overlay.Edit(u"[Shipped] x"));
  EXPECT_FALSE(overlay.Edit(u"Shipped]"));
  EXPECT_EQ(overlay.Text(), u"[Shipped] x");
  EXPECT_TRUE(overlay.Edit(u""));
  EXPECT_EQ(overlay.Text(), u"");
}

TEST_F(DialogInput, InANumberRowAnythingCanBeTyped) {
  EXPECT_TRUE(dialog.txtFrom[1].Edit(u"5"));
  EXPECT_TRUE(dialog.txtTo[1].Edit(u"abc"));
}

TEST_F(DialogInput, MatchCaseCountsWhenItIsCheckedAndOnlyThen) {
  struct Case {
    CheckValue value;
    std::vector<std::string> left;
  };
  const Case cases[] = {{CheckValue::kUnchecked, {"Oak"}},
                        {CheckValue::kChecked, {}},
                        {CheckValue::kGrayed, {"Oak"}},
                        {CheckValue::kChecked, {}},
                        {CheckValue::kUnchecked, {"Oak"}}};
  PickText(0, u"equals", u"oak");
  for (const Case& c : cases) {
    dialog.chkCaseSensitive.SetValue(c.value);
    Apply();
    EXPECT_EQ(FirstTexts(*dialog.UsersListview), c.left) << static_cast<int>(c.value);
  }
}

TEST_F(DialogInput, MatchCaseIsOneSwitchForAllRows) {
  dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
  PickText(3, u"equals", u"oak");
  Apply();
  EXPECT_EQ(FirstTexts(*dialog.UsersListview), std::vector<std::string>{});
}

TEST_F(DialogInput, TheExtraButtonHandsOverAnEmptyTextAndDoesNothingElse) {
  dialog.ExtraButtonClicked = [&](Text& parameter) {
    recorder.Line("extra " + Quoted(parameter));
    parameter = u"changed";
  };
  const std::string before = DumpDialog(dialog) + DumpForm(dialog);
  dialog.cmdReport.SetValue(true);
  dialog.cmdReport.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"extra \"\"", "extra \"\""}));
  EXPECT_EQ(DumpDialog(dialog) + DumpForm(dialog), before);
}

TEST_F(DialogInput, TheExtraButtonWithoutAHandlerDoesNothing) {
  dialog.cmdReport.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(DialogInput, AnErrorOfTheExtraButtonsHandlerIsShown) {
  dialog.ExtraButtonClicked = [](Text&) { throw RuntimeError(1000, u"no report"); };
  dialog.cmdReport.SetValue(true);
  EXPECT_EQ(Boxes(), std::vector<std::string>{ErrorBox("1000, no report")});
}

TEST_F(DialogInput, EveryActivationTakesTheCloseEntryOutOfTheSystemMenu) {
  dialog.Activate();
  dialog.Activate();
  EXPECT_TRUE(recorder.Shows({"delete system menu entry 6", "delete system menu entry 6"}));
}

TEST_F(DialogInput, RowZeroTakesKeysAndDropsAfterEverySetUp) {
  dialog.ListView1->ColumnHeaders()->Clear();
  dialog.UsersListview = MakeList({"Due", "Shipped"}, {{"1/5/2020", "1/5/2020"}});
  dialog.SetUpForm();
  dialog.dtpFrom[0].Drop(Header(1));
  EXPECT_EQ(dialog.txtFrom[0].Text(), u"[Shipped]");
  dialog.dtpTo[0].PressKey(13);
  EXPECT_TRUE(dialog.blnFilterActive);
}

}  // namespace

}  // namespace sifter
