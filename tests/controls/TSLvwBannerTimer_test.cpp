#include "BannerOnAForm.h"
#include "listmodel/ListMessages.h"

namespace sifter {

namespace {

// When the banner filters again: 50 milliseconds after the first of the rows that the host adds.
class BannerTimer : public BannerOnAForm {};

const char* const kTimerOn = "Timer1.Enabled True";
const char* const kTimerOff = "Timer1.Enabled False";

TEST_F(BannerTimer, IsOffAtFirstAndElapsesAfter50Milliseconds) {
  EXPECT_EQ(control.Timer1.Interval(), 50);
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerTimer, OnlyAnInsertUnderAFilterSwitchesItOn) {
  Attach();
  AddRow(*list, {"Oak 41"});
  list->ListItems()->Remove(1);
  EXPECT_FALSE(control.Timer1.Enabled());
  Filter(u"Oak");
  EXPECT_FALSE(control.Timer1.Enabled());
  list->ListItems()->Remove(1);
  EXPECT_FALSE(control.Timer1.Enabled());
  list->ListItems()->Clear();
  EXPECT_FALSE(control.Timer1.Enabled());
  AddRow(*list, {"Oak 42"});
  EXPECT_TRUE(control.Timer1.Enabled());
}

TEST_F(BannerTimer, ATickFiltersCountsAndSwitchesItOff) {
  AttachAndFilter();
  AddRow(*list, {"Oak 41"});
  AddRow(*list, {"Elm 42"});
  const ListObserverRecorder notices(*list, recorder);
  Tick();
  EXPECT_TRUE(recorder.Shows({kTimerOn, "DeleteItem 13, 14 rows",
                              "lblDisplaying.Caption \"Displaying 13 of 42 Items\"", kTimerOff}));
  recorder.Clear();
  Tick();
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(BannerTimer, NoEventIsRaisedAndNoTextIsRebuilt) {
  AttachAndFilter();
  const Text filter = control.Filter();
  const Text english = control.FilterInPlainEnglish();
  AddRow(*list, {"Elm 41"});
  Tick();
  EXPECT_EQ(Recorded("raise"), 0);
  EXPECT_EQ(Recorded("box"), 0);
  EXPECT_EQ(control.Filter(), filter);
  EXPECT_EQ(control.FilterInPlainEnglish(), english);
  EXPECT_EQ(Face(), (Names{"FilterFull", "Displaying 12 of 41 Items", "List is Filtered"}));
  EXPECT_TRUE(control.Active());
}

TEST_F(BannerTimer, ABurstOfInsertsIsFilteredOnce) {
  AttachAndFilter();
  for (int i = 0; i < 1000; ++i)
    AddRow(*list, {(i % 4 == 0 ? "Oak " : "Elm ") + std::to_string(1000 + i)});
  EXPECT_TRUE(recorder.Shows({kTimerOn}));  // switching it on again starts nothing anew
  const ListObserverRecorder notices(*list, recorder);
  recorder.Clear();
  Tick();
  EXPECT_EQ(Recorded("DeleteItem"), 750);
  EXPECT_EQ(Recorded("lblDisplaying.Caption"), 1);
  EXPECT_EQ(Caption(), u"Displaying 262 of 1040 Items");
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerTimer, ATickWithNothingToDoLeavesItRunning) {
  AttachAndFilter();
  control.Timer1.SetEnabled(true);
  recorder.Clear();
  Tick();
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_TRUE(control.Timer1.Enabled());
}

// The deactivation switches the timer off and leaves it to the next tick to forget the rows.
TEST_F(BannerTimer, WithoutAFilterATickOnlySwitchesItOff) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  control.DeactivateFilter();
  EXPECT_FALSE(control.Timer1.Enabled());
  control.Timer1.SetEnabled(true);
  recorder.Clear();
  Tick();
  EXPECT_TRUE(recorder.Shows({kTimerOff}));
  EXPECT_EQ(list->ListItems()->Count(), 13);
  control.Timer1.SetEnabled(true);
  Tick();
  EXPECT_TRUE(control.Timer1.Enabled());
}

TEST_F(BannerTimer, WithoutAListATickOnlySwitchesItOff) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  control.ReleaseListview();
  control.Timer1.SetEnabled(true);
  recorder.Clear();
  Tick();
  EXPECT_TRUE(recorder.Shows({kTimerOff}));
}

TEST_F(BannerTimer, DetachingSwitchesItOffAndTheRowsWaitForTheNextInsert) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  control.SetListview(nullptr);
  EXPECT_FALSE(control.Timer1.Enabled());
  control.SetListview(list);
  Tick();
  EXPECT_EQ(list->ListItems()->Count(), 13);
  AddRow(*list, {"Elm 42"});
  Tick();
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_EQ(Caption(), u"Displaying 12 of 42 Items");
}

// A foreign list that fails in one of the steps.
TEST_F(BannerTimer, AStepThatFailsIsPassedOverAndTheTimerGoesOff) {
  struct Failure {
    const char* member;
    const char16_t* caption;  // as it was when the counting fails
  };
  const Failure failures[] = {{"ListItems.Item", u"Displaying 13 of 40 Items"},
                              {"ColumnHeaders.Count", u"Displaying 13 of 40 Items"},
                              {"ListItems.Count", u"Displaying 12 of 40 Items"},
                              {"ListView.ListItems", u"Displaying 12 of 40 Items"}};
  for (const Failure& failure : failures) {
    SCOPED_TRACE(failure.member);
    const Ref<MemoryListView> memory = MakeList({"Name", "Qty", "Planted"}, kTrees);
    const MemoryListWindow memoryWindow(windows, *memory);
    const auto foreign = Foreign(memory);
    foreign->RecordNothing();
    control.SetListview(foreign);
    control.DeactivateFilter();
    Filter(u"Oak");
    AddRow(*memory, {"Elm 41"});
    foreign->Lack(failure.member);
    recorder.Clear();
    Tick();
    EXPECT_EQ(recorder.Lines().back(), kTimerOff);
    EXPECT_EQ(Caption(), failure.caption);
    control.Timer1.SetEnabled(true);
    Tick();  // the rows are not waited for any more
    EXPECT_TRUE(control.Timer1.Enabled());
    control.SetListview(nullptr);
  }
}

// The full count is a 16-bit one.
TEST_F(BannerTimer, TooManyRowsToCountLeaveTheCaption) {
  const Ref<MemoryListView> many = MakeList({"Name"});
  for (int i = 0; i < 32767; ++i) AddRow(*many, {i < 5 ? "Oak" : "Elm"});
  const MemoryListWindow manyWindow(windows, *many);
  control.SetListview(many);
  Filter(u"Oak");
  EXPECT_EQ(Caption(), u"Displaying 5 of 32767 Items");
  AddRow(*many, {"Yew"});
  Tick();
  EXPECT_EQ(many->ListItems()->Count(), 5);
  EXPECT_EQ(Caption(), u"Displaying 5 of 32767 Items");
  EXPECT_FALSE(control.Timer1.Enabled());
  control.SetListview(nullptr);
}

// A showing filters again but leaves it to the timer to forget the rows.
TEST_F(BannerTimer, AShowingFiltersAgainAndSoDoesTheNextTickWhileTheDialogIsOpen) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  forms.During([this] {
    EXPECT_EQ(FirstTexts(*list), Oaks());
    EXPECT_EQ(dialog.ListView1->ListItems()->Count(), 41);
    EXPECT_TRUE(control.Timer1.Enabled());
    AddRow(*list, {"Elm 42"});
    recorder.Clear();
    Tick();
    EXPECT_TRUE(recorder.Shows({"lblDisplaying.Caption \"Displaying 12 of 42 Items\"", kTimerOff}));
    EXPECT_EQ(FirstTexts(*list), Oaks());
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 12 of 42 Items");
}

// Half-copied lists would be taken for the host's doing.
TEST_F(BannerTimer, ATickInTheMiddleOfTheDialogsWorkWaits) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  forms.During([this] {
    ListObserverRecorder host(*list, recorder);
    host.DuringTheNext([this](ListMessage, std::intptr_t) { Tick(); });
    dialog.cmdApply.SetValue(true);
  });
  recorder.Clear();
  control.ShowFilter(true);
  EXPECT_EQ(Recorded(kTimerOff), 0);
  EXPECT_EQ(Caption(), u"Displaying 12 of 41 Items");
  Tick();
  EXPECT_EQ(Recorded(kTimerOff), 1);
}

// Rows that the host adds on being told of the ones that go.
TEST_F(BannerTimer, RowsAddedDuringATickAreFilteredByTheNext) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  ListObserverRecorder host(*list, recorder);
  host.DuringTheNext([this](ListMessage, std::intptr_t) { AddRow(*list, {"Elm 42"}); });
  recorder.Clear();
  Tick();
  EXPECT_TRUE(
      recorder.Shows({"DeleteItem 12, 13 rows", "InsertItem 0, 14 rows",
                      "lblDisplaying.Caption \"Displaying 13 of 41 Items\"", kTimerOff, kTimerOn}));
  Tick();
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_EQ(Caption(), u"Displaying 12 of 42 Items");
  EXPECT_FALSE(control.Timer1.Enabled());
}

}  // namespace

}  // namespace sifter
