#include "SifterOnAForm.h"
#include "TalkativeList.h"
#include "support/LifeProbe.h"
#include "support/MemoryListWindow.h"

namespace sifter {

namespace {

// A list in a window of its own, as a host hands it over.
class SifterListview : public SifterOnAForm {
 protected:
  std::vector<std::uint32_t> MessagesAskedFor() const {
    std::vector<std::uint32_t> messages;
    for (std::uint32_t message = 0; message <= 0x2000; ++message)
      if (control.LVHook.Messages(message)) messages.push_back(message);
    return messages;
  }

  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Fir"}});
  MemoryListWindow window{windows, *list};
  MemoryListWindow otherWindow{windows, *other};
};

using Messages = std::vector<std::uint32_t>;

TEST_F(SifterListview, ThereIsNoneAtFirst) {
  EXPECT_EQ(control.Listview(), nullptr);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
  EXPECT_EQ(MessagesAskedFor(), Messages());
}

TEST_F(SifterListview, ANewOneHasItsWindowWatched) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  EXPECT_TRUE(recorder.Shows({"hWnd", "read procedure of 101", "101 gets the replacement"}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105}));
}

// With room for one message more, and then for another, the hook tells which comes first.
TEST_F(SifterListview, InsertionsAreAskedForFirstThenClearingThenDeletions) {
  constexpr std::uint32_t kFirst = 0x10000;
  for (std::uint32_t message = kFirst; message < kFirst + 32766; ++message)
    control.LVHook.SetMessages(message, true);
  EXPECT_EQ(ErrorOf([&] { control.SetListview(list); }), kOverflowError);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103}));
  control.LVHook.SetMessages(kFirst, false);
  EXPECT_EQ(ErrorOf([&] { control.SetListview(other); }), kOverflowError);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4105}));
}

TEST_F(SifterListview, TheAttachedOneAgainDoesNothing) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  control.LVHook.SetMessages(kDeleteItem, false);
  recorder.Clear();
  control.SetListview(foreign);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4105}));
}

TEST_F(SifterListview, NothingKeepsTheOldOneAttached) {
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  recorder.Clear();
  control.SetListview(nullptr);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
}

TEST_F(SifterListview, AnotherOneTakesTheHookAlong) {
  control.SetListview(list);
  recorder.Clear();
  const auto foreign = Foreign(other);
  control.SetListview(foreign);
  EXPECT_TRUE(recorder.Shows(
      {"hWnd", "101 gets its own back", "read procedure of 102", "102 gets the replacement"}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105}));
}

TEST_F(SifterListview, OneWithoutAWindowIsAttachedUnwatched) {
  control.SetListview(list);
  recorder.Clear();
  const Ref<MemoryListView> bare = MakeList({"Name"});
  control.SetListview(bare);
  EXPECT_TRUE(recorder.Shows({"101 gets its own back"}));
  EXPECT_EQ(control.Listview(), bare);
  EXPECT_EQ(control.LVHook.hWnd(), 0);
}

TEST_F(SifterListview, OneThatLacksTheHandleIsAnErrorAndStaysAttached) {
  control.SetListview(list);
  recorder.Clear();
  const auto foreign = Foreign(other);
  foreign->Lack("ListView.hWnd");
  EXPECT_EQ(ErrorOf([&] { control.SetListview(foreign); }), kMissingMemberError);
  EXPECT_TRUE(recorder.Shows({"hWnd", "raises 438"}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(control.LVHook.hWnd(), 101);
}

TEST_F(SifterListview, AnErrorOfItsHandleComesOutAsItIs) {
  const auto foreign = Foreign(list);
  foreign->FailOn("ListView.hWnd", 1, RuntimeError(35602, u"Window is gone"));
  EXPECT_EQ(ErrorOf([&] { control.SetListview(foreign); }), "35602: Window is gone");
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(MessagesAskedFor(), Messages());
}

TEST_F(SifterListview, RowsThatComeAndGoChangeNothing) {
  control.SetListview(list);
  Filter(u"a");
  const std::string before = DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) +
                             Dump(*dialog.lvwCopyOfFiltered);
  AddRow(*list, {"Fir", "1"});
  list->ListItems()->Remove(1);
  list->ListItems()->Clear();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(DumpForm(dialog) + DumpDialog(dialog) + Dump(*dialog.ListView1) +
                Dump(*dialog.lvwCopyOfFiltered),
            before);
  EXPECT_TRUE(control.Active());
}

TEST_F(SifterListview, OnAFormThatIsBeingDesignedNothingIsWatched) {
  control.SetUserMode(false);
  const auto foreign = Foreign(list);
  control.SetListview(foreign);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(control.Listview(), foreign);
  EXPECT_EQ(MessagesAskedFor(), Messages());
}

TEST_F(SifterListview, WhenTheFormIsRunTheListOfItsDesignIsWatched) {
  control.SetUserMode(false);
  control.SetListview(Foreign(list));
  control.SetUserMode(true);
  EXPECT_TRUE(recorder.Shows({"hWnd", "read procedure of 101", "101 gets the replacement"}));
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105}));
  control.SetUserMode(true);
  EXPECT_EQ(recorder.Lines().size(), 3u);
}

TEST_F(SifterListview, TheHostMayAttachAnotherOneOnBeingAskedForTheHandle) {
  int alive = 0;
  auto talkative = MakeRef<TalkativeList>(list);
  talkative->OnWindow = [this, probe = MakeRef<LifeProbe>(alive)] { control.SetListview(other); };
  Ref<HostListView> handed = talkative;
  talkative = nullptr;
  control.SetListview(std::move(handed));
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(control.Listview(), other);
  EXPECT_EQ(control.LVHook.hWnd(), 102);
  EXPECT_EQ(MessagesAskedFor(), (Messages{4103, 4104, 4105}));
}

TEST_F(SifterListview, TheControlsEndUnloadsTheDialogAndGivesTheWindowItsProcedureBack) {
  std::optional<TSRowSifter> second;
  second.emplace(Services());
  second->SetListview(list);
  const std::size_t controls = second->Dialog().Controls().size();
  recorder.Clear();
  second.reset();
  EXPECT_TRUE(recorder.Shows(
      {"unload with " + std::to_string(controls) + " controls", "101 gets its own back"}));
}

TEST_F(SifterListview, IsNotKeptAliveByAControlThatHasEnded) {
  int alive = 0;
  auto own = MakeRef<TalkativeList>(list);
  own->OnRows = [probe = MakeRef<LifeProbe>(alive)] {};
  std::optional<TSRowSifter> second;
  second.emplace(Services());
  second->SetListview(own);
  own = nullptr;
  EXPECT_EQ(alive, 1);
  second.reset();
  EXPECT_EQ(alive, 0);
}

TEST_F(SifterListview, TwoControlsWatchOneWindowOnce) {
  TSRowSifter second(Services());
  control.SetListview(list);
  second.SetListview(list);
  EXPECT_TRUE(recorder.Shows({"read procedure of 101", "101 gets the replacement"}));
}

}  // namespace

}  // namespace sifter
