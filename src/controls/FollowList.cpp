#include "controls/FollowList.h"

#include "base/AbsorbErrors.h"
#include "controls/RowIndex.h"
#include "filterdialog/CopyListview.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace sifter {

namespace {

const RowStore& Rows(ListViewDump& dump) { return dump.Shared()->Rows(); }

void AddColumns(std::int32_t count, ListViewDump& dump) {
  for (std::int32_t i = 0; i < count; ++i)
    dump.ColumnHeaders()->Add(0, Text(), Text(), Value(), Value(), Value());
}

struct Snapshot {
  Ref<ListViewDump> rows;
  bool whole;  // false when there are rows that can't be read at all
};

// Row by row when a list can't be copied as one, because of a member that a row refuses.
Snapshot SnapshotOf(HostListView& list) {
  auto rows = MakeRef<ListViewDump>();
  if (AbsorbErrors([&] { CopyListview(&list, rows.Get()); })) return {rows, true};
  rows = MakeRef<ListViewDump>();
  AddColumns(list.ColumnHeaders()->Count(), *rows);
  const Ref<ListItemCollection> items = list.ListItems();
  const std::int32_t count = items->Count();
  for (std::int32_t i = 1; i <= count; ++i) rows->AddItemToDump(*items->Item(i));
  return {rows, Rows(*rows).Count() == count};
}

// A list that nobody watched may have got other columns than its copies have. Its rows are compared
// by the cells that the copies can hold.
Snapshot Fitted(Snapshot snapshot, ListViewDump& full) {
  const std::int32_t columns = full.ColumnHeaders()->Count();
  if (snapshot.rows->ColumnHeaders()->Count() == columns) return snapshot;
  const auto fitted = MakeRef<ListViewDump>();
  AddColumns(columns, *fitted);
  const RowStore& rows = Rows(*snapshot.rows);
  for (std::int32_t i = 1; i <= rows.Count(); ++i) fitted->AddRowToDump(rows.At(i));
  return {fitted, snapshot.whole};
}

// An index that is only made when it is asked for.
class LazyIndex {
 public:
  explicit LazyIndex(ListViewDump& dump) : dump_(dump) {}

  RowIndex& Get() {
    if (!index_) index_.emplace(dump_);
    return *index_;
  }
  bool Has(const RowData& row) { return Get().PositionOf(row) != 0; }

 private:
  ListViewDump& dump_;
  std::optional<RowIndex> index_;
};

class Follower {
 public:
  Follower(const Snapshot& now, ListViewDump& passed, ListViewDump& full)
      : now_(now.rows), whole_(now.whole), passed_(passed), fullDump_(full), full_(full) {}

  void Run(Copies copies) {
    Match();
    if (copies == Copies::kDoubtful)
      AddAllUnknown();
    else
      for (const std::int32_t i : unmatchedNow_) AddUnknown(i);
    if (whole_) TakeMissing();  // a row that can't be read would count as gone
  }

  void AddAllUnknown() {
    for (std::int32_t i = 1; i <= Rows(*now_).Count(); ++i) AddUnknown(i);
  }

 private:
  static bool Matches(const RowData& a, const RowData& b) {
    return a.CellCount() == b.CellCount() && SameRow(a, b);
  }

  // Most rows stand in the list in the order in which the last filtering left them. What is left
  // over on either side has to be looked for.
  void Match() {
    const RowStore& now = Rows(*now_);
    const RowStore& passed = Rows(passed_);
    std::int32_t j = 1;
    for (std::int32_t i = 1; i <= now.Count(); ++i) {
      const std::int32_t end = std::min(passed.Count() + 1, j + kLookAhead);
      std::int32_t next = j;
      while (next < end && !Matches(now.At(i), passed.At(next))) ++next;
      if (next == end) {
        unmatchedNow_.push_back(i);
        continue;
      }
      matchedNow_.push_back(i);
      for (; j < next; ++j) unmatchedPassed_.push_back(j);
      ++j;
    }
    for (; j <= passed.Count(); ++j) unmatchedPassed_.push_back(j);
  }

  void AddUnknown(std::int32_t i) {
    const RowData& row = Rows(*now_).At(i);
    if (full_.Has(row)) return;
    fullDump_.AddRowToDump(row);
    full_.Get().Update();
  }

  void TakeMissing() {
    if (unmatchedPassed_.empty()) return;
    RowIndex moved(*now_);  // the rows that only stand elsewhere by now
    for (const std::int32_t i : matchedNow_) moved.Take(i);
    RowIndex now(*now_);
    std::vector<std::int32_t> going;
    for (const std::int32_t j : unmatchedPassed_) {
      const RowData& row = Rows(passed_).At(j);
      if (const std::int32_t elsewhere = moved.PositionOf(row))
        moved.Take(elsewhere);
      else if (const std::int32_t position = TakeSurplus(row, now))
        going.push_back(position);
    }
    std::sort(going.begin(), going.end());
    fullDump_.Shared()->RemoveRows(going);
  }

  // Equal rows can't be told apart: as many of them stay as the list has.
  std::int32_t TakeSurplus(const RowData& row, RowIndex& now) {
    for (;;) {
      const std::int32_t position = full_.Get().PositionOf(row);
      if (position == 0) return 0;
      full_.Get().Take(position);
      const std::int32_t kept = now.PositionOf(row);
      if (kept == 0) return position;
      now.Take(kept);
    }
  }

  static constexpr std::int32_t kLookAhead = 9;

  const Ref<ListViewDump> now_;
  const bool whole_;
  ListViewDump& passed_;
  ListViewDump& fullDump_;
  LazyIndex full_;
  std::vector<std::int32_t> matchedNow_;       // positions in the list
  std::vector<std::int32_t> unmatchedNow_;     // the others
  std::vector<std::int32_t> unmatchedPassed_;  // positions among the rows that passed
};

void RemoveFirst(const RowData& row, ListViewDump& dump) {
  const RowStore& rows = Rows(dump);
  for (std::int32_t position = 1; position <= rows.Count(); ++position)
    if (SameRow(row, rows.At(position))) {
      dump.Shared()->RemoveRows({position});
      return;
    }
}

}  // namespace

void FollowList(HostListView& list, ListViewDump& passed, ListViewDump& full, Copies copies) {
  Follower(Fitted(SnapshotOf(list), full), passed, full).Run(copies);
}

void AddUnknownRows(HostListView& list, ListViewDump& full) {
  Follower(Fitted(SnapshotOf(list), full), full, full).AddAllUnknown();
}

void TakeRows(HostListView& list, ListViewDump& full) {
  const Ref<ListViewDump> now = SnapshotOf(list).rows;
  full.ListItems()->Clear();
  if (full.ColumnHeaders()->Count() == 0) detail::CopyColumns(*now, full);
  for (std::int32_t i = 1; i <= Rows(*now).Count(); ++i) full.AddRowToDump(Rows(*now).At(i));
}

void ForgetRow(ListItem& row, ListViewDump& passed, ListViewDump& full) {
  const auto alone = MakeRef<ListViewDump>();
  AddColumns(full.ColumnHeaders()->Count(), *alone);
  alone->AddItemToDump(row);
  if (Rows(*alone).Count() == 0) return;
  RemoveFirst(Rows(*alone).At(1), full);
  RemoveFirst(Rows(*alone).At(1), passed);
}

}  // namespace sifter
