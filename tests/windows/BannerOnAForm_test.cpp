#include "Leftovers.h"
#include "ListViewOnAForm.h"
#include "Picture.h"
#include "UserControlOnScreen.h"
#include "base/Conversions.h"
#include "controls/TSLvwBannerFilter.h"
#include "support/ClockFake.h"
#include "support/Lists.h"
#include "support/VersionInfoFake.h"
#include "win32/ControlTimers.h"
#include "win32/MessageBoxPrompts.h"
#include "win32/NativeListView.h"
#include "win32/Win32FormHost.h"
#include "win32/Win32WindowSystem.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace sifter {

namespace {

constexpr COLORREF kGold = 0x00F2B224;
constexpr COLORREF kInk = 0x00303C4C;

// What a control needs of the world; the real thing wherever it is a window.
struct World {
  ControlServices Services() {
    return {{forms, prompts, conversions, clock},
            {forms, version},
            ProcessWinProc(),
            ProcessWindows(),
            defaultDialog};
  }

  ClockFake clock;
  EnUsConversions conversions{clock};
  MessageBoxPrompts prompts;
  Win32FormHost forms;
  VersionInfoFake version;
  DefaultDialog defaultDialog{{forms, prompts, conversions, clock}};
};

// The banner above a list view of a host's program, as the user sees the two.
class BannerOnAForm : private World, public UserControlOnScreen<TSLvwBannerFilter> {
 protected:
  BannerOnAForm() : UserControlOnScreen<TSLvwBannerFilter>(Services()) {
    forms.SetOwner(hostForm.Parent());
    form.Reset();
    const RECT area = ClientOf(hostForm.Parent());
    const LONG height = PixelsOf(kHeight, ScreenDpi());
    SetWindowPos(hostForm.List(), nullptr, 0, height, area.right, area.bottom - height,
                 SWP_NOZORDER);
    window.emplace(control, site, hostForm.Parent(), RECT{0, 0, area.right, height});
    timers.emplace(control, [](const std::function<void()>& work) { work(); });
    const TextRows trees = {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}, {"Yew", "9"}, {"Larch", "4"}};
    Fill(*list, {"Name", "Qty"}, trees);
  }
  ~BannerOnAForm() override {
    control.Terminate();
    timers.reset();
    window.reset();
  }

  std::string Caption() const { return TextOf(WindowOf(control.lblDisplaying)); }

  // Runs a message loop until the caption is this.
  void AwaitCaption(const std::string& caption) {
    user.Does([&] { user.WaitsFor([&] { return Caption() == caption; }); });
    user.PumpUntilDone();
    EXPECT_EQ(Caption(), caption);
  }

  void UserDoes(const std::function<void()>& script) {
    user.Does(script);
    user.PumpUntilDone();
  }

  bool Shows(const Control& part, COLORREF color) const {
    const std::vector<COLORREF> pixels = Pixels(WindowOf(part), ClientOf(WindowOf(part)));
    return std::find(pixels.begin(), pixels.end(), color) != pixels.end();
  }

  void Save(const std::string& name) {
    UserDoes([&] { user.Rests(); });
    SavePicture(hostForm.Parent(),
                ScreenDpi() == 96 ? name : name + "-" + std::to_string(ScreenDpi()));
  }

  static constexpr double kHeight = 375;

  ListViewOnAForm hostForm;
  const Ref<HostListView> list = NativeListView(hostForm.List());
  std::optional<ControlTimers> timers;
};

TEST_F(BannerOnAForm, TellsInItsWindowWhatTheHostDoes) {
  EXPECT_EQ(Caption(), "Displaying all items");
  control.SetListview(list);
  EXPECT_EQ(Caption(), "Displaying all Items");
  AddRow(*list, {"Fir", "1"});
  EXPECT_EQ(Caption(), "Displaying 6 of 6 Items");
  list->ListItems()->Remove(Value(std::int32_t{1}));
  EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
  list->ListItems()->Clear();
  EXPECT_EQ(Caption(), "Displaying 0 of 0 Items");
}

TEST_F(BannerOnAForm, FiltersAgainSoonAfterRowsHaveCome) {
  control.SetListview(list);
  control.ApplyFilter(u"Name..11==a2==*?");
  EXPECT_EQ(Caption(), "Displaying 3 of 5 Items");
  EXPECT_TRUE(Shows(control.cmdFilter, kGold));
  EXPECT_EQ(GetFocus(), hostForm.List());
  AddRow(*list, {"Maple", "2"});
  AddRow(*list, {"Fir", "1"});
  EXPECT_EQ(Caption(), "Displaying 3 of 5 Items");
  AwaitCaption("Displaying 4 of 7 Items");
  EXPECT_EQ(hostForm.ShownTexts(),
            (std::vector<std::vector<std::string>>{
                {"Oak", "3"}, {"Ash", "5"}, {"Larch", "4"}, {"Maple", "2"}}));
  control.DeactivateFilter();
  EXPECT_EQ(Caption(), "Displaying all Items");
  EXPECT_FALSE(Shows(control.cmdFilter, kGold));
}

TEST_F(BannerOnAForm, OpensItsDialogForAClickOnTheFunnel) {
  control.SetListview(list);
  const frmFilter& dialog = control.Dialog();
  UserDoes([&] {
    user.Clicks(WindowOf(control.cmdFilter));
    user.WaitsFor([&] { return dialog.Visible(); });
    EXPECT_FALSE(IsWindowEnabled(hostForm.Parent())) << "the host's form waits for the dialog";
    control.Dialog().cmdHideFilter.SetValue(true);
    user.WaitsFor([&] { return !dialog.Visible(); });
    user.Rests();
    EXPECT_EQ(Caption(), "Displaying 5 of 5 Items");
    EXPECT_EQ(GetFocus(), hostForm.List());
  });
}

TEST_F(BannerOnAForm, TellsOfTheBannerButton) {
  control.SetListview(list);
  control.SetBannerButtonVisible(true);
  std::vector<std::string> told;
  control.ExtraButtonClicked = [&](Text& parameter) { told.push_back(parameter.ToUtf8()); };
  UserDoes([&] { user.Clicks(WindowOf(control.cmdExtraButton)); });
  EXPECT_EQ(told, std::vector<std::string>{""});
}

TEST_F(BannerOnAForm, HasItsPartsOneBesideTheOther) {
  control.SetBannerButtonVisible(true);
  const HWND frame = WindowOf(control.lblFrame);
  const HWND caption = WindowOf(control.lblDisplaying);
  const RECT frameBox = WithinClient(frame, window->Handle());
  const RECT extra = WithinClient(WindowOf(control.cmdExtraButton), window->Handle());
  const RECT filter = WithinClient(WindowOf(control.cmdFilter), window->Handle());
  EXPECT_TRUE(Contains(frameBox, WithinClient(caption, window->Handle())));
  EXPECT_LE(frameBox.right, extra.left);
  EXPECT_LE(extra.right, filter.left);
  EXPECT_TRUE(Contains(ClientOf(window->Handle()), filter));
  // In the order of the windows the caption stands before its frame, or the frame would hide it.
  HWND behind = caption;
  while (behind != nullptr && behind != frame) behind = GetWindow(behind, GW_HWNDNEXT);
  EXPECT_EQ(behind, frame);
}

TEST_F(BannerOnAForm, DrawsItsCaptionOverTheFrame) {
  const std::vector<COLORREF> pixels =
      Pixels(WindowOf(control.lblDisplaying), ClientOf(WindowOf(control.lblDisplaying)));
  EXPECT_GT(std::set<COLORREF>(pixels.begin(), pixels.end()).size(), 1u) << "nothing is written";
}

TEST_F(BannerOnAForm, WritesInArial) {
  LOGFONTW font{};
  const HWND caption = WindowOf(control.lblDisplaying);
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(caption, WM_GETFONT, 0, 0)), sizeof font, &font);
  EXPECT_EQ(FromWide(font.lfFaceName), u"Arial");
  const SIZE extent = ExtentIn(caption, L"Displaying X of Y items");
  EXPECT_LE(extent.cy, ClientOf(caption).bottom);
}

TEST_F(BannerOnAForm, KeepsAnAmpersandInTheCaption) {
  control.SetItemDescription(u"R&D Items");
  control.SetListview(list);
  EXPECT_EQ(Caption(), "Displaying all R&D Items");
  const HWND caption = WindowOf(control.lblDisplaying);
  EXPECT_NE(GetWindowLongPtrW(caption, GWL_STYLE) & SS_NOPREFIX, 0) << "a letter is underlined";
}

TEST_F(BannerOnAForm, NamesItsButtonsForAccessibilityTools) {
  EXPECT_EQ(TextOf(WindowOf(control.cmdFilter)), "Filter");
  EXPECT_EQ(TextOf(WindowOf(control.cmdExtraButton)), "Banner button");
}

TEST_F(BannerOnAForm, IsWalkedThroughWithTheKeyboard) {
  control.SetBannerButtonVisible(true);
  window->TakeFocus();
  EXPECT_EQ(GetFocus(), WindowOf(control.cmdFilter));
  EXPECT_TRUE(Translates(VK_TAB));
  EXPECT_EQ(GetFocus(), WindowOf(control.cmdExtraButton));
  EXPECT_FALSE(Translates(VK_TAB));
  control.SetBannerButtonVisible(false);
  EXPECT_EQ(GetFocus(), WindowOf(control.cmdFilter));
  EXPECT_FALSE(Translates(VK_TAB));
}

TEST_F(BannerOnAForm, GreysItsCaptionWhenItIsDisabled) {
  const HWND caption = WindowOf(control.lblDisplaying);
  const std::vector<COLORREF> before = Pixels(caption, ClientOf(caption));
  control.SetEnabled(false);
  EXPECT_NE(Pixels(caption, ClientOf(caption)), before);
  EXPECT_EQ(Caption(), "Displaying all items");
  control.SetEnabled(true);
  EXPECT_EQ(Pixels(caption, ClientOf(caption)), before);
}

TEST_F(BannerOnAForm, StandsOnTheHostsColour) {
  control.SetBackColor(0x00C0FFC0);
  const RECT corner{1, 1, 2, 2};
  EXPECT_EQ(Pixels(WindowOf(control.lblDisplaying), corner), std::vector<COLORREF>{0x00C0FFC0});
}

TEST_F(BannerOnAForm, LeavesNothingBehind) {
  const auto round = [this] {
    window.reset();
    window.emplace(control, site, hostForm.Parent(), RECT{0, 0, 400, 25});
    control.SetListview(list);
    control.ApplyFilter(u"Name..11==a2==*?");
    UpdateWindow(window->Handle());
    control.DeactivateFilter();
    control.SetListview(nullptr);
  };
  round();
  const int windows = WindowsOfThisThread();
  const int gdiObjects = GdiObjects();
  for (int i = 0; i < 5; ++i) round();
  EXPECT_EQ(WindowsOfThisThread(), windows);
  EXPECT_EQ(GdiObjects(), gdiObjects);
}

// Pictures for people to look at too.
TEST_F(BannerOnAForm, InPictures) {
  control.SetBannerButtonVisible(true);
  control.SetListview(list);
  Save("banner-all");
  EXPECT_TRUE(Shows(control.cmdExtraButton, kInk));
  EXPECT_TRUE(Shows(control.cmdFilter, kInk));
  EXPECT_FALSE(Shows(control.cmdFilter, kGold));
  control.ApplyFilter(u"Name..11==a2==*?");
  Save("banner-filtered");
  EXPECT_TRUE(Shows(control.cmdExtraButton, kInk));
  EXPECT_TRUE(Shows(control.cmdFilter, kGold));
  control.SetEnabled(false);
  Save("banner-disabled");
  EXPECT_FALSE(Shows(control.cmdExtraButton, kInk));
  EXPECT_FALSE(Shows(control.cmdFilter, kGold));
}

TEST_F(BannerOnAForm, HasItsPartsOneBesideTheOtherAt144Dpi) {
  ASSERT_EQ(ScreenDpi(), 144);
  control.SetBannerButtonVisible(true);
  control.SetListview(list);
  control.ApplyFilter(u"Name..11==a2==*?");
  const RECT filter = WithinClient(WindowOf(control.cmdFilter), window->Handle());
  const RECT area = ClientOf(window->Handle());
  EXPECT_EQ(BoxOf(filter), (sifter::Box{area.right - 36 - 3, 2, 36, area.bottom - 3}));
  const HWND caption = WindowOf(control.lblDisplaying);
  EXPECT_EQ(ClientOf(caption).bottom, 22);
  EXPECT_LE(ExtentIn(caption, L"Displaying 3 of 5 Items").cy, 22);
  Save("banner-filtered");
}

}  // namespace

}  // namespace sifter
