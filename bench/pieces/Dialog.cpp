// What the dialog does before anything is filtered.

#include "Tables.h"
#include "common/DialogUnderTest.h"

namespace sifter::bench {

namespace {

void SetUpForm(benchmark::State& state) {
  DialogUnderTest dialog(MakeTextList(Table(RowsOf(state))));
  for (auto _ : state) dialog.Form().SetUpForm();
  CountRows(state, RowsOf(state));
}
BENCHMARK(SetUpForm)->Name("dialog/SetUpForm")->Apply(AllSizes);

void FillValueList(benchmark::State& state, Column column) {
  DialogUnderTest dialog(MakeTextList(Table(RowsOf(state))));
  for (auto _ : state) dialog.Form().PopulateCriteriaComboBox(static_cast<std::int16_t>(column));
  CountRows(state, RowsOf(state));
}
BENCHMARK_CAPTURE(FillValueList, categories, kCategory)
    ->Name("dialog/value list of 36")
    ->Apply(AllSizes);
BENCHMARK_CAPTURE(FillValueList, cities, kCity)->Name("dialog/value list of 500")->Apply(AllSizes);
BENCHMARK_CAPTURE(FillValueList, notes, kNotes)
    ->Name("dialog/value list of all different")
    ->Apply(AllSizes);

}  // namespace

}  // namespace sifter::bench
