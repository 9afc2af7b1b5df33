#include "listmodel/SharedRows.h"

#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// Four rows, the first three under a key, some with more than their texts.
Ref<MemoryListView> Source() {
  const Ref<MemoryListView> list = MakeList({"a", "b"});
  AddRow(*list, {"1", "x"}, "k1")->SetTag(u"t");
  AddRow(*list, {"2", "y"}, "k2")->SetIcon(u"pic");
  AddRow(*list, {"3", "z"}, "k3")->ListSubItems()->Item(1)->SetForeColor(255);
  AddRow(*list, {"4", "x"})->SetChecked(true);
  return list;
}

template <class From, class To>
void ShareAll(From& from, To& to) {
  const RowStore& rows = from.Shared()->Rows();
  for (std::int32_t i = 1; i <= rows.Count(); ++i) to.Shared()->AppendShared(rows.At(i));
}

void CopyRowsByMembers(MemoryListView& from, MemoryListView& to) {
  const Ref<ListItemCollection> rows = from.ListItems();
  for (std::int32_t i = 1; i <= rows->Count(); ++i) {
    const Ref<ListItem> row = rows->Item(i);
    const Ref<ListItem> copy =
        to.ListItems()->Add(0, row->Key(), row->Text(), row->Icon(), row->SmallIcon());
    copy->SetTag(row->Tag());
    copy->SetChecked(row->Checked());
    copy->SetSubItems(1, row->SubItems(1));
    copy->ListSubItems()->Item(1)->SetForeColor(row->ListSubItems()->Item(1)->ForeColor());
  }
}

TEST(SharedRows, AppendingThemEqualsCopyingMemberByMember) {
  const Ref<MemoryListView> source = Source();
  const Ref<MemoryListView> copied = MakeList({"a", "b"});
  const Ref<MemoryListView> shared = MakeList({"a", "b"});
  Recorder copiedNotices;
  Recorder sharedNotices;
  const ListObserverRecorder copiedObserver(*copied, copiedNotices);
  const ListObserverRecorder sharedObserver(*shared, sharedNotices);
  CopyRowsByMembers(*source, *copied);
  ShareAll(*source, *shared);
  EXPECT_EQ(DumpRows(*shared), DumpRows(*source));
  EXPECT_EQ(DumpRows(*shared), DumpRows(*copied));
  EXPECT_TRUE(sharedNotices.Shows(copiedNotices.Lines()));
  EXPECT_TRUE(sharedNotices.Shows({"InsertItem 0, 1 rows", "InsertItem 0, 2 rows",
                                   "InsertItem 0, 3 rows", "InsertItem 0, 4 rows"}));
}

TEST(SharedRows, RemovingThemEqualsRemovingFromTheLastToTheFirst) {
  const std::vector<std::int32_t> positions = {1, 3, 4};
  const Ref<MemoryListView> oneByOne = Source();
  const Ref<MemoryListView> atOnce = Source();
  const Ref<MemoryListView> unobserved = Source();
  Recorder oneByOneNotices;
  Recorder atOnceNotices;
  const ListObserverRecorder oneByOneObserver(*oneByOne, oneByOneNotices);
  const ListObserverRecorder atOnceObserver(*atOnce, atOnceNotices);
  for (auto position = positions.rbegin(); position != positions.rend(); ++position)
    oneByOne->ListItems()->Remove(*position);
  atOnce->Shared()->RemoveRows(positions);
  unobserved->Shared()->RemoveRows(positions);
  EXPECT_EQ(DumpRows(*atOnce), DumpRows(*oneByOne));
  EXPECT_EQ(DumpRows(*unobserved), DumpRows(*oneByOne));
  EXPECT_TRUE(atOnceNotices.Shows(oneByOneNotices.Lines()));
  EXPECT_TRUE(atOnceNotices.Shows(
      {"DeleteItem 3, 4 rows", "DeleteItem 2, 3 rows", "DeleteItem 0, 2 rows"}));
}

TEST(SharedRows, AListThatChangesItsRowsLeavesTheOthersAlone) {
  const Ref<MemoryListView> list = Source();
  const Ref<ListViewDump> dump = MakeDump({"a", "b"});
  const Ref<MemoryListView> back = MakeList({"a", "b"});
  ShareAll(*list, *dump);
  ShareAll(*dump, *back);
  const std::string before = DumpRows(*list);
  ASSERT_EQ(DumpRows(*dump), before);
  ASSERT_EQ(DumpRows(*back), before);

  const Ref<ListItem> row = list->ListItems()->Item(2);
  row->SetText(u"new");
  row->SetBold(true);
  row->SetKey(u"new");
  row->ListSubItems()->Item(1)->SetTag(u"new");
  AddColumn(*list, "c");
  EXPECT_EQ(DumpRows(*dump), before);
  EXPECT_EQ(DumpRows(*back), before);

  dump->ListItems()->Item(1)->SetKey(u"theirs");
  dump->ListItems()->Item(2)->SetSubItems(1, u"theirs");
  dump->ListItems()->SetItemSubItemNum(0);
  dump->ListItems()->Remove(4);
  EXPECT_EQ(DumpRows(*back), before);
  EXPECT_EQ(Texts(*list),
            (TextRows{{"1", "x", ""}, {"new", "y", ""}, {"3", "z", ""}, {"4", "x", ""}}));
  EXPECT_EQ(Texts(*dump), (TextRows{{"1"}, {"2"}, {"3"}}));
}

TEST(SharedRows, KeysAreFoundAndTakenAsIfTheRowsHadBeenAdded) {
  const Ref<MemoryListView> list = Source();
  const Ref<ListViewDump> dump = MakeDump({"a", "b"});
  ShareAll(*list, *dump);
  EXPECT_EQ(dump->ListItems()->Item(u"k3")->Text(), u"3");
  EXPECT_EQ(ErrorOf([&] { AddRow(*dump, {"x"}, "k1"); }), kTakenKeyError);
  dump->ListItems()->Remove(u"k1");
  EXPECT_EQ(FirstTexts(*dump), (Strings{"2", "3", "4"}));
  AddRow(*dump, {"x"}, "k1");
  EXPECT_EQ(dump->ListItems()->Item(u"k2")->Text(), u"2");
  EXPECT_EQ(list->ListItems()->Item(u"k1")->Text(), Value(u"1"));
}

TEST(SharedRows, ASnapshotTellsWhenItsKeysAreNotThoseOfItsRows) {
  const Ref<MemoryListView> list = Source();
  const Ref<ListViewDump> dump = MakeDump({"a", "b"});
  dump->AddItemToDump(*list->ListItems()->Item(1));
  EXPECT_TRUE(dump->Shared()->Rows().KeysArePlain());
  dump->AddItemToDump(*list->ListItems()->Item(1));
  EXPECT_FALSE(dump->Shared()->Rows().KeysArePlain());
  dump->ListItems()->Remove(2);
  EXPECT_TRUE(dump->Shared()->Rows().KeysArePlain());
}

TEST(SharedRows, OnlyAnUnsortedListTakesRowsAtItsEnd) {
  const Ref<MemoryListView> list = Source();
  EXPECT_TRUE(list->Shared()->TakesSharedRows());
  list->SetSorted(true);
  EXPECT_FALSE(list->Shared()->TakesSharedRows());
  EXPECT_TRUE(MakeDump({})->Shared()->TakesSharedRows());
}

TEST(SharedRows, ColumnCountIsThatOfTheList) {
  EXPECT_EQ(Source()->Shared()->ColumnCount(), 2);
  EXPECT_EQ(MakeDump({"a", "b", "c"})->Shared()->ColumnCount(), 3);
}

TEST(SharedRows, TwoListsHoldOneRowUntilItIsChanged) {
  const Ref<MemoryListView> list = Source();
  const Ref<ListViewDump> dump = MakeDump({"a", "b"});
  ShareAll(*list, *dump);
  const RowStore& ours = list->Shared()->Rows();
  const RowStore& theirs = dump->Shared()->Rows();
  EXPECT_EQ(&ours.At(3), &theirs.At(3));
  static_cast<void>(list->ListItems()->Item(3)->Text());
  EXPECT_EQ(&ours.At(3), &theirs.At(3));
  list->ListItems()->Item(3)->SetText(u"x");
  EXPECT_NE(&ours.At(3), &theirs.At(3));
}

TEST(SharedRows, RowsEndWithTheLastListThatHasThem) {
  int alive = 0;
  Ref<MemoryListView> list = MakeList({"a"}, {{"1"}, {"2"}});
  for (const std::int32_t i : {1, 2})
    list->ListItems()->Item(i)->SetIcon(Value(Ref<Object>(MakeRef<LifeProbe>(alive))));
  Ref<ListViewDump> dump = MakeDump({"a"});
  ShareAll(*list, *dump);
  EXPECT_EQ(alive, 2);
  list = nullptr;
  EXPECT_EQ(alive, 2);
  dump->Shared()->RemoveRows({1});
  EXPECT_EQ(alive, 1);
  dump = nullptr;
  EXPECT_EQ(alive, 0);
}

TEST(SharedRows, AnObserverThatRemovesRowsMeanwhileDoesNotLeadTheListAstray) {
  const Ref<MemoryListView> list = MakeList({"a"}, {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}});
  Recorder recorder;
  ListObserverRecorder observer(*list, recorder);
  observer.During([&](ListMessage, std::intptr_t wParam) {
    if (wParam == 3) list->ListItems()->Remove(5);
  });
  list->Shared()->RemoveRows({2, 4});
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "3"}));
  EXPECT_TRUE(
      recorder.Shows({"DeleteItem 3, 5 rows", "DeleteItem 4, 5 rows", "DeleteItem 1, 3 rows"}));
}

}  // namespace

}  // namespace sifter
