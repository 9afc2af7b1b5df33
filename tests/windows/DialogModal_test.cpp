#include "DialogOnScreen.h"
#include "WindowFacts.h"
#include "about/frmAbout.h"
#include "support/VersionInfoFake.h"
#include "win32/ScopedSubclass.h"

namespace sifter {

namespace {

using Lines = std::vector<std::string>;

class DialogModal : public DialogOnScreen {
 protected:
  void SetUp() override {
    DialogOnScreen::SetUp();
    Prepare({"Name", "Quantity"}, {{"Oak", "3"}});
    SetForegroundWindow(hostForm.Parent());
    SetFocus(hostForm.List());
  }

  bool HostIsEnabled() const { return IsWindowEnabled(hostForm.Parent()) != FALSE; }
};

TEST_F(DialogModal, BelongsToTheHostsWindowAndDisablesIt) {
  Show([&] {
    EXPECT_EQ(GetWindow(Window(), GW_OWNER), hostForm.Parent());
    EXPECT_EQ(GetActiveWindow(), Window());
    EXPECT_FALSE(HostIsEnabled());
    user.Clicks(hostForm.List());
    EXPECT_EQ(GetActiveWindow(), Window());
  });
  EXPECT_TRUE(HostIsEnabled());
}

TEST_F(DialogModal, EnablesTheHostBeforeItHides) {
  Lines log;
  Show([&] {
    const ScopedSubclass hostLog(hostForm.Parent(), [&](HWND, UINT message, WPARAM wParam, LPARAM) {
      if (message == WM_ENABLE) log.push_back(wParam != 0 ? "host enabled" : "host disabled");
      if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE) log.push_back("host active");
      return std::optional<LRESULT>();
    });
    const ScopedSubclass dialogLog(Window(), [&](HWND, UINT message, WPARAM wParam, LPARAM) {
      if (message == WM_SHOWWINDOW && wParam == FALSE) log.push_back("dialog hides");
      return std::optional<LRESULT>();
    });
    user.Presses({VK_MENU, 'H'});
  });
  EXPECT_EQ(log, (Lines{"host enabled", "dialog hides", "host active"}));
}

TEST_F(DialogModal, GivesActivationAndFocusBack) {
  for (int showing = 0; showing < 2; ++showing) {
    ASSERT_EQ(GetFocus(), hostForm.List());
    Show([&] {
      EXPECT_NE(Focused(), "");
      user.Presses({VK_MENU, 'H'});
    });
    EXPECT_EQ(GetActiveWindow(), hostForm.Parent());
    EXPECT_EQ(GetForegroundWindow(), hostForm.Parent());
    EXPECT_EQ(GetFocus(), hostForm.List());
  }
}

TEST_F(DialogModal, LeavesAHostDisabledThatWasSoBefore) {
  EnableWindow(hostForm.Parent(), FALSE);
  Show([&] { EXPECT_FALSE(HostIsEnabled()); });
  EXPECT_FALSE(HostIsEnabled());
}

TEST_F(DialogModal, EndsWhenCodeHidesTheForm) {
  Show([&] { dialog.Hide(); });
  EXPECT_FALSE(dialog.Visible());
  EXPECT_FALSE(IsWindowVisible(Window()));
  EXPECT_TRUE(HostIsEnabled());
}

TEST_F(DialogModal, IsDisabledItselfByAFormThatItShows) {
  const VersionInfoFake version;
  frmAbout about({host, version});
  dialog.cmdReport.SetCaption(u"E&xtra");
  dialog.cmdReport.SetVisible(true);
  dialog.ExtraButtonClicked = [&](Text&) { about.Show(ShowMode::kModal); };
  Show([&] {
    SetFocus(WindowOf(dialog.cmdReport));
    user.Presses({VK_MENU, 'X'});
    user.WaitsFor([&] { return about.Visible() && host.WindowOf(about)->IsShown(); });
    const HWND box = host.WindowOf(about)->Handle();
    EXPECT_EQ(GetWindow(box, GW_OWNER), Window());
    EXPECT_EQ(GetActiveWindow(), box);
    EXPECT_FALSE(IsWindowEnabled(Window()));
    EXPECT_FALSE(HostIsEnabled());
    user.Presses(VK_RETURN);
    user.WaitsFor([&] { return !about.Visible(); });
    EXPECT_TRUE(IsWindowEnabled(Window()));
    EXPECT_FALSE(HostIsEnabled());
    EXPECT_EQ(GetActiveWindow(), Window());
    EXPECT_EQ(Focused(), "cmdReport");
  });
  EXPECT_TRUE(HostIsEnabled());
  EXPECT_EQ(GetFocus(), hostForm.List());
}

// A host may hide it as soon as its own window gives way.
TEST_F(DialogModal, LeavesNothingDisabledWhenItIsHiddenWhileItComes) {
  const ScopedSubclass host_(hostForm.Parent(), [&](HWND, UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_ACTIVATE && LOWORD(wParam) == WA_INACTIVE) dialog.Hide();
    return std::optional<LRESULT>();
  });
  SetActiveWindow(hostForm.Parent());
  dialog.Show(ShowMode::kModal);
  EXPECT_FALSE(dialog.Visible());
  EXPECT_FALSE(IsWindowVisible(Window()));
  EXPECT_TRUE(HostIsEnabled());
}

TEST_F(DialogModal, EndsWithTheProgramWhoseOuterLoopHearsOfIt) {
  user.Does([&] {
    user.WaitsFor([&] { return dialog.Visible() && IsWindowVisible(Window()) != FALSE; });
    PostQuitMessage(7);
    user.Rests();
  });
  dialog.Show(ShowMode::kModal);
  EXPECT_FALSE(dialog.Visible());
  EXPECT_FALSE(IsWindowVisible(Window()));
  EXPECT_TRUE(HostIsEnabled());
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_EQ(message.wParam, 7u);
  user.PumpUntilDone();
}

TEST_F(DialogModal, EndsNestedShowingsWithTheProgram) {
  const VersionInfoFake version;
  frmAbout about({host, version});
  dialog.ExtraButtonClicked = [&](Text&) { about.Show(ShowMode::kModal); };
  user.Does([&] {
    user.WaitsFor([&] { return dialog.Visible() && IsWindowVisible(Window()) != FALSE; });
    dialog.cmdReport.SetValue(true);
  });
  // The user's own stack waits in the inner loop, so what ends it comes from elsewhere.
  const auto quit = [](HWND, UINT, UINT_PTR timer, DWORD) CALLBACK {
    KillTimer(nullptr, timer);
    PostQuitMessage(3);
  };
  SetTimer(nullptr, 0, 200, quit);
  dialog.Show(ShowMode::kModal);
  EXPECT_FALSE(about.Visible());
  EXPECT_FALSE(dialog.Visible());
  EXPECT_TRUE(HostIsEnabled());
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_EQ(message.wParam, 3u);
  user.PumpUntilDone();
}

TEST_F(DialogModal, EndsWithItsHostsWindowAndServesTheNextOne) {
  Show([&] {
    hostForm.Destroy();
    user.Rests();
    EXPECT_FALSE(dialog.Visible());
  });
  ListViewOnAForm next;
  host.SetOwner(next.Parent());
  Show([&] {
    EXPECT_EQ(GetWindow(Window(), GW_OWNER), next.Parent());
    dialog.cboOperator[1].SetListIndex(1);
    user.Rests();
    EXPECT_EQ(Focused(), "txtFrom(1)");
    user.Types(u"5");
    EXPECT_EQ(dialog.txtFrom[1].Text(), u"5");
  });
}

TEST_F(DialogModal, OutlivesAHostsWindowThatGoesBetweenShowings) {
  Show([] {});
  hostForm.Destroy();
  EXPECT_TRUE(IsWindow(Window()));
  ListViewOnAForm next;
  host.SetOwner(next.Parent());
  Show([&] { EXPECT_EQ(GetActiveWindow(), Window()); });
}

TEST_F(DialogModal, IsErrorFourHundredWhenItIsShownAlready) {
  Show([&] {
    try {
      dialog.Show(ShowMode::kModal);
      ADD_FAILURE() << "shown twice";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 400);
    }
  });
}

class DialogModeless : public DialogModal {
 protected:
  void ShowModeless(const std::function<void()>& script) {
    dialog.Show(ShowMode::kModeless);
    user.Does(script);
    user.PumpUntilDone();
  }
};

TEST_F(DialogModeless, LeavesTheHostEnabledAndItsKeysWork) {
  ShowModeless([&] {
    EXPECT_TRUE(dialog.Visible());
    EXPECT_TRUE(HostIsEnabled());
    EXPECT_EQ(GetWindow(Window(), GW_OWNER), nullptr);
    Lines visited;
    for (int i = 0; i < 4; ++i) {
      visited.push_back(Focused());
      user.Presses(VK_TAB);
    }
    EXPECT_EQ(visited, (Lines{"cboOperator(0)", "cboOperator(1)", "chkCaseSensitive", "cmdApply"}));
    dialog.cboOperator[0].SetListIndex(1);
    user.Types(u"Oak");
    EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Oak");
    user.Presses(VK_RETURN);
    EXPECT_FALSE(dialog.Visible());
  });
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(GetFocus(), hostForm.List());
}

TEST_F(DialogModeless, TakesNoFocusFromTheHostWhenItHidesBehindIt) {
  ShowModeless([&] {
    SetActiveWindow(hostForm.Parent());
    SetFocus(hostForm.Parent());
    dialog.Hide();
    EXPECT_EQ(GetFocus(), hostForm.Parent());
  });
}

TEST_F(DialogModeless, StaysWhenTheHostsFormGoes) {
  ShowModeless([&] {
    hostForm.Destroy();
    EXPECT_TRUE(dialog.Visible());
    EXPECT_TRUE(IsWindowVisible(Window()));
    dialog.Hide();
    EXPECT_FALSE(IsWindowVisible(Window()));
  });
}

TEST_F(DialogModeless, CannotBeClosedEither) {
  ShowModeless([&] {
    user.Presses({VK_MENU, VK_F4});
    EXPECT_TRUE(IsWindowVisible(Window()));
    user.Presses({VK_MENU, 'H'});
    EXPECT_FALSE(IsWindowVisible(Window()));
  });
}

TEST_F(DialogModeless, IsDisabledTogetherWithTheHostByAModalForm) {
  const VersionInfoFake version;
  frmAbout about({host, version});
  dialog.Show(ShowMode::kModeless);
  user.Does([&] {
    user.WaitsFor([&] { return about.Visible() && host.WindowOf(about)->IsShown(); });
    EXPECT_FALSE(HostIsEnabled());
    EXPECT_FALSE(IsWindowEnabled(Window()));
    about.Hide();
  });
  about.Show(ShowMode::kModal);
  user.PumpUntilDone();
  EXPECT_TRUE(HostIsEnabled());
  EXPECT_TRUE(IsWindowEnabled(Window()));
  EXPECT_EQ(GetActiveWindow(), Window());
  dialog.Hide();
}

}  // namespace

}  // namespace sifter
