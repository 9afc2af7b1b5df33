#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

static_assert(kInsertItem == 4103 && kDeleteItem == 4104 && kDeleteAllItems == 4105 &&
                  kInsertColumn == 4123 && kDeleteColumn == 4124,
              "the numbers by which the windows of list views know these messages");

class MemoryListNoticesTest : public testing::Test {
 protected:
  Recorder recorder;
  Ref<MemoryListView> list = MakeList({"a", "b"}, {{"1"}, {"2"}, {"3"}, {"4"}});
  ListObserverRecorder observer{*list, recorder};
};

TEST_F(MemoryListNoticesTest, ANewRowIsCountedAlready) {
  AddRow(*list, {"5"});
  list->ListItems()->Add(1, u"k", u"0", Value(), Value());
  EXPECT_TRUE(recorder.Shows({"InsertItem 0, 5 rows", "InsertItem 0, 6 rows"}));
}

TEST_F(MemoryListNoticesTest, ANewRowIsThereToBeRead) {
  Strings seen;
  observer.During([&](ListMessage, std::intptr_t) {
    seen.push_back(ValueToText(list->ListItems()->Item(u"k")->Text()).ToUtf8());
  });
  list->ListItems()->Add(2, u"k", u"new", Value(), Value());
  EXPECT_EQ(seen, (Strings{"new"}));
}

TEST_F(MemoryListNoticesTest, ARowThatGoesIsStillThere) {
  Strings seen;
  observer.During([&](ListMessage, std::intptr_t wParam) {
    const Value text = list->ListItems()->Item(static_cast<std::int32_t>(wParam) + 1)->Text();
    seen.push_back(ValueToText(text).ToUtf8());
  });
  list->ListItems()->Remove(4);
  list->ListItems()->Remove(1);
  EXPECT_TRUE(recorder.Shows({"DeleteItem 3, 4 rows", "DeleteItem 0, 3 rows"}));
  EXPECT_EQ(seen, (Strings{"4", "1"}));
  EXPECT_EQ(FirstTexts(*list), (Strings{"2", "3"}));
}

TEST_F(MemoryListNoticesTest, ClearIsOneNoticeWithAllRowsStillThere) {
  list->ListItems()->Clear();
  EXPECT_TRUE(recorder.Shows({"DeleteAllItems 0, 4 rows"}));
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(MemoryListNoticesTest, ClearOfAnEmptyListIsANoticeToo) {
  list->ListItems()->Clear();
  recorder.Clear();
  list->ListItems()->Clear();
  EXPECT_TRUE(recorder.Shows({"DeleteAllItems 0, 0 rows"}));
}

TEST_F(MemoryListNoticesTest, ColumnsAnnounceTheirComingAndGoing) {
  AddColumn(*list, "c");
  list->ColumnHeaders()->Add(1, u"", u"front", 0, 0, Value());
  list->ColumnHeaders()->Clear();
  EXPECT_TRUE(recorder.Shows({
      "InsertColumn 2, 3 columns",
      "InsertColumn 0, 4 columns",
      "DeleteColumn 3, 4 columns",
      "DeleteColumn 2, 3 columns",
      "DeleteColumn 1, 2 columns",
      "DeleteColumn 0, 1 columns",
  }));
}

TEST_F(MemoryListNoticesTest, WhatFailsOrChangesNoRowsIsNotAnnounced) {
  ErrorOf([&] { list->ListItems()->Remove(5); });
  ErrorOf([&] { list->ListItems()->Remove(u"none"); });
  ErrorOf([&] { list->ListItems()->Add(9, u"", u"x", Value(), Value()); });
  AddRow(*list, {"5"}, "k");
  recorder.Clear();
  ErrorOf([&] { AddRow(*list, {"6"}, "k"); });
  list->ListItems()->Item(1)->SetText(u"x");
  list->SetSorted(true);
  list->SetSortOrder(1);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(MemoryListNoticesTest, AllObserversAreToldInTheOrderInWhichTheyCame) {
  Recorder both;
  ListObserverRecorder first(*list, both);
  ListObserverRecorder second(*list, both);
  first.During([&](ListMessage, std::intptr_t) { both.Line("first"); });
  second.During([&](ListMessage, std::intptr_t) { both.Line("second"); });
  AddRow(*list, {"5"});
  EXPECT_TRUE(both.Shows({"InsertItem 0, 5 rows", "first", "InsertItem 0, 5 rows", "second"}));
}

TEST_F(MemoryListNoticesTest, AnObserverMayAddRowsMeanwhile) {
  observer.During([&](ListMessage, std::intptr_t) {
    if (list->ListItems()->Count() < 7) AddRow(*list, {"echo"});
  });
  const Ref<ListItem> row = AddRow(*list, {"5"});
  EXPECT_TRUE(
      recorder.Shows({"InsertItem 0, 5 rows", "InsertItem 0, 6 rows", "InsertItem 0, 7 rows"}));
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2", "3", "4", "5", "echo", "echo"}));
  EXPECT_EQ(row->Index(), Value(5));
}

TEST_F(MemoryListNoticesTest, ARowMayBeTakenOutAgainWhileItIsAnnounced) {
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { list->ListItems()->Clear(); });
  const Ref<ListItem> row = AddRow(*list, {"5", "x"});
  EXPECT_TRUE(recorder.Shows({"InsertItem 0, 5 rows", "DeleteAllItems 0, 5 rows"}));
  EXPECT_EQ(row->Index(), Value(0));
  EXPECT_EQ(row->SubItems(1), Value(u"x"));
}

TEST_F(MemoryListNoticesTest, TheAnnouncedRowGoesThoughOthersMoveMeanwhile) {
  const Ref<ListItem> going = list->ListItems()->Item(3);
  observer.DuringTheNext([&](ListMessage, std::intptr_t) {
    list->ListItems()->Remove(1);
    list->ListItems()->Add(1, u"", u"x", Value(), Value());
    list->ListItems()->Add(1, u"", u"y", Value(), Value());
  });
  list->ListItems()->Remove(3);
  EXPECT_EQ(going->Index(), Value(0));
  EXPECT_EQ(FirstTexts(*list), (Strings{"y", "x", "2", "4"}));
}

TEST_F(MemoryListNoticesTest, ARowThatAnObserverTookOutItselfIsGoneAndThatIsAll) {
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { list->ListItems()->Remove(2); });
  EXPECT_EQ(ErrorOf([&] { list->ListItems()->Remove(2); }), "nothing");
  EXPECT_TRUE(recorder.Shows({"DeleteItem 1, 4 rows", "DeleteItem 1, 4 rows"}));
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "3", "4"}));
}

TEST_F(MemoryListNoticesTest, ClearTakesTheRowsAlongThatCameMeanwhile) {
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { AddRow(*list, {"late"}); });
  list->ListItems()->Clear();
  EXPECT_TRUE(recorder.Shows({"DeleteAllItems 0, 4 rows", "InsertItem 0, 5 rows"}));
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(MemoryListNoticesTest, ColumnsMayBeClearedWhileTheyAreCleared) {
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { list->ColumnHeaders()->Clear(); });
  list->ColumnHeaders()->Clear();
  EXPECT_EQ(list->ColumnHeaders()->Count(), 0);
  EXPECT_TRUE(recorder.Shows({
      "DeleteColumn 1, 2 columns",
      "DeleteColumn 1, 2 columns",
      "DeleteColumn 0, 1 columns",
  }));
}

TEST_F(MemoryListNoticesTest, AnObserverMayLeaveDuringANotice) {
  Recorder theirs;
  std::optional<ListObserverRecorder> leaving(std::in_place, *list, theirs);
  const ListObserverRecorder staying(*list, theirs);
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { leaving.reset(); });
  AddRow(*list, {"5"});
  EXPECT_TRUE(theirs.Shows({"InsertItem 0, 5 rows"}));
}

TEST_F(MemoryListNoticesTest, AnObserverMayLeaveDuringItsOwnNotice) {
  struct Leaver final : ListObserver {
    MemoryListView* list = nullptr;
    int notices = 0;
    void OnListMessage(ListMessage, std::intptr_t, std::intptr_t) override {
      ++notices;
      list->RemoveObserver(this);
    }
  } leaver;
  leaver.list = list.Get();
  list->AddObserver(&leaver);
  Recorder behind;
  const ListObserverRecorder last(*list, behind);
  AddRow(*list, {"5"});
  AddRow(*list, {"6"});
  EXPECT_EQ(leaver.notices, 1);
  EXPECT_TRUE(behind.Shows({"InsertItem 0, 5 rows", "InsertItem 0, 6 rows"}));
}

TEST_F(MemoryListNoticesTest, AnObserverThatComesDuringANoticeSeesTheNextOne) {
  Recorder theirs;
  std::optional<ListObserverRecorder> newcomer;
  observer.DuringTheNext([&](ListMessage, std::intptr_t) { newcomer.emplace(*list, theirs); });
  AddRow(*list, {"5"});
  EXPECT_TRUE(theirs.Shows({}));
  AddRow(*list, {"6"});
  EXPECT_TRUE(theirs.Shows({"InsertItem 0, 6 rows"}));
}

TEST_F(MemoryListNoticesTest, AnErrorOfAnObserverComesOutAndLaterNoticesGoOn) {
  observer.DuringTheNext([](ListMessage, std::intptr_t) { throw RuntimeError(1000, u"no"); });
  EXPECT_EQ(ErrorOf([&] { AddRow(*list, {"5"}); }), "1000: no");
  EXPECT_EQ(list->ListItems()->Count(), 5);
  {
    Recorder theirs;
    const ListObserverRecorder passing(*list, theirs);
    list->ListItems()->Remove(5);
    EXPECT_TRUE(theirs.Shows({"DeleteItem 4, 5 rows"}));
  }
  list->ListItems()->Remove(4);
  EXPECT_TRUE(
      recorder.Shows({"InsertItem 0, 5 rows", "DeleteItem 4, 5 rows", "DeleteItem 3, 4 rows"}));
}

TEST(MemoryListNotices, TheListMayBeLetGoDuringANotice) {
  struct Releaser final : ListObserver {
    Ref<MemoryListView> list;
    void OnListMessage(ListMessage, std::intptr_t, std::intptr_t) override {
      list->RemoveObserver(this);
      list = nullptr;
    }
  } releaser;
  releaser.list = MakeList({"a"}, {{"1"}, {"2"}});
  releaser.list->AddObserver(&releaser);
  const Ref<ListItemCollection> rows = releaser.list->ListItems();
  rows->Remove(1);
  EXPECT_EQ(rows->Count(), 1);
}

}  // namespace

}  // namespace sifter
