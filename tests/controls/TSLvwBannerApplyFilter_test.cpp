#include "BannerOnAForm.h"

#include <utility>

namespace sifter {

namespace {

// Filters given as text. The row of the names offers 0 All, 1 contains, 2 does not contain, 3 does
// not equal, 4 ends with, 5 equals, 6 starts with; the numbers 2 equals, 3 is between; the dates 2
// equals, 3 is after, 4 is before, 5 is between, 7 is empty.
class BannerApplyFilter : public BannerOnAForm {
 protected:
  BannerApplyFilter() { RecordReset(defaultDialog.Get(), "the default dialog"); }

  // What the host hears and sees of a text, told from the parts that the dialog plays.
  Names Outcome(const Text& text) {
    recorder.Clear();
    control.ApplyFilter(text);
    Names heard;
    for (const std::string& line : recorder.Lines())
      if (line.starts_with("raise") || line.starts_with("reset") || line.starts_with("box"))
        heard.push_back(line);
    return heard;
  }

  // Of a text that can't be applied.
  void ExpectGivenUp(const Text& text) {
    EXPECT_EQ(Outcome(text), (Names{"reset of the default dialog",
                                    "raise FilterDeactivated, Active False, Filter \"\""}))
        << Quoted(text);
    EXPECT_FALSE(dialog.Visible()) << Quoted(text);
    EXPECT_FALSE(control.Active()) << Quoted(text);
    EXPECT_EQ(Texts(*list), kTrees) << Quoted(text);
  }
};

const char* const kActivated = "raise FilterActivated, Active False, Filter \"\"";

TEST_F(BannerApplyFilter, FiltersInThisOrder) {
  Attach();
  int presses = 0;
  dialog.cmdApply.Click = [&presses, pressed = dialog.cmdApply.Click] {
    ++presses;
    pressed();
  };
  control.ApplyFilter(u"Name..11==Oak2==*?");
  EXPECT_TRUE(recorder.Shows(
      {"show \"Tarvenn Software Row Sifter\"", "delete system menu entry 6", "focus cboCriteria(0)",
       "focus cmdReset", "hide", "cmdFilter.Picture \"FilterFull\"",
       "lblDisplaying.Caption \"Displaying 12 of 40 Items\"",
       "cmdFilter.ToolTipText \"List is Filtered\"", kActivated, "focus to 101"}));
  EXPECT_EQ(presses, 1);
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
  EXPECT_EQ(control.FilterInPlainEnglish(), u"Name contains Oak");
  EXPECT_EQ(dialog.UsersListview, nullptr);
}

TEST_F(BannerApplyFilter, IsFollowedByTheHostsNoticesAgain) {
  Attach();
  control.ApplyFilter(u"Name..11==Oak2==*?");
  AddRow(*list, {"Elm 41", "1", "1/1/2005"});
  AddRow(*list, {"Oak 42", "1", "1/1/2005"});
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 13 of 42 Items");
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(list->ListItems()->Count(), 42);
}

TEST_F(BannerApplyFilter, EmptyDoesNothing) {
  Attach();
  control.ApplyFilter(u"");
  EXPECT_TRUE(recorder.Shows({}));
  control.ShowFilter(false);
  recorder.Clear();
  control.ApplyFilter(u"");
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(dialog.Visible());
}

TEST_F(BannerApplyFilter, TakesSeveralCriteriaOfWhichTheLastForAColumnHolds) {
  Attach();
  EXPECT_EQ(Outcome(u"Name..61==Elm2==*?Name..11==Oak*?Planted..51==1/1/20052==1/9/2005*?"),
            (Names{"box " + ErrorBox("13, Type mismatch"), kActivated}));
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak 1", "Oak 4", "Oak 7", "Oak 31", "Oak 34"}));
}

TEST_F(BannerApplyFilter, OfOneCharacterHasNoCriteriaAndAppliesAllTheSame) {
  Attach();
  EXPECT_EQ(Outcome(u"x"), Names{kActivated});
  EXPECT_EQ(Face(), (Names{"FilterFull", "Displaying 40 of 40 Items", "List is Filtered"}));
  EXPECT_EQ(control.Filter(), u"");
}

TEST_F(BannerApplyFilter, ThatCantBeReadIsGivenUp) {
  Attach();
  for (const char16_t* text : {u"Name..11==Oak2==", u"Name11==Oak*?", u"Name..Oak*?", u"xy"})
    ExpectGivenUp(text);
}

TEST_F(BannerApplyFilter, ForAColumnThatIsNotThereIsGivenUp) {
  Attach();
  for (const char16_t* text : {u"Height..11==Oak*?", u"name..11==Oak*?", u"Name ..11==Oak*?",
                               u"..11==Oak*?", u"Name..11==Oak*?Height..11==x*?"})
    ExpectGivenUp(text);
}

TEST_F(BannerApplyFilter, WithAnOperatorThatIsNoneIsGivenUp) {
  Attach();
  for (const char16_t* text :
       {u"Name..71==Oak*?", u"Name..-11==Oak*?", u"Name..x1==Oak*?", u"Name..1==Oak*?",
        u"Name..contains1==Oak*?", u"Name..327681==Oak*?", u"Name..999999999991==Oak*?",
        u"Qty..71==5*?", u"Planted..81==1/1/2005*?"})
    ExpectGivenUp(text);
}

TEST_F(BannerApplyFilter, WithADateThatIsNoneIsGivenUp) {
  Attach();
  for (const char16_t* text : {u"Planted..31==soon*?", u"Planted..51==1/1/20052==never*?"})
    ExpectGivenUp(text);
}

// The filter in force stays, and so does what is said of it.
TEST_F(BannerApplyFilter, GivenUpUnderAFilterRaisesActivatedAndKeepsTheTexts) {
  AttachAndFilter();
  control.ApplyFilter(u"Height..11==x*?");
  EXPECT_TRUE(recorder.Shows({"show \"Tarvenn Software Row Sifter\"", "delete system menu entry 6",
                              "reset of the default dialog", "focus cmdReset", "hide",
                              "raise FilterActivated, Active True, Filter \"(Name like '*Oak*')\"",
                              "focus to 101"}));
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerApplyFilter, ThatNoColumnMatchesLeavesWhatWasFilledInUnapplied) {
  Attach();
  control.ApplyFilter(u"Name..11==Oak*?Height..11==x*?");
  EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Oak");
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerApplyFilter, OfTwoColumnsOfOneNameTheFirstIsMeant) {
  control.SetListview(MakeList({"Name", "Name"}, {{"Oak", "Elm"}, {"Elm", "Oak"}}));
  control.ApplyFilter(u"Name..11==Oak*?");
  EXPECT_EQ(FirstTexts(*control.Listview()), Names{"Oak"});
}

TEST_F(BannerApplyFilter, FillsTheTextInBehindTheOperator) {
  Attach();
  control.ApplyFilter(u"Name..51==Oak 72==x*?");
  EXPECT_EQ(FirstTexts(*list), Names{"Oak 7"});
  control.ApplyFilter(u"Name..01==Oak 7*?");
  EXPECT_EQ(Texts(*list), kTrees) << "position 0 takes the row out of the filter";
  EXPECT_TRUE(control.Active());
}

TEST_F(BannerApplyFilter, FillsBothDatesIn) {
  Attach();
  control.ApplyFilter(u"Planted..51==1/2/20052==1/3/2005*?");
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak 1", "Elm 2", "Elm 29", "Elm 30"}));
  EXPECT_EQ(dialog.dtpFrom[2].Value(), Day(2005, 1, 2));
  EXPECT_EQ(dialog.dtpTo[2].Value(), Day(2005, 1, 3));
}

TEST_F(BannerApplyFilter, AnEmptyDateLeavesThePickerAsItIs) {
  Attach();
  control.ApplyFilter(u"Planted..31==1/27/20052==*?");
  EXPECT_EQ(FirstTexts(*list), Names{"Oak 27"});
  EXPECT_EQ(dialog.dtpFrom[2].Value(), Day(2005, 1, 27));
  EXPECT_EQ(dialog.dtpTo[2].Value(), Day(2007, 6, 15));
  EXPECT_EQ(Outcome(u"Planted..71==2==*?"), Names{"raise FilterActivated, Active True, Filter \"" +
                                                  control.Filter().ToUtf8() + "\""});
}

// Numbers are compared with what the fields of the row hold, which is nothing at first: 0, and a
// message.
TEST_F(BannerApplyFilter, FillsNoNumberIn) {
  Attach();
  EXPECT_EQ(Outcome(u"Qty..21==502==60*?"),
            (Names{"box " + Message("data type is number but parameter equals "), kActivated}));
  EXPECT_EQ(list->ListItems()->Count(), 0);
  EXPECT_EQ(dialog.txtFrom[1].Text(), u"");
  EXPECT_EQ(dialog.txtTo[1].Text(), u"");
}

TEST_F(BannerApplyFilter, WhileActiveLeavesTheOtherRowsAsTheyAre) {
  AttachAndFilter();
  control.ApplyFilter(u"Planted..41==1/5/2005*?");
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak 1", "Oak 31"}));
}

TEST_F(BannerApplyFilter, WhileInactiveStartsFromClearedCriteria) {
  AttachAndFilter();
  UserResets();
  control.ShowFilter(true);
  forms.During([this] {
    Ask(u"Oak");
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  control.ApplyFilter(u"Planted..41==1/3/2005*?");
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak 1", "Elm 28", "Elm 29"}));
}

TEST_F(BannerApplyFilter, WithoutAListIsGivenUpQuietly) {
  EXPECT_EQ(
      Outcome(u"Name..11==Oak*?"),
      (Names{"reset of the default dialog", "raise FilterDeactivated, Active False, Filter \"\""}));
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all items", "List is not Filtered"}));
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(BannerApplyFilter, OnAnEmptyListIsGivenUpQuietly) {
  control.SetListview(MakeList({"Name"}));
  EXPECT_EQ(
      Outcome(u"Name..11==Oak*?"),
      (Names{"reset of the default dialog", "raise FilterDeactivated, Active False, Filter \"\""}));
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying 0 of 0 Items", "List is not Filtered"}));
  EXPECT_EQ(prompts.Boxes(), Names{});
}

TEST_F(BannerApplyFilter, KeepsEveryErrorToItself) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  control.SetListview(foreign);
  for (const int occurrence : {1, 2, 3}) {
    foreign->FailOn("ListItems.Count", occurrence, RuntimeError(35601, u"Element not found"));
    EXPECT_EQ(ErrorOf([&] { control.ApplyFilter(u"Height..11==Oak*?"); }), "nothing");
    EXPECT_FALSE(dialog.Visible());
  }
  forms.RefuseToShow(RuntimeError(ErrorNumber::kOutOfMemory));
  EXPECT_EQ(ErrorOf([&] { control.ApplyFilter(u"Name..11==Oak*?"); }), "nothing");
  control.FilterDeactivated = [] { throw RuntimeError(5, u"of the host's"); };
  EXPECT_EQ(ErrorOf([&] { control.ApplyFilter(u"Height..11==Oak*?"); }), "nothing");
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items") << "still busy";
}

TEST_F(BannerApplyFilter, InAModelessShowingUsesItAndEndsIt) {
  Attach();
  control.ShowFilter(false);
  EXPECT_EQ(Outcome(u"Name..11==Oak*?"), Names{kActivated});
  EXPECT_FALSE(dialog.Visible());
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerApplyFilter, InAModalShowingUsesItAndEndsIt) {
  Attach();
  forms.During([this] { control.ApplyFilter(u"Name..11==Oak*?"); });
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
}

}  // namespace

}  // namespace sifter
