#include "ListWatcher.h"
#include "NativeListViewFixture.h"
#include "support/Errors.h"
#include "support/ListObserverRecorder.h"

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// Everything that a host may do to rows and columns, told by what happens meanwhile.
template <class List>
void LiveALife(List& list) {
  AddColumn(list, "a");
  AddColumn(list, "b");
  AddRow(list, {"1", "x"}, "k");
  AddRow(list, {"2", "y"});
  list.ListItems()->Add(1, u"", u"0", Value(), Value());
  AddRow(list, {"3"});
  list.ListItems()->Remove(2);
  ErrorOf([&] { list.ListItems()->Remove(9); });
  ErrorOf([&] { list.ListItems()->Add(9, u"", u"x", Value(), Value()); });
  AddColumn(list, "c");
  list.ListItems()->Clear();
  list.ListItems()->Clear();
  AddRow(list, {"4"});
  list.ColumnHeaders()->Clear();
}

TEST_F(NativeListViewTest, NoticesComeAsThoseOfAListInMemory) {
  const Ref<MemoryListView> memory = MakeRef<MemoryListView>();
  Recorder expected;
  const ListObserverRecorder observer(*memory, expected);
  LiveALife(*memory);
  const ListWatcher watcher(Window(), list, recorder);
  LiveALife(*list);
  EXPECT_TRUE(recorder.Shows(expected.Lines()));
}

TEST_F(NativeListViewTest, ANewRowIsCountedAndARowThatGoesIsStillThere) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  const ListWatcher watcher(Window(), list, recorder);
  AddRow(*list, {"3"});
  list->ListItems()->Remove(1);
  list->ListItems()->Clear();
  EXPECT_TRUE(
      recorder.Shows({"InsertItem 0, 3 rows", "DeleteItem 0, 3 rows", "DeleteAllItems 0, 2 rows"}));
}

TEST_F(NativeListViewTest, AWatcherMayTakeTheNewRowOutAgain) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Remove(3); });
  const Ref<ListItem> row = AddRow(*list, {"3"});
  EXPECT_EQ(row->Index(), Value(0));
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, AWatcherMayAddRowsInFrontOfAndBehindTheNewOne) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    list->ListItems()->Add(1, u"", u"front", Value(), Value());
    AddRow(*list, {"behind"});
  });
  list->ListItems()->Add(2, u"", u"new", Value(), Value());
  EXPECT_EQ(FirstTexts(*list), (Strings{"front", "1", "new", "2", "behind"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, AWatcherMayClearTheListWhileARowIsAdded) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Clear(); });
  AddRow(*list, {"3"});
  ExpectShown();
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(NativeListViewTest, TheAnnouncedRowGoesThoughOthersMoveMeanwhile) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}, {"4"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    list->ListItems()->Remove(1);
    list->ListItems()->Add(1, u"", u"x", Value(), Value());
    list->ListItems()->Add(1, u"", u"y", Value(), Value());
  });
  list->ListItems()->Remove(3);
  EXPECT_EQ(FirstTexts(*list), (Strings{"y", "x", "2", "4"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, ARowThatAWatcherTookOutItselfIsGoneAndThatIsAll) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Remove(2); });
  list->ListItems()->Remove(2);
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "3"}));
  ExpectShown();
}

// Its item is being put in already when the watcher sees the message.
TEST_F(NativeListViewTest, AWatcherMayMarkTheNewRow) {
  Fill(*list, {"a"}, {{"1"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    Row(2)->SetGhosted(true);
    Row(2)->SetChecked(true);
  });
  AddRow(*list, {"2"});
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kCut), listview::kCut);
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kStateImageMask), listview::kCheckedImage);
}

TEST_F(NativeListViewTest, AWatcherMaySortWhileARowIsAdded) {
  Fill(*list, {"a"}, {{"3"}, {"1"}});
  Row(1)->SetGhosted(true);
  Row(2)->SetChecked(true);
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->SetSorted(true); });
  AddRow(*list, {"2"});
  EXPECT_EQ(form.ShownTexts(), (TextRows{{"1"}, {"2"}, {"3"}}));
  std::vector<UINT> marks;
  for (int item = 0; item < 3; ++item)
    marks.push_back(
        listview::ItemState(Window(), item, listview::kCut | listview::kStateImageMask));
  EXPECT_EQ(marks, (std::vector<UINT>{listview::kCheckedImage, listview::kUncheckedImage,
                                      listview::kUncheckedImage | listview::kCut}));
}

TEST_F(NativeListViewTest, TheWindowMayGoWhileARowIsAnnounced) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  {
    ListWatcher watcher(Window(), list, recorder);
    watcher.DuringTheNext([&] { DestroyWindow(Window()); });
    AddRow(*list, {"3"});
  }
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2", "3"}));
  EXPECT_EQ(list->hWnd(), 0);
}

}  // namespace

}  // namespace sifter
