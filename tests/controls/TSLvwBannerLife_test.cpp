#include "BannerOnAForm.h"
#include "TalkativeList.h"

#include <memory>

namespace sifter {

namespace {

// Whoever owns the control may end it, and place it anew.
class BannerLife : public BannerOnAForm {
 protected:
  // A banner of which this is the only reference. Each of its notices is recorded, holds on to it,
  // and says at its end whether the banner would be gone without that.
  std::shared_ptr<TSLvwBannerFilter> NewBanner() {
    const auto banner = std::make_shared<TSLvwBannerFilter>(Services());
    banner->RunNotice = [this, weak = std::weak_ptr(banner)](const std::function<void()>& work) {
      const std::shared_ptr<TSLvwBannerFilter> alive = weak.lock();
      recorder.Line("notice");
      work();
      recorder.Line(alive.use_count() == 1 ? "ends with the banner" : "ends");
    };
    return banner;
  }
};

TEST_F(BannerLife, WhatTheListTellsIsRunByTheOwner) {
  const auto banner = NewBanner();
  banner->SetListview(list);
  recorder.Clear();
  AddRow(*list, {"Fir 41", "1", "1/1/2005"});
  list->ClickColumn(1);
  EXPECT_TRUE(recorder.Shows({"notice", "ends", "notice", "ends"}));
  EXPECT_EQ(list->Sorted(), Value(true));
  recorder.Clear();
  banner->ApplyFilter(u"Name..11==Oak2==*?");
  EXPECT_TRUE(banner->Active());
  banner->SetListview(nullptr);
  // The list is cleared, its 41 rows are put back, and 29 of them taken out again.
  EXPECT_EQ(std::count(recorder.Lines().begin(), recorder.Lines().end(), "notice"), 1 + 41 + 29);
}

TEST_F(BannerLife, AnErrorInANoticeEndsThere) {
  const auto banner = NewBanner();
  const auto talkative = MakeRef<TalkativeList>(list);
  banner->SetListview(talkative);
  recorder.Clear();
  talkative->OnRows = [] { throw RuntimeError(ErrorNumber::kInvalidProcedureCall); };
  AddRow(*list, {"Fir 41", "1", "1/1/2005"});
  EXPECT_TRUE(recorder.Shows({"notice", "ends"}));
  talkative->OnRows = nullptr;
  banner->SetListview(nullptr);
}

TEST_F(BannerLife, AListThatIsAskedInANoticeMayEndTheControl) {
  auto banner = NewBanner();
  const auto talkative = MakeRef<TalkativeList>(list);
  banner->SetListview(talkative);
  recorder.Clear();
  talkative->OnRows = [&] {
    talkative->OnRows = nullptr;
    banner.reset();
  };
  AddRow(*list, {"Fir 41", "1", "1/1/2005"});
  EXPECT_TRUE(recorder.Shows(
      {"notice", "ends with the banner", "101 gets its own back", "unload with 15 controls"}));
  recorder.Clear();
  AddRow(*list, {"Fir 42", "1", "1/1/2005"});
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerLife, AHandlerInANoticeMayEndTheControl) {
  auto banner = NewBanner();
  banner->SetListview(list);
  banner->ApplyFilter(u"Name..11==Oak2==*?");
  ASSERT_TRUE(banner->Active());
  banner->FilterDeactivated = [&] { banner.reset(); };
  recorder.Clear();
  AddColumn(*list, "Height");
  EXPECT_TRUE(recorder.Shows(
      {"notice", "ends with the banner", "101 gets its own back", "unload with 31 controls"}));
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerLife, AControlThatIsPlacedAnewWorksAsAtFirst) {
  AttachAndFilter();
  control.Terminate();
  control.Revive();
  EXPECT_EQ(control.Listview(), nullptr);
  control.SetListview(list);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all Items", "List is Filtered"}));
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees) << "the rows that the filter had taken out";
  Filter(u"Elm");
  EXPECT_EQ(Face(), (Names{"FilterFull", "Displaying 28 of 40 Items", "List is Filtered"}));
  EXPECT_TRUE(control.Active());
  AddRow(*list, {"Oak 41", "1", "1/1/2005"});
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 28 of 41 Items");
}

TEST_F(BannerLife, OnAFormThatIsBeingDesignedTheButtonsAreDead) {
  Attach();
  control.SetUserMode(false);
  recorder.Clear();
  control.cmdFilter.SetValue(true);
  control.cmdExtraButton.SetValue(true);
  EXPECT_TRUE(recorder.Shows({}));
  control.SetUserMode(true);
  recorder.Clear();
  control.cmdExtraButton.SetValue(true);
  EXPECT_TRUE(recorder.Shows({"raise ExtraButtonClicked \"\""}));
}

}  // namespace

}  // namespace sifter
