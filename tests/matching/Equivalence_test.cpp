#include "CaseMaker.h"
#include "Textbook.h"
#include "base/Conversions.h"
#include "listmodel/MemoryListView.h"
#include "matching/ColumnCache.h"
#include "matching/RowMatcher.h"
#include "support/ClockFake.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Printers.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sifter {
namespace {

using Criteria = std::vector<FilterCriterion>;

bool SameCell(const ListSubItem& a, const ListSubItem& b) {
  return a.Key() == b.Key() && a.Text() == b.Text() && a.Tag() == b.Tag() &&
         a.ReportIcon() == b.ReportIcon() && a.ToolTipText() == b.ToolTipText() &&
         a.ForeColor() == b.ForeColor() && a.Bold() == b.Bold();
}

bool SameRow(ListItem& a, ListItem& b) {
  const Ref<ListSubItemCollection> cellsA = a.ListSubItems();
  const Ref<ListSubItemCollection> cellsB = b.ListSubItems();
  bool same = a.Index() == b.Index() && a.Key() == b.Key() && a.Text() == b.Text() &&
              a.Tag() == b.Tag() && a.Icon() == b.Icon() && a.SmallIcon() == b.SmallIcon() &&
              a.ToolTipText() == b.ToolTipText() && a.Checked() == b.Checked() &&
              a.Bold() == b.Bold() && a.ForeColor() == b.ForeColor() &&
              a.Ghosted() == b.Ghosted() && cellsA->Count() == cellsB->Count();
  for (std::int32_t j = 1; same && j <= cellsA->Count(); ++j)
    same = SameCell(*cellsA->Item(j), *cellsB->Item(j));
  return same;
}

bool SameRows(HostListView& a, HostListView& b) {
  const Ref<ListItemCollection> itemsA = a.ListItems();
  const Ref<ListItemCollection> itemsB = b.ListItems();
  bool same = itemsA->Count() == itemsB->Count();
  for (std::int32_t i = 1; same && i <= itemsA->Count(); ++i)
    same = SameRow(*itemsA->Item(i), *itemsB->Item(i));
  return same;
}

std::string Shown(const Criteria& criteria) {
  std::string shown;
  for (const FilterCriterion& row : criteria)
    shown += Quoted(row.caption) + " type " + std::to_string(row.dataType) + ' ' +
             Quoted(row.operatorWord) + " text " + Quoted(row.text) + " from " + Quoted(row.from) +
             " to " + Quoted(row.to) + " dates " + sifter::Shown(row.dateFrom) + ' ' +
             sifter::Shown(row.dateTo) + '\n';
  return shown;
}

void Refill(MemoryListView& list, MemoryListView& full) {
  list.ListItems()->Clear();
  const RowStore& rows = full.Shared()->Rows();
  for (std::int32_t i = 1; i <= rows.Count(); ++i) list.Shared()->AppendShared(rows.At(i));
}

// One table and the lists that the engine and the textbook work on. It is filtered again and
// again from its full copy, which changes now and then.
class Table {
 public:
  Table(Choices& choices, int rows)
      : choices_(choices), maker_(choices), full_(maker_.EmptyList()) {
    for (int i = 0; i < rows; ++i) maker_.AddRow(*full_);
  }

  // What the host does in the notices of a run.
  using Interference = std::function<void(HostListView& list, int notice)>;

  void EditNowAndThen() {
    if (choices_.OneIn(3)) maker_.Edit(*full_);
    // The same content in rows of their own.
    if (choices_.OneIn(10)) full_ = CopyOfFull();
  }

  // True when some of the rows were left and some were not.
  bool Compare(ColumnCache& cache, const Conversions& conversions) {
    const Criteria criteria = maker_.Criteria(*full_);
    const bool matchCase = choices_.OneIn(2);
    const Outcome book = Filtered(ByTextbook(criteria, matchCase, conversions));
    Expect(book, criteria, WithoutObserver(ByEngine(criteria, matchCase, conversions, cache)));
    Expect(book, criteria, Filtered(ByEngine(criteria, matchCase, conversions, cache)));
    Expect(book, criteria, Filtered(MemberByMember(criteria, matchCase, conversions, cache)));
    const std::int32_t left = book.list->ListItems()->Count();
    return left > 0 && left < full_->ListItems()->Count();
  }

  void CompareUnderInterference(ColumnCache& cache, const Conversions& conversions,
                                const Interference& interference) {
    const Criteria criteria = maker_.Criteria(*full_);
    const bool matchCase = choices_.OneIn(2);
    const Outcome book = Filtered(ByTextbook(criteria, matchCase, conversions), interference);
    Expect(book, criteria,
           Filtered(ByEngine(criteria, matchCase, conversions, cache), interference));
    Expect(book, criteria,
           Filtered(MemberByMember(criteria, matchCase, conversions, cache), interference));
  }

 private:
  using Filter = std::function<void(const Ref<MemoryListView>& list)>;

  struct Outcome {
    Ref<MemoryListView> list;
    std::optional<std::vector<std::string>> notices;
  };

  Filter ByTextbook(const Criteria& criteria, bool matchCase, const Conversions& conversions) {
    return [&, matchCase](const Ref<MemoryListView>& list) {
      textbook::Engine(*list, criteria, matchCase, conversions).ApplyCriteria();
    };
  }

  Filter ByEngine(const Criteria& criteria, bool matchCase, const Conversions& conversions,
                  ColumnCache& cache) {
    return [&, matchCase](const Ref<MemoryListView>& list) {
      RowMatcher(list, criteria, matchCase, conversions, cache).ApplyCriteria();
    };
  }

  Filter MemberByMember(const Criteria& criteria, bool matchCase, const Conversions& conversions,
                        ColumnCache& cache) {
    return [&, matchCase](const Ref<MemoryListView>& list) {
      Recorder calls;
      const auto foreign = MakeRef<RecordingListView>(list, calls);
      foreign->RecordNothing();
      RowMatcher(foreign, criteria, matchCase, conversions, cache).ApplyCriteria();
    };
  }

  Outcome WithoutObserver(const Filter& filter) {
    const Ref<MemoryListView> list = CopyOfFull();
    filter(list);
    return {list, std::nullopt};
  }

  Outcome Filtered(const Filter& filter, const Interference& interference = nullptr) {
    const Ref<MemoryListView> list = CopyOfFull();
    Recorder notices;
    ListObserverRecorder observer(*list, notices);
    int notice = 0;
    bool within = false;
    observer.During([&](ListMessage, std::intptr_t) {
      if (!interference || within) return;
      within = true;
      interference(*list, ++notice);
      within = false;
    });
    filter(list);
    return {list, notices.Lines()};
  }

  Ref<MemoryListView> CopyOfFull() {
    const Ref<MemoryListView> list = maker_.EmptyList();
    Refill(*list, *full_);
    return list;
  }

  void Expect(const Outcome& book, const Criteria& criteria, const Outcome& engine) {
    const bool sameNotices = !engine.notices || engine.notices == book.notices;
    if (sameNotices && SameRows(*book.list, *engine.list)) return;
    ADD_FAILURE() << "rows:\n" << DumpRows(*full_) << "criteria:\n" << Shown(criteria);
    EXPECT_EQ(DumpRows(*engine.list), DumpRows(*book.list));
    EXPECT_EQ(engine.notices.value_or(*book.notices), *book.notices);
  }

  Choices& choices_;
  CaseMaker maker_;
  Ref<MemoryListView> full_;
};

int SomeRows(Choices& choices) {
  if (choices.OneIn(200)) return static_cast<int>(choices.Below(200));
  return static_cast<int>(choices.OneIn(6) ? choices.Below(4) : 4 + choices.Below(9));
}

// A year changes what a date without one stands for.
void SetYear(Choices& choices, ClockFake& clock) {
  clock.Set({.year = 2007 + static_cast<int>(choices.Below(2)), .month = 6, .day = 15});
}

constexpr int kSeeds = 8;
constexpr int kTables = 1300;
constexpr int kRunsOfTable = 10;
static_assert(kSeeds * kTables * kRunsOfTable >= 100'000);

class Equivalence : public testing::TestWithParam<int> {
 protected:
  RandomChoices choices_{static_cast<std::uint32_t>(GetParam())};
  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  ColumnCache cache_;  // one for all tables: what it keeps must never be taken for another list's
};

TEST_P(Equivalence, EngineLeavesWhatTheTextbookLeaves) {
  int cases = 0;
  int parted = 0;
  for (int t = 0; t < kTables && !HasFailure(); ++t) {
    Table table(choices_, SomeRows(choices_));
    for (int run = 0; run < kRunsOfTable && !HasFailure(); ++run, ++cases) {
      if (choices_.OneIn(20)) SetYear(choices_, clock_);
      table.EditNowAndThen();
      if (table.Compare(cache_, conversions_)) ++parted;
    }
  }
  RecordProperty("cases", cases);
  RecordProperty("cases_that_parted_the_rows", parted);
  EXPECT_EQ(cases, kTables * kRunsOfTable);
  EXPECT_GT(parted, cases / 5);
}

// What a host may do to its list in a notice, the same for the same seed.
void Meddle(HostListView& list, std::uint32_t seed) {
  static constexpr const char16_t* kCells[] = {u"abc", u"", u"3", u"1/1/2005", u"bad", u"aBc"};
  RandomChoices choices(seed);
  const Ref<ListItemCollection> items = list.ListItems();
  const std::int32_t count = items->Count();
  const auto position = static_cast<std::int32_t>(choices.Below(static_cast<std::uint32_t>(count)));
  switch (choices.Below(24)) {
    case 0:
    case 1:
    case 2: {
      const Ref<ListItem> item = items->Add(position, Text(), choices.Of(kCells), Value(), Value());
      if (list.ColumnHeaders()->Count() > 1) item->SetSubItems(1, choices.Of(kCells));
      return;
    }
    case 3:
    case 4:
      return items->Item(position + 1)->SetText(choices.Of(kCells));
    case 5:
      if (list.ColumnHeaders()->Count() > 1)
        items->Item(position + 1)->SetSubItems(1, choices.Of(kCells));
      return;
    case 6:
      return items->Remove(position + 1);
    case 7:
      if (choices.OneIn(4)) items->Clear();
      return;
    case 8:
      if (choices.OneIn(4)) list.ColumnHeaders()->Clear();
      return;
    case 9:
      list.ColumnHeaders()->Add(0, Text(), u"New", 1440, 0, Value());
      return;
    default:
      return;
  }
}

constexpr int kMeddledTables = 300;

TEST_P(Equivalence, HoldsWhileTheHostChangesItsListInTheNotices) {
  int cases = 0;
  for (int t = 0; t < kMeddledTables && !HasFailure(); ++t) {
    Table table(choices_, SomeRows(choices_));
    for (int run = 0; run < kRunsOfTable && !HasFailure(); ++run, ++cases) {
      const std::uint32_t seed = choices_.Below(65536);
      table.EditNowAndThen();
      table.CompareUnderInterference(cache_, conversions_, [seed](HostListView& list, int notice) {
        if (list.ListItems()->Count() > 0) Meddle(list, seed + static_cast<std::uint32_t>(notice));
      });
    }
  }
  RecordProperty("cases", cases);
  EXPECT_EQ(cases, kMeddledTables * kRunsOfTable);
}

INSTANTIATE_TEST_SUITE_P(Seeds, Equivalence, testing::Range(1, kSeeds + 1));

}  // namespace
}  // namespace sifter
