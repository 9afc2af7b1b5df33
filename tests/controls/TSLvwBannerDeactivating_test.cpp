#include "BannerOnAForm.h"

namespace sifter {

namespace {

class BannerDeactivating : public BannerOnAForm {
 protected:
  // What is left of a filter that was in force.
  void ExpectNothingLeft() {
    EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying all Items", "List is not Filtered"}));
    EXPECT_FALSE(control.Active());
    EXPECT_EQ(control.Filter(), u"");
    EXPECT_EQ(control.FilterInPlainEnglish(), u"");
    EXPECT_FALSE(control.Timer1.Enabled());
    EXPECT_TRUE(dialog.AppliedCriteria().empty());
    for (const Ref<ListViewDump>& copy : {dialog.ListView1, dialog.lvwCopyOfFiltered}) {
      EXPECT_EQ(copy->ColumnHeaders()->Count(), 0);
      EXPECT_EQ(copy->ListItems()->Count(), 0);
    }
    EXPECT_EQ(FirstTexts(*list), Oaks()) << "the rows that were taken out don't come back";
  }

  const Names kSteps = {"cmdFilter.Picture \"FilterEmpty\"",
                        "lblDisplaying.Caption \"Displaying all Items\"",
                        "cmdFilter.ToolTipText \"List is not Filtered\""};
};

TEST_F(BannerDeactivating, GoesInOrderAndRaisesNothing) {
  AttachAndFilter();
  control.DeactivateFilter();
  EXPECT_TRUE(recorder.Shows(kSteps));
  ExpectNothingLeft();
}

TEST_F(BannerDeactivating, StopsTheTimerLastAndLeavesTheRowsThatCame) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41", "1", "1/1/2005"});
  recorder.Clear();
  Names atTheTimer;
  struct Watch : ControlWatcher {
    void OnControlAdded(Control&) override {}
    void OnControlRemoved(Control&) override {}
    void OnPropertyChanged(Control& changed, ControlProperty) override { work(changed); }
    std::function<void(Control&)> work;
  } watch;
  watch.work = [&](Control& changed) {
    if (&changed == &control.Timer1)
      atTheTimer = {Quoted(control.Filter()), Shown(Value(control.Active())),
                    std::to_string(dialog.ListView1->ListItems()->Count())};
  };
  control.Watch(&watch);
  control.DeactivateFilter();
  control.Watch(nullptr);
  EXPECT_EQ(atTheTimer, (Names{"\"\"", "True", "0"}));
  EXPECT_FALSE(control.Timer1.Enabled());
  EXPECT_EQ(list->ListItems()->Count(), 13);
}

// The rows that came are still noted: with the next filter in force the first tick looks at them.
TEST_F(BannerDeactivating, LeavesTheNoteOfRowsThatCame) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41", "1", "1/1/2005"});
  control.DeactivateFilter();
  Filter(u"Oak");
  control.Timer1.SetEnabled(true);
  Tick();
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerDeactivating, HappensWithoutAFilterToo) {
  Attach();
  control.DeactivateFilter();
  EXPECT_TRUE(recorder.Shows({"cmdFilter.ToolTipText \"List is not Filtered\""}));
  TSLvwBannerFilter fresh(Services());
  fresh.DeactivateFilter();
  EXPECT_EQ(fresh.lblDisplaying.Caption(), u"Displaying all Items");
}

TEST_F(BannerDeactivating, IsWhatActiveFalseDoesBehindAResetOfTheDefaultDialog) {
  RecordReset(defaultDialog.Get(), "the default dialog");
  AttachAndFilter();
  control.SetActive(false);
  Names expected = {"reset of the default dialog"};
  expected.insert(expected.end(), kSteps.begin(), kSteps.end());
  EXPECT_TRUE(recorder.Shows(expected));
  ExpectNothingLeft();
}

TEST_F(BannerDeactivating, IsWhatANewColumnDoesAndRaisesTheEventOnce) {
  AttachAndFilter();
  AddColumn(*list, "Height");
  Names expected = kSteps;
  expected.push_back("raise FilterDeactivated, Active False, Filter \"\"");
  EXPECT_TRUE(recorder.Shows(expected));
  recorder.Clear();
  AddColumn(*list, "Width");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerDeactivating, IsWhatAColumnThatGoesDoes) {
  AttachAndFilter();
  windows.Send(window.Handle(), kDeleteColumn, 2);
  EXPECT_EQ(recorder.Lines().back(), "raise FilterDeactivated, Active False, Filter \"\"");
  ExpectNothingLeft();
}

TEST_F(BannerDeactivating, ColumnsWithoutAFilterChangeNothing) {
  Attach();
  AddColumn(*list, "Height");
  windows.Send(window.Handle(), kDeleteColumn, 3);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerDeactivating, HidesAnOpenDialogWhoseButtonsThenLoseNoRow) {
  for (const bool apply : {true, false}) {
    Attach();
    Filter(u"Oak");
    forms.During([this, apply] {
      control.DeactivateFilter();
      EXPECT_FALSE(dialog.Visible());
      EXPECT_FALSE(dialog.blnFilterActive);
      (apply ? dialog.cmdApply : dialog.cmdReset).SetValue(true);
      EXPECT_EQ(FirstTexts(*list), Oaks());
    });
    control.ShowFilter(true);
    EXPECT_EQ(FirstTexts(*list), Oaks());
  }
}

TEST_F(BannerDeactivating, HidesAModelessDialogToo) {
  AttachAndFilter();
  control.ShowFilter(false);
  control.DeactivateFilter();
  EXPECT_FALSE(dialog.Visible());
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*list), Oaks());
}

TEST_F(BannerDeactivating, WhileTheDialogRefillsTheListLosesNoRow) {
  AttachAndFilter();
  ListObserverRecorder observer(*list, recorder);
  observer.DuringTheNext([this](ListMessage, std::intptr_t) { control.DeactivateFilter(); });
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), kTrees);
}

TEST_F(BannerDeactivating, ByAColumnThatHandlersAddDoesNotGoRoundInCircles) {
  AttachAndFilter();
  control.FilterDeactivated = [this] {
    recorder.Line("raise FilterDeactivated");
    AddColumn(*list, "Width");
  };
  recorder.Clear();
  AddColumn(*list, "Height");
  Names expected = kSteps;
  expected.push_back("raise FilterDeactivated");
  EXPECT_TRUE(recorder.Shows(expected));
}

}  // namespace

}  // namespace sifter
