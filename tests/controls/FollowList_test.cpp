#include "controls/FollowList.h"

#include "base/AbsorbErrors.h"
#include "filterdialog/CopyListview.h"
#include "library/modPLC2.h"
#include "support/Errors.h"
#include "support/Lists.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

// Where the rows that equal `row` stand.
template <class Row, class Rows>
std::vector<std::int32_t> PositionsOf(Row& row, Rows& rows) {
  std::vector<std::int32_t> positions;
  for (std::int32_t i = 1; i <= rows.Count(); ++i)
    if (modPLC2::detail::SameRow(row, *rows.Item(i))) positions.push_back(i);
  return positions;
}

// What FollowList has to come to, step by step and row by row. Equal rows can't be told apart, so
// they are counted.
void FollowSlowly(HostListView& list, ListViewDump& passed, ListViewDump& full) {
  const Ref<ListItemCollection> live = list.ListItems();
  for (std::int32_t i = 1; i <= live->Count(); ++i)
    if (modPLC2::PositionOf(*live->Item(i), *full.ListItems()) == 0)
      full.AddItemToDump(*live->Item(i));
  std::set<std::int32_t> stillThere;
  for (std::int32_t j = 1; j <= passed.ListItems()->Count(); ++j) {
    const auto row = passed.ListItems()->Item(j);
    const std::vector<std::int32_t> equal = PositionsOf(*row, *live);
    const auto free = std::find_if(equal.begin(), equal.end(),
                                   [&](std::int32_t i) { return !stillThere.contains(i); });
    if (free != equal.end()) {
      stillThere.insert(*free);
      continue;
    }
    const std::vector<std::int32_t> known = PositionsOf(*row, *full.ListItems());
    if (known.size() > equal.size()) full.ListItems()->Remove(known[equal.size()]);
  }
}

Ref<ListViewDump> CopyOf(HostListView& list) {
  auto copy = MakeRef<ListViewDump>();
  CopyListview(&list, copy.Get());
  return copy;
}

// Which rows are found under a key, too.
std::string DumpWithKeys(ListViewDump& dump) {
  std::string text = DumpRows(dump);
  for (const char16_t* key : {u"a", u"b", u"c", u"d"})
    AbsorbErrors([&] { text += "under a key: " + DumpRow(*dump.ListItems()->Item(key)); });
  return text;
}

// A host that does anything at all to a list of which a filter has left some rows.
class Host {
 public:
  explicit Host(std::uint32_t seed) : random_(seed) {
    for (std::uint32_t i = Below(25); i > 0; --i) Add();
  }

  // Rows that fail go, for the filter.
  void Filter() {
    for (std::int32_t i = Count(); i >= 1; --i)
      if (Below(2) == 0) list->ListItems()->Remove(i);
  }

  void Change() {
    for (std::uint32_t i = Below(12); i > 0; --i) ChangeOnce();
  }

  std::uint32_t Below(std::uint32_t end) { return static_cast<std::uint32_t>(random_()) % end; }

  const Ref<MemoryListView> list = MakeList({"Name", "Qty", "Due"});

 private:
  std::int32_t Count() const { return list->ListItems()->Count(); }
  std::int32_t Any() {
    return static_cast<std::int32_t>(Below(static_cast<std::uint32_t>(Count()))) + 1;
  }

  void Add() {
    static const char* const kKeys[] = {"", "", "", "", "a", "b", "c", "d"};
    static const char* const kNames[] = {"oak", "ash"};
    AbsorbErrors([&] {  // a key that is taken
      const Ref<ListItem> row =
          AddRow(*list, {kNames[Below(2)], Below(4) == 0 ? "1" : ""}, kKeys[Below(8)]);
      Edit(*row);
    });
  }

  void Edit(ListItem& row) {
    if (Below(4) == 0) row.SetTag(u"t");
    if (Below(4) == 0) row.SetToolTipText(u"tip");
    if (Below(4) == 0) row.SetIcon(std::int32_t{1});
    if (Below(4) == 0) row.SetBold(true);
    const Ref<ListSubItem> cell = row.ListSubItems()->Item(2);
    if (Below(4) == 0) cell->SetTag(u"t");
    if (Below(4) == 0) cell->SetReportIcon(u"pic");
    if (Below(4) == 0) cell->SetForeColor(255);
  }

  void ChangeOnce() {
    const std::uint32_t what = Below(20);
    if (what < 8 || Count() == 0) return Add();
    if (what < 14) return list->ListItems()->Remove(Any());
    if (what < 17) return Edit(*list->ListItems()->Item(Any()));
    if (what < 19) {  // rows in another order
      list->SetSortKey(static_cast<std::int32_t>(Below(3)));
      list->SetSortOrder(static_cast<std::int32_t>(Below(2)));
      list->SetSorted(true);
      return list->SetSorted(false);
    }
    list->ListItems()->Clear();
  }

  std::mt19937 random_;
};

void ExpectTheSlowResult(std::uint32_t seed, Copies copies) {
  Host host(seed);
  const Ref<ListViewDump> full = CopyOf(*host.list);
  const Ref<ListViewDump> expected = CopyOf(*host.list);
  for (int round = 1; round <= 3; ++round) {
    host.Filter();
    if (copies == Copies::kDoubtful) host.Change();  // while the copy below was made
    const Ref<ListViewDump> passed = CopyOf(*host.list);
    host.Change();
    FollowSlowly(*host.list, *passed, *expected);
    const std::string passedBefore = DumpRows(*passed);
    const std::string listBefore = Dump(*host.list);
    FollowList(*host.list, *passed, *full, copies);
    ASSERT_EQ(DumpWithKeys(*full), DumpWithKeys(*expected)) << "seed " << seed << ", " << round;
    EXPECT_EQ(DumpRows(*passed), passedBefore);
    EXPECT_EQ(Dump(*host.list), listBefore);
  }
}

TEST(FollowList, ComesToWhatTheStepsComeTo) {
  for (std::uint32_t seed = 1; seed <= 1500 && !HasFatalFailure(); ++seed)
    ExpectTheSlowResult(seed, Copies::kInStep);
}

TEST(FollowList, AlsoWhenTheFullCopyLacksRowsThatPassed) {
  for (std::uint32_t seed = 1; seed <= 1500 && !HasFatalFailure(); ++seed)
    ExpectTheSlowResult(seed, Copies::kDoubtful);
}

// The first and the third of three rows have passed.
class FollowListTest : public testing::Test {
 protected:
  FollowListTest() { list->ListItems()->Remove(2); }

  void Follow(HostListView& live, Copies copies = Copies::kInStep) {
    FollowList(live, *passed, *full, copies);
  }

  const TextRows kRows = {{"oak", "1"}, {"ash", "2"}, {"elm", "3"}};
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, kRows);
  const Ref<ListViewDump> full = CopyOf(*list);
  const Ref<ListViewDump> passed = MakeDump({"Name", "Qty"}, {kRows[0], kRows[2]});
  Recorder recorder;
};

TEST_F(FollowListTest, NewRowsGoToTheEndInTheirOrder) {
  list->ListItems()->Add(1, Text(), u"yew", Value(), Value());
  AddRow(*list, {"fir", "9"}, "k");
  Follow(*list);
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak", "ash", "elm", "yew", "fir"}));
  EXPECT_EQ(full->ListItems()->Item(u"k")->Text(), u"fir");
}

TEST_F(FollowListTest, RowsThatThePassedOnesLackInTheListGo) {
  list->ListItems()->Remove(1);
  Follow(*list);
  EXPECT_EQ(Texts(*full), (TextRows{{"ash", "2"}, {"elm", "3"}}));
}

TEST_F(FollowListTest, HiddenRowsStayWhenTheListIsEmptied) {
  list->ListItems()->Clear();
  Follow(*list);
  EXPECT_EQ(Texts(*full), (TextRows{{"ash", "2"}}));
}

TEST_F(FollowListTest, ADuplicateOfAKnownRowIsNoNewRow) {
  AddRow(*list, {"ash", "2"});
  AddRow(*list, {"oak", "1"});
  Follow(*list);
  EXPECT_EQ(Texts(*full), kRows);
}

TEST_F(FollowListTest, AnEditedRowIsANewOneAndItsOldFormGoes) {
  list->ListItems()->Item(1)->SetSubItems(1, u"7");
  Follow(*list);
  EXPECT_EQ(Texts(*full), (TextRows{{"ash", "2"}, {"elm", "3"}, {"oak", "7"}}));
}

TEST_F(FollowListTest, WhoTrustsTheCopiesLooksOnlyAtWhatHasChanged) {
  full->ListItems()->Remove(1);  // which has passed, and the full copy lacks it
  Follow(*list, Copies::kInStep);
  EXPECT_EQ(FirstTexts(*full), (Strings{"ash", "elm"}));
  Follow(*list, Copies::kDoubtful);
  EXPECT_EQ(FirstTexts(*full), (Strings{"ash", "elm", "oak"}));
}

TEST_F(FollowListTest, AListOfAForeignMakeIsOnlyRead) {
  const auto foreign = MakeRef<RecordingListView>(list, recorder);
  AddRow(*list, {"yew", "4"});
  Follow(*foreign);
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak", "ash", "elm", "yew"}));
  for (const std::string& line : recorder.Lines()) {
    EXPECT_EQ(line.find(".Set"), std::string::npos) << line;
    EXPECT_EQ(line.find("Clear"), std::string::npos) << line;
    EXPECT_EQ(line.find("Add"), std::string::npos) << line;
    EXPECT_EQ(line.find("Remove"), std::string::npos) << line;
  }
}

TEST_F(FollowListTest, AnErrorOfTheListComesOutWithNothingChanged) {
  AddRow(*list, {"yew", "4"});
  list->ListItems()->Remove(1);
  for (const char* member : {"ListView.ListItems", "ListView.ColumnHeaders", "ListItems.Count",
                             "ListItems.Item", "ColumnHeaders.Count"}) {
    SCOPED_TRACE(member);
    const auto broken = MakeRef<RecordingListView>(list, recorder);
    broken->Lack(member);
    EXPECT_EQ(ErrorOf([&] { Follow(*broken); }), kMissingMemberError);
    EXPECT_EQ(ErrorOf([&] { AddUnknownRows(*broken, *full); }), kMissingMemberError);
    EXPECT_EQ(ErrorOf([&] { TakeRows(*broken, *full); }), kMissingMemberError);
    EXPECT_EQ(Texts(*full), kRows);
    EXPECT_EQ(FirstTexts(*passed), (Strings{"oak", "elm"}));
  }
}

TEST_F(FollowListTest, AMemberThatTheRowsLackIsLeftOutOfTheirCopies) {
  AddRow(*list, {"yew", "4"});
  const auto foreign = MakeRef<RecordingListView>(list, recorder);
  foreign->Lack("ListItem.Ghosted");
  Follow(*foreign, Copies::kDoubtful);
  const std::string once = DumpRows(*full);
  EXPECT_EQ(full->ListItems()->Item(4)->Text(), u"yew");
  Follow(*foreign, Copies::kDoubtful);
  EXPECT_EQ(DumpRows(*full), once);
}

// Taken for gone, they would be lost with the next refill.
TEST_F(FollowListTest, WhileARowCannotBeReadNoneIsTakenForGone) {
  AddRow(*list, {"yew", "4"});
  const auto foreign = MakeRef<RecordingListView>(list, recorder);
  foreign->FailOn("ListItem.Text", 1, RuntimeError(35600, u"no"));
  Follow(*foreign);
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak", "ash", "elm", "yew"}));
  foreign->Lack("ListItem.Text");
  Follow(*foreign);
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak", "ash", "elm", "yew"}));
}

TEST_F(FollowListTest, IconsThatAreNullAreFoundAgain) {
  AddRow(*list, {"yew", "4"})->SetIcon(Value(Value::Null()));
  Follow(*list, Copies::kDoubtful);
  Follow(*list, Copies::kDoubtful);
  EXPECT_EQ(FirstTexts(*full), (Strings{"oak", "ash", "elm", "yew"}));
}

}  // namespace

}  // namespace sifter
