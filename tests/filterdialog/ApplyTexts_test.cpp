#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

class ApplyTexts : public DialogFixture {
 protected:
  // Row 0 text, row 1 number, row 2 date, row 3 text.
  ApplyTexts() {
    Prepare(MakeList(
        {"Name", "Qty", "Shipped", "Note"},
        {{"abcd", "6", "1/5/2020", "x"}, {"abce", "4", "1/9/2020", "y"}, {"Oak", "9", "", "z"}}));
  }

  void ExpectTexts(const char16_t* filter, const char16_t* english) const {
    EXPECT_EQ(dialog.FilterString, filter);
    EXPECT_EQ(dialog.FilterPlainEnglish, english);
  }
  std::vector<std::string> Left() const { return FirstTexts(*dialog.UsersListview); }

  using Names = std::vector<std::string>;
};

TEST_F(ApplyTexts, AreEmptyBeforeTheFirstApply) {
  ExpectTexts(u"", u"");
  EXPECT_FALSE(dialog.blnFilterActive);
}

TEST_F(ApplyTexts, TwoCriteriaAreJoinedInTheOrderOfTheRows) {
  PickNumber(1, u"is greater than", u"5");
  PickText(0, u"contains", u"abc");
  Apply();
  ExpectTexts(u"(Name like '*abc*') AND (Qty > 5)", u"Name contains abc AND Qty is greater than 5");
  EXPECT_EQ(Left(), Names{"abcd"});
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(ApplyTexts, WithEveryRowOnAllTheFilterIsInForceAndTheTextsAreEmpty) {
  PickText(0, u"equals", u"Oak");
  Apply();
  Pick(0, u"All");
  Apply();
  ExpectTexts(u"", u"");
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(Left(), (Names{"abcd", "abce", "Oak"}));
}

TEST_F(ApplyTexts, StartAnewWithEveryApply) {
  PickText(0, u"equals", u"Oak");
  Apply();
  Apply();
  ExpectTexts(u"(Name = 'Oak')", u"Name equals Oak");
}

// Hosts know the filter of a date range by its empty parentheses.
TEST_F(ApplyTexts, ADateRangeBetweenTwoOtherRowsShowsItsErrorAndTheRestIsWritten) {
  PickText(0, u"contains", u"abc");
  PickDate(2, u"is between", Day(2020, 1, 5), Day(2020, 1, 9));
  PickText(3, u"equals", u"y");
  dialog.Show(ShowMode::kModeless);
  recorder.Clear();
  Apply();
  ExpectTexts(u"(Name like '*abc*') AND () AND (Note = 'y')",
              u"Name contains abc AND Shipped is between 1/5/2020 & 1/9/2020 AND Note equals y");
  EXPECT_TRUE(recorder.Shows({
      "box \"Error\" ! \"Error number is 13, Type mismatch\"",
      "focus cmdReset",
      "hide",
  }));
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(Left(), Names{"abce"});
}

TEST_F(ApplyTexts, EveryDateRangeHasABoxOfItsOwn) {
  Prepare(MakeList({"a", "b"}, {{"1/5/2020", "1/5/2020"}}));
  PickDate(0, u"is between", Day(2020, 1, 5), Day(2020, 1, 9));
  PickDate(1, u"is between", Day(2020, 1, 5), Day(2020, 1, 9));
  Apply();
  EXPECT_EQ(dialog.FilterString, u"() AND ()");
  EXPECT_EQ(Boxes(), Names(2, ErrorBox("13, Type mismatch")));
}

TEST_F(ApplyTexts, ADateOutsideARangeHasItsCondition) {
  PickDate(2, u"is not between", Day(2020, 1, 5), Day(2020, 1, 8));
  Apply();
  ExpectTexts(u"(Shipped < #1/5/2020@# AND > #@1/8/2020#)",
              u"Shipped is not between 1/5/2020 & 1/8/2020");
  EXPECT_EQ(Left(), (Names{"abce", "Oak"}));
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(ApplyTexts, ANumberRangeAlwaysEndsWithAMessage) {
  for (const char16_t* word : {u"is between", u"is not between"}) {
    prompts.Forget();
    PickNumber(1, word, u"5", u"7");
    PickText(3, u"contains", u"");
    Apply();
    EXPECT_EQ(Boxes(), Names{Message("data type is number but parameter equals 5@")});
    EXPECT_EQ(dialog.FilterString, u"() AND (Note like '**')");
    EXPECT_TRUE(dialog.blnFilterActive);
  }
  EXPECT_EQ(dialog.FilterPlainEnglish, u"Qty is not between 5 & 7 AND Note contains ");
  EXPECT_EQ(Left(), (Names{"abce", "Oak"}));
}

TEST_F(ApplyTexts, AMessageFindsTheListFilteredAlready) {
  std::vector<std::string> seen;
  prompts.WhileUp([&] { seen = Left(); });
  PickNumber(1, u"is between", u"5", u"7");
  Apply();
  EXPECT_EQ(seen, Names{"abcd"});
  EXPECT_EQ(Left(), Names{"abcd"});
}

TEST_F(ApplyTexts, AnEmptyNumberIsNamedAsItIs) {
  PickNumber(1, u"is greater than", u"");
  Apply();
  EXPECT_EQ(Boxes(), Names{Message("data type is number but parameter equals ")});
  ExpectTexts(u"()", u"Qty is greater than ");
  EXPECT_EQ(Left(), (Names{"abcd", "abce", "Oak"}));
}

// A second field that can be seen makes two values of the row, whatever its operator is by now.
TEST_F(ApplyTexts, ARowThatLeftARangeIsStillWrittenWithBothValues) {
  PickNumber(1, u"is between", u"5", u"7");
  Pick(1, u"equals");
  dialog.txtFrom[1].SetText(u"6");
  PickDate(2, u"is not between", Day(2020, 1, 5), Day(2020, 1, 9));
  Pick(2, u"equals");
  Apply();
  ExpectTexts(u"() AND (Shipped = #1/5/2020@#)",
              u"Qty equals 6 & 7 AND Shipped equals 1/5/2020 & 1/9/2020");
  EXPECT_EQ(Boxes(), Names{Message("data type is number but parameter equals 6@")});
  EXPECT_EQ(Left(), Names{"abcd"});
}

TEST_F(ApplyTexts, AfterAllTheSecondValueIsForgotten) {
  PickNumber(1, u"is between", u"5", u"7");
  Pick(1, u"All");
  PickNumber(1, u"equals", u"6", u"7");
  Apply();
  ExpectTexts(u"(Qty = 6)", u"Qty equals 6");
}

// The flags are the controls' own: a dialog that is driven by code is never on the screen.
TEST_F(ApplyTexts, ADialogThatWasNeverShownSeesItsSecondFields) {
  ASSERT_FALSE(dialog.Visible());
  PickDate(2, u"is not between", Day(2020, 1, 5), Day(2020, 1, 9));
  Apply();
  EXPECT_EQ(dialog.FilterString, u"(Shipped < #1/5/2020@# AND > #@1/9/2020#)");
}

TEST_F(ApplyTexts, NumberRowsLookAtTheSecondTextAndDateRowsAtTheSecondPicker) {
  PickNumber(1, u"equals", u"6", u"7");
  PickDate(2, u"is before", Day(2020, 1, 8), Day(2020, 1, 9));
  dialog.dtpTo[1].SetVisible(true);
  dialog.txtTo[2].SetVisible(true);
  Apply();
  ExpectTexts(u"(Qty = 6) AND (Shipped < #1/8/2020#)",
              u"Qty equals 6 AND Shipped is before 1/8/2020");
}

TEST_F(ApplyTexts, AnEmptyDateIsWrittenWithThePickersDateInTheSentence) {
  PickDate(2, u"is empty", Day(2020, 1, 5));
  Apply();
  ExpectTexts(u"(Is Null Shipped)", u"Shipped is empty 1/5/2020");
  EXPECT_EQ(Left(), Names{"Oak"});
}

TEST_F(ApplyTexts, AnEmptyDateBehindARangeHasBothDatesInTheSentence) {
  PickDate(2, u"is between", Day(2020, 1, 5), Day(2020, 1, 9));
  Pick(2, u"is empty");
  Apply();
  ExpectTexts(u"(Is Null Shipped)", u"Shipped is empty 1/5/2020 & 1/9/2020");
}

TEST_F(ApplyTexts, ATimeOfDayFollowsTheDate) {
  PickDate(2, u"is after", Date{Day(2020, 1, 5).serial + 0.5});
  Apply();
  ExpectTexts(u"(Shipped > #1/5/2020 12:00:00 PM#)", u"Shipped is after 1/5/2020 12:00:00 PM");
}

TEST_F(ApplyTexts, ATextIsCutAtASeparatorInTheConditionOnly) {
  Prepare(MakeList({"Name"}, {{"xfoo@@bar"}, {"foo"}}));
  PickText(0, u"contains", u"foo@@bar");
  Apply();
  ExpectTexts(u"(Name like '*foo@*')", u"Name contains foo@@bar");
  EXPECT_EQ(Left(), Names{"xfoo@@bar"});
}

TEST_F(ApplyTexts, AReferenceIsWrittenAsItWasTyped) {
  PickText(0, u"equals", u"[Note]");
  PickNumber(1, u"equals", u"[Qty]");
  Apply();
  ExpectTexts(u"(Name = '[Note]') AND ()", u"Name equals [Note] AND Qty equals [Qty]");
  EXPECT_EQ(Boxes(), Names{Message("data type is number but parameter equals [Qty]")});
}

TEST_F(ApplyTexts, AReferenceOverAPickerDoesNotAppear) {
  Prepare(MakeList({"Due", "Shipped"}, {{"1/5/2020", "1/5/2020"}, {"1/6/2020", "1/7/2020"}}));
  PickDate(1, u"equals", Day(2020, 1, 9));
  dialog.txtFrom[1].SetText(u"[Due]");
  Apply();
  ExpectTexts(u"(Shipped = #1/9/2020#)", u"Shipped equals 1/9/2020");
  EXPECT_EQ(Left(), Names{"1/5/2020"});
}

TEST_F(ApplyTexts, QuotesAreNotDoubled) {
  PickText(0, u"equals", u"O'Hara");
  Apply();
  ExpectTexts(u"(Name = 'O'Hara')", u"Name equals O'Hara");
}

// Trimming takes every copy off both ends, those of the user's as well.
TEST_F(ApplyTexts, ATextThatEndsLikeAJoinLosesItsEndInTheSentence) {
  PickText(3, u"does not equal", u"x AND  AND ");
  Apply();
  ExpectTexts(u"(Note <> 'x AND  AND ')", u"Note does not equal x");
}

TEST_F(ApplyTexts, ACaptionThatStartsLikeAJoinLosesItInTheSentence) {
  Prepare(MakeList({" AND Name"}, {{"x"}}));
  PickText(0, u"equals", u"x");
  Apply();
  ExpectTexts(u"( AND Name = 'x')", u"Name equals x");
}

TEST_F(ApplyTexts, ARowOfAnUnknownTypeStillHasItsPlaceInBoth) {
  PickText(0, u"equals", u"Oak");
  dialog.lblColumnHeaderText[0].SetTag(u"7");
  PickText(3, u"equals", u"z");
  Apply();
  ExpectTexts(u"() AND (Note = 'z')", u"Name equals  AND Note equals z");
  EXPECT_EQ(Left(), Names{"Oak"});
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(ApplyTexts, SelectNoRows) {
  PickText(0, u"equals", u"Oak");
  dialog.FilterString = u"(Name = 'abcd')";
  dialog.FilterPlainEnglish = u"Name equals abcd";
  Apply();
  EXPECT_EQ(Left(), Names{"Oak"});
}

TEST_F(ApplyTexts, OnlyTheExactWordAllTakesNoPart) {
  dialog.cboOperator[0].SetText(u"all");
  dialog.cboOperator[1].SetText(u"ALL");
  Apply();
  ExpectTexts(u"() AND ()", u"Name   AND Qty  ");
  EXPECT_EQ(Left(), (Names{"abcd", "abce", "Oak"}));
  EXPECT_EQ(Boxes(), Names{Message("data type is number but parameter equals ")});
}

TEST_F(ApplyTexts, TheWordIsTheSelectedEntry) {
  Pick(0, u"equals");
  dialog.cboCriteria[0].SetText(u"Oak");
  dialog.cboOperator[0].SetText(u"Equals");  // no entry: the text is there, the word is not
  Apply();
  ExpectTexts(u"()", u"Name  Oak");
  EXPECT_EQ(Left(), Names{"Oak"});
}

}  // namespace

}  // namespace sifter
