#include "BoxOnScreen.h"
#include "DialogOnScreen.h"

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// The message boxes that come up while the criteria are applied.
class DialogBoxes : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Quantity", "Shipped"},
            {{"Oak", "3", "1/5/2007"}, {"Ash", "5", "2/5/2007"}, {"Elm", "7", "3/5/2007"}});
  }

  // Answers the boxes that are up, one after the other, and returns what they said.
  Names AnswersBoxes() {
    Names seen;
    while (HWND box = FindMessageBox()) {
      seen.push_back(DescribeMessageBox(box));
      EXPECT_EQ(GetWindow(box, GW_OWNER), Window());
      EXPECT_FALSE(IsWindowEnabled(Window()));
      EXPECT_TRUE(dialog.Visible());
      user.Presses(VK_RETURN);
      user.WaitsFor([&] { return !IsWindow(box); });
    }
    return seen;
  }
};

TEST_F(DialogBoxes, AMessageAboutANumberComesWhenTheListHasChangedAlready) {
  Show([&] {
    PickOperator(0, u"equals");
    user.Types(u"Oak");
    PickOperator(1, u"equals");
    user.Types(u"x3");
    user.Presses(VK_RETURN);
    ASSERT_NE(FindMessageBox(), nullptr);
    EXPECT_EQ(list->ListItems()->Count(), 0);
    EXPECT_EQ(dialog.FilterString, u" AND (Name = 'Oak')");
    EXPECT_EQ(AnswersBoxes(), Names{Message("data type is number but parameter equals x3")});
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_EQ(dialog.FilterString, u"(Name = 'Oak') AND ()");
  EXPECT_EQ(dialog.FilterPlainEnglish, u"Name equals Oak AND Quantity equals x3");
  EXPECT_TRUE(dialog.blnFilterActive);
}

TEST_F(DialogBoxes, AnErrorHasItsOwnTitleAndAnExclamationMark) {
  Show([&] {
    PickOperator(2, u"is between");
    user.Presses({VK_MENU, 'A'});
    EXPECT_EQ(AnswersBoxes(), Names{ErrorBox("13, Type mismatch")});
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_EQ(dialog.FilterString, u"()");
  EXPECT_EQ(dialog.FilterPlainEnglish, u"Shipped is between 6/15/2007 & 6/15/2007");
  EXPECT_TRUE(dialog.blnFilterActive);
}

TEST_F(DialogBoxes, ComeInTheOrderOfTheRows) {
  Show([&] {
    PickOperator(2, u"is between");
    PickOperator(1, u"is less than");
    user.Types(u"\u6F22");
    user.Presses(VK_RETURN);
    EXPECT_EQ(AnswersBoxes(),
              (Names{Message("data type is number but parameter equals \xE6\xBC\xA2"),
                     ErrorBox("13, Type mismatch")}));
  });
  EXPECT_EQ(dialog.FilterString, u"() AND ()");
}

TEST_F(DialogBoxes, WithoutAListEveryCopySaysSo) {
  dialog.UsersListview = nullptr;
  Show([&] {
    user.Presses({VK_MENU, 'A'});
    const std::string box = ErrorBox("91, Object variable or With block variable not set");
    EXPECT_EQ(AnswersBoxes(), (Names{box, box}));
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_TRUE(dialog.blnFilterActive);
}

TEST_F(DialogBoxes, LeaveTheDialogActiveAndEnabled) {
  dialog.cmdHideFilter.Click = nullptr;  // so that it stays after the apply
  Show([&] {
    PickOperator(1, u"equals");
    user.Presses(VK_RETURN);
    EXPECT_EQ(AnswersBoxes(), Names{Message("data type is number but parameter equals ")});
    EXPECT_TRUE(IsWindowEnabled(Window()));
    EXPECT_EQ(GetActiveWindow(), Window());
    EXPECT_EQ(Focused(), "txtFrom(1)");
    EXPECT_FALSE(IsWindowEnabled(hostForm.Parent()));
  });
  EXPECT_TRUE(IsWindowEnabled(hostForm.Parent()));
}

}  // namespace

}  // namespace sifter
