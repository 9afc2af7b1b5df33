#include "DialogOnScreen.h"

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// Match Case and the buttons, pressed by a user.
class DialogButtons : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name"}, {{"Oak"}, {"oak"}, {"Ash"}});
  }

  LRESULT TickOf(const CheckBox& box) const {
    return SendMessageW(WindowOf(box), BM_GETCHECK, 0, 0);
  }

  void FiltersByOak() {
    PickOperator(0, u"All");
    PickOperator(0, u"equals");
    user.Types(u"oak");
    user.Presses(VK_RETURN);
    EXPECT_FALSE(dialog.Visible());
  }
};

TEST_F(DialogButtons, MatchCaseClickedMakesTheCaseMatter) {
  Show([&] {
    user.Clicks(WindowOf(dialog.chkCaseSensitive));
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kChecked);
    EXPECT_EQ(TickOf(dialog.chkCaseSensitive), BST_CHECKED);
    FiltersByOak();
  });
  EXPECT_EQ(FirstTexts(*list), Names{"oak"});
  Show([&] {
    user.Clicks(WindowOf(dialog.chkCaseSensitive));
    EXPECT_EQ(TickOf(dialog.chkCaseSensitive), BST_UNCHECKED);
    FiltersByOak();
  });
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "oak"}));
}

TEST_F(DialogButtons, MatchCaseTickedWithSpaceMakesTheCaseMatter) {
  Show([&] {
    GoTo(dialog.chkCaseSensitive);
    user.Presses(VK_SPACE);
    FiltersByOak();
  });
  EXPECT_EQ(FirstTexts(*list), Names{"oak"});
}

TEST_F(DialogButtons, MatchCaseGrayedCountsAsNotCheckedAndAClickChecksIt) {
  Show([&] {
    dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
    dialog.chkCaseSensitive.SetValue(CheckValue::kGrayed);
    EXPECT_EQ(TickOf(dialog.chkCaseSensitive), BST_INDETERMINATE);
    FiltersByOak();
  });
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "oak"}));
  Show([&] {
    EXPECT_EQ(TickOf(dialog.chkCaseSensitive), BST_INDETERMINATE);
    user.Clicks(WindowOf(dialog.chkCaseSensitive));
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kChecked);
    EXPECT_EQ(TickOf(dialog.chkCaseSensitive), BST_CHECKED);
    FiltersByOak();
  });
  EXPECT_EQ(FirstTexts(*list), Names{"oak"});
}

TEST_F(DialogButtons, TheExtraButtonTellsTheHostAndNothingElse) {
  std::vector<Text> told;
  dialog.ExtraButtonClicked = [&](Text& parameter) {
    told.push_back(parameter);
    parameter = u"changed";
  };
  dialog.cmdReport.SetCaption(u"Print");
  Show([&] {
    EXPECT_FALSE(IsWindowVisible(WindowOf(dialog.cmdReport)));
    dialog.cmdReport.SetVisible(true);
    EXPECT_EQ(WindowText(WindowOf(dialog.cmdReport)), u"Print");
    user.Clicks(WindowOf(dialog.cmdReport));
    user.Presses(VK_SPACE);
    EXPECT_TRUE(dialog.Visible());
  });
  EXPECT_EQ(told, (std::vector<Text>{u"", u""}));
  EXPECT_FALSE(dialog.blnFilterActive);
}

TEST_F(DialogButtons, TheMousePressesApplyResetAndHide) {
  Show([&] {
    PickOperator(0, u"equals");
    user.Types(u"ash");
    user.Clicks(WindowOf(dialog.cmdHideFilter));
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "oak", "Ash"}));
  Show([&] {
    user.Clicks(WindowOf(dialog.cmdApply));
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(FirstTexts(*list), Names{"Ash"});
  Show([&] {
    user.Clicks(WindowOf(dialog.cmdReset));
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "oak", "Ash"}));
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
}

}  // namespace

}  // namespace sifter
