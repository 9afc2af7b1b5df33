#include "matching/RowMatcher.h"

#include "Criteria.h"
#include "EveryWay.h"
#include "listmodel/MemoryListView.h"
#include "support/ListObserverRecorder.h"
#include "support/Printers.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

const Date kNewYear = Day(2005, 1, 1);

TEST(RowMatcher, WithEveryRowOnAllRemovesNothing) {
  const TextRows rows = {{"a", "1", "bad"}, {"", "", ""}};
  EXPECT_EQ(KeptRows({"Name", "Qty", "Due"}, rows,
                     {TextRow("Name", "All", "zzz"), NumberRow("Qty", "All", "9"),
                      DateRow("Due", "All", kNewYear)}),
            rows);
}

TEST(RowMatcher, WithoutCriteriaOrRowsRemovesNothing) {
  const TextRows rows = {{"a"}, {"b"}};
  EXPECT_EQ(KeptRows({"Name"}, rows, {}), rows);
  EXPECT_EQ(KeptRows({"Name"}, {}, {TextRow("Name", "equals", "a")}), TextRows());
}

TEST(RowMatcher, WithoutAListDoesNothing) {
  EngineRun run;
  run.Apply(nullptr, {TextRow("Name", "equals", "a"), DateRow("Due", "is empty")});
}

TEST(RowMatcher, AWordThatDoesNotSuitTheTypeFiltersNothing) {
  const TextRows rows = {{"a"}, {""}, {"1/1/2005"}, {"3"}};
  const FilterCriterion misfits[] = {
      TextRow("c", "is empty"),      TextRow("c", "is between", "a"),
      TextRow("c", "is before"),     TextRow("c", "is greater than"),
      NumberRow("c", "is empty"),    NumberRow("c", "contains", "3"),
      NumberRow("c", "starts with"), NumberRow("c", "is after"),
      DateRow("c", "contains"),      DateRow("c", "ends with"),
      DateRow("c", "is less than"),  TextRow("c", ""),
      TextRow("c", "equals "),       TextRow("c", "matches", "a"),
      TextRow("c", "all", "a"),      TextRow("c", "ALL", "a"),
      TextRow("c", "All ", "a"),     NumberRow("c", "ALL", "9"),
  };
  for (const FilterCriterion& misfit : misfits)
    EXPECT_EQ(KeptRows({"c"}, rows, {misfit}), rows) << misfit.operatorWord.ToUtf8();
}

TEST(RowMatcher, ATypeThatIsNoneFiltersNothing) {
  const TextRows rows = {{"a"}, {""}};
  for (const std::int32_t type : {-1, 3, 65536}) {
    FilterCriterion criterion = TextRow("c", "equals", "a");
    criterion.dataType = type;
    EXPECT_EQ(KeptRows({"c"}, rows, {criterion}), rows) << type;
  }
}

TEST(RowMatcher, AWordIsRecognisedInAnyCase) {
  for (const char* word : {"equals", "EQUALS", "Equals", "eQuAlS"})
    EXPECT_EQ(KeptCells("c", {"a", "b"}, TextRow("c", word, "a")), (std::vector<std::string>{"a"}))
        << word;
}

TEST(RowMatcher, EveryActiveRowHasToPass) {
  const TextRows rows = {
      {"oak", "1", "1/1/2005"}, {"oak", "9", "1/1/2005"}, {"elm", "9", "1/1/2005"},
      {"oak", "9", ""},         {"oak", "8", "1/1/2006"},
  };
  EXPECT_EQ(KeptRows({"Name", "Qty", "Due"}, rows,
                     {TextRow("Name", "equals", "oak"), NumberRow("Qty", "is greater than", "5"),
                      DateRow("Due", "is between", kNewYear, Day(2006, 1, 1))}),
            (TextRows{rows[1], rows[4]}));
}

TEST(RowMatcher, EveryRowPassesOrNoneDoes) {
  const TextRows rows = {{"a"}, {"ab"}};
  EXPECT_EQ(KeptRows({"c"}, rows, {TextRow("c", "contains", "a")}), rows);
  EXPECT_EQ(KeptRows({"c"}, rows, {TextRow("c", "contains", "x")}), TextRows());
}

TEST(RowMatcher, ARowBeyondTheListsColumnsFiltersNothing) {
  const TextRows rows = {{"a"}, {"b"}};
  EXPECT_EQ(KeptRows({"c"}, rows, {TextRow("c"), TextRow("d", "equals", "x")}), rows);
  EXPECT_EQ(KeptRows({"c"}, rows, {TextRow("c", "equals", "a"), TextRow("d", "equals", "x")}),
            (TextRows{{"a"}}));
  EXPECT_EQ(KeptRows({"c"}, rows, {TextRow("c", "equals", "[d]"), TextRow("d")}), rows);
}

// The cells outlive their columns, but nobody can get at them any more.
TEST(RowMatcher, ACellWhoseColumnHasBeenTakenAwayFiltersNothing) {
  const Ref<MemoryListView> list = MakeList({"a", "b"}, {{"oak", "x"}, {"elm", "y"}});
  list->ColumnHeaders()->Clear();
  EngineRun().Apply(list, {TextRow("a"), TextRow("b", "equals", "y")});
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"oak", "elm"}));
  EngineRun().Apply(list, {TextRow("a", "equals", "oak"), TextRow("b", "equals", "y")});
  EXPECT_EQ(FirstTexts(*list), (std::vector<std::string>{"oak"}));
}

TEST(RowMatcher, TwoRowsWithOneWordAreBothApplied) {
  const TextRows rows = {{"oak", "red"}, {"oak", "blue"}, {"elm", "red"}};
  EXPECT_EQ(KeptRows({"Name", "Colour"}, rows,
                     {TextRow("Name", "equals", "oak"), TextRow("Colour", "equals", "red")}),
            (TextRows{{"oak", "red"}}));
}

// The routine for a word goes over all rows that have it each time, so that the date row that
// failed at first gets its second try once the row with the bad cell has gone.
TEST(RowMatcher, ADateRowThatFailedIsTriedAgainWhenItsWordComesUpLater) {
  const TextRows rows = {
      {"1/1/2004", "oak", "1/1/2004"},  // passes everything
      {"1/1/2006", "oak", "1/1/2004"},  // fails the first criterion alone
      {"1/1/2004", "oak", "1/1/2006"},  // fails the last one alone
      {"1/1/2004", "elm", "1/1/2004"}, {"bad", "elm", "1/1/2004"},
  };
  const std::vector<std::string> columns = {"Due", "Name", "Paid"};
  EXPECT_EQ(KeptRows(columns, rows,
                     {DateRow("Due", "is before", kNewYear), TextRow("Name", "equals", "oak"),
                      DateRow("Paid", "is before", kNewYear)}),
            (TextRows{rows[0]}));
  // With another word in the last one there is no second try.
  EXPECT_EQ(KeptRows(columns, rows,
                     {DateRow("Due", "is before", kNewYear), TextRow("Name", "equals", "oak"),
                      DateRow("Paid", "is after", Day(2003, 1, 1))}),
            (TextRows{rows[0], rows[1], rows[2]}));
}

TEST(RowMatcher, ABadCellInTheFirstOfTwoDateRowsWithOneWordHoldsUpBoth) {
  const TextRows rows = {{"1/1/2004", "1/1/2004"}, {"1/1/2006", "1/1/2006"}, {"bad", "1/1/2004"}};
  EXPECT_EQ(
      KeptRows({"Due", "Paid"}, rows,
               {DateRow("Due", "is before", kNewYear), DateRow("Paid", "is before", kNewYear)}),
      rows);
}

TEST(RowMatcher, ABadCellInTheSecondOfTwoDateRowsKeepsWhatTheFirstRemoved) {
  const TextRows rows = {{"1/1/2004", "1/1/2006"}, {"1/1/2006", "1/1/2004"}, {"1/2/2004", "bad"}};
  EXPECT_EQ(
      KeptRows({"Due", "Paid"}, rows,
               {DateRow("Due", "is before", kNewYear), DateRow("Paid", "is before", kNewYear)}),
      (TextRows{rows[0], rows[2]}));
}

TEST(RowMatcher, ABadDateCellHoldsUpItsOwnWordOnly) {
  const TextRows rows = {
      {"bad", "oak", ""}, {"1/1/2006", "elm", ""}, {"1/1/2006", "oak", "1/1/2006"}};
  EXPECT_EQ(KeptRows({"Due", "Name", "Paid"}, rows,
                     {DateRow("Due", "is before", kNewYear), TextRow("Name", "equals", "oak"),
                      DateRow("Paid", "is after", kNewYear)}),
            (TextRows{rows[2]}));
}

TEST(RowMatcher, RemovesInPlaceFromTheHighestRowToTheLowest) {
  Recorder calls;
  const Ref<MemoryListView> rows = MakeList({"c"}, {{"a"}, {"x"}, {"b"}, {"x"}, {"x"}, {"a"}});
  const auto list = MakeRef<RecordingListView>(rows, calls);
  list->RecordOnly({"ListView.BeginUpdate", "ListView.EndUpdate", "ListItems.Remove",
                    "ListItems.Clear", "ListItems.Add"});
  EngineRun().Apply(list, {TextRow("c", "does not equal", "x")});
  EXPECT_TRUE(calls.Shows({"BeginUpdate", "ListItems.Remove(5)", "ListItems.Remove(4)",
                           "ListItems.Remove(2)", "EndUpdate"}));
  EXPECT_EQ(FirstTexts(*rows), (std::vector<std::string>{"a", "b", "a"}));
}

TEST(RowMatcher, SendsOneNoticeForEachRowThatGoes) {
  Recorder notices;
  const Ref<MemoryListView> list = MakeList({"c"}, {{"a"}, {"x"}, {"b"}, {"x"}});
  const ListObserverRecorder observer(*list, notices);
  EngineRun().Apply(list, {TextRow("c", "does not equal", "x"), TextRow("d", "All")});
  EXPECT_TRUE(notices.Shows({"DeleteItem 3, 4 rows", "DeleteItem 1, 3 rows"}));
}

TEST(RowMatcher, AppliesTheCriteriaInTheOrderOfTheirRows) {
  Recorder notices;
  const Ref<MemoryListView> list =
      MakeList({"a", "b", "c"}, {{"", "", "x"}, {"", "x", ""}, {"x", "", ""}, {"", "", ""}});
  const ListObserverRecorder observer(*list, notices);
  EngineRun().Apply(list, {TextRow("a", "does not contain", "x"), TextRow("b", "equals", ""),
                           TextRow("c", "does not equal", "x")});
  EXPECT_TRUE(
      notices.Shows({"DeleteItem 2, 4 rows", "DeleteItem 1, 3 rows", "DeleteItem 0, 2 rows"}));
  EXPECT_EQ(Texts(*list), (TextRows{{"", "", ""}}));
}

TEST(RowMatcher, ReadsNothingFromAForeignListThatItDoesNotNeed) {
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(
      MakeList({"Name", "Qty", "Due"}, {{"a", "1", "x"}, {"b", "2", "x"}}), calls);
  EngineRun().Apply(list, {TextRow("Name", "equals", "b"), NumberRow("Qty"), DateRow("Due")});
  EXPECT_TRUE(calls.Shows({"BeginUpdate", "ListItems", "ListItems.Count", "ListItems.Item(1)",
                           "ListItems(1).Text", "ListItems.Item(2)", "ListItems(2).Text",
                           "ListItems", "ListItems.Remove(1)", "EndUpdate"}));
}

TEST(RowMatcher, ReadsTheCellAndThenTheCellsThatItsParametersName) {
  Recorder calls;
  const auto list = MakeRef<RecordingListView>(
      MakeList({"Name", "From", "To"}, {{"1/1/2006", "1/1/2005", "1/1/2007"}}), calls);
  list->RecordOnly({"ListItem"});
  EngineRun().Apply(list, {Overlaid(DateRow("Name", "is between"), "[From]", "[To]"),
                           DateRow("From"), DateRow("To", "is before", Day(2008, 1, 1))});
  EXPECT_TRUE(calls.Shows({"ListItems(1).Text", "ListItems(1).SubItems(1)",
                           "ListItems(1).SubItems(2)", "ListItems(1).SubItems(2)"}));
}

struct RoutineCase {
  const char* name;
  void (RowMatcher::*run)();
  FilterCriterion criterion;
  const char* passes;
  const char* fails;
};

// One row of the dialog for every routine, each over a column of its own. The first row of the
// list passes them all and each other row fails just one of them, so that a routine called alone
// takes just one row out.
TEST(RowMatcher, ARoutineAppliesItsOwnWordAndTypeAlone) {
  using M = RowMatcher;
  const Date from = Day(2005, 1, 3);
  const Date to = Day(2005, 1, 5);
  const std::vector<RoutineCase> routines = {
      {"1", &M::FilterContains, TextRow("1", "contains", "b"), "abc", "x"},
      {"2", &M::FilterDoesNotContain, TextRow("2", "does not contain", "b"), "x", "abc"},
      {"3", &M::FilterStartsWith, TextRow("3", "starts with", "b"), "bc", "cb"},
      {"4", &M::FilterEndsWith, TextRow("4", "ends with", "b"), "cb", "bc"},
      {"5", &M::FilterTextEquals, TextRow("5", "equals", "3"), "3", "3.0"},
      {"6", &M::FilterTextNotEqual, TextRow("6", "does not equal", "3"), "3.0", "3"},
      {"7", &M::FilterNumberEquals, NumberRow("7", "equals", "3"), "3.0", "4"},
      {"8", &M::FilterNumberNotEqual, NumberRow("8", "does not equal", "3"), "4", "3.0"},
      {"9", &M::FilterGreaterThan, NumberRow("9", "is greater than", "3"), "10", "3"},
      {"10", &M::FilterLessThan, NumberRow("10", "is less than", "3"), "2", "10"},
      {"11", &M::FilterNumberBetween, NumberRow("11", "is between", "3", "5"), "4", "5"},
      {"12", &M::FilterNumberNotBetween, NumberRow("12", "is not between", "3", "5"), "", "5"},
      {"13", &M::FilterDateEquals, DateRow("13", "equals", from), "1/3/2005", "1/4/2005"},
      {"14", &M::FilterDateNotEqual, DateRow("14", "does not equal", from), "1/4/2005", "1/3/2005"},
      {"15", &M::FilterDateBefore, DateRow("15", "is before", from), "1/2/2005", "1/3/2005"},
      {"16", &M::FilterDateAfter, DateRow("16", "is after", from), "1/4/2005", "1/3/2005"},
      {"17", &M::FilterDateBetween, DateRow("17", "is between", from, to), "1/5/2005", ""},
      {"18", &M::FilterDateNotBetween, DateRow("18", "is not between", from, to), "", "1/5/2005"},
      {"19", &M::FilterDateEmpty, DateRow("19", "is empty"), "", "1/5/2005"},
  };
  std::vector<std::string> columns;
  std::vector<FilterCriterion> criteria;
  TextRows rows(1 + routines.size());
  for (const RoutineCase& routine : routines) {
    columns.emplace_back(routine.name);
    criteria.push_back(routine.criterion);
    for (TextRows::size_type i = 0; i < rows.size(); ++i)
      rows[i].emplace_back(i == columns.size() ? routine.fails : routine.passes);
  }
  for (std::size_t k = 0; k < routines.size(); ++k) {
    SCOPED_TRACE(routines[k].criterion.operatorWord.ToUtf8());
    const Ref<MemoryListView> list = MakeList(columns, rows);
    EngineRun run;
    RowMatcher matcher(list, criteria, false, run.EnUs(), run.Cache());
    (matcher.*routines[k].run)();
    TextRows left = rows;
    left.erase(left.begin() + static_cast<std::ptrdiff_t>(k) + 1);
    EXPECT_EQ(Texts(*list), left);
  }
}

}  // namespace
}  // namespace sifter
