#include "DialogOnScreen.h"
#include "Picture.h"
#include "WindowFacts.h"

#include <commctrl.h>
#include <set>

namespace sifter {

namespace {

class DialogOverlay : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Due", "Shipped"}, {{"1/5/2007", "1/9/2007"}});
  }

  HWND Picker() const { return WindowOf(dialog.dtpFrom[0]); }
  HWND Box() const { return WindowOf(dialog.txtFrom[0]); }

  void ShowRange() {
    dialog.cboOperator[0].SetText(u"is between");
    dialog.cboOperator[0].Click();
    user.Rests();
  }

  // The overlay's inside, away from the caret at its left edge.
  std::vector<COLORREF> Inside() const {
    const RECT client = ClientOf(Box());
    return Pixels(Box(), {3, 1, client.right - 1, client.bottom - 1});
  }
};

TEST_F(DialogOverlay, LiesOverTheDateAndBesideTheButton) {
  Show([&] {
    ShowRange();
    for (const auto& [box, picker] :
         {std::pair(WindowOf(dialog.txtFrom[0]), WindowOf(dialog.dtpFrom[0])),
          std::pair(WindowOf(dialog.txtTo[0]), WindowOf(dialog.dtpTo[0]))}) {
      EXPECT_EQ(GetWindowLongPtrW(picker, GWL_STYLE) & 0x2000000, 0x2000000);
      EXPECT_EQ(GetParent(box), picker);
      const RECT client = ClientOf(picker);
      EXPECT_EQ(BoxOf(WithinClient(box, picker)),
                (sifter::Box{0, 0, client.right - GetSystemMetrics(SM_CXVSCROLL), client.bottom}));
      EXPECT_EQ(GetWindowLongPtrW(box, GWL_STYLE) & WS_BORDER, 0);
      EXPECT_EQ(GetWindowLongPtrW(box, GWL_EXSTYLE) & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE), 0);
      EXPECT_TRUE(IsWindowVisible(box));
    }
  });
}

TEST_F(DialogOverlay, KeepsItsPlaceWhenThePickerChangesItsOwn) {
  Show([&] {
    ShowRange();
    dialog.dtpFrom[0].Move(4320, 240, 2000, 400);
    const RECT client = ClientOf(Picker());
    EXPECT_EQ(BoxOf(WithinClient(Box(), Picker())),
              (sifter::Box{0, 0, client.right - GetSystemMetrics(SM_CXVSCROLL), client.bottom}));
  });
}

TEST_F(DialogOverlay, LeavesThePickersButtonUsable) {
  Show([&] {
    ShowRange();
    SetFocus(WindowOf(dialog.cmdApply));
    user.Rests();
    const std::vector<COLORREF> before = Inside();
    const RECT picker = OnScreen(Picker());
    user.ClicksAt(
        {picker.right - GetSystemMetrics(SM_CXVSCROLL) / 2 - 2, (picker.top + picker.bottom) / 2});
    const auto calendar = reinterpret_cast<HWND>(SendMessageW(Picker(), DTM_GETMONTHCAL, 0, 0));
    ASSERT_NE(calendar, nullptr);
    user.WaitsFor([&] { return IsWindowVisible(calendar) != FALSE; });
    // In the middle of the month stands another day than the fifteenth, a Friday.
    user.Clicks(calendar);
    user.WaitsFor([&] { return IsWindowVisible(calendar) == FALSE; });
    const Date chosen = dialog.dtpFrom[0].Value();
    EXPECT_NE(Shown(Value(chosen)), Shown(Value(Day(2007, 6, 15))));
    EXPECT_GE(chosen.serial, Day(2007, 6, 1).serial);
    EXPECT_LE(chosen.serial, Day(2007, 6, 30).serial);
    SetFocus(WindowOf(dialog.cmdApply));
    user.Rests();
    EXPECT_NE(Inside(), before) << "the day that was chosen isn't shown";
    EXPECT_EQ(TextOf(Box()), "");
    EXPECT_EQ(dialog.txtFrom[0].Text(), u"");
  });
}

TEST_F(DialogOverlay, ShowsThePickersDateAsLongAsItIsEmpty) {
  Show([&] {
    ShowRange();
    SetFocus(WindowOf(dialog.cmdApply));
    user.Rests();
    const std::vector<COLORREF> first = Inside();
    EXPECT_GT(std::set<COLORREF>(first.begin(), first.end()).size(), 1u) << "nothing is painted";
    EXPECT_EQ(TextOf(Box()), "");
    EXPECT_EQ(dialog.txtFrom[0].Text(), u"");

    dialog.dtpFrom[0].SetValue(Day(1999, 12, 31));
    user.Rests();
    const std::vector<COLORREF> second = Inside();
    EXPECT_NE(second, first) << "the other date isn't shown";
    EXPECT_EQ(TextOf(Box()), "");

    dialog.txtFrom[0].SetText(u" ");
    user.Rests();
    const std::vector<COLORREF> covered = Inside();
    EXPECT_EQ(std::set<COLORREF>(covered.begin(), covered.end()), std::set<COLORREF>{0x00FFFFFF});
    dialog.txtFrom[0].SetText(u"");
    user.Rests();
    EXPECT_EQ(Inside(), second);
  });
}

TEST_F(DialogOverlay, HasTheColourOfItsPicker) {
  for (DatePicker* picker : {&dialog.dtpFrom[0], &dialog.dtpTo[0]})
    picker->SetBackColor(0x00C0FFC0);
  Prepare({"Due", "Shipped"}, {{"1/5/2007", "1/9/2007"}});
  Show([&] {
    ShowRange();
    dialog.txtFrom[0].SetText(u" ");
    SetFocus(WindowOf(dialog.cmdApply));
    user.Rests();
    const std::vector<COLORREF> inside = Inside();
    EXPECT_EQ(std::set<COLORREF>(inside.begin(), inside.end()), std::set<COLORREF>{0x00C0FFC0});
    const std::vector<COLORREF> other = Pixels(WindowOf(dialog.txtTo[0]), {3, 1, 4, 2});
    EXPECT_EQ(other, std::vector<COLORREF>{0x00C0FFC0});
  });
}

TEST_F(DialogOverlay, IsWhiteByDefaultAsThePickerIs) {
  Show([&] {
    ShowRange();
    EXPECT_EQ(Pixels(Box(), {3, 1, 4, 2}), std::vector<COLORREF>{GetSysColor(COLOR_WINDOW)});
  });
}

}  // namespace

}  // namespace sifter
