#include "DialogOnScreen.h"
#include "support/HeadlessControls.h"

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// How the keyboard moves through the dialog, and what it presses.
class DialogKeys : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Quantity", "Shipped"},
            {{"Oak", "3", "1/5/2007"}, {"Ash", "5", "2/5/2007"}, {"Elm", "7", "3/5/2007"}});
  }

  // Where the focus goes when the user presses the keys that often.
  Names Walk(const std::vector<int>& keys, int times) {
    Names names;
    while (times-- > 0) {
      user.Presses(keys);
      names.push_back(Focused());
    }
    return names;
  }

  // A picker's calendar is a window that the picker keeps.
  bool CalendarIsDown(const DatePicker& picker) const {
    const auto calendar =
        reinterpret_cast<HWND>(SendMessageW(WindowOf(picker), DTM_GETMONTHCAL, 0, 0));
    return calendar != nullptr && IsWindowVisible(calendar) != FALSE;
  }
  void ClicksDropDownButton(const DatePicker& picker) {
    RECT box;
    GetWindowRect(WindowOf(picker), &box);
    user.ClicksAt({box.right - GetSystemMetrics(SM_CXVSCROLL) / 2, (box.top + box.bottom) / 2});
  }
};

TEST_F(DialogKeys, TheFirstOperatorHasTheFocusAtFirst) {
  Show([&] { EXPECT_EQ(Focused(), "cboOperator(0)"); });
}

TEST_F(DialogKeys, TabSkipsWhatCannotBeSeenAndGoesRound) {
  Show([&] {
    EXPECT_EQ(Walk({VK_TAB}, 7),
              (Names{"cboOperator(1)", "cboOperator(2)", "chkCaseSensitive", "cmdApply", "cmdReset",
                     "cmdHideFilter", "cboOperator(0)"}));
  });
}

TEST_F(DialogKeys, TabGoesThroughTheFieldsOfEachRowAndTheButtons) {
  dialog.cmdReport.SetVisible(true);
  Show([&] {
    PickOperator(0, u"contains");
    PickOperator(1, u"is between");
    PickOperator(2, u"is not between");
    GoTo(dialog.cboOperator[0]);
    EXPECT_EQ(Walk({VK_TAB}, 15),
              (Names{"cboCriteria(0)", "cboOperator(1)", "txtFrom(1)", "txtTo(1)", "cboOperator(2)",
                     "dtpFrom(2)", "txtFrom(2)", "dtpTo(2)", "txtTo(2)", "chkCaseSensitive",
                     "cmdApply", "cmdReset", "cmdHideFilter", "cmdReport", "cboOperator(0)"}));
  });
}

TEST_F(DialogKeys, ShiftAndTabGoTheSameWayBack) {
  dialog.cmdReport.SetVisible(true);
  Show([&] {
    PickOperator(0, u"contains");
    PickOperator(1, u"is between");
    PickOperator(2, u"is not between");
    GoTo(dialog.cboOperator[0]);
    EXPECT_EQ(
        Walk({VK_SHIFT, VK_TAB}, 15),
        (Names{"cmdReport", "cmdHideFilter", "cmdReset", "cmdApply", "chkCaseSensitive", "txtTo(2)",
               "dtpTo(2)", "txtFrom(2)", "dtpFrom(2)", "cboOperator(2)", "txtTo(1)", "txtFrom(1)",
               "cboOperator(1)", "cboCriteria(0)", "cboOperator(0)"}));
  });
}

TEST_F(DialogKeys, TabSkipsWhatIsDisabled) {
  dialog.cmdApply.SetEnabled(false);
  dialog.cboOperator[1].SetEnabled(false);
  Show([&] {
    EXPECT_EQ(Walk({VK_TAB}, 5), (Names{"cboOperator(2)", "chkCaseSensitive", "cmdReset",
                                        "cmdHideFilter", "cboOperator(0)"}));
  });
}

TEST_F(DialogKeys, TabFindsTheRowsOfTheNextList) {
  Show([&] { PickOperator(1, u"is between"); });
  Prepare({"Due", "Note"}, {{"1/5/2007", "x"}});
  Show([&] {
    PickOperator(0, u"is after");
    GoTo(dialog.cboOperator[0]);
    EXPECT_EQ(Walk({VK_TAB}, 8),
              (Names{"dtpFrom(0)", "txtFrom(0)", "cboOperator(1)", "chkCaseSensitive", "cmdApply",
                     "cmdReset", "cmdHideFilter", "cboOperator(0)"}));
  });
}

TEST_F(DialogKeys, TheFormKnowsWhereTheUserHasMovedTheFocus) {
  Show([&] {
    user.Presses(VK_TAB);
    EXPECT_EQ(dialog.ActiveControl(), &dialog.cboOperator[1]);
    user.Clicks(WindowOf(dialog.chkCaseSensitive));
    EXPECT_EQ(dialog.ActiveControl(), &dialog.chkCaseSensitive);
  });
}

TEST_F(DialogKeys, MnemonicsPressTheButtons) {
  Names pressed;
  dialog.cmdApply.Click = [&] { pressed.emplace_back("apply"); };
  dialog.cmdReset.Click = [&] { pressed.emplace_back("reset"); };
  dialog.cmdHideFilter.Click = [&] { pressed.emplace_back("hide"); };
  Show([&] {
    for (const int letter : {'A', 'R', 'H'}) user.Presses({VK_MENU, letter});
  });
  EXPECT_EQ(pressed, (Names{"apply", "reset", "hide"}));
}

TEST_F(DialogKeys, MnemonicsPressTheButtonsFromEveryField) {
  Names pressed;
  dialog.cmdApply.Click = [&] { pressed.emplace_back("apply"); };
  dialog.cmdReset.Click = [&] { pressed.emplace_back("reset"); };
  dialog.cmdHideFilter.Click = [&] { pressed.emplace_back("hide"); };
  Show([&] {
    PickOperator(0, u"contains");
    PickOperator(1, u"is between");
    PickOperator(2, u"is between");
    for (Control* field : std::initializer_list<Control*>{
             &dialog.cboOperator[1], &dialog.cboCriteria[0], &dialog.txtFrom[1], &dialog.txtTo[1],
             &dialog.dtpFrom[2], &dialog.dtpTo[2], &dialog.txtFrom[2], &dialog.txtTo[2]}) {
      pressed.clear();
      for (const int letter : {'A', 'R', 'H'}) {
        GoTo(*field);
        user.Presses({VK_MENU, letter});
      }
      EXPECT_EQ(pressed, (Names{"apply", "reset", "hide"})) << NameOf(*field);
      EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
      EXPECT_EQ(dialog.txtFrom[1].Text(), u"");
    }
  });
}

TEST_F(DialogKeys, AMnemonicOfTheExtraButtonPressesIt) {
  int pressed = 0;
  dialog.cmdReport.SetCaption(u"&Print");
  dialog.cmdReport.SetVisible(true);
  dialog.ExtraButtonClicked = [&](Text&) { ++pressed; };
  Show([&] { user.Presses({VK_MENU, 'P'}); });
  EXPECT_EQ(pressed, 1);
}

TEST_F(DialogKeys, ArrowsGoFromButtonToButton) {
  Show([&] {
    GoTo(dialog.chkCaseSensitive);
    EXPECT_EQ(Walk({VK_RIGHT}, 4),
              (Names{"cmdApply", "cmdReset", "cmdHideFilter", "chkCaseSensitive"}));
    EXPECT_EQ(Walk({VK_LEFT}, 2), (Names{"cmdHideFilter", "cmdReset"}));
    EXPECT_EQ(Walk({VK_DOWN}, 1), (Names{"cmdHideFilter"}));
    EXPECT_EQ(Walk({VK_UP}, 2), (Names{"cmdReset", "cmdApply"}));
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kUnchecked);
  });
}

TEST_F(DialogKeys, F4AndAltWithDownDropListsDown) {
  Show([&] {
    PickOperator(0, u"contains");
    for (ComboBox* box : {&dialog.cboOperator[1], &dialog.cboCriteria[0]})
      for (const std::vector<int>& keys : {std::vector<int>{VK_F4}, {VK_MENU, VK_DOWN}}) {
        GoTo(*box);
        user.Presses(keys);
        EXPECT_TRUE(ListIsDown(*box)) << NameOf(*box);
        user.Presses(VK_ESCAPE);
        EXPECT_FALSE(ListIsDown(*box)) << NameOf(*box);
        EXPECT_TRUE(dialog.Visible());
      }
  });
}

TEST_F(DialogKeys, F4AndAltWithDownDropCalendarsDown) {
  Show([&] {
    PickOperator(2, u"is between");
    for (Control* field : std::initializer_list<Control*>{&dialog.dtpTo[2], &dialog.txtTo[2]})
      for (const std::vector<int>& keys : {std::vector<int>{VK_F4}, {VK_MENU, VK_DOWN}}) {
        GoTo(*field);
        EXPECT_FALSE(CalendarIsDown(dialog.dtpTo[2]));
        user.Presses(keys);
        EXPECT_TRUE(CalendarIsDown(dialog.dtpTo[2])) << NameOf(*field);
        EXPECT_FALSE(CalendarIsDown(dialog.dtpFrom[2]));
        ClicksDropDownButton(dialog.dtpTo[2]);
        EXPECT_FALSE(CalendarIsDown(dialog.dtpTo[2])) << NameOf(*field);
        EXPECT_TRUE(dialog.Visible());
      }
  });
}

TEST_F(DialogKeys, SpacePressesAButtonAndTicksABox) {
  Show([&] {
    GoTo(dialog.chkCaseSensitive);
    user.Presses(VK_SPACE);
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kChecked);
    user.Presses(VK_SPACE);
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kUnchecked);
    GoTo(dialog.cmdApply);
    user.Presses(VK_SPACE);
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_TRUE(dialog.blnFilterActive);
}

TEST_F(DialogKeys, EnterPressesTheButtonThatHasTheFocus) {
  Names pressed;
  dialog.cmdReport.SetVisible(true);
  dialog.cmdApply.Click = [&] { pressed.emplace_back("apply"); };
  dialog.cmdReset.Click = [&] { pressed.emplace_back("reset"); };
  dialog.cmdHideFilter.Click = [&] { pressed.emplace_back("hide"); };
  dialog.cmdReport.Click = [&] { pressed.emplace_back("report"); };
  Show([&] {
    for (CommandButton* button :
         {&dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter, &dialog.cmdReport}) {
      GoTo(*button);
      user.Presses(VK_RETURN);
    }
  });
  EXPECT_EQ(pressed, (Names{"apply", "reset", "hide", "report"}));
}

TEST_F(DialogKeys, EnterDoesNothingWhereNoButtonAndNoFieldHasTheFocus) {
  Names pressed;
  for (CommandButton* button :
       {&dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter, &dialog.cmdReport})
    button->Click = [&pressed, button] { pressed.push_back(NameOf(*button)); };
  Show([&] {
    for (Control* control :
         std::initializer_list<Control*>{&dialog.cboOperator[0], &dialog.chkCaseSensitive}) {
      GoTo(*control);
      user.Presses(VK_RETURN);
      EXPECT_EQ(Focused(), NameOf(*control));
    }
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kUnchecked);
  });
  EXPECT_EQ(pressed, Names{});
}

TEST_F(DialogKeys, EscapeDoesNothingAnywhere) {
  Names pressed;
  for (CommandButton* button :
       {&dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter, &dialog.cmdReport})
    button->Click = [&pressed, button] { pressed.push_back(NameOf(*button)); };
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"abc");
    PickOperator(1, u"is between");
    user.Types(u"5");
    PickOperator(2, u"is between");
    GoTo(dialog.txtFrom[2]);
    user.Types(u"[Due]");
    const std::string before = DumpDialog(dialog);
    for (Control* control : std::initializer_list<Control*>{
             &dialog.cboOperator[0], &dialog.cboCriteria[0], &dialog.txtFrom[1], &dialog.txtTo[1],
             &dialog.dtpFrom[2], &dialog.txtFrom[2], &dialog.dtpTo[2], &dialog.txtTo[2],
             &dialog.chkCaseSensitive, &dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter}) {
      GoTo(*control);
      user.Presses(VK_ESCAPE);
      EXPECT_EQ(Focused(), NameOf(*control));
      EXPECT_EQ(DumpDialog(dialog), before) << NameOf(*control);
    }
    EXPECT_TRUE(dialog.Visible());
  });
  EXPECT_EQ(pressed, Names{});
}

}  // namespace

}  // namespace sifter
