#include "DialogOnScreen.h"
#include "support/HeadlessControls.h"

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// How the user chooses an operator, and what the row shows and does then.
class DialogOperators : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Quantity", "Shipped"},
            {{"Oak", "3", "1/5/2007"}, {"Ash", "5", "2/5/2007"}, {"Elm", "7", "3/5/2007"}});
  }
};

// A choice, and the parameter controls and the focus behind it.
struct Choice {
  std::int32_t row;
  int entry;
  const char16_t* word;
  Names shown;
  const char* focused;
};

const std::vector<Choice> kChoices = {
    {0, 1, u"contains", {"cboCriteria"}, "cboCriteria(0)"},
    {0, 0, u"All", {}, "cboOperator(0)"},
    {0, 6, u"starts with", {"cboCriteria"}, "cboCriteria(0)"},
    {1, 3, u"is between", {"txtFrom", "txtTo", "lblAnd"}, "txtFrom(1)"},
    {1, 2, u"equals", {"txtFrom", "txtTo", "lblAnd"}, "txtFrom(1)"},
    {1, 0, u"All", {}, "cboOperator(1)"},
    {1, 2, u"equals", {"txtFrom"}, "txtFrom(1)"},
    {2, 7, u"is empty", {}, "cmdApply"},
    {2, 3, u"is after", {"dtpFrom"}, "dtpFrom(2)"},
    {2, 6, u"is not between", {"lblAnd", "dtpFrom", "dtpTo"}, "dtpFrom(2)"},
    {2, 7, u"is empty", {"lblAnd", "dtpFrom", "dtpTo"}, "cmdApply"},
    {2, 0, u"All", {}, "cboOperator(2)"},
};

TEST_F(DialogOperators, AreChosenWithTheMouse) {
  Show([&] {
    for (const Choice& choice : kChoices) {
      ClicksEntry(dialog.cboOperator[choice.row], choice.entry);
      EXPECT_EQ(dialog.cboOperator[choice.row].Text(), choice.word);
      EXPECT_EQ(ShownParameters(dialog, choice.row), choice.shown) << Quoted(choice.word);
      EXPECT_EQ(Focused(), choice.focused) << Quoted(choice.word);
    }
  });
}

TEST_F(DialogOperators, AreChosenFromTheDroppedListWithTheKeyboard) {
  Show([&] {
    for (const Choice& choice : kChoices) {
      PickOperator(choice.row, choice.word);
      EXPECT_EQ(ShownParameters(dialog, choice.row), choice.shown) << Quoted(choice.word);
      EXPECT_EQ(Focused(), choice.focused) << Quoted(choice.word);
    }
    EXPECT_TRUE(dialog.Visible());
  });
}

TEST_F(DialogOperators, ChangeWithEveryArrowOnTheClosedList) {
  Show([&] {
    Names words;
    for (int step = 0; step < 3; ++step) {
      GoTo(dialog.cboOperator[1]);
      user.Presses(VK_DOWN);
      words.push_back(dialog.cboOperator[1].Text().ToUtf8() + " then " + Focused());
    }
    GoTo(dialog.cboOperator[1]);
    user.Presses(VK_UP);
    words.push_back(dialog.cboOperator[1].Text().ToUtf8() + " then " + Focused());
    EXPECT_EQ(words, (Names{"does not equal then txtFrom(1)", "equals then txtFrom(1)",
                            "is between then txtFrom(1)", "equals then txtFrom(1)"}));
    EXPECT_EQ(ShownParameters(dialog, 1), (Names{"txtFrom", "txtTo", "lblAnd"}));
  });
}

TEST_F(DialogOperators, AreFoundByTheirFirstLetter) {
  Show([&] {
    GoTo(dialog.cboOperator[0]);
    user.Types(u"e");
    EXPECT_EQ(dialog.cboOperator[0].Text(), u"ends with");
    EXPECT_EQ(Focused(), "cboCriteria(0)");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
  });
}

TEST_F(DialogOperators, DontChangeWhileTheUserMovesThroughTheList) {
  Show([&] {
    user.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    GoTo(dialog.cboOperator[0]);
    user.Presses(VK_F4);
    for (int step = 0; step < 3; ++step) {
      user.Presses(VK_DOWN);
      EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
      EXPECT_EQ(ShownParameters(dialog, 0), Names{});
    }
    user.Presses(VK_RETURN);
    EXPECT_EQ(dialog.cboOperator[0].Text(), u"does not equal");
    EXPECT_TRUE(dialog.Visible());
  });
}

TEST_F(DialogOperators, StayWhenTheListIsLeftWithEscape) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"a");
    GoTo(dialog.cboOperator[0]);
    user.Presses(VK_F4);
    user.Presses(VK_DOWN);
    user.Presses(VK_DOWN);
    user.Presses(VK_ESCAPE);
    EXPECT_FALSE(ListIsDown(dialog.cboOperator[0]));
    EXPECT_EQ(dialog.cboOperator[0].Text(), u"contains");
    EXPECT_EQ(WindowText(WindowOf(dialog.cboOperator[0])), u"contains");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"a");
    EXPECT_EQ(Focused(), "cboOperator(0)");
    EXPECT_TRUE(dialog.Visible());
  });
}

TEST_F(DialogOperators, StayWhenTheUserClicksElsewhereWhileTheListIsDown) {
  Show([&] {
    PickOperator(1, u"equals");
    PickOperator(0, u"contains");
    user.Types(u"a");
    for (Control* elsewhere :
         std::initializer_list<Control*>{&dialog.lblCaption, &dialog.txtFrom[1]}) {
      GoTo(dialog.cboOperator[0]);
      user.Presses(VK_F4);
      user.Presses(VK_DOWN);
      user.Presses(VK_DOWN);
      user.Clicks(WindowOf(*elsewhere));
      EXPECT_FALSE(ListIsDown(dialog.cboOperator[0]));
      EXPECT_EQ(dialog.cboOperator[0].Text(), u"contains") << NameOf(*elsewhere);
      EXPECT_EQ(WindowText(WindowOf(dialog.cboOperator[0])), u"contains") << NameOf(*elsewhere);
      EXPECT_EQ(dialog.cboCriteria[0].Text(), u"a");
    }
  });
}

TEST_F(DialogOperators, ChosenAgainLeaveTheFieldsAlone) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"abc");
    PickOperator(0, u"contains");
    EXPECT_EQ(Focused(), "cboOperator(0)");
    ClicksEntry(dialog.cboOperator[0], 1);
    EXPECT_EQ(Focused(), "cboOperator(0)");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"abc");
    EXPECT_EQ(WindowText(WindowOf(dialog.cboCriteria[0])), u"abc");
  });
}

TEST_F(DialogOperators, AnotherOneClearsTheTypedText) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"abc");
    PickOperator(0, u"equals");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
    EXPECT_EQ(WindowText(WindowOf(dialog.cboCriteria[0])), u"");
    EXPECT_EQ(dialog.cboCriteria[0].Entries(), (std::vector<Text>{u"Oak", u"Ash", u"Elm"}));
    EXPECT_EQ(SendMessageW(WindowOf(dialog.cboCriteria[0]), CB_GETCOUNT, 0, 0), 3);
  });
}

TEST_F(DialogOperators, DontChangeWithTheWheel) {
  Show([&] {
    PickOperator(1, u"equals");
    for (const int notches : {-1, 1, -5}) {
      GoTo(dialog.cboOperator[1]);
      user.TurnsWheel(MiddleOf(WindowOf(dialog.cboOperator[1])), notches);
      user.TurnsWheel(MiddleOf(WindowOf(dialog.cboOperator[2])), notches);
      EXPECT_EQ(dialog.cboOperator[1].Text(), u"equals");
      EXPECT_EQ(dialog.cboOperator[2].Text(), u"All");
      EXPECT_EQ(Focused(), "cboOperator(1)");
    }
  });
}

TEST_F(DialogOperators, OfADroppedListAreMovedThroughWithTheWheelAndStay) {
  Show([&] {
    ClicksEntry(dialog.cboOperator[1], 2);
    user.Clicks(WindowOf(dialog.cboOperator[1]));
    user.TurnsWheel(EntryOf(dialog.cboOperator[1], 1), -1);
    EXPECT_TRUE(ListIsDown(dialog.cboOperator[1]));
    EXPECT_EQ(dialog.cboOperator[1].Text(), u"equals");
    user.Presses(VK_ESCAPE);
    EXPECT_EQ(dialog.cboOperator[1].Text(), u"equals");
  });
}

TEST_F(DialogOperators, TheWheelScrollsTheFormOverAnOperator) {
  std::vector<std::string> columns;
  std::vector<std::string> row;
  for (int i = 0; i < 48; ++i) {
    columns.push_back("Column " + std::to_string(i));
    row.emplace_back("x");
  }
  Prepare(columns, {row});
  Show([&] {
    GoTo(dialog.cboOperator[3]);
    RECT before;
    GetWindowRect(WindowOf(dialog.cboOperator[3]), &before);
    user.TurnsWheel(MiddleOf(WindowOf(dialog.cboOperator[3])), -1);
    RECT after;
    GetWindowRect(WindowOf(dialog.cboOperator[3]), &after);
    EXPECT_LT(after.top, before.top);
    EXPECT_EQ(dialog.cboOperator[3].Text(), u"All");
  });
}

TEST_F(DialogOperators, SetByCodeShowInTheirBoxes) {
  Show([&] {
    dialog.cboOperator[1].SetListIndex(3);
    EXPECT_EQ(WindowText(WindowOf(dialog.cboOperator[1])), u"is between");
    EXPECT_EQ(Focused(), "txtFrom(1)");
    EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.txtTo[1])));
    dialog.ClearCriteria();
  });
  EXPECT_EQ(WindowText(WindowOf(dialog.cboOperator[1])), u"All");
}

}  // namespace

}  // namespace sifter
