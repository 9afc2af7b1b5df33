#include "AllocationSpy.h"
#include "HostedBanner.h"

#include <algorithm>

namespace sifter {

namespace {

// The one event that has an argument.
class BannerEvents : public HostedBanner {
 protected:
  BannerEvents() {
    Put(control, L"BannerButtonVisible", true);
    recorder.Clear();
  }

  void PressExtraButton() { SendMessageW(Windows().Extra(), BM_CLICK, 0, 0); }
};

TEST_F(BannerEvents, TheBannersButtonRaisesItWithAnEmptyText) {
  PressExtraButton();
  EXPECT_EQ(recorder.Lines().back(), "event 3 \"\"");
  Call(control, L"ReleaseListview");
  recorder.Clear();
  PressExtraButton();
  for (const std::string& line : recorder.Lines()) EXPECT_NE(line.rfind("event", 0), 0u) << line;
}

TEST_F(BannerEvents, TheDialogsButtonRaisesItToo) {
  Put(control, L"ExtraButtonVisible", true);
  Put(control, L"ExtraButtonCaption", u"Report");
  recorder.Clear();
  Show([&] { dialog.PressesByMessage("Report"); });
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "event 3 \"\""), 1);
}

TEST_F(BannerEvents, ASinkMayPutAnotherTextInItsPlace) {
  Recorder second;
  EventSink other(eventsId, second);
  const Connection connected(control.Get(), eventsId, &other);
  events.onText = [](BSTR& text) { SysReAllocString(&text, L"a much longer text than before"); };
  PressExtraButton();
  EXPECT_EQ(second.Lines().back(), "event 3 \"a much longer text than before\"");
  events.onText = [](BSTR& text) {
    SysFreeString(text);
    text = nullptr;
  };
  PressExtraButton();
  EXPECT_EQ(second.Lines().back(), "event 3 \"\"");
}

TEST_F(BannerEvents, LeaveNoTextBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can't be counted here";
  events.onText = [](BSTR& text) { SysReAllocString(&text, L"longer"); };
  PressExtraButton();
  const AllocationSpy spy;
  for (int i = 0; i < 10; ++i) PressExtraButton();
  EXPECT_EQ(spy.Alive(), 0);
}

TEST_F(BannerEvents, FrozenEventsKeepTheirArguments) {
  const auto oleControl = control.As<IOleControl>();
  EXPECT_EQ(oleControl->FreezeEvents(TRUE), S_OK);
  PressExtraButton();
  Call(control, L"ApplyFilter", {u"Name..11==r2==*?"});
  for (const std::string& line : recorder.Lines()) EXPECT_NE(line.rfind("event", 0), 0u) << line;
  recorder.Clear();
  EXPECT_EQ(oleControl->FreezeEvents(FALSE), S_OK);
  EXPECT_TRUE(recorder.Shows({"event 3 \"\"", "event 1"}));
}

}  // namespace

}  // namespace sifter
