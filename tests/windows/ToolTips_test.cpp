#include "Leftovers.h"
#include "UserControlOnScreen.h"
#include "forms/PictureButton.h"

#include <commctrl.h>
#include <vector>

namespace sifter {

namespace {

struct TwoButtons : UserControl {
  TwoButtons() {
    first.Move(0, 0, 600, 360);
    second.Move(900, 0, 600, 360);
  }
  PictureButton first{*this, u"first"};
  PictureButton second{*this, u"second"};
};

BOOL CALLBACK AddToolTips(HWND window, LPARAM found) {
  if (ClassOf(window) == "tooltips_class32")
    reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
  return TRUE;
}

class ToolTipsTest : public UserControlOnScreen<TwoButtons> {
 protected:
  static std::vector<HWND> Windows() {
    std::vector<HWND> found;
    EnumThreadWindows(GetCurrentThreadId(), AddToolTips, reinterpret_cast<LPARAM>(&found));
    return found;
  }

  // What is told about a control, "" for nothing.
  std::string TextFor(const Control& part) const {
    wchar_t text[200] = L"";
    TTTOOLINFOW told{};
    told.cbSize = TTTOOLINFOW_V2_SIZE;
    told.hwnd = window->Handle();
    told.uId = reinterpret_cast<UINT_PTR>(WindowOf(part));
    told.lpszText = text;
    for (const HWND tips : Windows())
      SendMessageW(tips, TTM_GETTEXTW, 200, reinterpret_cast<LPARAM>(&told));
    return FromWide(text).ToUtf8();
  }
  static LRESULT Count() {
    return Windows().size() == 1 ? SendMessageW(Windows().front(), TTM_GETTOOLCOUNT, 0, 0) : -1;
  }
};

TEST_F(ToolTipsTest, NeedNoWindowBeforeTheFirstText) {
  Place(3000, 360);
  EXPECT_EQ(Windows().size(), 0u);
  control.first.SetToolTipText(u"List is Filtered");
  EXPECT_EQ(Windows().size(), 1u);
  control.second.SetToolTipText(u"Prints");
  EXPECT_EQ(Windows().size(), 1u);
}

TEST_F(ToolTipsTest, FollowTheTexts) {
  control.first.SetToolTipText(u"set before");
  Place(3000, 360);
  EXPECT_EQ(TextFor(control.first), "set before");
  control.first.SetToolTipText(u"List is Filtered & more");
  control.second.SetToolTipText(u"Prints");
  EXPECT_EQ(TextFor(control.first), "List is Filtered & more");
  EXPECT_EQ(TextFor(control.second), "Prints");
  EXPECT_EQ(Count(), 2);
  control.first.SetToolTipText({});
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(TextFor(control.second), "Prints");
  control.first.SetToolTipText(u"again");
  EXPECT_EQ(TextFor(control.first), "again");
}

TEST_F(ToolTipsTest, ComeUpWhereTheMouseRests) {
  control.second.SetToolTipText(u"Prints");
  Place(3000, 360);
  const HWND tips = Windows().at(0);
  user.Does([&] {
    user.MovesTo(MiddleOf(WindowOf(control.first)));
    user.MovesTo(MiddleOf(WindowOf(control.second)));
    user.WaitsFor([&] { return IsWindowVisible(tips) != FALSE; });
    user.MovesTo(MiddleOf(WindowOf(control.first)));
    user.WaitsFor([&] { return IsWindowVisible(tips) == FALSE; });
  });
  user.PumpUntilDone();
}

TEST_F(ToolTipsTest, GoWithTheControl) {
  const int before = WindowsOfThisThread();
  control.first.SetToolTipText(u"text");
  Place(3000, 360);
  window.reset();
  EXPECT_EQ(WindowsOfThisThread(), before);
}

TEST_F(ToolTipsTest, GoWithTheHostsForm) {
  control.first.SetToolTipText(u"text");
  Place(3000, 360);
  form.Reset();
  EXPECT_EQ(Windows().size(), 0u);
  EXPECT_EQ(window->Handle(), nullptr);
  control.first.SetToolTipText(u"nobody shows it");
}

}  // namespace

}  // namespace sifter
