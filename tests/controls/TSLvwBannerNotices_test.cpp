#include "BannerOnAForm.h"
#include "listmodel/ListMessages.h"

namespace sifter {

namespace {

// What the banner shows as its list changes. The list's notices are recorded behind what the banner
// makes of them, with the number of rows at that moment.
class BannerNotices : public BannerOnAForm {
 protected:
  Ref<ListItemCollection> Rows() const { return list->ListItems(); }

  // The counts of the two copies: rows that passed, all rows.
  Names Copies() {
    return {std::to_string(dialog.lvwCopyOfFiltered->ListItems()->Count()),
            std::to_string(dialog.ListView1->ListItems()->Count())};
  }

  ListObserverRecorder notices{*list, recorder};
};

TEST_F(BannerNotices, AnInsertedRowIsCounted) {
  Attach();
  AddRow(*list, {"Oak 41"});
  EXPECT_TRUE(recorder.Shows(
      {"lblDisplaying.Caption \"Displaying 41 of 41 Items\"", "InsertItem 0, 41 rows"}));
  EXPECT_FALSE(control.Timer1.Enabled());
}

TEST_F(BannerNotices, ARowThatIsGoingIsNotCountedAnyMore) {
  Attach();
  Rows()->Remove(7);
  EXPECT_TRUE(recorder.Shows(
      {"lblDisplaying.Caption \"Displaying 39 of 39 Items\"", "DeleteItem 6, 40 rows"}));
}

TEST_F(BannerNotices, AClearedListHasNoRows) {
  Attach();
  Rows()->Clear();
  EXPECT_TRUE(recorder.Shows(
      {"lblDisplaying.Caption \"Displaying 0 of 0 Items\"", "DeleteAllItems 0, 40 rows"}));
}

TEST_F(BannerNotices, FewRowsAreCountedFromTheFirstOn) {
  const Ref<MemoryListView> few = MakeList({"Name"});
  const MemoryListWindow fewWindow(windows, *few);
  control.SetListview(few);
  Names captions;
  const auto note = [&] { captions.push_back(Caption().ToUtf8()); };
  for (int i = 0; i < 5; ++i) AddRow(*few, {"Oak"});
  note();
  few->ListItems()->Remove(5);
  note();
  few->ListItems()->Clear();
  note();
  AddRow(*few, {"Oak"});
  note();
  few->ListItems()->Remove(1);
  note();
  EXPECT_EQ(captions,
            (Names{"Displaying 5 of 5 Items", "Displaying 4 of 4 Items", "Displaying 0 of 0 Items",
                   "Displaying 1 of 1 Items", "Displaying 0 of 0 Items"}));
  control.SetListview(nullptr);
}

TEST_F(BannerNotices, TheCaptionHasTheWordForTheRows) {
  Attach();
  control.SetItemDescription(u"Trees");
  EXPECT_EQ(Caption(), u"Displaying all Items");
  AddRow(*list, {"Oak 41"});
  EXPECT_EQ(Caption(), u"Displaying 41 of 41 Trees");
}

TEST_F(BannerNotices, UnderAFilterAnInsertWaitsForTheTimer) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  EXPECT_TRUE(recorder.Shows({"Timer1.Enabled True", "InsertItem 0, 13 rows"}));
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  EXPECT_EQ(list->ListItems()->Count(), 13);
  EXPECT_EQ(Copies(), (Names{"12", "40"}));
}

TEST_F(BannerNotices, UnderAFilterADeletedRowLeavesBothCopies) {
  AttachAndFilter();
  Rows()->Remove(2);
  EXPECT_TRUE(recorder.Shows(
      {"lblDisplaying.Caption \"Displaying 11 of 39 Items\"", "DeleteItem 1, 12 rows"}));
  EXPECT_EQ(Copies(), (Names{"11", "39"}));
  UserResets();
  control.ShowFilter(true);
  TextRows left = kTrees;
  left.erase(left.begin() + 3);  // Oak 4
  EXPECT_EQ(Texts(*list), left);
  EXPECT_EQ(Caption(), u"Displaying 39 of 39 Items");
}

TEST_F(BannerNotices, KeyAndTagTellTheDeletedRowFromItsLikes) {
  for (const char* key : {"a", "b", "c"}) AddRow(*list, {"Oak", "1", "1/1/2006"}, key);
  for (const std::int32_t i : {41, 42, 43}) Rows()->Item(i)->SetTag(i);
  Rows()->Item(42)->ListSubItems()->Item(1)->SetTag(u"cell");
  Rows()->Item(42)->ListSubItems()->Item(2)->SetKey(u"cell");
  AttachAndFilter();
  Rows()->Remove(u"b");
  EXPECT_EQ(Caption(), u"Displaying 14 of 42 Items");
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Rows()->Count(), 42);
  EXPECT_EQ(Rows()->Item(u"a")->Tag(), Value(u"41"));
  EXPECT_EQ(Rows()->Item(u"c")->Tag(), Value(u"43"));
  EXPECT_EQ(ErrorOf([&] { Rows()->Item(u"b"); }), kBadKeyError);
}

TEST_F(BannerNotices, ARowWithAllThatItMayHaveIsFoundToo) {
  const Ref<ListItem> row = Rows()->Item(1);
  row->SetIcon(1);
  row->SetSmallIcon(u"small");
  row->SetToolTipText(u"tip");
  row->SetForeColor(255);
  row->ListSubItems()->Item(1)->SetReportIcon(2);
  AttachAndFilter();
  Rows()->Remove(1);
  EXPECT_EQ(Caption(), u"Displaying 11 of 39 Items");
}

TEST_F(BannerNotices, TheFirstParameterIsTheRowsPositionFromZero) {
  AttachAndFilter();
  windows.Send(window.Handle(), kDeleteItem, 11);
  EXPECT_EQ(Caption(), u"Displaying 11 of 39 Items");
  Names left = Oaks();
  left.pop_back();
  EXPECT_EQ(FirstTexts(*dialog.lvwCopyOfFiltered), left);
}

TEST_F(BannerNotices, APositionThatIsNotThereChangesNothing) {
  AttachAndFilter();
  windows.Send(window.Handle(), kDeleteItem, 12);
  windows.Send(window.Handle(), kDeleteItem, -1);
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(Copies(), (Names{"12", "40"}));
}

// It is in neither copy yet.
TEST_F(BannerNotices, ANewRowThatGoesBeforeTheTimerIsNotMissed) {
  AttachAndFilter();
  AddRow(*list, {"Oak 41"});
  Rows()->Remove(13);
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  EXPECT_EQ(Copies(), (Names{"12", "40"}));
}

TEST_F(BannerNotices, UnderAFilterAClearedListKeepsTheFullCount) {
  AttachAndFilter();
  Rows()->Clear();
  EXPECT_TRUE(recorder.Shows(
      {"lblDisplaying.Caption \"Displaying 0 of 40 Items\"", "DeleteAllItems 0, 12 rows"}));
  EXPECT_EQ(Copies(), (Names{"12", "40"}));
  EXPECT_FALSE(control.Timer1.Enabled());
}

// Rows that came since the last filtering are taken over, though they are going: the list shows
// them still.
TEST_F(BannerNotices, AClearedListIsFollowedButNotFilteredAgain) {
  AttachAndFilter();
  AddRow(*list, {"Elm 41"});
  Rows()->Clear();
  EXPECT_EQ(Caption(), u"Displaying 0 of 41 Items");
  EXPECT_EQ(Copies(), (Names{"13", "41"}));
}

TEST_F(BannerNotices, NothingIsMadeOfThemWhileTheDialogIsShown) {
  Attach();
  forms.During([this] {
    recorder.Clear();
    AddRow(*list, {"Oak 41"});
    Rows()->Remove(3);
    Rows()->Clear();
    EXPECT_TRUE(recorder.Shows(
        {"InsertItem 0, 41 rows", "DeleteItem 2, 41 rows", "DeleteAllItems 0, 40 rows"}));
    EXPECT_FALSE(control.Timer1.Enabled());
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 0 of 40 Items");
}

TEST_F(BannerNotices, TheSameUnderAFilter) {
  AttachAndFilter();
  forms.During([this] {
    recorder.Clear();
    AddRow(*list, {"Oak 41"});
    Rows()->Remove(1);
    EXPECT_TRUE(recorder.Shows({"InsertItem 0, 13 rows", "DeleteItem 0, 13 rows"}));
    EXPECT_EQ(Copies(), (Names{"12", "40"}));
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
}

TEST_F(BannerNotices, TheDialogsOwnWorkChangesNoCaption) {
  Attach();
  const auto captions = [this] {
    Names lines;
    for (const std::string& line : recorder.Lines())
      if (line.starts_with("lblDisplaying") || line.starts_with("Timer1")) lines.push_back(line);
    recorder.Clear();
    return lines;
  };
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_EQ(captions(), (Names{"lblDisplaying.Caption \"Displaying 12 of 40 Items\""}));
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(captions(), (Names{"lblDisplaying.Caption \"Displaying 40 of 40 Items\""}));
}

TEST_F(BannerNotices, AListThatWasLetGoOfIsNotListenedTo) {
  AttachAndFilter();
  control.ReleaseListview();
  EXPECT_EQ(control.LVHook.hWnd(), window.Handle());
  recorder.Clear();
  AddRow(*list, {"Oak 41"});
  Rows()->Remove(1);
  AddColumn(*list, "More");
  Rows()->Clear();
  EXPECT_TRUE(recorder.Shows({"InsertItem 0, 13 rows", "DeleteItem 0, 13 rows",
                              "InsertColumn 3, 4 columns", "DeleteAllItems 0, 12 rows"}));
  EXPECT_TRUE(control.Active());
  EXPECT_EQ(Copies(), (Names{"12", "40"}));
}

// A notice has no caller who could deal with it.
TEST_F(BannerNotices, AnErrorOfTheListGoesNowhere) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  control.SetListview(foreign);
  foreign->Lack("ListItems.Count");
  recorder.Clear();
  AddRow(*list, {"Oak 41"});
  Rows()->Remove(1);
  EXPECT_TRUE(recorder.Shows({"InsertItem 0, 41 rows", "DeleteItem 0, 41 rows"}));
  EXPECT_EQ(Caption(), u"Displaying all Items");
}

}  // namespace

}  // namespace sifter
