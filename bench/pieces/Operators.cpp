// The tests of one criterion over all rows, without taking any out: each family of operators, with
// the column's cells read before ("warm" lists) and what reading a column costs.

#include "Tables.h"
#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"
#include "matching/CaseFolding.h"
#include "matching/ColumnCache.h"
#include "matching/MatchedRows.h"

#include <array>
#include <vector>

namespace sifter::bench {

namespace {

FilterCriterion Criterion(ColumnDataType type) {
  FilterCriterion criterion;
  criterion.dataType = static_cast<std::int32_t>(type);
  return criterion;
}

FilterCriterion TextCriterion(TextView parameter) {
  FilterCriterion criterion = Criterion(ColumnDataType::kText);
  criterion.text = Text(parameter);
  return criterion;
}

FilterCriterion NumberCriterion(TextView from, TextView to) {
  FilterCriterion criterion = Criterion(ColumnDataType::kNumber);
  criterion.from = Text(from);
  criterion.to = Text(to);
  return criterion;
}

FilterCriterion DateCriterion(TextView from, TextView to) {
  FilterCriterion criterion = Criterion(ColumnDataType::kDate);
  criterion.dateFrom = *EnUs().ToDate(from);
  criterion.dateTo = *EnUs().ToDate(to);
  return criterion;
}

template <class Test>
void TestRows(benchmark::State& state, Column column, FilterCriterion criterion, Test test) {
  const Ref<MemoryListView> list = MakeTextList(Table(RowsOf(state)));
  std::vector<FilterCriterion> rows(kGeneratedColumns);
  for (std::size_t k = 0; k < rows.size(); ++k) rows[k].caption = Table(RowsOf(state)).header[k];
  criterion.caption = rows[static_cast<std::size_t>(column)].caption;
  rows[static_cast<std::size_t>(column)] = criterion;
  ColumnCache cache;
  const auto matched = MatchedRows::Of(*list, EnUs(), cache);
  const MatchPass pass{rows[static_cast<std::size_t>(column)], column + 1, rows, false, EnUs()};
  benchmark::DoNotOptimize(matched->FailingRows(pass, test));
  for (auto _ : state) benchmark::DoNotOptimize(matched->FailingRows(pass, test));
  CountRows(state, RowsOf(state));
}

void Measure(const char* name, Column column, const FilterCriterion& criterion, auto test) {
  AllSizes(benchmark::RegisterBenchmark(
      name, [=](benchmark::State& state) { TestRows(state, column, criterion, test); }));
}

template <class Read>
void ReadColumn(benchmark::State& state, Read read) {
  const Ref<MemoryListView> list = MakeTextList(Table(RowsOf(state)));
  HostListView& host = *list;
  std::vector<const RowData*> rows;
  host.Shared()->Rows().CollectRows(rows);
  ColumnCache cache;
  for (auto _ : state) {
    cache.Clear();
    cache.Align(rows, EnUs());
    read(cache);
  }
  CountRows(state, RowsOf(state));
}

void MeasureReading(const char* name, auto read) {
  AllSizes(benchmark::RegisterBenchmark(
      name, [read](benchmark::State& state) { ReadColumn(state, read); }));
}

const bool kRegistered = [] {
  Measure("text/contains", kNotes, TextCriterion(u"oak"), TextTest::kContains);
  Measure("text/starts with", kProduct, TextCriterion(u"st"), TextTest::kStartsWith);
  Measure("text/ends with", kProduct, TextCriterion(u"er"), TextTest::kEndsWith);
  Measure("text/equals", kCategory, TextCriterion(u"garden"), TextTest::kEquals);
  Measure("text/contains a column", kNotes, TextCriterion(u"[City]"), TextTest::kContains);
  Measure("number/is greater than", kQuantity, NumberCriterion(u"500", u""),
          NumberTest::kGreaterThan);
  Measure("number/is between", kPrice, NumberCriterion(u"100", u"600"), NumberTest::kBetween);
  Measure("number/is less than a column", kWeight, NumberCriterion(u"[Price]", u""),
          NumberTest::kLessThan);
  Measure("date/is after", kOrdered, DateCriterion(u"6/30/2008", u"6/30/2008"), DateTest::kAfter);
  Measure("date/is between", kShipped, DateCriterion(u"1/1/2005", u"6/30/2008"),
          DateTest::kBetween);
  Measure("date/is empty", kShipped, DateCriterion(u"1/1/2005", u"1/1/2005"), DateTest::kEmpty);
  MeasureReading("read a column/texts", [](ColumnCache& cache) {
    benchmark::DoNotOptimize(cache.Texts(kNotes, CaseFolding(false, EnUs())));
  });
  MeasureReading("read a column/numbers",
                 [](ColumnCache& cache) { benchmark::DoNotOptimize(cache.Numbers(kPrice)); });
  MeasureReading("read a column/dates", [](ColumnCache& cache) {
    benchmark::DoNotOptimize(cache.Dates(kOrdered, EnUs()));
  });
  return true;
}();

}  // namespace

}  // namespace sifter::bench
