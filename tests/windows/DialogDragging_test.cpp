#include "DialogOnScreen.h"
#include "support/HeadlessControls.h"

namespace sifter {

namespace {

// Dragging the label that heads a row onto a parameter field, with the mouse.
class DialogDragging : public DialogOnScreen {
 protected:
  enum Row : std::int32_t { kName, kNote, kQuantity, kPrice, kShipped, kDue };

  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Note", "Quantity", "Price", "Shipped", "Due"},
            {{"Oak", "old", "3", "9.5", "1/5/2007", "1/9/2007"},
             {"Ash", "new", "5", "4", "2/5/2007", "2/6/2007"}});
  }

  void PickOperators() {
    PickOperator(kName, u"contains");
    PickOperator(kNote, u"equals");
    PickOperator(kQuantity, u"is between");
    PickOperator(kShipped, u"is between");
    GoTo(dialog.cboOperator[kName]);
  }

  void Takes(std::int32_t row) {
    user.MovesTo(MiddleOf(WindowOf(dialog.lblColumnHeaderText[row])));
    user.HoldsButton();
  }
  void Drags(std::int32_t row, POINT to) {
    Takes(row);
    user.MovesTo(to);
    user.LetsButtonGo();
  }
  void Drags(std::int32_t row, const Control& to) { Drags(row, MiddleOf(WindowOf(to))); }

  POINT DropDownButtonOf(const DatePicker& picker) const {
    RECT box;
    GetWindowRect(WindowOf(picker), &box);
    return {box.right - GetSystemMetrics(SM_CXVSCROLL) / 2, (box.top + box.bottom) / 2};
  }

  static bool CursorIs(const wchar_t* name) { return GetCursor() == LoadCursorW(nullptr, name); }
};

TEST_F(DialogDragging, WritesAReferenceIntoTheFieldOfTheSameType) {
  Show([&] {
    PickOperators();
    Drags(kNote, dialog.cboCriteria[kName]);
    EXPECT_EQ(dialog.cboCriteria[kName].Text(), u"[Note]");
    EXPECT_EQ(WindowText(WindowOf(dialog.cboCriteria[kName])), u"[Note]");
    Drags(kPrice, dialog.txtFrom[kQuantity]);
    EXPECT_EQ(dialog.txtFrom[kQuantity].Text(), u"[Price]");
    EXPECT_EQ(WindowText(WindowOf(dialog.txtFrom[kQuantity])), u"[Price]");
    Drags(kPrice, dialog.txtTo[kQuantity]);
    EXPECT_EQ(dialog.txtTo[kQuantity].Text(), u"[Price]");
    EXPECT_EQ(WindowText(WindowOf(dialog.txtTo[kQuantity])), u"[Price]");
    Drags(kDue, dialog.txtFrom[kShipped]);
    EXPECT_EQ(dialog.txtFrom[kShipped].Text(), u"[Due]");
    EXPECT_EQ(WindowText(WindowOf(dialog.txtFrom[kShipped])), u"[Due]");
    EXPECT_EQ(Focused(), "cboOperator(0)");
  });
}

TEST_F(DialogDragging, OntoAPickerWritesIntoTheBoxOverItsDate) {
  Show([&] {
    PickOperators();
    Drags(kDue, DropDownButtonOf(dialog.dtpFrom[kShipped]));
    EXPECT_EQ(dialog.txtFrom[kShipped].Text(), u"[Due]");
    EXPECT_EQ(dialog.txtTo[kShipped].Text(), u"");
    Drags(kDue, DropDownButtonOf(dialog.dtpTo[kShipped]));
    EXPECT_EQ(dialog.txtTo[kShipped].Text(), u"[Due]");
    EXPECT_EQ(dialog.dtpFrom[kShipped].Value(), Day(2007, 6, 15));
  });
}

TEST_F(DialogDragging, ReplacesWhatTheFieldHeld) {
  Show([&] {
    PickOperators();
    GoTo(dialog.txtFrom[kQuantity]);
    user.Types(u"17");
    Drags(kPrice, dialog.txtFrom[kQuantity]);
    Drags(kQuantity, dialog.txtFrom[kQuantity]);
    EXPECT_EQ(dialog.txtFrom[kQuantity].Text(), u"[Quantity]");
  });
}

TEST_F(DialogDragging, OntoAFieldOfAnotherTypeDoesNothing) {
  Show([&] {
    PickOperators();
    const std::string before = DumpDialog(dialog);
    Drags(kShipped, dialog.txtFrom[kQuantity]);
    Drags(kName, dialog.txtTo[kQuantity]);
    Drags(kPrice, dialog.cboCriteria[kName]);
    Drags(kQuantity, dialog.txtFrom[kShipped]);
    Drags(kName, DropDownButtonOf(dialog.dtpTo[kShipped]));
    EXPECT_EQ(DumpDialog(dialog), before);
  });
}

TEST_F(DialogDragging, OntoWhatIsNoFieldDoesNothing) {
  int pressed = 0;
  dialog.cmdApply.Click = [&] { ++pressed; };
  Show([&] {
    PickOperators();
    const std::string before = DumpDialog(dialog);
    Drags(kNote, dialog.lblColumnHeaderText[kName]);
    Drags(kNote, dialog.lblCaption);
    Drags(kNote, dialog.cboOperator[kName]);
    Drags(kNote, dialog.cmdApply);
    Drags(kNote, dialog.chkCaseSensitive);
    Drags(kNote, POINT{1599, 1199});
    Drags(kNote, MiddleOf(hostForm.List()));
    EXPECT_EQ(DumpDialog(dialog), before);
    EXPECT_EQ(dialog.chkCaseSensitive.Value(), CheckValue::kUnchecked);
    EXPECT_TRUE(dialog.Visible());
  });
  EXPECT_EQ(pressed, 0);
}

TEST_F(DialogDragging, OtherLabelsCannotBeDragged) {
  Show([&] {
    PickOperators();
    const std::string before = DumpDialog(dialog);
    for (Label* label : {&dialog.lblCaption, &dialog.lblAnd[kQuantity]}) {
      user.MovesTo(MiddleOf(WindowOf(*label)));
      user.HoldsButton();
      user.MovesTo(MiddleOf(WindowOf(dialog.txtFrom[kQuantity])));
      EXPECT_FALSE(CursorIs(IDC_HAND));
      user.LetsButtonGo();
    }
    EXPECT_EQ(DumpDialog(dialog), before);
  });
}

TEST_F(DialogDragging, IsCancelledByEscape) {
  Show([&] {
    PickOperators();
    const std::string before = DumpDialog(dialog);
    Takes(kPrice);
    user.MovesTo(MiddleOf(WindowOf(dialog.txtFrom[kQuantity])));
    EXPECT_NE(GetCapture(), nullptr);
    user.Presses(VK_ESCAPE);
    EXPECT_EQ(GetCapture(), nullptr);
    user.MovesTo(MiddleOf(WindowOf(dialog.txtTo[kQuantity])));
    EXPECT_FALSE(CursorIs(IDC_HAND));
    user.LetsButtonGo();
    EXPECT_EQ(DumpDialog(dialog), before);
    Drags(kPrice, dialog.txtFrom[kQuantity]);
    EXPECT_EQ(dialog.txtFrom[kQuantity].Text(), u"[Price]");
  });
}

TEST_F(DialogDragging, NeedsTheMouseToMove) {
  Show([&] {
    PickOperators();
    const std::string before = DumpDialog(dialog);
    user.Clicks(WindowOf(dialog.lblColumnHeaderText[kPrice]));
    user.MovesTo(MiddleOf(WindowOf(dialog.txtFrom[kQuantity])));
    user.LetsButtonGo();
    POINT place = MiddleOf(WindowOf(dialog.lblColumnHeaderText[kPrice]));
    Takes(kPrice);
    user.MovesTo({place.x + GetSystemMetrics(SM_CXDRAG) - 1, place.y});
    EXPECT_FALSE(CursorIs(IDC_NO));
    user.LetsButtonGo();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(DumpDialog(dialog), before);
    EXPECT_EQ(Focused(), "cboOperator(0)");
  });
}

TEST_F(DialogDragging, ShowsWithItsCursorWhereItCanBeDropped) {
  Show([&] {
    PickOperators();
    Takes(kPrice);
    for (const Control* field : std::initializer_list<const Control*>{&dialog.txtFrom[kQuantity],
                                                                      &dialog.txtTo[kQuantity]}) {
      user.MovesTo(MiddleOf(WindowOf(*field)));
      EXPECT_TRUE(CursorIs(IDC_HAND)) << NameOf(*field);
    }
    // Fields of another type among them.
    for (const Control* other : std::initializer_list<const Control*>{
             &dialog.cboCriteria[kName], &dialog.txtFrom[kShipped], &dialog.lblCaption,
             &dialog.cmdApply, &dialog.cboOperator[kName]}) {
      user.MovesTo(MiddleOf(WindowOf(*other)));
      EXPECT_TRUE(CursorIs(IDC_NO)) << NameOf(*other);
    }
    user.MovesTo({1599, 1199});
    EXPECT_TRUE(CursorIs(IDC_NO));
    user.LetsButtonGo();
    user.MovesTo(MiddleOf(WindowOf(dialog.cmdApply)));
    EXPECT_TRUE(CursorIs(IDC_ARROW));
  });
}

TEST_F(DialogDragging, ACaptionWithABracketStillRefersToItsColumn) {
  Prepare({"Size [cm]", "Width"}, {{"3", "3"}, {"5", "4"}});
  Show([&] {
    PickOperator(1, u"equals");
    Drags(0, dialog.txtFrom[1]);
    EXPECT_EQ(dialog.txtFrom[1].Text(), u"[Size [cm]]");
    user.Presses({VK_MENU, 'A'});
    user.Presses(VK_RETURN);  // in the message that no number was given
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"3"}));
}

}  // namespace

}  // namespace sifter
