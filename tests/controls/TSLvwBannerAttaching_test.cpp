#include "BannerOnAForm.h"
#include "TalkativeList.h"
#include "support/LifeProbe.h"

namespace sifter {

namespace {

// A second list in a window of its own, 102.
class BannerAttaching : public BannerOnAForm {
 protected:
  std::vector<std::uint32_t> MessagesAskedFor() const {
    std::vector<std::uint32_t> messages;
    for (std::uint32_t message = 0; message <= 0x2000; ++message)
      if (control.LVHook.Messages(message)) messages.push_back(message);
    return messages;
  }

  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Fir"}, {"Oak"}});
  MemoryListWindow otherWindow{windows, *other};
};

using Messages = std::vector<std::uint32_t>;

const char* const kAll = "lblDisplaying.Caption \"Displaying all Items\"";

TEST_F(BannerAttaching, ThereIsNothingAtFirst) {
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  EXPECT_EQ(MessagesAskedFor(), Messages());
}

TEST_F(BannerAttaching, ShowsThatAllIsOnViewAndWatchesTheWindow) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  EXPECT_TRUE(recorder.Shows({kAll, "hWnd", "read procedure of 101", "101 gets the replacement"}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105, 4123, 4124}));
}

// With room for one message more each time, the hook tells which comes next.
TEST_F(BannerAttaching, AsksForTheMessagesInTheirOrder) {
  const Messages order = {4103, 4105, 4104, 4124, 4123};
  constexpr std::uint32_t kFirst = 0x10000;
  for (std::uint32_t i = 0; i < 32767; ++i) control.LVHook.SetMessages(kFirst + i, true);
  for (std::uint32_t room = 0; room < order.size(); ++room) {
    control.SetListview(nullptr);
    EXPECT_EQ(ErrorOf([&] { control.SetListview(list); }), kOverflowError);
    Messages asked;
    for (const std::uint32_t message : order)
      if (control.LVHook.Messages(message)) asked.push_back(message);
    EXPECT_EQ(asked, Messages(order.begin(), order.begin() + static_cast<std::ptrdiff_t>(room)));
    control.LVHook.SetMessages(kFirst + room, false);
  }
}

TEST_F(BannerAttaching, GivesBackTheEmptyFunnelAndLeavesTheToolTip) {
  AttachAndFilter();
  control.SetListview(other);
  EXPECT_TRUE(recorder.Shows({kAll, "cmdFilter.Picture \"FilterEmpty\"", "101 gets its own back",
                              "read procedure of 102", "102 gets the replacement"}));
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all Items", "List is Filtered"}));
  EXPECT_EQ(control.LVHook.hWnd(), 102);
}

TEST_F(BannerAttaching, UsesTheItemWordOfNow) {
  control.SetItemDescription(u"Trees");
  EXPECT_EQ(Caption(), u"Displaying all items");
  control.SetListview(list);
  EXPECT_EQ(Caption(), u"Displaying all Trees");
}

TEST_F(BannerAttaching, TheAttachedListAgainDoesNothing) {
  AttachAndFilter();
  control.LVHook.SetMessages(kDeleteItem, false);
  control.SetListview(list);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4105, 4123, 4124}));
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
}

TEST_F(BannerAttaching, NothingDetachesAndLeavesTheFace) {
  AttachAndFilter();
  AddRow(*list, {"Fir", "1", ""});
  recorder.Clear();
  const Names face = Face();
  control.SetListview(nullptr);
  EXPECT_TRUE(recorder.Shows({"Timer1.Enabled False", "101 gets its own back"}));
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  EXPECT_EQ(Face(), face);
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
  EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 40);
  EXPECT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 12);
}

TEST_F(BannerAttaching, NothingOnNothingDoesNothing) {
  control.SetListview(nullptr);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerAttaching, ReleasingLeavesTheHook) {
  AttachAndFilter();
  AddRow(*list, {"Fir", "1", ""});
  recorder.Clear();
  control.ReleaseListview();
  EXPECT_TRUE(recorder.Shows({"Timer1.Enabled False"}));
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105, 4123, 4124}));
}

TEST_F(BannerAttaching, AReleasedListIsLetGo) {
  int alive = 0;
  auto talkative = MakeRef<TalkativeList>(list);
  talkative->OnRows = [probe = MakeRef<LifeProbe>(alive)] {};
  Ref<HostListView> handed = talkative;
  talkative = nullptr;
  control.SetListview(std::move(handed));
  EXPECT_EQ(alive, 1);
  control.ReleaseListview();
  EXPECT_EQ(alive, 0);
}

TEST_F(BannerAttaching, NoticesOfAReleasedListAreIgnored) {
  for (const bool active : {false, true}) {
    control.SetListview(list);
    if (active) Filter(u"Oak");
    control.ReleaseListview();
    recorder.Clear();
    AddRow(*list, {"Fir", "1", ""});
    list->ListItems()->Remove(1);
    AddColumn(*list, "Height");
    windows.Send(window.Handle(), kDeleteColumn);
    list->ListItems()->Clear();
    EXPECT_TRUE(recorder.Shows({}));
    EXPECT_FALSE(control.Timer1.Enabled());
    EXPECT_EQ(control.Active(), active);
    for (const auto& tree : kTrees) AddRow(*list, tree);
  }
}

TEST_F(BannerAttaching, AReleasedListComesBackWithoutASecondHook) {
  control.SetListview(list);
  control.ReleaseListview();
  recorder.Clear();
  control.SetListview(list);
  EXPECT_TRUE(recorder.Shows({}));
  AddRow(*list, {"Fir", "1", ""});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items");
}

TEST_F(BannerAttaching, AnotherListLeavesTheFilterInForce) {
  AttachAndFilter();
  control.SetListview(other);
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(control.Filter(), u"(Name like '*Oak*')");
}

TEST_F(BannerAttaching, AListWithoutAWindowIsAttachedUnwatched) {
  Attach();
  const Ref<MemoryListView> bare = MakeList({"Name"}, {{"Oak"}});
  control.SetListview(bare);
  EXPECT_EQ(control.Listview(), bare);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  EXPECT_TRUE(recorder.Shows({"101 gets its own back"}));
}

TEST_F(BannerAttaching, AnErrorOfTheHandleComesOutAndTheListStays) {
  const auto foreign = Foreign(list);
  foreign->FailOn("ListView.hWnd", 1, RuntimeError(35602, u"Window is gone"));
  EXPECT_EQ(ErrorOf([&] { control.SetListview(foreign); }), "35602: Window is gone");
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(MessagesAskedFor(), Messages());
}

TEST_F(BannerAttaching, TheHostMayAttachAnotherListOnBeingAskedForTheWindow) {
  const auto talkative = MakeRef<TalkativeList>(list);
  talkative->OnWindow = [this] { control.SetListview(other); };
  control.SetListview(talkative);
  EXPECT_EQ(control.Listview(), other);
  EXPECT_EQ(control.LVHook.hWnd(), 102);
}

TEST_F(BannerAttaching, OnAFormThatIsBeingDesignedWatchesNothingBeforeItRuns) {
  control.SetUserMode(false);
  control.SetListview(list);
  EXPECT_TRUE(recorder.Shows({kAll}));
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  control.SetUserMode(true);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
}

// The pictures, by their keys, and the names that a host's tools see.
TEST_F(BannerAttaching, TheBannerIsMadeOfTheseParts) {
  Names parts;
  for (const Control* part : control.Controls()) parts.push_back(NameOf(*part));
  EXPECT_EQ(parts, (Names{"cmdFilter", "cmdExtraButton", "lblDisplaying", "lblFrame", "Timer1"}));
  for (const char16_t* key : {u"FilterEmpty", u"FilterFull", u"print"})
    EXPECT_EQ(control.ImageList1.Item(key)->Key(), key);
  EXPECT_EQ(control.ImageList1.Item(u"filterempty"), nullptr);
  EXPECT_EQ(control.Timer1.Interval(), 50);
  EXPECT_FALSE(control.Timer1.Enabled());
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all items", ""}));
  EXPECT_EQ(control.cmdExtraButton.Picture(), control.ImageList1.Item(u"print"));
  EXPECT_FALSE(control.cmdExtraButton.Visible());
}

}  // namespace

}  // namespace sifter
