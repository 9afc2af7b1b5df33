#include "DialogOnScreen.h"
#include "WindowFacts.h"

namespace sifter {

namespace {

class DialogLife : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name"}, {{"Oak"}});
  }

  void ExpectStillThere(const std::string& after) const {
    EXPECT_TRUE(dialog.Visible()) << after;
    EXPECT_TRUE(IsWindowVisible(Window())) << after;
    EXPECT_FALSE(IsIconic(Window())) << after;
  }

  static std::vector<UINT> SystemMenuOf(HWND window) {
    std::vector<UINT> entries;
    const HMENU menu = GetSystemMenu(window, FALSE);
    for (int i = 0; i < GetMenuItemCount(menu); ++i) entries.push_back(GetMenuItemID(menu, i));
    return entries;
  }

  // The menu that a window like the dialog is born with.
  static std::vector<UINT> NewSystemMenu(HWND like) {
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(like, GWL_STYLE));
    const UniqueWindow window(CreateWindowExW(0, L"STATIC", L"", style & ~DWORD{WS_VISIBLE}, 0, 0,
                                              10, 10, nullptr, nullptr, nullptr, nullptr));
    return SystemMenuOf(window.Get());
  }

  static void TakeSixth(std::vector<UINT>& entries) {
    if (entries.size() > 6) entries.erase(entries.begin() + 6);
  }
};

TEST_F(DialogLife, IsNotEndedByACloseMessage) {
  Show([&] {
    SendMessageW(Window(), WM_CLOSE, 0, 0);
    ExpectStillThere("WM_CLOSE");
    PostMessageW(Window(), WM_CLOSE, 0, 0);
    user.Rests();
    ExpectStillThere("a posted WM_CLOSE");
    SendMessageW(Window(), WM_SYSCOMMAND, SC_CLOSE, 0);
    user.Rests();
    ExpectStillThere("SC_CLOSE");
  });
}

TEST_F(DialogLife, IsNotEndedByKeys) {
  Show([&] {
    for (Control* control :
         std::vector<Control*>{&dialog.cboOperator[0], &dialog.cmdApply, &dialog.cmdHideFilter,
                               &dialog.chkCaseSensitive}) {
      SetFocus(WindowOf(*control));
      user.Presses({VK_MENU, VK_F4});
      ExpectStillThere("Alt+F4 in " + NameOf(*control));
      user.Presses(VK_ESCAPE);
      ExpectStillThere("Escape in " + NameOf(*control));
    }
  });
}

TEST_F(DialogLife, IsNotEndedByItsTitleBar) {
  Show([&] {
    const RECT box = OnScreen(Window());
    const LONG row = box.top + GetSystemMetrics(SM_CYDLGFRAME) + GetSystemMetrics(SM_CYSIZE) / 2;
    const LONG inset = GetSystemMetrics(SM_CXDLGFRAME) + GetSystemMetrics(SM_CXSIZE) / 2;
    for (const POINT at : {POINT{box.right - inset, row}, POINT{box.left + inset, row}}) {
      user.ClicksAt(at);
      user.Presses(VK_ESCAPE);  // the menu that a click may have opened
      ExpectStillThere("a click on the title bar");
    }
  });
}

TEST_F(DialogLife, IsTheSameWindowFromShowingToShowing) {
  HWND first = nullptr;
  Show([&] { first = Window(); });
  EXPECT_FALSE(IsWindowVisible(first));
  Show([&] { EXPECT_EQ(Window(), first); });
}

TEST_F(DialogLife, KeepsWhatTheUserHasSetFromShowingToShowing) {
  Show([&] {
    PickOperator(0, u"starts with");
    user.Types(u"Oa");
    user.Presses({VK_MENU, 'H'});
  });
  Show([&] {
    EXPECT_EQ(TextOf(WindowOf(dialog.cboOperator[0])), "starts with");
    EXPECT_EQ(TextOf(WindowOf(dialog.cboCriteria[0])), "Oa");
    EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.cboCriteria[0])));
    EXPECT_EQ(Focused(), "cmdReset");  // where hiding has put it
  });
}

TEST_F(DialogLife, LosesTheSixthEntryOfItsSystemMenuWithEachActivation) {
  std::vector<UINT> expected;
  Show([&] {
    expected = NewSystemMenu(Window());
    ASSERT_GT(expected.size(), 6u);
    EXPECT_EQ(expected[6], UINT{SC_CLOSE});
    TakeSixth(expected);
    EXPECT_EQ(SystemMenuOf(Window()), expected);
  });
  for (int showing = 0; showing < 4; ++showing)
    Show([&] {
      TakeSixth(expected);
      EXPECT_EQ(SystemMenuOf(Window()), expected);
    });
}

TEST_F(DialogLife, TakesTheEntryFromWhicheverWindowIsActive) {
  SetWindowLongPtrW(hostForm.Parent(), GWL_STYLE, WS_OVERLAPPEDWINDOW | WS_VISIBLE);
  SetForegroundWindow(hostForm.Parent());
  std::vector<UINT> expected = NewSystemMenu(hostForm.Parent());
  ASSERT_EQ(SystemMenuOf(hostForm.Parent()), expected);
  Show([] {});
  EXPECT_EQ(SystemMenuOf(hostForm.Parent()), expected);
  SetActiveWindow(hostForm.Parent());
  dialog.Activate();
  TakeSixth(expected);
  EXPECT_EQ(SystemMenuOf(hostForm.Parent()), expected);
}

TEST_F(DialogLife, DestroysItsWindowsWithTheForm) {
  HWND window = nullptr;
  HWND control = nullptr;
  {
    frmFilter brief({host, prompts, conversions, clock});
    brief.UsersListview = list;
    brief.SetUpForm();
    user.Does([&] {
      user.WaitsFor([&] { return brief.Visible() && host.WindowOf(brief) != nullptr; });
      window = host.WindowOf(brief)->Handle();
      control = host.WindowOf(brief)->Find(brief.cmdApply)->Handle();
      EXPECT_TRUE(IsWindow(control));
      brief.Hide();
    });
    brief.Show(ShowMode::kModal);
    user.PumpUntilDone();
    EXPECT_TRUE(IsWindow(window));
  }
  EXPECT_FALSE(IsWindow(window));
  EXPECT_FALSE(IsWindow(control));
}

}  // namespace

}  // namespace sifter
