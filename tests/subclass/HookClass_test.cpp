#include "subclass/HookClass.h"

#include "WatchedWindows.h"
#include "subclass/HookClassMembers.h"
#include "support/Errors.h"

#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace sifter {

namespace {

class HookClassTest : public WatchedWindowsTest {
 protected:
  HookClass hook{table, About()};

  std::vector<std::uint32_t> Listed(std::uint32_t most) const {
    std::vector<std::uint32_t> listed;
    for (std::uint32_t message = 0; message <= most; ++message)
      if (hook.Messages(message)) listed.push_back(message);
    return listed;
  }
};

using Messages = std::vector<std::uint32_t>;

TEST_F(HookClassTest, StartsWithoutWindowAndMessages) {
  EXPECT_EQ(hook.hWnd(), 0);
  EXPECT_EQ(Listed(600), Messages());
}

TEST_F(HookClassTest, MessagesAreAddedOnceAndRemovedOnce) {
  hook.SetMessages(5, true);
  hook.SetMessages(3, true);
  hook.SetMessages(5, true);
  EXPECT_EQ(Listed(9), (Messages{3, 5}));
  hook.SetMessages(5, false);
  EXPECT_EQ(Listed(9), (Messages{3}));
  hook.SetMessages(5, false);
  hook.SetMessages(4, false);
  EXPECT_EQ(Listed(9), (Messages{3}));
}

TEST_F(HookClassTest, MessagesAreAnyNumberOf32Bits) {
  hook.SetMessages(0, true);
  hook.SetMessages(0xFFFFFFFF, true);
  EXPECT_TRUE(hook.Messages(0));
  EXPECT_TRUE(hook.Messages(0xFFFFFFFF));
  EXPECT_FALSE(hook.Messages(0xFFFF));
}

TEST_F(HookClassTest, OneMessageTooManyIsAnOverflowAndChangesNothing) {
  constexpr std::uint32_t kMost = std::numeric_limits<std::int16_t>::max();
  for (std::uint32_t message = 1; message <= kMost; ++message) hook.SetMessages(message, true);
  EXPECT_EQ(ErrorOf([&] { hook.SetMessages(kMost + 1, true); }), kOverflowError);
  EXPECT_FALSE(hook.Messages(kMost + 1));
  EXPECT_TRUE(hook.Messages(kMost));
  hook.SetMessages(1, false);
  hook.SetMessages(kMost + 1, true);
  EXPECT_TRUE(hook.Messages(kMost + 1));
}

TEST_F(HookClassTest, WritingTheHandleThatItHoldsDoesNothing) {
  const std::int32_t window = Window();
  hook.SethWnd(0);
  hook.SethWnd(window);
  hook.SethWnd(window);
  EXPECT_TRUE(recorder.Shows({"read procedure of 101", "101 gets the replacement"}));
  EXPECT_EQ(hook.hWnd(), window);
  EXPECT_EQ(table.Count(), 1);
}

TEST_F(HookClassTest, WritingAnotherHandleLeavesTheOldWindowFirst) {
  const std::int32_t first = Window();
  const std::int32_t second = Window();
  hook.SethWnd(first);
  recorder.Clear();
  hook.SethWnd(second);
  EXPECT_TRUE(recorder.Shows(
      {"101 gets its own back", "read procedure of 102", "102 gets the replacement"}));
  EXPECT_EQ(hook.hWnd(), second);
  recorder.Clear();
  hook.SethWnd(0);
  EXPECT_TRUE(recorder.Shows({"102 gets its own back"}));
  EXPECT_EQ(hook.hWnd(), 0);
  EXPECT_EQ(table.Count(), 0);
}

TEST_F(HookClassTest, LetsGoOfItsWindowWhenItEnds) {
  const std::int32_t window = Window();
  {
    HookClass ending(table, About());
    ending.SethWnd(window);
    recorder.Clear();
  }
  EXPECT_TRUE(recorder.Shows({"101 gets its own back"}));
  EXPECT_EQ(table.Count(), 0);
  recorder.Clear();
  { HookClass withoutWindow(table, About()); }
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(HookClassTest, CallWndProcAnswersZeroWithoutWindow) {
  EXPECT_EQ(hook.CallWndProc(4103, 1, 2), 0);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(HookClassTest, CallWndProcCallsTheWindowsOwnProcedureWithoutAnEvent) {
  const std::int32_t window = Window();
  Listener listener(*this, "A", {4103});
  listener.SethWnd(window);
  recorder.Clear();
  EXPECT_EQ(listener.CallWndProc(4103, -1, -2), kAnswer);
  EXPECT_TRUE(recorder.Shows({"101 own: 4103 -1 -2"}));
}

TEST_F(HookClassTest, CallWndProcGivesTheLowerHalfOfAWideAnswer) {
  constexpr auto kWide = static_cast<std::intptr_t>(0x700000008LL);
  hook.SethWnd(windows.Open(
      [](std::int32_t, std::uint32_t, std::intptr_t, std::intptr_t) { return kWide; }));
  EXPECT_EQ(hook.CallWndProc(1, 0, 0), 8);
}

TEST_F(HookClassTest, CallWndProcAnswersZeroWhenTheWindowIsWatchedNoMore) {
  const std::int32_t window = Window();
  hook.SethWnd(window);
  windows.Destroy(window);
  recorder.Clear();
  EXPECT_EQ(hook.CallWndProc(4103, 1, 2), 0);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(hook.hWnd(), window);
}

TEST_F(HookClassTest, AWindowThatDoesNotExistDoesNoHarm) {
  hook.SethWnd(999);
  EXPECT_EQ(hook.CallWndProc(4103, 1, 2), 0);
  hook.SethWnd(0);
  EXPECT_TRUE(recorder.Shows({"read procedure of 999", "999 gets the replacement"}));
}

TEST_F(HookClassTest, WithoutAHandlerTheEventGoesNowhere) {
  const std::int32_t window = Window();
  hook.SetMessages(4103, true);
  hook.SethWnd(window);
  recorder.Clear();
  EXPECT_EQ(windows.Send(window, 4103, 5, 6), kAnswer);
  EXPECT_TRUE(recorder.Shows({"101 own: 4103 5 6"}));
}

// A user who reads the about box, does something else, and presses OK.
class AboutReader final : public FormHost {
 public:
  AboutReader(Recorder& recorder, std::function<void()> meanwhile = {})
      : recorder_(recorder), meanwhile_(std::move(meanwhile)) {}

  void ShowModal(Form& form) override {
    auto& about = dynamic_cast<frmAbout&>(form);
    recorder_.Line("show modal " + Quoted(form.Caption()));
    for (const Label* label : {&about.Label1, &about.Label2, &about.Label3})
      recorder_.Line("read " + Quoted(label->Caption()));
    if (meanwhile_) meanwhile_();
    about.cmdOK.SetValue(true);
    recorder_.Line(form.Visible() ? "still there" : "modal showing ends");
  }
  void ShowModeless(Form&) override { recorder_.Line("show"); }
  void Hide(Form&) override { recorder_.Line("hide"); }
  void SetFocus(Form&, Control&) override {}
  void DeleteSystemMenuItem(std::int32_t) override {}
  void Unload(Form&) override { recorder_.Line("unload"); }

 private:
  Recorder& recorder_;
  std::function<void()> meanwhile_;
};

const std::vector<std::string> kAboutShown = {
    "show modal \"About PlinthControls2\"",
    "read \"Tarvenn Software Row Sifter\"",
    "read \"Version 1.00\"",
    "read \"Copyright \u00A9 Tarvenn Software\"",
    "hide",
    "modal showing ends",
    "unload",
};

TEST_F(HookClassTest, AboutBoxIsShownModallyAndReleasedAfterwards) {
  AboutReader reader(recorder);
  HookClass(table, {reader, version}).AboutBox();
  EXPECT_TRUE(recorder.Shows(kAboutShown));
}

TEST_F(HookClassTest, AboutBoxMayOutliveTheHookThatShowsIt) {
  std::optional<HookClass> ending;
  AboutReader reader(recorder, [&] { ending.reset(); });
  ending.emplace(table, AboutServices{reader, version});
  ending->AboutBox();
  EXPECT_TRUE(recorder.Shows(kAboutShown));
}

TEST_F(HookClassTest, OnADesignSurfaceItIsAsLargeAsItsIcon) {
  constexpr HookClass::Extent kIcon = {480, 480};
  EXPECT_EQ(HookClass::SizeFor({9000, 15}), kIcon);
  EXPECT_EQ(HookClass::SizeFor(kIcon), kIcon);
  EXPECT_EQ(HookClass::kIconImage, kIcon);
}

TEST(HookClassMembers, AreDescribedToDesignTools) {
  std::map<std::u16string, std::u16string> described;
  for (const MemberDescription& row : kHookClassMembers)
    described.emplace(row.member, row.description);
  const std::map<std::u16string, std::u16string> expected = {
      {u"Messages", u"Specifies which messages are passed to the WndProc event"},
      {u"hWnd", u"Specifies the handle of the window to be subclassed"},
      {u"CallWndProc", u"Invokes the original window procedure for the subclassed window"},
  };
  EXPECT_EQ(described, expected);
  EXPECT_EQ(kHookClassName, u"RowSifter.HookClass");
}

}  // namespace

}  // namespace sifter
