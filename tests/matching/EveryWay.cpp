#include "EveryWay.h"

#include "Textbook.h"
#include "listmodel/MemoryListView.h"
#include "support/ListObserverRecorder.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

namespace sifter {

TextRows KeptRows(const std::vector<std::string>& columns, const TextRows& rows,
                  const std::vector<FilterCriterion>& criteria, MatchCase matchCase) {
  EngineRun run;
  const Ref<MemoryListView> first = MakeList(columns, rows);
  const Ref<MemoryListView> again = MakeList(columns);
  for (std::int32_t i = 1; i <= first->ListItems()->Count(); ++i)
    again->Shared()->AppendShared(first->Shared()->Rows().At(i));
  run.Apply(first, criteria, matchCase);
  run.Apply(again, criteria, matchCase);
  const TextRows kept = Texts(*first);
  EXPECT_EQ(Texts(*again), kept) << "from the cache";

  Recorder recorder;
  const Ref<MemoryListView> observed = MakeList(columns, rows);
  const ListObserverRecorder observer(*observed, recorder);
  EngineRun().Apply(observed, criteria, matchCase);
  EXPECT_EQ(Texts(*observed), kept) << "with an observer";

  const Ref<MemoryListView> behind = MakeList(columns, rows);
  EngineRun().Apply(MakeRef<RecordingListView>(behind, recorder), criteria, matchCase);
  EXPECT_EQ(Texts(*behind), kept) << "member by member";

  const Ref<MemoryListView> book = MakeList(columns, rows);
  textbook::Engine(*book, criteria, matchCase == MatchCase::kOn, run.EnUs()).ApplyCriteria();
  EXPECT_EQ(Texts(*book), kept) << "by the textbook";
  return kept;
}

std::vector<std::string> KeptCells(const std::string& column, const std::vector<std::string>& cells,
                                   const FilterCriterion& criterion, MatchCase matchCase) {
  TextRows rows;
  for (const std::string& cell : cells) rows.push_back({cell});
  std::vector<std::string> kept;
  for (const std::vector<std::string>& row : KeptRows({column}, rows, {criterion}, matchCase))
    kept.push_back(row[0]);
  return kept;
}

}  // namespace sifter
