#include "BannerOnAForm.h"
#include "TalkativeList.h"
#include "support/LifeProbe.h"

#include <functional>
#include <utility>

namespace sifter {
namespace {

// A host that is told of a row on its way out of the list, once.
class OnceARowGoes final : public ListObserver {
 public:
  OnceARowGoes(MemoryListView& list, std::function<void()> work)
      : list_(list), work_(std::move(work)) {
    list_.AddObserver(this);
  }
  ~OnceARowGoes() override { list_.RemoveObserver(this); }
  OnceARowGoes(const OnceARowGoes&) = delete;
  OnceARowGoes& operator=(const OnceARowGoes&) = delete;

  void OnListMessage(ListMessage message, std::intptr_t, std::intptr_t) override {
    const std::function<void()> work = message == kDeleteItem ? std::exchange(work_, {}) : nullptr;
    if (work) work();
  }

 private:
  MemoryListView& list_;
  std::function<void()> work_;
};

class BannerInterference : public BannerOnAForm {
 protected:
  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Ash"}, {"Elm"}});
  MemoryListWindow otherWindow{windows, *other};
};

TEST_F(BannerInterference, OverAnotherListTheTimerEndsWithItsTick) {
  AttachAndFilter();
  control.SetListview(other);
  AddRow(*other, {"Fir"});
  ASSERT_TRUE(control.Timer1.Enabled());
  Tick();
  EXPECT_FALSE(control.Timer1.Enabled());
  EXPECT_EQ(FirstTexts(*other), (Names{"Ash", "Elm", "Fir"}));
}

TEST_F(BannerInterference, NeitherAClearNorAnotherListStopsTheTimer) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  list->ListItems()->Clear();
  EXPECT_TRUE(control.Timer1.Enabled());
  control.SetListview(other);
  EXPECT_TRUE(control.Timer1.Enabled());
}

TEST_F(BannerInterference, ARowOfAnotherListIsNoneOfTheFilteredOnes) {
  AttachAndFilter();
  const Ref<MemoryListView> alike = MakeList({"Name", "Qty", "Planted"}, {kTrees[0], kTrees[1]});
  const MemoryListWindow alikeWindow(windows, *alike);
  control.SetListview(alike);
  alike->ListItems()->Remove(1);
  control.SetListview(list);
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerInterference, ARowThatCannotBeGoesNowhere) {
  AttachAndFilter();
  for (const std::intptr_t position : {std::intptr_t{0x7FFFFFFF}, std::intptr_t{-1}})
    windows.Send(list->hWnd(), kDeleteItem, position);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 40);
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
}

TEST_F(BannerInterference, AStartThatIsBrokenOffLeavesNoForeignCopyBehind) {
  AttachAndFilter();
  const auto talkative = MakeRef<TalkativeList>(other);
  control.SetListview(talkative);
  int asked = 0;
  talkative->OnRows = [&] {
    if (++asked == 3) control.SetListview(list);  // its rows are on their way into the copy
  };
  control.ShowFilter(true);
  EXPECT_GE(asked, 3);
  EXPECT_FALSE(dialog.Visible());
  EXPECT_EQ(dialog.UsersListview, nullptr);
  const TextRows before = Texts(*list);
  Filter(u"Oak");
  EXPECT_EQ(Texts(*list), before);
  EXPECT_EQ(Caption(), u"Displaying 12 of 12 Items");
}

TEST_F(BannerInterference, AColumnThatComesWhileTheTimerFiltersEndsTheFilter) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41", "1", "1/1/2005"});
  const OnceARowGoes host(*list, [&] { AddColumn(*list, "Height"); });
  Tick();
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(Recorded("raise FilterDeactivated"), 1);
  EXPECT_EQ(Recorded("box"), 0);
  EXPECT_EQ(Caption(), u"Displaying all Items");
}

TEST_F(BannerInterference, ADeactivationWhileTheTimerFiltersHasTheLastWord) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41", "1", "1/1/2005"});
  const OnceARowGoes host(*list, [&] { control.DeactivateFilter(); });
  Tick();
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all Items", "List is not Filtered"}));
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerInterference, NothingIsRaisedBehindTheEnd) {
  Attach();
  const OnceARowGoes host(*list, [&] { control.Terminate(); });
  control.ApplyFilter(u"Name..11==Oak2==*?");
  control.ApplyFilter(u"Name..11==Elm2==*?");
  control.ApplyFilter(u"unreadable");
  EXPECT_EQ(Recorded("raise"), 0);
  EXPECT_EQ(dialog.UsersListview, nullptr);
}

TEST_F(BannerInterference, TheEndUnderTheOpenDialogLeavesNothingBusy) {
  Attach();
  forms.During([this] {
    control.Terminate();
    control.Revive();
  });
  control.ShowFilter(true);
  EXPECT_EQ(Recorded("raise"), 0);
  EXPECT_EQ(dialog.UsersListview, nullptr);
  control.SetListview(list);
  AddRow(*list, {"Elm 41"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items");
}

TEST_F(BannerInterference, TheEndOfAModelessShowingLeavesNothingBusy) {
  Attach();
  control.ShowFilter(false);
  control.Terminate();
  EXPECT_EQ(dialog.UsersListview, nullptr);
  control.Revive();
  control.SetListview(list);
  AddRow(*list, {"Elm 41"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Items");
}

TEST_F(BannerInterference, AHandlerMayPutAnotherInItsPlace) {
  AttachAndFilter();
  int alive = 0;
  std::vector<int> seen;
  const auto handler = [&](auto& event) {
    event = [&, probe = MakeRef<LifeProbe>(alive)](auto&&...) {
      event = nullptr;
      seen.push_back(alive);
    };
  };
  handler(control.SettingChanged);
  handler(control.FilterDeactivated);
  AddColumn(*list, "Height");
  handler(control.ExtraButtonClicked);
  control.cmdExtraButton.SetValue(true);
  handler(control.PropertyChanged);
  control.SetExtraButtonVisible(true);
  EXPECT_EQ(seen, (std::vector<int>{2, 1, 1, 1}));
  EXPECT_EQ(alive, 0);
}

TEST_F(BannerInterference, AHandlerMayShowTheDialogBesideTheList) {
  Attach();
  control.FilterActivated = [this] { control.ShowFilter(false); };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  ASSERT_TRUE(dialog.Visible());
  dialog.cmdApply.SetValue(true);
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_EQ(Recorded("box"), 0);
}

// The filter is applied and the event raised before the focus is given, and everything behind an
// error is left out: hosts that refuse the focus have always been told twice.
TEST_F(BannerInterference, AListThatRefusesTheFocusHearsOfTheFilterTwice) {
  const auto talkative = MakeRef<TalkativeList>(list);
  talkative->OnFocus = [] { throw RuntimeError(ErrorNumber::kInvalidProcedureCall); };
  control.SetListview(talkative);
  recorder.Clear();
  control.ApplyFilter(u"Name..11==Oak2==*?");
  EXPECT_EQ(Recorded("raise FilterActivated"), 2);
  EXPECT_EQ(control.Filter(), u"");
  EXPECT_TRUE(control.Active());
}

// Sees how many rows the full copy has whenever a property of the banner changes.
class CopyWatcher final : public ControlWatcher {
 public:
  CopyWatcher(frmFilter& dialog, Recorder& recorder) : dialog_(dialog), recorder_(recorder) {}
  void OnControlAdded(Control&) override {}
  void OnControlRemoved(Control&) override {}
  void OnPropertyChanged(Control& control, ControlProperty) override {
    recorder_.Line(control.Name().ToUtf8() + ", " +
                   std::to_string(dialog_.ListView1->ListItems()->Count()) + " rows");
  }

 private:
  frmFilter& dialog_;
  Recorder& recorder_;
};

TEST_F(BannerInterference, ADeactivationEmptiesTheCopiesBehindTheFaceAndBeforeTheTimer) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  CopyWatcher copies(dialog, recorder);
  control.Watch(&copies);
  recorder.Clear();
  control.DeactivateFilter();
  EXPECT_TRUE(recorder.Shows(
      {"cmdFilter, 40 rows", "lblDisplaying, 40 rows", "cmdFilter, 40 rows", "Timer1, 0 rows"}));
}

}  // namespace
}  // namespace sifter
