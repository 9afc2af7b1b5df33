// Copies and comparisons of whole lists.

#include "Tables.h"
#include "filterdialog/CopyListview.h"
#include "listmodel/ListViewDump.h"
#include "listmodel/MemoryListView.h"
#include "matching/ListComparison.h"

namespace sifter::bench {

namespace {

void CopyToSnapshot(benchmark::State& state) {
  const Ref<MemoryListView> list = MakeTextList(Table(RowsOf(state)));
  const Ref<ListViewDump> snapshot = MakeRef<ListViewDump>();
  for (auto _ : state) CopyListview<HostListView>(list.Get(), snapshot.Get());
  CountRows(state, RowsOf(state));
}
BENCHMARK(CopyToSnapshot)->Name("copy/list to snapshot")->Apply(AllSizes);

void CopyToList(benchmark::State& state) {
  const Ref<MemoryListView> list = MakeTextList(Table(RowsOf(state)));
  const Ref<ListViewDump> snapshot = MakeRef<ListViewDump>();
  CopyListview<HostListView>(list.Get(), snapshot.Get());
  for (auto _ : state) CopyListview<ListViewDump, HostListView>(snapshot.Get(), list.Get());
  CountRows(state, RowsOf(state));
}
BENCHMARK(CopyToList)->Name("copy/snapshot to list")->Apply(AllSizes);

void CompareWithSnapshot(benchmark::State& state) {
  const Ref<MemoryListView> list = MakeTextList(Table(RowsOf(state)));
  const Ref<ListViewDump> snapshot = MakeRef<ListViewDump>();
  CopyListview<HostListView>(list.Get(), snapshot.Get());
  for (auto _ : state)
    if (!ListviewsAreEqual<HostListView>(list.Get(), snapshot.Get()))
      state.SkipWithError("the lists are not equal");
  CountRows(state, RowsOf(state));
}
BENCHMARK(CompareWithSnapshot)->Name("compare/list and its snapshot")->Apply(AllSizes);

void CompareEqualLists(benchmark::State& state) {
  const Ref<MemoryListView> first = MakeUnsharedTextList(Table(RowsOf(state)));
  const Ref<MemoryListView> second = MakeUnsharedTextList(Table(RowsOf(state)));
  for (auto _ : state)
    if (!ListviewsAreEqual<HostListView, HostListView>(first.Get(), second.Get()))
      state.SkipWithError("the lists are not equal");
  CountRows(state, RowsOf(state));
}
BENCHMARK(CompareEqualLists)->Name("compare/equal lists that share nothing")->Apply(AllSizes);

}  // namespace

}  // namespace sifter::bench
