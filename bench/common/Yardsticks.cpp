#include "common/Yardsticks.h"

#include "common/RowHash.h"
#include "common/TextbookFilter.h"

#include <stdexcept>
#include <utility>

namespace sifter::bench {

namespace {

void RequireSame(const std::vector<std::uint32_t>& rows, const std::vector<std::uint32_t>& expected,
                 const std::string& who, const std::string& name) {
  if (rows.size() == expected.size() && RowHash(rows) == RowHash(expected)) return;
  throw std::logic_error("the filter \"" + name + "\" leaves " + std::to_string(expected.size()) +
                         " rows in the dialog, but " + who + " keeps " +
                         std::to_string(rows.size()) + ", and not the same ones");
}

}  // namespace

Yardsticks::Yardsticks(Ref<MemoryListView> list) : dialog_(list), table_(*list) {}

bool Yardsticks::MatchCase() {
  return dialog_.Form().chkCaseSensitive.Value() == CheckValue::kChecked;
}

// Setting the dialog up anew makes it forget what it has read.
Duration Yardsticks::ApplyForTheFirstTime(const Workload& workload) {
  dialog_.Form().ClearCriteria();
  dialog_.Refill();
  dialog_.Form().SetUpForm();
  dialog_.Choose(workload);
  return dialog_.Apply();
}

void Yardsticks::RequireSameRows(const std::vector<FlatTable::Row>& passing,
                                 const std::vector<std::uint32_t>& expected,
                                 const std::string& name) const {
  std::vector<std::uint32_t> rows;
  for (const FlatTable::Row row : passing) rows.push_back(table_.NumberOf(row));
  RequireSame(rows, expected, "the flat loop", name);
}

Duration Yardsticks::RunTextbook(const std::vector<std::uint32_t>& expected,
                                 const std::string& name) {
  dialog_.Refill();
  const Duration duration = Timed([&] {
    TextbookFilter(dialog_.List(), dialog_.Form().AppliedCriteria(), MatchCase(), dialog_.EnUs());
  });
  RequireSame(dialog_.RowsLeft(), expected, "the textbook's filter", name);
  return duration;
}

Comparison Yardsticks::Compare(const Workload& workload, int repetitions, bool withTextbook) {
  Durations first, ours, flat;
  std::vector<std::uint32_t> left;
  for (int i = 0; i < 3; ++i) first.Add(ApplyForTheFirstTime(workload));
  const FlatFilter filter(dialog_.Form().AppliedCriteria(), MatchCase(), dialog_.EnUs());
  std::vector<FlatTable::Row> passing;
  for (int i = 0; i < repetitions; ++i) {
    dialog_.Refill();
    ours.Add(dialog_.Apply());
    left = dialog_.RowsLeft();
    flat.Add(Timed([&] { filter.Run(table_, passing); }));
    RequireSameRows(passing, left, workload.name);
  }
  Comparison comparison{.name = workload.name,
                        .rows = table_.Rows().size(),
                        .kept = left.size(),
                        .ours = ours.Least(),
                        .first = first.Least(),
                        .flat = flat.Least(),
                        .textbook = {}};
  if (withTextbook) comparison.textbook = RunTextbook(left, workload.name);
  return comparison;
}

Comparison Yardsticks::CompareChangeAndReset(int repetitions, bool withTextbook) {
  Durations ours, flat;
  Comparison comparison{.name = "change, reset",
                        .rows = table_.Rows().size(),
                        .kept = 0,
                        .ours = {},
                        .first = {},
                        .flat = {},
                        .textbook = {}};
  std::vector<FlatTable::Row> passing;
  for (int i = 0; i < repetitions; ++i) {
    dialog_.Choose(WorkloadNamed("three"));
    dialog_.Apply();
    dialog_.Change(ChangedThree());
    const Duration change = dialog_.Apply();
    const std::vector<std::uint32_t> left = dialog_.RowsLeft();
    const FlatFilter filter(dialog_.Form().AppliedCriteria(), MatchCase(), dialog_.EnUs());
    if (withTextbook && i == 0) comparison.textbook = RunTextbook(left, comparison.name);
    const Duration reset = dialog_.Reset();
    ours.Add({change.wall + reset.wall, change.cpu + reset.cpu});

    const Duration flatChange = Timed([&] { filter.Run(table_, passing); });
    RequireSameRows(passing, left, comparison.name);
    const Duration flatReset = Timed([&] { passing = table_.Rows(); });
    flat.Add({flatChange.wall + flatReset.wall, flatChange.cpu + flatReset.cpu});
    RequireSameRows(passing, dialog_.RowsLeft(), comparison.name);
    comparison.kept = left.size();
  }
  comparison.ours = ours.Least();
  comparison.flat = flat.Least();
  return comparison;
}

}  // namespace sifter::bench
