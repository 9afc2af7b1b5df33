#include "Criteria.h"
#include "EngineRun.h"
#include "Textbook.h"
#include "listmodel/MemoryListView.h"
#include "matching/RowMatcher.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

// What hosts do to their list while it is being filtered, and what their lists do to the engine.

namespace sifter {
namespace {

using Names = std::vector<std::string>;
using Criteria = std::vector<FilterCriterion>;
using Host = std::function<void(HostListView& list, int notice)>;

enum class Way { kOwn, kForeign, kTextbook };

// The list as it is left by the engine, or the textbook, while `host` acts in the notices.
TextRows Left(Way way, const TextRows& rows, const Criteria& criteria, const Host& host) {
  const Ref<MemoryListView> list = MakeList({"a", "b", "c"}, rows);
  Recorder recorder;
  ListObserverRecorder observer(*list, recorder);
  int notice = 0;
  bool within = false;
  observer.During([&](ListMessage, std::intptr_t) {
    if (within) return;
    within = true;
    host(*list, ++notice);
    within = false;
  });
  EngineRun run;
  switch (way) {
    case Way::kOwn:
      run.Apply(list, criteria);
      break;
    case Way::kForeign:
      run.Apply(MakeRef<RecordingListView>(list, recorder), criteria);
      break;
    case Way::kTextbook:
      textbook::Engine(*list, criteria, false, run.EnUs()).ApplyCriteria();
      break;
  }
  return Texts(*list);
}

TextRows LeftEveryWay(const TextRows& rows, const Criteria& criteria, const Host& host) {
  const TextRows left = Left(Way::kOwn, rows, criteria, host);
  EXPECT_EQ(Left(Way::kForeign, rows, criteria, host), left) << "member by member";
  EXPECT_EQ(Left(Way::kTextbook, rows, criteria, host), left) << "by the textbook";
  return left;
}

Criteria OneWordTwice() {
  return {TextRow("a", "does not contain", "x"), TextRow("b", "equals", "keep"),
          TextRow("c", "does not contain", "x")};
}

TEST(HostInterference, ARowPutInDuringTheLastRemovalStays) {
  const TextRows rows = {{"x", "keep", ""}, {"ok", "keep", ""}};
  const Host host = [](HostListView& list, int) { AddRow(list, {"x", "new", ""}); };
  EXPECT_EQ(LeftEveryWay(rows, {TextRow("a", "does not contain", "x")}, host),
            (TextRows{{"ok", "keep", ""}, {"x", "new", ""}}));
}

// It comes after its test has been applied, and goes when the test's word comes up once more.
TEST(HostInterference, ARowPutInLaterIsTestedAgainWithTheSameWord) {
  const TextRows rows = {{"ok", "keep", ""}, {"ok", "drop", ""}};
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(),
                         [](HostListView& list, int notice) {
                           if (notice == 1) AddRow(list, {"x", "late", ""});
                         }),
            (TextRows{{"ok", "keep", ""}}));
}

TEST(HostInterference, ACellChangedLaterIsTestedAgainWithTheSameWord) {
  const TextRows rows = {{"ok", "keep", ""}, {"fine", "keep", ""}, {"ok", "drop", ""}};
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(),
                         [](HostListView& list, int) { list.ListItems()->Item(1)->SetText(u"x"); }),
            (TextRows{{"fine", "keep", ""}}));
}

// The removal ends at the position that is no longer there; what came in before is known to be
// there nevertheless.
TEST(HostInterference, ARowPutInBeforeARemovalThatFailedIsTestedAgain) {
  const TextRows rows = {{"ok", "keep", ""}, {"ok", "drop", ""}, {"ok", "drop", ""}};
  const Host host = [](HostListView& list, int notice) {
    if (notice != 1) return;
    list.ListItems()->Clear();
    AddRow(list, {"x", "late", ""});
  };
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(), host), TextRows());
}

TEST(HostInterference, ARemovalGoesOnByPositionAfterARowHasBeenTakenOut) {
  const TextRows rows = {
      {"1", "keep", ""}, {"2", "drop", ""}, {"3", "keep", ""}, {"4", "drop", ""}};
  const Host host = [](HostListView& list, int notice) {
    if (notice == 1) list.ListItems()->Remove(1);
  };
  EXPECT_EQ(LeftEveryWay(rows, {TextRow("a"), TextRow("b", "equals", "keep")}, host),
            (TextRows{{"2", "drop", ""}}));
}

TEST(HostInterference, AClearedListEndsTheRemovalOnly) {
  const TextRows rows = {{"1", "drop", ""}, {"2", "drop", ""}};
  const Host host = [](HostListView& list, int) { list.ListItems()->Clear(); };
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(), host), TextRows());
}

// The clearing takes the place of the one removal that it falls into.
TEST(HostInterference, AListClearedWhileItsOnlyFailingRowGoesIsEmpty) {
  const TextRows rows = {{"x", "keep", ""}, {"ok", "drop", ""}, {"ok", "keep", ""}};
  const Host host = [](HostListView& list, int notice) {
    if (notice == 1) AddRow(list, {"ok", "keep", "late"});
    if (notice == 2) list.ListItems()->Clear();
  };
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(), host), TextRows());
}

TEST(HostInterference, ColumnsTakenAwayEndTheRoutinesThatNeedThem) {
  const TextRows rows = {{"x", "drop", ""}, {"ok", "drop", ""}, {"ok", "keep", ""}};
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(),
                         [](HostListView& list, int) { list.ColumnHeaders()->Clear(); }),
            (TextRows{{"ok", "drop", ""}, {"ok", "keep", ""}}));
}

// The date that the first row refers to is gone when its word comes up again, so the routine ends
// there and doesn't come to the second row.
TEST(HostInterference, AColumnTakenAwayEndsTheRoutineThatRefersToIt) {
  const TextRows rows = {{"1/1/2004", "1/1/2006", "1/1/2005"}, {"1/1/2004", "bad", "6/6/2006"}};
  const Date newYear = Day(2005, 1, 1);
  const Criteria criteria = {Overlaid(DateRow("a", "is before"), "[c]"),
                             DateRow("b", "is before", newYear), TextRow("c", "equals", "1/1/2005"),
                             DateRow("d", "is before", newYear)};
  const Host host = [](HostListView& list, int) {
    list.ColumnHeaders()->Clear();
    AddColumn(list, "a");
    AddColumn(list, "b");
  };
  EXPECT_EQ(LeftEveryWay(rows, criteria, host), (TextRows{rows[0]}));
}

TEST(HostInterference, AColumnMoreDisturbsNothing) {
  const TextRows rows = {
      {"x", "keep", ""}, {"ok", "drop", ""}, {"ok", "keep", "x"}, {"ok", "keep", ""}};
  EXPECT_EQ(LeftEveryWay(rows, OneWordTwice(),
                         [](HostListView& list, int notice) {
                           if (notice == 1) AddColumn(list, "d");
                         }),
            (TextRows{{"ok", "keep", "", ""}}));
}

// A host that filters another list, with the same engine and cache, in the middle of a run.
TEST(HostInterference, ARunWithinARunDisturbsNeither) {
  const Ref<MemoryListView> outer =
      MakeList({"a", "b"}, {{"x", "1"}, {"ok", "2"}, {"ok", "1"}, {"x", "1"}});
  const Ref<MemoryListView> inner =
      MakeList({"a", "b"}, {{"ok", "8"}, {"ok", "8"}, {"ok", "8"}, {"ok", "8"}});
  const Criteria innerCriteria = {TextRow("a", "equals", "ok"), NumberRow("b", "equals", "8")};
  EngineRun run;
  Recorder recorder;
  ListObserverRecorder observer(*outer, recorder);
  observer.During([&](ListMessage, std::intptr_t) { run.Apply(inner, innerCriteria); });
  run.Apply(outer, {TextRow("a", "equals", "ok"), NumberRow("b", "equals", "1")});
  EXPECT_EQ(Texts(*outer), (TextRows{{"ok", "1"}}));
  EXPECT_EQ(inner->ListItems()->Count(), 4);
}

// A run whose routines are called one by one, with the host at work between them.
TEST(HostInterference, ChangesBetweenTwoRoutinesAreSeen) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"ok", "1"}, {"x", "1"}});
  const Criteria criteria = {TextRow("a", "equals", "ok"), NumberRow("b", "equals", "1")};
  EngineRun run;
  RowMatcher matcher(list, criteria, false, run.EnUs(), run.Cache());
  list->ListItems()->Clear();
  AddRow(*list, {"y", "2"});
  AddRow(*list, {"ok", "3"});
  AddRow(*list, {"ok", "1"});
  matcher.FilterTextEquals();
  EXPECT_EQ(Texts(*list), (TextRows{{"ok", "3"}, {"ok", "1"}}));
  list->ListItems()->Item(2)->SetSubItems(1, u"4");
  matcher.FilterNumberEquals();
  EXPECT_EQ(Texts(*list), TextRows());
}

struct ErrorCase {
  const char* name;
  const char* member;
  int occurrence;
  Names left;
};

// The first criterion runs into the error; the second one is applied all the same.
TEST(HostErrors, EndTheRoutineInWhichTheyComeUpAndNoOther) {
  const TextRows rows = {
      {"x", "keep", ""}, {"ok", "drop", ""}, {"ok", "keep", ""}, {"x", "keep", ""}};
  const Criteria criteria = {TextRow("a", "does not contain", "x"), TextRow("b", "equals", "keep")};
  const ErrorCase cases[] = {
      {"none", "ListItems.Clear", 1, {"ok"}},
      {"rows of the list", "ListView.ListItems", 1, {"x", "ok", "x"}},
      {"number of rows", "ListItems.Count", 1, {"x", "ok", "x"}},
      {"a row", "ListItems.Item", 3, {"x", "ok", "x"}},
      {"a text", "ListItem.Text", 4, {"x", "ok", "x"}},
      {"a cell of the second criterion", "ListItem.SubItems", 1, {"ok", "ok"}},
      {"the first removal", "ListItems.Remove", 1, {"x", "ok", "x"}},
      {"the second removal", "ListItems.Remove", 2, {"x", "ok"}},
      {"the second criterion's removal", "ListItems.Remove", 3, {"ok", "ok"}},
  };
  for (const ErrorCase& c : cases) {
    SCOPED_TRACE(c.name);
    Recorder calls;
    const Ref<MemoryListView> behind = MakeList({"a", "b", "c"}, rows);
    const auto list = MakeRef<RecordingListView>(behind, calls);
    list->RecordNothing();
    list->FailOn(c.member, c.occurrence, RuntimeError(35602, u"Key is not unique in collection"));
    EngineRun().Apply(list, criteria);
    EXPECT_EQ(FirstTexts(*behind), c.left);
  }
}

TEST(HostErrors, AMissingMemberIsSilentToo) {
  for (const char* member : {"ListView.ListItems", "ListItems.Count", "ListItems.Item",
                             "ListItem.Text", "ListItems.Remove"}) {
    SCOPED_TRACE(member);
    Recorder calls;
    const Ref<MemoryListView> behind = MakeList({"a"}, {{"x"}, {"ok"}});
    const auto list = MakeRef<RecordingListView>(behind, calls);
    list->Lack(member);
    EngineRun().Apply(list, {TextRow("a", "equals", "ok")});
    EXPECT_EQ(FirstTexts(*behind), (Names{"x", "ok"}));
  }
}

// An error in a removal ends that removal; the routine goes on with its next row.
TEST(HostErrors, InARemovalLeaveTheOtherRowsOfTheRoutineToBeApplied) {
  Recorder calls;
  const Ref<MemoryListView> behind =
      MakeList({"a", "b"}, {{"x", ""}, {"ok", "x"}, {"ok", ""}, {"ok", "x"}});
  const auto list = MakeRef<RecordingListView>(behind, calls);
  list->FailOn("ListItems.Remove", 1, RuntimeError(35600, u"Index out of bounds"));
  const Criteria criteria = {TextRow("a", "does not contain", "x"),
                             TextRow("b", "does not contain", "x")};
  EngineRun run;
  RowMatcher matcher(list, criteria, false, run.EnUs(), run.Cache());
  matcher.FilterDoesNotContain();
  EXPECT_EQ(Texts(*behind), (TextRows{{"x", ""}, {"ok", ""}}));
  matcher.FilterDoesNotContain();
  EXPECT_EQ(Texts(*behind), (TextRows{{"ok", ""}}));
}

}  // namespace
}  // namespace sifter
