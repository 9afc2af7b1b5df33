#include "support/RecordingListView.h"

#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

class RecordingListViewTest : public testing::Test {
 protected:
  Recorder recorder;
  Ref<MemoryListView> memory = MakeList({"Name", "Qty"}, {{"Oak", "3"}});
  Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
};

TEST_F(RecordingListViewTest, WritesDownEveryCallWithItsArguments) {
  const Ref<ListItem> row = list->ListItems()->Add(0, u"k1", u"Ash", Value(), 3);
  row->SetBold(true);
  static_cast<void>(row->Bold());
  row->SetSubItems(1, u"5");
  static_cast<void>(row->SubItems(1));
  row->ListSubItems()->Item(1)->SetTag(u"x");
  list->ListItems()->Remove(u"k1");
  list->ListItems()->Clear();
  list->ColumnHeaders()->Item(2)->SetWidth(99.5);
  list->SetSortKey(1);
  { const UpdateScope update(list.Get()); }
  EXPECT_TRUE(recorder.Shows({
      "ListItems",
      "ListItems.Add(0, \"k1\", \"Ash\", Empty, 3)",
      "ListItems(2).SetBold True",
      "ListItems(2).Bold",
      "ListItems(2).SetSubItems(1) \"5\"",
      "ListItems(2).SubItems(1)",
      "ListItems(2).ListSubItems",
      "ListItems(2).ListSubItems.Item(1)",
      "ListItems(2).ListSubItems(1).SetTag \"x\"",
      "ListItems",
      "ListItems.Remove(\"k1\")",
      "ListItems",
      "ListItems.Clear",
      "ColumnHeaders",
      "ColumnHeaders.Item(2)",
      "ColumnHeaders(2).SetWidth 99.5",
      "SetSortKey 1",
      "BeginUpdate",
      "EndUpdate",
  }));
}

TEST_F(RecordingListViewTest, TheListBehindItDoesTheWork) {
  AddRow(*list, {"Ash", "5"}, "k1");
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}, {"Ash", "5"}}));
  EXPECT_EQ(Dump(*list), Dump(*memory));
}

TEST_F(RecordingListViewTest, FailsAtTheOccurrenceThatItWasToldAndOnlyThere) {
  list->FailOn("ListItems.Add", 2, RuntimeError(35602, u"Key is not unique in collection"));
  const auto add = [&](const char* text) { AddRow(*list, {text}); };
  EXPECT_EQ(ErrorOf([&] { add("first"); }), "nothing");
  EXPECT_EQ(ErrorOf([&] { add("second"); }), "35602: Key is not unique in collection");
  EXPECT_EQ(ErrorOf([&] { add("third"); }), "nothing");
  EXPECT_EQ(FirstTexts(*memory), (std::vector<std::string>{"Oak", "first", "third"}));
}

TEST_F(RecordingListViewTest, WritesDownAnErrorBehindItsCall) {
  const Ref<ListItem> row = list->ListItems()->Item(1);
  list->FailOn("ListItem.Tag", 1, RuntimeError(1000, u"no"));
  recorder.Clear();
  EXPECT_EQ(ErrorOf([&] { row->Tag(); }), "1000: no");
  EXPECT_EQ(ErrorOf([&] { row->SubItems(9); }), kBadPositionError);
  EXPECT_TRUE(recorder.Shows({
      "ListItems(1).Tag",
      "raises 1000",
      "ListItems(1).SubItems(9)",
      "raises 9",
  }));
}

TEST_F(RecordingListViewTest, AMemberThatItLacksCanNeitherBeReadNorWritten) {
  list->Lack("ListItem.Ghosted");
  list->Lack("ListItem.SubItems");
  const Ref<ListItem> row = list->ListItems()->Item(1);
  EXPECT_EQ(ErrorOf([&] { row->Ghosted(); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { row->SetGhosted(true); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { row->SubItems(1); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { row->SetSubItems(1, u"x"); }), kMissingMemberError);
  EXPECT_EQ(ErrorOf([&] { row->Bold(); }), "nothing");
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}}));
}

TEST_F(RecordingListViewTest, RecordsOnlyWhatItWasAskedFor) {
  list->RecordOnly({"ListItems.Add", "ListItem"});
  AddRow(*list, {"Ash", "5"});
  EXPECT_TRUE(recorder.Shows(
      {"ListItems.Add(0, \"\", \"Ash\", Empty, Empty)", "ListItems(2).SetSubItems(1) \"5\""}));
  recorder.Clear();
  list->RecordNothing();
  AddRow(*list, {"Elm"});
  EXPECT_TRUE(recorder.Shows({}));
  list->RecordAll();
  static_cast<void>(list->ListItems()->Count());
  EXPECT_TRUE(recorder.Shows({"ListItems", "ListItems.Count"}));
}

TEST_F(RecordingListViewTest, CountsTheReadsOfItsWindow) {
  memory->SetWindow(1234);
  EXPECT_EQ(list->WindowReads(), 0);
  EXPECT_EQ(list->hWnd(), 1234);
  EXPECT_EQ(list->hWnd(), 1234);
  EXPECT_EQ(list->WindowReads(), 2);
}

TEST_F(RecordingListViewTest, OffersNoRowsToShare) {
  EXPECT_NE(memory->Shared(), nullptr);
  EXPECT_EQ(static_cast<HostListView&>(*list).Shared(), nullptr);
}

TEST_F(RecordingListViewTest, ItsPartsOutliveIt) {
  const Ref<ListItem> row = list->ListItems()->Item(1);
  list = nullptr;
  recorder.Clear();
  EXPECT_EQ(row->Text(), Value(u"Oak"));
  EXPECT_TRUE(recorder.Shows({"ListItems(1).Text"}));
}

}  // namespace

}  // namespace sifter
