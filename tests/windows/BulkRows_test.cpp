#include "ComFakes.h"
#include "DispatchCalls.h"
#include "DispatchSpy.h"
#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "TransferSpy.h"
#include "base/Conversions.h"
#include "filterdialog/CopyListview.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "matching/RowMatcher.h"
#include "support/ClockFake.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListView.h"
#include "win32/NativeListViewObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The rows of a native list view as they are reached from another module.

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// A native list, spoken to through its object; what crosses is counted.
class BulkRows : public testing::Test {
 protected:
  BulkRows() {
    Fill(*host, {"a", "b"}, {{"1", "x"}, {"2", "y"}, {"3", "x"}, {"4", "z"}, {"5", "x"}});
    log->otherInterfaces = CountTransfers(ListViewObject(host), counts);
    list = MakeRef<LateBoundList>(SpyOn(ListViewObject(host), log));
    log->calls.clear();
  }

  const RowStore& Rows() { return list->Shared()->Rows(); }

  Strings MirroredTexts() {
    Strings texts;
    for (std::int32_t i = 1; i <= Rows().Count(); ++i)
      texts.push_back(Rows().At(i).ColumnText(0).ToUtf8());
    return texts;
  }

  void ExpectMirrored() {
    EXPECT_EQ(MirroredTexts(), FirstTexts(*host));
    EXPECT_EQ(form.ShownTexts(), Texts(*host));
  }

  ListViewOnAForm form;
  Ref<HostListView> host = NativeListView(form.List());
  std::shared_ptr<TransferCounts> counts = std::make_shared<TransferCounts>();
  std::shared_ptr<DispatchSpyLog> log = std::make_shared<DispatchSpyLog>();
  Ref<LateBoundList> list;
  Recorder recorder;
};

// Everything that a row and its cells can carry.
void Adorn(HostListView& list) {
  const Ref<ListItem> row = list.ListItems()->Item(2);
  row->SetKey(u"k");
  row->SetTag(u"\u4E2D");
  row->SetToolTipText(u"tip");
  row->SetIcon(3);
  row->SetSmallIcon(u"pic");
  row->SetChecked(true);
  row->SetBold(true);
  row->SetGhosted(true);
  row->SetForeColor(255);
  const Ref<ListSubItem> cell = row->ListSubItems()->Item(1);
  cell->SetKey(u"ck");
  cell->SetTag(u"ct");
  cell->SetToolTipText(u"ctip");
  cell->SetReportIcon(1.5);
  cell->SetForeColor(16);
  cell->SetBold(true);
  list.ListItems()->Item(3)->SetIcon(false);
}

TEST_F(BulkRows, CrossWithoutACallForEachCell) {
  Adorn(*host);
  const Ref<ListViewDump> copy = MakeDump({"a", "b"});
  CopyListview(static_cast<HostListView*>(list.Get()), copy.Get());
  EXPECT_EQ(DumpRows(*copy), DumpRows(*host));
  EXPECT_EQ(log->calls, (Strings{"get ListItems", "get Count", "get ColumnHeaders", "get Count"}));
  EXPECT_EQ(counts->rowsRead, 5u);
}

TEST_F(BulkRows, OnlyChangedRowsCrossAgain) {
  Rows();
  EXPECT_EQ(counts->rowsRead, 5u);
  Rows();
  EXPECT_EQ(counts->tokensRead, 5u);
  host->ListItems()->Item(4)->SetText(u"four");
  host->ListItems()->Remove(1);
  AddRow(*host, {"6", "z"});
  ExpectMirrored();
  EXPECT_EQ(counts->rowsRead, 7u);
  host->SetSortOrder(1);
  host->SetSorted(true);
  ExpectMirrored();
  EXPECT_EQ(counts->rowsRead, 7u);
}

TEST_F(BulkRows, RowsThatCameFromTheListGoBackAsTokens) {
  const Ref<ListViewDump> copy = MakeDump({"a", "b"});
  Adorn(*host);
  CopyListview(static_cast<HostListView*>(list.Get()), copy.Get());
  const std::string before = DumpRows(*host);
  list->Shared()->RemoveRows({1, 3});
  CopyListview(copy.Get(), static_cast<HostListView*>(list.Get()));
  EXPECT_EQ(DumpRows(*host), before);
  EXPECT_EQ(counts->knownRowsWritten, 5u);
  EXPECT_EQ(counts->rowsWritten, 0u);
  EXPECT_EQ(counts->rowsRead, 5u);
  ExpectMirrored();
}

TEST_F(BulkRows, NewRowsCrossOnceAndWhole) {
  const Ref<MemoryListView> source = MakeList({"a", "b"}, {{"7", ""}, {"8", "y"}, {"9", "z"}});
  Adorn(*source);
  for (int round = 1; round <= 2; ++round) {
    CopyListview(static_cast<HostListView*>(source.Get()), static_cast<HostListView*>(list.Get()));
    EXPECT_EQ(DumpRows(*host), DumpRows(*source));
    ExpectMirrored();
  }
  EXPECT_EQ(counts->rowsWritten, 3u);
  EXPECT_EQ(counts->knownRowsWritten, 3u);
}

TEST_F(BulkRows, ARowThatWasChangedOnEitherSideIsAnotherRow) {
  const Ref<ListViewDump> copy = MakeDump({"a", "b"});
  CopyListview(static_cast<HostListView*>(list.Get()), copy.Get());
  host->ListItems()->Item(1)->SetText(u"theirs");
  copy->ListItems()->Item(2)->SetText(u"ours");
  EXPECT_EQ(MirroredTexts(), (Strings{"theirs", "2", "3", "4", "5"}));
  CopyListview(copy.Get(), static_cast<HostListView*>(list.Get()));
  EXPECT_EQ(FirstTexts(*host), (Strings{"1", "ours", "3", "4", "5"}));
  ExpectMirrored();
}

// The same life of a list three times: by the members of the native list, by the members of its
// object, by its rows for transfer. State and notices must be the same.
struct Way {
  const char* name;
  Ref<HostListView> (*open)(const Ref<HostListView>& native);
};

class BulkRowsWays : public testing::TestWithParam<Way> {};

std::string FilterAndRefill(const Way& way, Recorder& recorder) {
  ListViewOnAForm form;
  const Ref<HostListView> native = NativeListView(form.List());
  for (const char* column : {"a", "b", "c"}) AddColumn(*native, column);
  for (int i = 0; i < 20; ++i)
    AddRow(*native, {std::to_string(i), i % 3 == 0 ? "x" : "y"}, "k" + std::to_string(i));
  Adorn(*native);
  const Ref<HostListView> list = way.open(native);
  const ListWatcher watcher(form.List(), native, recorder);
  const Ref<ListViewDump> full = MakeRef<ListViewDump>();
  const Ref<ListViewDump> passed = MakeRef<ListViewDump>();
  CopyListview(list.Get(), full.Get());
  std::string states;
  for (const Text& wanted : {u"x"_text, u"y"_text}) {
    CopyListview(full.Get(), list.Get());
    FilterCriterion criterion;
    criterion.dataType = 0;
    criterion.operatorWord = u"equals";
    criterion.text = wanted;
    FilterCriterion all;
    all.operatorWord = u"All";
    const std::vector<FilterCriterion> criteria = {all, criterion, all};
    ColumnCache cache;
    const ClockFake clock;
    const EnUsConversions conversions(clock);
    RowMatcher(list, criteria, true, conversions, cache).ApplyCriteria();
    CopyListview(list.Get(), passed.Get());
    states += Dump(*native) + DumpRows(*passed);
    EXPECT_EQ(form.ShownTexts(), Texts(*native));
  }
  return states;
}

TEST_P(BulkRowsWays, GiveTheSameStateAndNotices) {
  Recorder expectedNotices;
  const Way plain{"plain", [](const Ref<HostListView>& native) { return native; }};
  const std::string expected = FilterAndRefill(plain, expectedNotices);
  Recorder notices;
  EXPECT_EQ(FilterAndRefill(GetParam(), notices), expected);
  EXPECT_TRUE(notices.Shows(expectedNotices.Lines()));
}

INSTANTIATE_TEST_SUITE_P(
    , BulkRowsWays,
    testing::Values(Way{"ByMembers",
                        [](const Ref<HostListView>& native) -> Ref<HostListView> {
                          return MakeRef<LateBoundList>(ListViewObject(native),
                                                        LateBoundList::Transfer::kNever);
                        }},
                    Way{"ByTransfer",
                        [](const Ref<HostListView>& native) -> Ref<HostListView> {
                          return MakeRef<LateBoundList>(ListViewObject(native));
                        }}),
    [](const testing::TestParamInfo<Way>& way) { return way.param.name; });

TEST_F(BulkRows, AHostThatChangesTheListOnANoticeIsNoticed) {
  const Ref<ListViewDump> copy = MakeDump({"a", "b"});
  CopyListview(static_cast<HostListView*>(list.Get()), copy.Get());
  ListWatcher watcher(form.List(), host, recorder);
  watcher.DuringTheNext([&] { watcher.DuringTheNext([&] { host->ListItems()->Remove(1); }); });
  CopyListview(copy.Get(), static_cast<HostListView*>(list.Get()));
  EXPECT_EQ(FirstTexts(*host), (Strings{"2", "3", "4", "5"}));
  ExpectMirrored();
  watcher.DuringTheNext([&] { AddRow(*host, {"6", "z"}); });
  list->Shared()->RemoveRows({1, 2});
  EXPECT_EQ(FirstTexts(*host), (Strings{"4", "5", "6"}));
  ExpectMirrored();
}

TEST_F(BulkRows, ASortedListTakesNoSharedRows) {
  host->SetSorted(true);
  EXPECT_FALSE(list->Shared()->TakesSharedRows());
  const Ref<ListViewDump> copy = MakeDump({"a", "b"}, {{"9", "x"}, {"0", "y"}});
  CopyListview(copy.Get(), static_cast<HostListView*>(list.Get()));
  EXPECT_EQ(FirstTexts(*host), (Strings{"0", "9"}));
  EXPECT_EQ(ErrorOf([&] { list->Shared()->AppendShared(copy->Shared()->Rows().At(1)); }),
            "5: Invalid procedure call or argument");
  ExpectMirrored();
}

TEST_F(BulkRows, PositionsThatAreNotThereRemoveNothing) {
  Rows();
  EXPECT_EQ(ErrorOf([&] { list->Shared()->RemoveRows({2, 9}); }), kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { list->Shared()->RemoveRows({2, 2}); }), kBadPositionError);
  list->Shared()->RemoveRows({});
  EXPECT_EQ(FirstTexts(*host), (Strings{"1", "2", "3", "4", "5"}));
  ExpectMirrored();
}

TEST_F(BulkRows, RowsThatNobodyHasAnyMoreAreForgotten) {
  for (int round = 0; round < 8; ++round) {
    const UpdateScope update(host.Get());
    host->ListItems()->Clear();
    for (int i = 0; i < 400; ++i) AddRow(*host, {std::to_string(i)});
    Rows();
  }
  EXPECT_EQ(counts->rowsRead, 3200u);
  EXPECT_GT(counts->forgotten, 1200u);
  ExpectMirrored();
  host->ListItems()->Item(1)->SetText(u"again");
  ExpectMirrored();
}

TEST_F(BulkRows, ObjectsOfTheHostCrossAndAreLetGo) {
  ComObjectFake icon;
  {
    const Value object{Ref<Object>(ComObject::Of(icon.Identity()))};
    host->ListItems()->Item(1)->SetIcon(object);
    EXPECT_EQ(Rows().At(1).Extras().icon, object);
  }
  host->ListItems()->Clear();
  Rows();
  list = nullptr;
  EXPECT_EQ(icon.References(), 0);
}

TEST_F(BulkRows, TheConnectionEndsWithTheList) {
  EXPECT_EQ(counts->open, 1);
  list = nullptr;
  EXPECT_EQ(counts->open, 0);
  EXPECT_EQ(log->alive, 0);
}

TEST_F(BulkRows, GoOnWithoutTheWindow) {
  Rows();
  form.Destroy();
  list->Shared()->RemoveRows({1, 2});
  const UpdateScope update(list.Get());
  EXPECT_EQ(MirroredTexts(), (Strings{"3", "4", "5"}));
}

TEST_F(BulkRows, BracketsReachTheListsOwn) {
  ListWatcher watcher(form.List(), host, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  {
    const UpdateScope outer(list.Get());
    const UpdateScope inner(host.Get());
    list->Shared()->RemoveRows({5});
  }
  EXPECT_TRUE(recorder.Shows({"SetRedraw 0", "DeleteItem 4, 5 rows", "SetRedraw 1"}));
  EXPECT_EQ(log->calls, Strings());
}

}  // namespace

}  // namespace sifter
