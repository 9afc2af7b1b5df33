#include "DialogOnScreen.h"
#include "base/Calendar.h"

#include <cmath>

namespace sifter {

namespace {

// What the user types into the fields.
class DialogInput : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Quantity", "Shipped", "Due"}, {{"Oak", "3", "1/5/2007", "1/9/2007"},
                                                     {"Ash", "5", "2/5/2007", ""},
                                                     {"Elm", "7", "3/5/2007", "4/1/2007"}});
  }

  Text ShownIn(const Control& control) const { return WindowText(WindowOf(control)); }

  static void SetClipboard(TextView text) {
    ASSERT_TRUE(OpenClipboard(nullptr));
    EmptyClipboard();
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t));
    auto* units = static_cast<char16_t*>(GlobalLock(memory));
    std::copy(text.begin(), text.end(), units);
    units[text.size()] = 0;
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }
  static Text Clipboard() {
    EXPECT_TRUE(OpenClipboard(nullptr));
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    Text text;
    if (memory != nullptr) {
      text = FromWide(static_cast<const wchar_t*>(GlobalLock(memory)));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
  }

  void SelectsAll() {
    user.Presses(VK_HOME);
    user.Presses({VK_SHIFT, VK_END});
  }
};

TEST_F(DialogInput, TextIsTypedIntoAValueList) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"Oak tree");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Oak tree");
    EXPECT_EQ(ShownIn(dialog.cboCriteria[0]), u"Oak tree");
    user.Presses(VK_HOME);
    user.Types(u"1");
    user.Presses(VK_DELETE);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"1ak tree");
    user.Presses(VK_END);
    user.Presses(VK_BACK);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"1ak tre");
    SelectsAll();
    user.Presses(VK_DELETE);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
  });
}

TEST_F(DialogInput, AValueIsTakenFromTheList) {
  Show([&] {
    PickOperator(0, u"equals");
    ClicksEntry(dialog.cboCriteria[0], 1);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Ash");
    EXPECT_EQ(ShownIn(dialog.cboCriteria[0]), u"Ash");
    user.Presses(VK_DOWN);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Elm");
    SelectsAll();
    user.Types(u"x");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"x");
    EXPECT_EQ(dialog.cboCriteria[0].ListIndex(), -1);
    EXPECT_EQ(ShownIn(dialog.cboCriteria[0]), u"x");
  });
}

TEST_F(DialogInput, AValueListLeftWithEscapeKeepsTheTypedText) {
  Show([&] {
    PickOperator(0, u"equals");
    user.Types(u"El");
    user.Presses(VK_F4);
    user.Presses(VK_ESCAPE);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), ShownIn(dialog.cboCriteria[0]));
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"El");
  });
}

TEST_F(DialogInput, TypingGoesOnWhileTheListIsFilledAgain) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"ac");
    user.Presses(VK_LEFT);
    AddRow(*dialog.ListView1, {"Larch", "4", "", ""});
    dialog.PopulateCriteriaComboBox(0);
    user.Types(u"b");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"abc");
    EXPECT_EQ(ShownIn(dialog.cboCriteria[0]), u"abc");
    EXPECT_EQ(SendMessageW(WindowOf(dialog.cboCriteria[0]), CB_GETCOUNT, 0, 0), 4);
  });
}

TEST_F(DialogInput, NumbersAreTypedIntoTheirBoxes) {
  Show([&] {
    PickOperator(1, u"is between");
    user.Types(u"-1.5");
    user.Presses(VK_TAB);
    user.Types(u"10@");
    EXPECT_EQ(dialog.txtFrom[1].Text(), u"-1.5");
    EXPECT_EQ(dialog.txtTo[1].Text(), u"10@");
    user.Presses(VK_BACK);
    EXPECT_EQ(dialog.txtTo[1].Text(), u"10");
    user.Presses(VK_HOME);
    user.Presses(VK_DELETE);
    EXPECT_EQ(dialog.txtTo[1].Text(), u"0");
  });
}

TEST_F(DialogInput, EveryKindOfLetterCanBeTyped) {
  const char16_t* const letters = u"\u00E4\u6F22\U0001D4B3\u00DF";
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(letters);
    EXPECT_EQ(dialog.cboCriteria[0].Text(), letters);
    PickOperator(1, u"equals");
    user.Types(letters);
    EXPECT_EQ(dialog.txtFrom[1].Text(), letters);
    PickOperator(2, u"equals");
    GoTo(dialog.txtFrom[2]);
    user.Types(u"[\u00E4\u6F22\U0001D4B3]");
    EXPECT_EQ(dialog.txtFrom[2].Text(), u"[\u00E4\u6F22\U0001D4B3]");
  });
}

TEST_F(DialogInput, TextIsCutAndPasted) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"Oak");
    SelectsAll();
    user.Presses({VK_CONTROL, 'X'});
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"");
    EXPECT_EQ(Clipboard(), u"Oak");
    PickOperator(1, u"equals");
    user.Presses({VK_CONTROL, 'V'});
    EXPECT_EQ(dialog.txtFrom[1].Text(), u"Oak");
  });
}

TEST_F(DialogInput, OnlyAReferenceCanBeTypedOverADate) {
  Show([&] {
    PickOperator(2, u"equals");
    GoTo(dialog.txtFrom[2]);
    user.Types(u"5");
    user.Types(u"a ");
    EXPECT_EQ(dialog.txtFrom[2].Text(), u"");
    EXPECT_EQ(ShownIn(dialog.txtFrom[2]), u"");
    user.Types(u"[Due]");
    EXPECT_EQ(dialog.txtFrom[2].Text(), u"[Due]");
    EXPECT_EQ(ShownIn(dialog.txtFrom[2]), u"[Due]");
    EXPECT_TRUE(dialog.txtFrom[2].Locked());
  });
}

TEST_F(DialogInput, AReferenceOverADateFilters) {
  Prepare({"Name", "Quantity", "Shipped", "Due"}, {{"Oak", "3", "1/5/2007", "1/9/2007"},
                                                   {"Ash", "5", "2/5/2007", "2/4/2007"},
                                                   {"Elm", "7", "3/5/2007", "4/1/2007"}});
  Show([&] {
    PickOperator(2, u"is before");
    GoTo(dialog.txtFrom[2]);
    user.Types(u"[Due]");
    user.Presses(VK_RETURN);
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"Oak", "Elm"}));
}

TEST_F(DialogInput, AReferenceOverADateIsDeletedAgain) {
  Show([&] {
    PickOperator(2, u"is between");
    GoTo(dialog.txtTo[2]);
    TextBox& box = dialog.txtTo[2];
    user.Types(u"[Due]");
    user.Presses(VK_BACK);
    EXPECT_EQ(box.Text(), u"[Due");
    user.Presses(VK_LEFT);
    user.Presses(VK_DELETE);
    EXPECT_EQ(box.Text(), u"[Du");
    for (int key = 0; key < 3; ++key) user.Presses(VK_BACK);
    EXPECT_EQ(box.Text(), u"");
    user.Types(u"[Due]");
    SelectsAll();
    user.Presses(VK_DELETE);
    EXPECT_EQ(box.Text(), u"");
    user.Types(u"[Due]");
    SelectsAll();
    user.Presses({VK_CONTROL, 'X'});
    EXPECT_EQ(box.Text(), u"");
    EXPECT_EQ(Clipboard(), u"[Due]");
    user.Presses({VK_CONTROL, 'V'});
    EXPECT_EQ(box.Text(), u"[Due]");
    EXPECT_EQ(ShownIn(box), u"[Due]");
  });
}

TEST_F(DialogInput, AnEditThatLeavesNoReferenceOverADateIsTakenBack) {
  Show([&] {
    PickOperator(2, u"equals");
    GoTo(dialog.txtFrom[2]);
    TextBox& box = dialog.txtFrom[2];
    const auto expect = [&](const char16_t* text) {
      EXPECT_EQ(box.Text(), text);
      EXPECT_EQ(ShownIn(box), text);
    };
    SetClipboard(u"1/2/2007");
    user.Presses({VK_CONTROL, 'V'});
    expect(u"");
    user.Types(u"[Due]");
    user.Presses(VK_HOME);
    user.Presses(VK_DELETE);
    expect(u"[Due]");
    user.Presses(VK_HOME);
    user.Types(u"5");
    expect(u"[Due]");
    user.Presses({VK_CONTROL, 'Z'});
    expect(u"[Due]");
    SelectsAll();
    user.Presses({VK_CONTROL, 'V'});
    expect(u"[Due]");
    SetClipboard(u"[Shipped]");
    SelectsAll();
    user.Presses({VK_CONTROL, 'V'});
    expect(u"[Shipped]");
  });
}

TEST_F(DialogInput, TheKeysOfAPickerChangeTheDayAndLeaveTheTime) {
  Show([&] {
    PickOperator(2, u"equals");
    EXPECT_EQ(Focused(), "dtpFrom(2)");
    user.Presses(VK_RIGHT);  // to the month
    user.Presses(VK_UP);
    EXPECT_EQ(dialog.dtpFrom[2].Value(), Day(2007, 7, 15));
    user.Presses(VK_RIGHT);
    user.Presses(VK_DOWN);
    EXPECT_EQ(dialog.dtpFrom[2].Value(), Day(2007, 7, 14));
    dialog.dtpFrom[2].SetValue(Date{Day(2007, 2, 1).serial + 0.75});
    user.Presses(VK_UP);
    EXPECT_EQ(dialog.dtpFrom[2].Value(), Date{Day(2007, 2, 2).serial + 0.75});
  });
}

TEST_F(DialogInput, ADayIsPickedFromTheCalendar) {
  Show([&] {
    PickOperator(2, u"equals");
    const HWND picker = WindowOf(dialog.dtpFrom[2]);
    user.Presses(VK_F4);
    const auto calendar = reinterpret_cast<HWND>(SendMessageW(picker, DTM_GETMONTHCAL, 0, 0));
    ASSERT_TRUE(IsWindowVisible(calendar));
    MCHITTESTINFO place{};
    place.cbSize = MCHITTESTINFO_V1_SIZE;
    RECT area;
    GetClientRect(calendar, &area);
    // The fourth day of the month is somewhere in it.
    for (LONG at = 0; at < area.right * area.bottom && place.st.wDay != 4; ++at) {
      place.pt = {at % area.right, at / area.right};
      SendMessageW(calendar, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&place));
      if (place.uHit != MCHT_CALENDARDATE || place.st.wMonth != 6) place.st.wDay = 0;
    }
    POINT onScreen{place.pt.x + 3, place.pt.y + 3};
    ClientToScreen(calendar, &onScreen);
    user.ClicksAt(onScreen);
    EXPECT_FALSE(IsWindowVisible(calendar));
    EXPECT_EQ(dialog.dtpFrom[2].Value(), Day(2007, 6, 4));
    EXPECT_EQ(GetActiveWindow(), Window());
  });
}

TEST_F(DialogInput, ValuesStayFromOneShowingToTheNext) {
  Show([&] {
    PickOperator(0, u"contains");
    user.Types(u"abc");
    PickOperator(1, u"equals");
    user.Types(u"5");
    PickOperator(2, u"equals");
    user.Presses(VK_UP);
    GoTo(dialog.txtFrom[2]);
    user.Types(u"[Due]");
  });
  const std::string before = DumpDialog(dialog);
  Show([&] {
    EXPECT_EQ(ShownIn(dialog.cboCriteria[0]), u"abc");
    EXPECT_EQ(ShownIn(dialog.txtFrom[1]), u"5");
    EXPECT_EQ(ShownIn(dialog.txtFrom[2]), u"[Due]");
  });
  EXPECT_EQ(DumpDialog(dialog), before);
}

// The five fields in which Enter applies, each with what brings it onto the screen.
struct EnterField {
  const char* name;
  std::int32_t row;
  const char16_t* operatorWord;
  Control& (*in)(frmFilter& dialog);
};

const EnterField kEnterFields[] = {
    {"cboCriteria", 0, u"contains",
     [](frmFilter& dialog) -> Control& { return dialog.cboCriteria[0]; }},
    {"txtFrom", 1, u"is between", [](frmFilter& dialog) -> Control& { return dialog.txtFrom[1]; }},
    {"txtTo", 1, u"is between", [](frmFilter& dialog) -> Control& { return dialog.txtTo[1]; }},
    {"dtpFrom", 2, u"is not between",
     [](frmFilter& dialog) -> Control& { return dialog.dtpFrom[2]; }},
    {"dtpTo", 2, u"is not between", [](frmFilter& dialog) -> Control& { return dialog.dtpTo[2]; }},
    {"overlay of dtpFrom", 2, u"is not between",
     [](frmFilter& dialog) -> Control& { return dialog.txtFrom[2]; }},
    {"overlay of dtpTo", 2, u"is not between",
     [](frmFilter& dialog) -> Control& { return dialog.txtTo[2]; }},
};

TEST_F(DialogInput, EnterAppliesInEveryField) {
  for (const EnterField& field : kEnterFields) {
    int applied = 0;
    dialog.cmdApply.Click = [&] { ++applied; };
    Show([&] {
      PickOperator(field.row, field.operatorWord);
      GoTo(field.in(dialog));
      user.Presses(VK_RETURN);
    });
    EXPECT_EQ(applied, 1) << field.name;
  }
}

TEST_F(DialogInput, EnterInADroppedListOfOperatorsOnlyTakesOne) {
  int applied = 0;
  dialog.cmdApply.Click = [&] { ++applied; };
  Show([&] {
    user.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    user.Presses(VK_F4);
    user.Presses(VK_DOWN);
    user.Presses(VK_RETURN);
    EXPECT_EQ(dialog.cboOperator[0].Text(), u"contains");
  });
  EXPECT_EQ(applied, 0);
}

TEST_F(DialogInput, EnterInADroppedValueListTakesTheEntryAndApplies) {
  Show([&] {
    PickOperator(0, u"equals");
    user.MovesTo({0, 0});  // the entry under the mouse would be highlighted
    user.Presses(VK_F4);
    user.Presses(VK_DOWN);
    user.Presses(VK_DOWN);
    user.Presses(VK_RETURN);
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_EQ(dialog.FilterString, u"(Name = 'Ash')");
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"Ash"}));
}

}  // namespace

}  // namespace sifter
