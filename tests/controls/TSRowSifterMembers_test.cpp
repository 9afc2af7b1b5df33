#include "SifterOnAForm.h"

namespace sifter {

namespace {

// The members other than the list and ShowFilter.
class SifterMembers : public SifterOnAForm {
 protected:
  // All that a host can see of the control and of its list.
  std::string Seen() {
    return "active " + Shown(Value(control.Active())) + " filter " + Quoted(control.Filter()) +
           " caption " + Quoted(control.FilterCaption()) + " message " +
           Quoted(control.FilterMessage()) + " columns " + Quoted(control.ColumnsToExclude()) +
           '\n' + Dump(*list) + DumpForm(dialog) + DumpDialog(dialog);
  }
};

TEST_F(SifterMembers, StartAsNamed) {
  EXPECT_EQ(control.FilterCaption(), u"Tarvenn Software Row Sifter");
  EXPECT_EQ(control.ColumnsToExclude(), u"");
  EXPECT_EQ(control.FilterMessage(), u"Please enter criteria to apply to your listview");
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_TRUE(control.UserMode());
  EXPECT_EQ(control.BackColor(), kButtonFace);
  EXPECT_EQ(control.cmdFilter.Caption(), u"Filter");
}

TEST_F(SifterMembers, TheDialogIsThereFromTheStartAndHidden) {
  TSRowSifter second(Services());
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_FALSE(second.Dialog().Visible());
  EXPECT_NE(&second.Dialog(), &dialog);
}

TEST_F(SifterMembers, TellWhenASavedSettingIsChanged) {
  control.SetFilterCaption(u"Trees");
  control.SetFilterMessage(u"Which?");
  control.SetColumnsToExclude(u"Qty");
  control.SetColumnsToExclude(u"Qty");
  EXPECT_TRUE(recorder.Shows(
      {"changed \"FilterCaption\"", "changed \"FilterMessage\"", "changed \"ColumnsToExclude\""}));
  EXPECT_EQ(control.FilterCaption(), u"Trees");
  EXPECT_EQ(control.FilterMessage(), u"Which?");
  EXPECT_EQ(control.ColumnsToExclude(), u"Qty");
}

TEST_F(SifterMembers, ApplyFilterDoesNothing) {
  control.SetListview(list);
  Filter(u"a");
  const std::string before = Seen();
  control.ApplyFilter(u"Name*?equals..1==Oak");
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(Seen(), before);
  EXPECT_FALSE(defaultDialog.Exists());
}

TEST_F(SifterMembers, ResetFilterPressesTheResetOfTheDefaultDialog) {
  RecordReset(dialog, "the control's own dialog");
  RecordReset(defaultDialog.Get(), "the default dialog");
  control.SetListview(list);
  Filter(u"a");
  const std::string before = Seen();
  control.ResetFilter();
  EXPECT_TRUE(recorder.Shows({"reset of the default dialog"}));
  EXPECT_EQ(Seen(), before);
}

TEST_F(SifterMembers, TurnOffFilterClearsTheCriteriaOfTheDefaultDialog) {
  control.SetListview(list);
  Filter(u"a");
  const std::string before = Seen();
  defaultDialog.Get().FilterString = u"something";
  defaultDialog.Get().FilterPlainEnglish = u"something";
  control.TurnOffFilter();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(Seen(), before);
  EXPECT_EQ(DumpDialog(defaultDialog.Get()), "active False\nfilter \"\"\nenglish \"\"\n");
}

TEST_F(SifterMembers, TheDefaultDialogIsMadeOnFirstUse) {
  control.SetListview(list);
  Filter(u"a");
  EXPECT_FALSE(defaultDialog.Exists());
  control.TurnOffFilter();
  EXPECT_TRUE(defaultDialog.Exists());
  EXPECT_EQ(defaultDialog.Get().UsersListview, nullptr);
  EXPECT_FALSE(defaultDialog.Get().Visible());
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(SifterMembers, TheDefaultDialogIsMadeByAResetToo) {
  control.ResetFilter();
  EXPECT_TRUE(defaultDialog.Exists());
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(SifterMembers, TheDefaultDialogIsSharedAndOutlivesItsUsers) {
  {
    TSRowSifter second(Services());
    second.ResetFilter();
  }
  frmFilter* const shared = &defaultDialog.Get();
  shared->FilterString = u"something";
  control.TurnOffFilter();
  EXPECT_EQ(&defaultDialog.Get(), shared);
  EXPECT_EQ(shared->FilterString, u"");
}

TEST_F(SifterMembers, ActiveAsItIsDoesNothing) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  control.SetListview(foreign);
  foreign->RecordAll();
  control.SetActive(false);
  EXPECT_TRUE(recorder.Shows({}));
  foreign->RecordNothing();
  Filter(u"a");
  foreign->RecordAll();
  control.SetActive(true);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(control.Active());
  EXPECT_FALSE(defaultDialog.Exists());
}

TEST_F(SifterMembers, ActiveTrueShowsTheDialogWhoseOutcomeDecides) {
  control.SetListview(list);
  UserFilters(u"a");
  control.SetActive(true);
  EXPECT_TRUE(
      recorder.Shows({"show modal \"Tarvenn Software Row Sifter\"", "delete system menu entry 6",
                      "focus cboCriteria(0)", "focus cmdReset", "hide", "modal showing ends",
                      "raise FilterActivated, Active False"}));
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterMembers, ActiveTrueIsFalseAgainWhenTheUserAppliesNothing) {
  control.SetListview(list);
  UserHides();
  control.SetActive(true);
  EXPECT_EQ(recorder.Lines().back(), "raise FilterDeactivated, Active False");
  EXPECT_FALSE(control.Active());
}

TEST_F(SifterMembers, ActiveTrueStaysFalseWhenThereIsNothingToShow) {
  control.SetActive(true);
  EXPECT_FALSE(control.Active());
  control.SetListview(MakeList({"Name"}));
  control.SetActive(true);
  EXPECT_FALSE(control.Active());
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(SifterMembers, ActiveFalseResetsTheDefaultDialogAndStaysTrue) {
  RecordReset(dialog, "the control's own dialog");
  RecordReset(defaultDialog.Get(), "the default dialog");
  control.SetListview(list);
  Filter(u"a");
  const std::string before = Seen();
  control.SetActive(false);
  EXPECT_TRUE(recorder.Shows({"reset of the default dialog"}));
  EXPECT_EQ(Seen(), before);
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterMembers, TheButtonFillsTheControlFirstInWidthThenInHeight) {
  watcher.emplace(control, recorder);
  control.SetSize(1500, 375);
  EXPECT_TRUE(recorder.Shows({"cmdFilter.Width 1500", "cmdFilter.Height 375"}));
  EXPECT_EQ(control.cmdFilter.Left(), 0);
  EXPECT_EQ(control.cmdFilter.Top(), 0);
  EXPECT_EQ(control.Width(), 1500);
  EXPECT_EQ(control.Height(), 375);
  control.Watch(nullptr);
}

}  // namespace

}  // namespace sifter
