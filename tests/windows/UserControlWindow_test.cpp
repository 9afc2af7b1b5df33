#include "Leftovers.h"
#include "UserControlOnScreen.h"
#include "base/RuntimeError.h"
#include "forms/PictureButton.h"

#include <vector>

namespace sifter {

namespace {

// Two buttons, the first of which is on the right.
struct TwoButtons : UserControl {
  TwoButtons() {
    first.Move(600, 0, 480, 480);
    second.Move(0, 0, 480, 480);
    Resize = [this] { ++resized; };
  }
  PictureButton first{*this, u"first"};
  PictureButton second{*this, u"second"};
  int resized = 0;
};

class UserControlWindowTest : public UserControlOnScreen<TwoButtons> {
 protected:
  HWND First() const { return WindowOf(control.first); }
  HWND Second() const { return WindowOf(control.second); }
};

TEST_F(UserControlWindowTest, ArrowKeysGoByWhatTheUserSees) {
  Place(3000, 480);
  window->TakeFocus();
  EXPECT_EQ(GetFocus(), First());
  EXPECT_FALSE(Translates(VK_RIGHT));
  EXPECT_TRUE(Translates(VK_LEFT));
  EXPECT_EQ(GetFocus(), Second());
  EXPECT_FALSE(Translates(VK_LEFT));
  EXPECT_TRUE(Translates(VK_RIGHT));
  EXPECT_EQ(GetFocus(), First());
  EXPECT_TRUE(Translates(VK_TAB)) << "which goes by the order of the controls";
  EXPECT_EQ(GetFocus(), Second());
}

// What comes when the form has been moved to a monitor with another resolution.
TEST_F(UserControlWindowTest, IsMeasuredAnewForANewResolution) {
  constexpr UINT kDpiChangedAfterParent = 0x02E3;
  Place(3000, 480);
  const auto place = [&] { return BoxOf(WithinClient(First(), window->Handle())); };
  const auto font = [&] {
    return reinterpret_cast<HGDIOBJ>(SendMessageW(First(), WM_GETFONT, 0, 0));
  };
  const sifter::Box before = place();
  const HGDIOBJ fontBefore = font();
  const int gdiObjects = GdiObjects();
  SetWindowPos(First(), nullptr, 1, 2, 3, 4, SWP_NOZORDER | SWP_NOACTIVATE);
  control.resized = 0;
  SendMessageW(window->Handle(), kDpiChangedAfterParent, 0, 0);
  EXPECT_EQ(place(), before);
  EXPECT_EQ(control.resized, 1);
  EXPECT_NE(font(), fontBefore);
  EXPECT_EQ(GetObjectType(font()), DWORD{OBJ_FONT});
  EXPECT_EQ(GdiObjects(), gdiObjects);
}

// Lets no second button be made, and notes whose windows of controls are when they are destroyed.
class NoSecondButton {
 public:
  NoSecondButton() {
    buttons_ = 0;
    owners_.clear();
    hook_ = SetWindowsHookExW(WH_CBT, Procedure, nullptr, GetCurrentThreadId());
  }
  ~NoSecondButton() { UnhookWindowsHookEx(hook_); }
  NoSecondButton(const NoSecondButton&) = delete;
  NoSecondButton& operator=(const NoSecondButton&) = delete;

  static const std::vector<LONG_PTR>& Owners() { return owners_; }

 private:
  static bool Is(HWND window, const wchar_t* kind) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return CompareStringOrdinal(name, -1, kind, -1, TRUE) == CSTR_EQUAL;
  }
  static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && Is(window, L"BUTTON") && ++buttons_ == 2) return 1;
    if (code == HCBT_DESTROYWND && Is(window, L"RowSifterControl"))
      owners_.push_back(GetWindowLongPtrW(window, GWLP_USERDATA));
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline int buttons_ = 0;
  static inline std::vector<LONG_PTR> owners_;
  HHOOK hook_;
};

TEST_F(UserControlWindowTest, ThatCanNotBeMadeLeavesNothingBehind) {
  const int windows = WindowsOfThisThread();
  {
    const NoSecondButton refusing;
    EXPECT_THROW(Place(3000, 480), RuntimeError);
    EXPECT_EQ(NoSecondButton::Owners(), std::vector<LONG_PTR>{0}) << "messages find a dead object";
  }
  EXPECT_EQ(WindowsOfThisThread(), windows);
  control.SetBackColor(0x00C0FFC0);
  control.first.SetEnabled(false);
  Place(3000, 480);
  EXPECT_FALSE(IsWindowEnabled(First()));
}

}  // namespace

}  // namespace sifter
