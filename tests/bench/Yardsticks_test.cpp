#include "common/Yardsticks.h"

#include "common/TableGenerator.h"
#include "common/TextList.h"
#include "common/TextbookFilter.h"
#include "sift/CsvReader.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace sifter::bench {
namespace {

using RowNumbers = std::vector<std::uint32_t>;

Ref<MemoryListView> ListOf(std::string_view csv) { return MakeTextList(ReadCsv(csv)); }

// One filter on one list, in the three ways that the benchmarks compare.
struct ThreeWays {
  RowNumbers dialog, flat, textbook;

  ThreeWays(const Ref<MemoryListView>& list, const Workload& workload) {
    DialogUnderTest tested(list);
    const FlatTable table(*list);
    tested.Choose(workload);
    tested.Apply();
    dialog = tested.RowsLeft();

    const std::vector<FilterCriterion> criteria = tested.Form().AppliedCriteria();
    std::vector<FlatTable::Row> passing;
    FlatFilter(criteria, workload.matchCase, tested.EnUs()).Run(table, passing);
    for (const FlatTable::Row row : passing) flat.push_back(table.NumberOf(row));

    tested.Refill();
    TextbookFilter(*list, criteria, workload.matchCase, tested.EnUs());
    textbook = tested.RowsLeft();
  }
};

constexpr std::string_view kFruits =
    "Name,Count,Picked\n"
    "Apple,3,1/5/2020\n"
    "apple,-7.25,12/31/1999\n"
    "pineapple,,2/29/2020\n"
    "APPLE pie,12,\n"
    ",3.0,1/5/2020\n"
    "pear,0.50,10/10/2021\n"
    "\xC3\xA4pfel,100,1/6/2020\n"
    "\xC3\x84PFEL,5,1/4/2020\n";

struct Expectation {
  Where where;
  bool matchCase;
  RowNumbers kept;
};

const std::vector<Expectation> kExpectations = {
    {{"Name", "contains", {"apple"}}, false, {0, 1, 2, 3}},
    {{"Name", "contains", {"apple"}}, true, {1, 2}},
    {{"Name", "contains", {""}}, false, {0, 1, 2, 3, 5, 6, 7}},
    {{"Name", "does not contain", {"apple"}}, false, {4, 5, 6, 7}},
    {{"Name", "does not contain", {""}}, false, {4}},
    {{"Name", "starts with", {"ap"}}, false, {0, 1, 3}},
    {{"Name", "starts with", {"ap"}}, true, {1}},
    {{"Name", "ends with", {"le"}}, false, {0, 1, 2}},
    {{"Name", "ends with", {""}}, false, {0, 1, 2, 3, 4, 5, 6, 7}},
    {{"Name", "equals", {"APPLE"}}, false, {0, 1}},
    {{"Name", "equals", {"\xC3\xA4PFEL"}}, false, {6, 7}},
    {{"Name", "equals", {"APPLE"}}, true, {}},
    {{"Name", "does not equal", {"apple"}}, false, {2, 3, 4, 5, 6, 7}},
    {{"Count", "equals", {"3"}}, false, {0, 4}},
    {{"Count", "does not equal", {"0"}}, false, {0, 1, 3, 4, 5, 6, 7}},
    {{"Count", "is greater than", {"0.5"}}, false, {0, 3, 4, 6, 7}},
    {{"Count", "is less than", {"0.5"}}, false, {1, 2}},
    {{"Count", "is between", {"-7.25", "12"}}, false, {0, 4, 5, 7}},
    {{"Count", "is not between", {"0", "12"}}, false, {1, 6}},
    {{"Picked", "equals", {"1/5/2020"}}, false, {0, 4}},
    {{"Picked", "does not equal", {"1/5/2020"}}, false, {1, 2, 5, 6, 7}},
    {{"Picked", "is after", {"1/5/2020"}}, false, {2, 5, 6}},
    {{"Picked", "is before", {"1/5/2020"}}, false, {1, 7}},
    {{"Picked", "is between", {"1/4/2020", "1/6/2020"}}, false, {0, 4, 6, 7}},
    {{"Picked", "is not between", {"1/4/2020", "1/6/2020"}}, false, {1, 2, 3, 5}},
    {{"Picked", "is empty", {}}, false, {3}},
};

TEST(Yardsticks, KeepTheRowsThatTheDialogKeepsForEveryOperator) {
  for (const Expectation& expected : kExpectations) {
    SCOPED_TRACE(expected.where.column + ' ' + expected.where.operatorWord);
    const ThreeWays kept(ListOf(kFruits), {"one", {expected.where}, expected.matchCase});
    EXPECT_EQ(kept.dialog, expected.kept);
    EXPECT_EQ(kept.flat, expected.kept);
    EXPECT_EQ(kept.textbook, expected.kept);
  }
}

TEST(Yardsticks, KeepTheSameRowsOfTheGeneratedTable) {
  std::vector<Workload> workloads(StandardWorkloads().begin(), StandardWorkloads().end());
  workloads.push_back(ChangedThree());
  for (const Workload& workload : workloads) {
    SCOPED_TRACE(workload.name);
    const ThreeWays kept(ListOf(GeneratedTable(1000)), workload);
    EXPECT_EQ(kept.dialog, kept.flat);
    EXPECT_EQ(kept.dialog, kept.textbook);
    if (workload.name == "none") {
      EXPECT_TRUE(kept.dialog.empty());
    } else if (workload.name == "all") {
      EXPECT_EQ(kept.dialog.size(), 1000u);
    } else {
      EXPECT_GT(kept.dialog.size(), 5u);
      EXPECT_LT(kept.dialog.size(), 500u);
    }
  }
}

TEST(Yardsticks, CompareAllWaysAndCountTheRowsKept) {
  Yardsticks yardsticks(ListOf(GeneratedTable(200)));
  const Comparison none = yardsticks.Compare(WorkloadNamed("none"), 2, true);
  EXPECT_EQ(none.rows, 200u);
  EXPECT_EQ(none.kept, 0u);
  EXPECT_EQ(yardsticks.Compare(WorkloadNamed("all"), 2, true).kept, 200u);
  EXPECT_EQ(yardsticks.Compare(WorkloadNamed("all"), 2, false).textbook.wall, 0);
  const Comparison change = yardsticks.CompareChangeAndReset(2, true);
  EXPECT_EQ(change.rows, 200u);
  EXPECT_LT(change.kept, 200u);
}

TEST(Yardsticks, FailWhenTheResultsDiffer) {
  // The flat loop takes no exponent for a part of a number.
  Yardsticks yardsticks(ListOf("Count\n1e3\n5\n"));
  EXPECT_THROW(yardsticks.Compare({"big", {{"Count", "is greater than", {"100"}}}}, 1, false),
               std::logic_error);
}

TEST(DialogUnderTest, PutsAllRowsBackAndKeepsTheCriteria) {
  DialogUnderTest dialog(ListOf(kFruits));
  dialog.Choose({"one", {{"Name", "contains", {"apple"}}}});
  dialog.Apply();
  EXPECT_EQ(dialog.RowsLeft(), (RowNumbers{0, 1, 2, 3}));
  dialog.Refill();
  EXPECT_EQ(dialog.RowsLeft(), (RowNumbers{0, 1, 2, 3, 4, 5, 6, 7}));
  dialog.Change({"one", {{"Name", "contains", {"pie"}}}});
  dialog.Apply();
  EXPECT_EQ(dialog.RowsLeft(), (RowNumbers{3}));
  dialog.Choose({"other", {{"Count", "equals", {"5"}}}, true});
  dialog.Apply();
  EXPECT_EQ(dialog.RowsLeft(), (RowNumbers{7}));
  EXPECT_EQ(dialog.Form().FilterPlainEnglish, u"Count equals 5");
  EXPECT_FALSE(dialog.Form().Visible());
  dialog.Reset();
  EXPECT_EQ(dialog.RowsLeft().size(), 8u);
  EXPECT_EQ(dialog.Form().FilterPlainEnglish, u"");
}

TEST(DialogUnderTest, SeesARowThatIsNotOneOfTheFullList) {
  const Ref<MemoryListView> list = ListOf(kFruits);
  DialogUnderTest dialog(list);
  list->ListItems()->Item(2)->SetText(u"plum");
  EXPECT_THROW(dialog.RowsLeft(), std::logic_error);
}

TEST(FlatTable, HoldsTheCellsOfAList) {
  const Ref<MemoryListView> list = ListOf(kFruits);
  const FlatTable table(*list);
  TextRows cells;
  RowNumbers numbers;
  for (const FlatTable::Row row : table.Rows()) {
    std::vector<std::string> texts;
    for (std::size_t column = 0; column < table.Columns(); ++column)
      texts.push_back(Text(table.Cell(row, column)).ToUtf8());
    cells.push_back(texts);
    numbers.push_back(table.NumberOf(row));
  }
  EXPECT_EQ(cells, Texts(*list));
  EXPECT_EQ(numbers, (RowNumbers{0, 1, 2, 3, 4, 5, 6, 7}));
}

TEST(TextList, SharesTheTextsOfTheTableUnlessToldNotTo) {
  const CsvTable table = ReadCsv("A,B\nx,x\n");
  const Ref<MemoryListView> shared = MakeTextList(table);
  const Ref<MemoryListView> own = MakeUnsharedTextList(table);
  EXPECT_EQ(Texts(*shared), (TextRows{{"x", "x"}}));
  EXPECT_EQ(Texts(*own), (TextRows{{"x", "x"}}));
  const Text cell = table.Record(0)[1];
  EXPECT_TRUE(ValueToText(shared->ListItems()->Item(1)->SubItems(1)).SharesWith(cell));
  EXPECT_FALSE(ValueToText(own->ListItems()->Item(1)->SubItems(1)).SharesWith(cell));
}

}  // namespace
}  // namespace sifter::bench
