#include "BannerOnAForm.h"

namespace sifter {

namespace {

// The members other than the list, ShowFilter and ApplyFilter.
class BannerMembers : public BannerOnAForm {
 protected:
  // All that a host can see of the control and of its list.
  std::string Seen() {
    std::string seen = "active " + Shown(Value(control.Active())) + " filter " +
                       Quoted(control.Filter()) + ' ' + Quoted(control.FilterInPlainEnglish());
    for (const std::string& line : Face()) seen += ' ' + line;
    return seen + '\n' + Dump(*list) + DumpForm(dialog) + DumpDialog(dialog);
  }
};

TEST_F(BannerMembers, StartAsNamed) {
  EXPECT_EQ(control.FilterCaption(), u"Tarvenn Software Row Sifter");
  EXPECT_EQ(control.FilterMessage(), u"Please enter criteria to apply to your listview");
  EXPECT_EQ(control.ItemDescription(), u"Items");
  EXPECT_EQ(control.ColumnsToExclude(), u"");
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_EQ(control.FilterInPlainEnglish(), u"");
  EXPECT_EQ(control.InitialSettings(), u"");
  EXPECT_EQ(control.ExtraButtonCaption(), u"");
  EXPECT_FALSE(control.ExtraButtonVisible());
  EXPECT_FALSE(control.BannerButtonVisible());
  EXPECT_EQ(control.BannerButtonPicture(), nullptr);
  EXPECT_FALSE(control.Active());
  EXPECT_TRUE(control.Enabled());
}

TEST_F(BannerMembers, TheDialogIsThereFromTheStartAndHidden) {
  TSLvwBannerFilter second(Services());
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_FALSE(second.Dialog().Visible());
  EXPECT_NE(&second.Dialog(), &dialog);
  EXPECT_FALSE(defaultDialog.Exists());
}

TEST_F(BannerMembers, ThatTellTheContainerOfAChangeAreThese) {
  const auto picture = MakeRef<Picture>();
  control.SetItemDescription(u"Trees");
  control.SetFilterMessage(u"Which?");
  control.SetFilterCaption(u"Trees");
  control.SetColumnsToExclude(u"Qty");
  control.SetExtraButtonCaption(u"Print");
  EXPECT_TRUE(recorder.Shows({}));
  control.SetEnabled(false);
  control.SetExtraButtonVisible(true);
  control.SetBannerButtonVisible(false);
  control.SetBannerButtonPicture(picture);
  EXPECT_EQ(Names(recorder.Lines().begin(), recorder.Lines().begin() + 3),
            (Names{"changed \"Enabled\"", "changed \"ExtraButtonVisible\"",
                   "changed \"BannerButtonVisible\""}));
  EXPECT_EQ(Names(recorder.Lines().end() - 2, recorder.Lines().end()),
            (Names{"changed \"BannerButtonPicture\"", "cmdExtraButton.Picture \"\""}));
  EXPECT_EQ(control.ItemDescription(), u"Trees");
  EXPECT_EQ(control.FilterMessage(), u"Which?");
  EXPECT_EQ(control.FilterCaption(), u"Trees");
  EXPECT_EQ(control.ColumnsToExclude(), u"Qty");
  EXPECT_EQ(control.ExtraButtonCaption(), u"Print");
  EXPECT_FALSE(control.Enabled());
  EXPECT_TRUE(control.ExtraButtonVisible());
  EXPECT_EQ(control.BannerButtonPicture(), picture);
  EXPECT_EQ(control.cmdExtraButton.Picture(), picture);
}

TEST_F(BannerMembers, ThatAreTakenAsTheyAreTellOfIt) {
  control.SetExtraButtonVisible(false);
  control.SetEnabled(true);
  EXPECT_TRUE(recorder.Shows({"changed \"ExtraButtonVisible\"", "changed \"Enabled\""}));
}

TEST_F(BannerMembers, BannerButtonVisibleTellsBeforeTheButtonIsShownAndLaidOut) {
  control.SetSize(6000, 400);
  recorder.Clear();
  control.SetBannerButtonVisible(true);
  EXPECT_TRUE(recorder.Shows({"changed \"BannerButtonVisible\"", "cmdExtraButton.Visible True",
                              "lblFrame.Width 5220", "lblDisplaying.Width 5070"}));
}

TEST_F(BannerMembers, ANewItemWordIsShownWithTheNextCaption) {
  Attach();
  control.SetItemDescription(u"Trees");
  EXPECT_EQ(Caption(), u"Displaying all Items");
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Trees");
}

TEST_F(BannerMembers, TheExtraButtonReachesTheDialogWithTheNextShowing) {
  Attach();
  UserHides();
  control.ShowFilter(true);
  control.SetExtraButtonVisible(true);
  control.SetExtraButtonCaption(u"Print");
  control.SetFilterMessage(u"Which?");
  EXPECT_FALSE(dialog.cmdReport.Visible());
  EXPECT_NE(dialog.lblCaption.Caption(), u"Which?");
  UserHides();
  control.ShowFilter(true);
  EXPECT_TRUE(dialog.cmdReport.Visible());
  EXPECT_EQ(dialog.cmdReport.Caption(), u"Print");
  EXPECT_EQ(dialog.lblCaption.Caption(), u"Which?");
}

TEST_F(BannerMembers, AClickOnTheBannerButtonIsTheHostsIfThereIsAList) {
  control.cmdExtraButton.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
  Attach();
  control.cmdExtraButton.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"raise ExtraButtonClicked \"\""}));
  control.ExtraButtonClicked = nullptr;
  control.cmdExtraButton.SetValue(true);
}

TEST_F(BannerMembers, TheDialogsExtraButtonIsForwardedWithItsTextByReference) {
  control.ExtraButtonClicked = [this](Text& parameter) {
    recorder.Line("raise ExtraButtonClicked " + Quoted(parameter));
    parameter = u"changed";
  };
  Text parameter = u"the dialog's";
  dialog.ExtraButtonClicked(parameter);
  EXPECT_TRUE(recorder.Shows({"raise ExtraButtonClicked \"the dialog's\""}));
  EXPECT_EQ(parameter, u"changed");
  dialog.cmdReport.SetValue(true);
  EXPECT_EQ(recorder.Lines().back(), "raise ExtraButtonClicked \"\"");
}

TEST_F(BannerMembers, ListOfTagsHasACommaBeforeEveryTag) {
  const Ref<MemoryListView> trees = MakeList({"Name"});
  EXPECT_EQ(control.ListOfTags(), u"");
  control.SetListview(trees);
  EXPECT_EQ(control.ListOfTags(), u"");
  AddRow(*trees, {"Oak"})->SetTag(u"a");
  AddRow(*trees, {"Elm"})->SetTag(u"b");
  EXPECT_EQ(control.ListOfTags(), u",a,b");
  AddRow(*trees, {"Fir"});
  AddRow(*trees, {"Yew"})->SetTag(7);
  AddRow(*trees, {"Ash"})->SetTag(u"x,y");
  EXPECT_EQ(control.ListOfTags(), u",a,b,,7,x,y");
}

TEST_F(BannerMembers, ListOfTagsPassesAnErrorOfTheListOn) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItem.Tag", 2, RuntimeError(35601, u"Element not found"));
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(control.ListOfTags()); }), "35601: Element not found");
}

TEST_F(BannerMembers, ResetFilterPressesTheResetOfTheDefaultDialog) {
  RecordReset(dialog, "the control's own dialog");
  RecordReset(defaultDialog.Get(), "the default dialog");
  AttachAndFilter();
  const std::string before = Seen();
  control.ResetFilter();
  EXPECT_TRUE(recorder.Shows({"reset of the default dialog"}));
  EXPECT_EQ(Seen(), before);
}

TEST_F(BannerMembers, TurnOffFilterClearsTheCriteriaOfTheDefaultDialog) {
  AttachAndFilter();
  const std::string before = Seen();
  defaultDialog.Get().FilterString = u"something";
  control.TurnOffFilter();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(Seen(), before);
  EXPECT_EQ(DumpDialog(defaultDialog.Get()), "active False\nfilter \"\"\nenglish \"\"\n");
}

TEST_F(BannerMembers, ActiveAsItIsShowsNothing) {
  Attach();
  control.SetActive(false);
  Filter(u"Oak");
  control.SetActive(true);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_FALSE(defaultDialog.Exists());
}

TEST_F(BannerMembers, ActiveTrueShowsTheDialogModally) {
  Attach();
  UserFilters(u"Oak");
  control.SetActive(true);
  EXPECT_EQ(recorder.Lines().front(), "show modal \"Tarvenn Software Row Sifter\"");
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerMembers, ActiveTrueIsTrueThoughTheUserDeclines) {
  Attach();
  UserHides();
  control.SetActive(true);
  EXPECT_EQ(recorder.Lines()[recorder.Lines().size() - 2],
            "raise FilterDeactivated, Active False, Filter \"\"");
  EXPECT_EQ(Face()[0], "FilterEmpty");
  EXPECT_TRUE(control.Active());
}

TEST_F(BannerMembers, ActiveTrueIsTrueThoughThereIsNothingToShow) {
  control.SetActive(true);
  EXPECT_TRUE(control.Active());
  control.SetActive(false);
  control.SetListview(MakeList({"Name"}));
  recorder.Clear();
  control.SetActive(true);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(control.Active());
}

TEST_F(BannerMembers, ActiveTellsOfAChangedSettingWhenItChanges) {
  int changes = 0;
  control.SettingChanged = [&] { ++changes; };
  control.SetActive(false);
  EXPECT_EQ(changes, 0);
  control.SetActive(true);
  control.SetActive(true);
  EXPECT_EQ(changes, 1);
  control.DeactivateFilter();
  EXPECT_EQ(changes, 2);
}

TEST_F(BannerMembers, ErrorsOfTheListComeOutOfActive) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  foreign->FailOn("ListItems.Count", 1, RuntimeError(35601, u"Element not found"));
  EXPECT_EQ(ErrorOf([&] { control.SetActive(true); }), "35601: Element not found");
  EXPECT_FALSE(control.Active());
}

TEST_F(BannerMembers, AfterItsEndTheControlLetsTheListBe) {
  AttachAndFilter();
  control.Terminate();
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  recorder.Clear();
  AddRow(*list, {"Fir", "1", "1/1/2005"});
  control.Terminate();
  EXPECT_TRUE(recorder.Shows({}));
}

}  // namespace

}  // namespace sifter
