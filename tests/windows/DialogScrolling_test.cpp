#include "DialogOnScreen.h"
#include "WindowFacts.h"

#include <set>

namespace sifter {

namespace {

class DialogScrolling : public DialogOnScreen {
 protected:
  void PrepareColumns(int count) {
    std::vector<std::string> captions;
    for (int i = 0; i < count; ++i) captions.push_back("Column " + std::to_string(i + 1));
    Prepare(captions, {std::vector<std::string>(static_cast<std::size_t>(count), "7")});
  }

  static RECT WorkArea() {
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
  }

  bool Scrolls() const { return (GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VSCROLL) != 0; }

  // How far the content has been moved up.
  LONG Offset() const {
    return PixelsOf(dialog.lblCaption.Top(), ScreenDpi()) -
           WithinClient(WindowOf(dialog.lblCaption), Window()).top;
  }

  bool IsInView(const Control& control) const {
    return Contains(ClientOf(Window()), WithinClient(WindowOf(control), Window()));
  }

  void ExpectInTheWorkArea() const {
    EXPECT_TRUE(Contains(WorkArea(), OnScreen(Window())))
        << testing::PrintToString(BoxOf(OnScreen(Window())));
  }

  void ExpectFocusInView() const {
    const ControlWindow* focused = host.WindowOf(dialog)->Find(GetFocus());
    ASSERT_NE(focused, nullptr);
    EXPECT_TRUE(IsInView(focused->Shown())) << NameOf(focused->Shown());
  }

  // With Tab once round all stops. Gives the names back.
  std::set<std::string> TabRound() {
    std::set<std::string> visited;
    while (visited.insert(Focused()).second) {
      ExpectFocusInView();
      user.Presses(VK_TAB);
    }
    return visited;
  }

  void ExpectThatEverythingCanBeReached(int columns) {
    PrepareColumns(columns);
    const double height = dialog.Height();
    EXPECT_EQ(height, dialog.lblColumnHeaderText[0].Top() + (columns - 1) * 400 + 1400 +
                          dialog.cmdApply.Height() + 400);
    Show([&] {
      ASSERT_TRUE(Scrolls());
      EXPECT_EQ(dialog.Height(), height);
      const RECT work = WorkArea();
      EXPECT_EQ(OnScreen(Window()).bottom - OnScreen(Window()).top, work.bottom - work.top);
      EXPECT_EQ(ClientOf(Window()).right, PixelsOf(dialog.Width(), ScreenDpi()));
      ExpectInTheWorkArea();
      EXPECT_EQ(TabRound().size(), static_cast<std::size_t>(columns + 4));
      EXPECT_EQ(Focused(), "cboOperator(0)");
      user.Presses({VK_SHIFT, VK_TAB});
      EXPECT_EQ(Focused(), "cmdHideFilter");
      ExpectFocusInView();
      user.Clicks(WindowOf(dialog.cmdHideFilter));
      EXPECT_FALSE(dialog.Visible());
    });
  }
};

TEST_F(DialogScrolling, ReachesEverythingOfFortyFiveRows) { ExpectThatEverythingCanBeReached(45); }
TEST_F(DialogScrolling, ReachesEverythingOfEightyRows) { ExpectThatEverythingCanBeReached(80); }
TEST_F(DialogScrolling, ReachesEverythingOfThirtyRowsAt144Dpi) {
  ASSERT_EQ(ScreenDpi(), 144);
  ExpectThatEverythingCanBeReached(30);
}

TEST_F(DialogScrolling, IsNotThereForWhatFits) {
  PrepareColumns(30);
  Show([&] {
    EXPECT_FALSE(Scrolls());
    ExpectInTheWorkArea();
    user.TurnsWheel(MiddleOf(Window()), -3);
    EXPECT_EQ(Offset(), 0);
  });
}

TEST_F(DialogScrolling, FollowsTheWheelToBothEnds) {
  PrepareColumns(80);
  Show([&] {
    EXPECT_EQ(Offset(), 0);
    user.TurnsWheel(MiddleOf(Window()), -1);
    const LONG notch = Offset();
    EXPECT_GT(notch, 0);
    user.TurnsWheel(MiddleOf(Window()), -2);
    EXPECT_EQ(Offset(), 3 * notch);
    user.TurnsWheel(MiddleOf(Window()), 1);
    EXPECT_EQ(Offset(), 2 * notch);
    user.TurnsWheel(MiddleOf(Window()), -100);
    EXPECT_EQ(Offset(), PixelsOf(dialog.Height(), ScreenDpi()) - ClientOf(Window()).bottom);
    EXPECT_TRUE(IsInView(dialog.cmdApply));
    EXPECT_TRUE(IsInView(dialog.cboOperator[79]));
    user.TurnsWheel(MiddleOf(Window()), 100);
    EXPECT_EQ(Offset(), 0);
    EXPECT_TRUE(IsInView(dialog.lblCaption));
  });
}

// The whole client area scrolls: what stands next to each other before does so afterwards.
TEST_F(DialogScrolling, MovesEveryControlAlike) {
  PrepareColumns(80);
  Show([&] {
    std::vector<LONG> tops;
    for (const Control* control : dialog.Controls())
      tops.push_back(WithinClient(WindowOf(*control), Window()).top);
    user.TurnsWheel(MiddleOf(Window()), -2);
    const LONG offset = Offset();
    ASSERT_GT(offset, 0);
    std::size_t i = 0;
    for (const Control* control : dialog.Controls())
      EXPECT_EQ(WithinClient(WindowOf(*control), Window()).top, tops[i++] - offset)
          << NameOf(*control);
  });
}

TEST_F(DialogScrolling, FollowsTheScrollBar) {
  PrepareColumns(80);
  Show([&] {
    const RECT box = OnScreen(Window());
    SCROLLBARINFO bar{};
    bar.cbSize = sizeof bar;
    ASSERT_TRUE(GetScrollBarInfo(Window(), static_cast<LONG>(OBJID_VSCROLL), &bar));
    const LONG x = (bar.rcScrollBar.left + bar.rcScrollBar.right) / 2;
    const LONG button = GetSystemMetrics(SM_CYVSCROLL);
    ASSERT_TRUE(Contains(box, bar.rcScrollBar));
    // Its lower arrow is a row; the shaft under the thumb is a page.
    user.ClicksAt({x, bar.rcScrollBar.bottom - button / 2});
    EXPECT_EQ(Offset(), PixelsOf(400, ScreenDpi()));
    user.ClicksAt({x, bar.rcScrollBar.top + button / 2});
    EXPECT_EQ(Offset(), 0);
    user.ClicksAt({x, bar.rcScrollBar.bottom - 2 * button});
    EXPECT_EQ(Offset(), std::min(ClientOf(Window()).bottom, PixelsOf(dialog.Height(), ScreenDpi()) -
                                                                ClientOf(Window()).bottom));
    // The thumb goes where the mouse takes it.
    ASSERT_TRUE(GetScrollBarInfo(Window(), static_cast<LONG>(OBJID_VSCROLL), &bar));
    user.MovesTo({x, bar.rcScrollBar.top + (bar.xyThumbTop + bar.xyThumbBottom) / 2});
    user.HoldsButton();
    user.MovesTo({x, bar.rcScrollBar.top + button});
    user.LetsButtonGo();
    EXPECT_EQ(Offset(), 0);
    for (const auto& [code, offset] : std::initializer_list<std::pair<WORD, LONG>>{
             {SB_BOTTOM, PixelsOf(dialog.Height(), ScreenDpi()) - ClientOf(Window()).bottom},
             {SB_TOP, 0}}) {
      SendMessageW(Window(), WM_VSCROLL, code, 0);
      EXPECT_EQ(Offset(), offset) << code;
    }
  });
}

TEST_F(DialogScrolling, BringsWhatCodePutsTheFocusOnIntoView) {
  PrepareColumns(80);
  Show([&] {
    for (Control* control :
         std::initializer_list<Control*>{&dialog.cboOperator[79], &dialog.cboOperator[3],
                                         &dialog.cmdReset, &dialog.cboOperator[40]}) {
      dialog.SetFocus(*control);
      EXPECT_EQ(Focused(), NameOf(*control));
      EXPECT_TRUE(IsInView(*control)) << NameOf(*control);
    }
    // An operator's parameter takes the focus.
    dialog.cboOperator[70].SetListIndex(1);
    EXPECT_EQ(Focused(), "txtFrom(70)");
    ExpectFocusInView();
  });
  // Hiding has put it on a button under the rows; it has it again.
  Show([&] { dialog.cmdHideFilter.SetValue(true); });
  Show([&] {
    EXPECT_EQ(Focused(), "cmdReset");
    ExpectFocusInView();
  });
}

TEST_F(DialogScrolling, ComesAndGoesWithTheNumberOfRows) {
  for (const auto& [columns, scrolls] :
       {std::pair(80, true), std::pair(3, false), std::pair(60, true), std::pair(1, false)}) {
    PrepareColumns(columns);
    Show([&] {
      EXPECT_EQ(Scrolls(), scrolls) << columns;
      EXPECT_EQ(Offset(), 0) << columns;
      EXPECT_EQ(ClientOf(Window()).right, PixelsOf(dialog.Width(), ScreenDpi())) << columns;
      if (!scrolls) {
        EXPECT_EQ(ClientOf(Window()).bottom, PixelsOf(dialog.Height(), ScreenDpi())) << columns;
      }
      ExpectInTheWorkArea();
      user.TurnsWheel(MiddleOf(Window()), -100);
      EXPECT_EQ(Offset() > 0, scrolls) << columns;
    });
  }
}

TEST_F(DialogScrolling, StaysInTheWorkAreaWhereverTheHostStands) {
  const RECT work = WorkArea();
  for (const int columns : {3, 80}) {
    PrepareColumns(columns);
    for (const POINT at : {POINT{work.right - 20, work.bottom - 20}, POINT{-580, -380},
                           POINT{work.right - 20, -380}, POINT{work.right + 50, 100}}) {
      SetWindowPos(hostForm.Parent(), nullptr, at.x, at.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
      Show([&] { ExpectInTheWorkArea(); });
    }
  }
}

TEST_F(DialogScrolling, ComesBackIntoTheWorkAreaWhenTheUserDragsItOut) {
  PrepareColumns(3);
  Show([&] {
    const RECT box = OnScreen(Window());
    const POINT title = {box.left + 150, box.top + GetSystemMetrics(SM_CYCAPTION) / 2};
    user.MovesTo(title);
    user.HoldsButton();
    user.MovesTo({title.x + 40, title.y + 30});
    user.LetsButtonGo();
    EXPECT_EQ(BoxOf(OnScreen(Window())),
              (Box{box.left + 40, box.top + 30, box.right - box.left, box.bottom - box.top}));
    user.MovesTo({title.x + 40, title.y + 30});
    user.HoldsButton();
    user.MovesTo({WorkArea().right - 5, title.y + 50});
    user.LetsButtonGo();
    ExpectInTheWorkArea();
    EXPECT_EQ(OnScreen(Window()).right, WorkArea().right);
  });
}

}  // namespace

}  // namespace sifter
