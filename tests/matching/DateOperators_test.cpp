#include "Criteria.h"
#include "EveryWay.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

using Cells = std::vector<std::string>;

const Date kFirst = Day(2005, 1, 1);
const Date kLast = Day(2005, 1, 9);

Cells Kept(const Cells& cells, const FilterCriterion& criterion) {
  const Cells kept = KeptCells("Due", cells, criterion);
  EXPECT_EQ(KeptCells("Due", cells, criterion, MatchCase::kOn), kept) << "case plays no part";
  return kept;
}

struct DateCase {
  const char* word;
  Cells kept;
};

// An empty cell passes "is not between" and "is empty" alone; it fails even "does not equal".
// Reports of open deliveries are built on it.
TEST(DateOperators, EachWord) {
  const Cells cells = {"12/31/2004", "1/1/2005", "Jan 1 2005", "1/1/2005 0:00:01",
                       "1/5/2005",   "1/9/2005", "1/10/2005",  ""};
  const DateCase cases[] = {
      {"equals", {"1/1/2005", "Jan 1 2005"}},
      {"does not equal", {"12/31/2004", "1/1/2005 0:00:01", "1/5/2005", "1/9/2005", "1/10/2005"}},
      {"is before", {"12/31/2004"}},
      {"is after", {"1/1/2005 0:00:01", "1/5/2005", "1/9/2005", "1/10/2005"}},
      {"is between", {"1/1/2005", "Jan 1 2005", "1/1/2005 0:00:01", "1/5/2005", "1/9/2005"}},
      {"is not between", {"12/31/2004", "1/10/2005", ""}},
      {"is empty", {""}},
  };
  for (const DateCase& c : cases) {
    SCOPED_TRACE(c.word);
    EXPECT_EQ(Kept(cells, DateRow("Due", c.word, kFirst, kLast)), c.kept);
  }
}

TEST(DateOperators, TheTimeOfDayCounts) {
  const Cells cells = {"1/1/2005", "1/1/2005 12:00", "1/1/2005 12:00:01 PM"};
  const Date noon = Day(2005, 1, 1, 12);
  EXPECT_EQ(Kept(cells, DateRow("Due", "is after", kFirst)),
            (Cells{"1/1/2005 12:00", "1/1/2005 12:00:01 PM"}));
  EXPECT_EQ(Kept(cells, DateRow("Due", "equals", noon)), (Cells{"1/1/2005 12:00"}));
  EXPECT_EQ(Kept(cells, DateRow("Due", "is before", noon)), (Cells{"1/1/2005"}));
  EXPECT_EQ(Kept(cells, DateRow("Due", "is between", kFirst, noon)),
            (Cells{"1/1/2005", "1/1/2005 12:00"}));
}

TEST(DateOperators, TheSameDateAsBothBoundsKeepsWhatEqualsIt) {
  EXPECT_EQ(Kept({"1/1/2005", "1/1/2005 0:01", "1/2/2005", ""},
                 DateRow("Due", "is between", kFirst, kFirst)),
            (Cells{"1/1/2005"}));
}

TEST(DateOperators, BoundsInTheWrongOrderAreNotExchanged) {
  const Cells cells = {"12/31/2004", "1/1/2005", "1/5/2005", "1/9/2005", "2/2/2005", ""};
  EXPECT_EQ(Kept(cells, DateRow("Due", "is between", kLast, kFirst)), Cells());
  EXPECT_EQ(Kept(cells, DateRow("Due", "is not between", kLast, kFirst)), cells);
}

TEST(DateOperators, OfOneParameterLeaveTheSecondPickerAlone) {
  EXPECT_EQ(Kept({"1/1/2005", "1/9/2005"}, DateRow("Due", "equals", kFirst, kLast)),
            (Cells{"1/1/2005"}));
  // A reference over it isn't followed either; here it would meet a cell that is no date.
  EXPECT_EQ(Kept({"1/1/2005", "1/9/2005", ""},
                 Overlaid(DateRow("Due", "equals", kFirst, kLast), "", "[Due]")),
            (Cells{"1/1/2005"}));
}

// Before the first day of the count a serial's time of day runs against its sign.
TEST(DateOperators, TheTimeOfDayCountsForwardOnTheOldestDatesToo) {
  const Cells cells = {"1/1/1850", "1/1/1850 6:00", "1/1/1850 18:00", "1/2/1850"};
  const Date noon = Day(1850, 1, 1, 12);
  EXPECT_EQ(Kept(cells, DateRow("Due", "is before", noon)), (Cells{"1/1/1850", "1/1/1850 6:00"}));
  EXPECT_EQ(Kept(cells, DateRow("Due", "is after", noon)), (Cells{"1/1/1850 18:00", "1/2/1850"}));
  EXPECT_EQ(Kept(cells, DateRow("Due", "is between", Day(1850, 1, 1, 6), Day(1850, 1, 1, 18))),
            (Cells{"1/1/1850 6:00", "1/1/1850 18:00"}));
}

TEST(DateOperators, ADateWithoutAYearIsOfThisYear) {
  EXPECT_EQ(Kept({"1/5", "1/5/2007", "1/5/2008"}, DateRow("Due", "equals", Day(2007, 1, 5))),
            (Cells{"1/5", "1/5/2007"}));
}

// A cell that is no date ends the routine: rather no filtering than half of it.
TEST(DateOperators, ACellThatIsNoDateLeavesTheListAsItIs) {
  const Cells cells = {"1/1/2004", "1/1/2006", "soon"};
  for (const char* word :
       {"equals", "does not equal", "is before", "is after", "is between", "is not between"}) {
    SCOPED_TRACE(word);
    EXPECT_EQ(Kept(cells, DateRow("Due", word, kFirst, kLast)), cells);
  }
}

TEST(DateOperators, ABlankIsNeitherEmptyNorADate) {
  const Cells cells = {"1/1/2004", "", " "};
  EXPECT_EQ(Kept(cells, DateRow("Due", "is after", kFirst)), cells);
  EXPECT_EQ(Kept(cells, DateRow("Due", "is empty")), (Cells{""}));
}

TEST(DateOperators, IsEmptyLooksAtNoDateAndNoParameter) {
  EXPECT_EQ(Kept({"soon", "", "1/1/2005"}, Overlaid(DateRow("Due", "is empty"), "[Due]", "[Due]")),
            (Cells{""}));
}

TEST(DateOperators, AReferenceComparesEachRowWithItsOwnCell) {
  const TextRows rows = {{"1/1/2005", "1/2/2005"},
                         {"1/3/2005", "1/2/2005"},
                         {"", "1/2/2005"},
                         {"1/2/2005", "1/2/2005"}};
  const auto kept = [&](const FilterCriterion& criterion) {
    return KeptRows({"Due", "Paid"}, rows, {criterion, DateRow("Paid")});
  };
  EXPECT_EQ(kept(Overlaid(DateRow("Due", "is before", kFirst), "[Paid]")), (TextRows{rows[0]}));
  EXPECT_EQ(kept(Overlaid(DateRow("Due", "is not between", kFirst, kFirst), "", "[Paid]")),
            (TextRows{rows[1], rows[2]}));
  EXPECT_EQ(kept(Overlaid(DateRow("Due", "is between", kFirst, kLast), "[Paid]")),
            (TextRows{rows[1], rows[3]}));
  EXPECT_EQ(kept(Overlaid(DateRow("Due", "equals", kLast), "[Paid]")), (TextRows{rows[3]}));
}

TEST(DateOperators, AReferenceThatLeadsNowhereLeavesThePickersDateInForce) {
  EXPECT_EQ(Kept({"1/1/2005", "1/2/2005"}, Overlaid(DateRow("Due", "equals", kFirst), "[due]")),
            (Cells{"1/1/2005"}));
}

TEST(DateOperators, AReferenceToACellThatIsNoDateLeavesTheListAsItIs) {
  for (const char* bad : {"", " ", "soon"}) {
    SCOPED_TRACE(bad);
    const TextRows rows = {{"1/1/2005", "1/1/2005"}, {"1/3/2005", "1/1/2005"}, {"1/3/2005", bad}};
    EXPECT_EQ(KeptRows({"Due", "Paid"}, rows,
                       {Overlaid(DateRow("Due", "equals", kFirst), "[Paid]"), DateRow("Paid")}),
              rows);
    EXPECT_EQ(KeptRows({"Due", "Paid"}, rows,
                       {Overlaid(DateRow("Due", "is between", kFirst, kFirst), "", "[Paid]"),
                        DateRow("Paid")}),
              rows);
  }
}

// Parameters are looked up before the cell is looked at.
TEST(DateOperators, ABadReferenceEndsTheRoutineEvenWhereTheOwnCellIsEmpty) {
  const TextRows rows = {{"1/1/2005", "1/1/2005"}, {"1/3/2005", "1/1/2005"}, {"", "soon"}};
  for (const char* word : {"equals", "is not between"}) {
    SCOPED_TRACE(word);
    EXPECT_EQ(KeptRows({"Due", "Paid"}, rows,
                       {Overlaid(DateRow("Due", word, kFirst, kFirst), "[Paid]"), DateRow("Paid")}),
              rows);
  }
}

// A reference to the own column meets its empty cells as parameters, too.
TEST(DateOperators, AReferenceToTheOwnColumnFailsOnItsEmptyCells) {
  const FilterCriterion own = Overlaid(DateRow("Due", "does not equal", kFirst), "[Due]");
  EXPECT_EQ(Kept({"1/1/2005", "1/2/2005"}, own), Cells());
  EXPECT_EQ(Kept({"1/1/2005", "1/2/2005", ""}, own), (Cells{"1/1/2005", "1/2/2005", ""}));
}

TEST(DateOperators, WorkOnACellAsOnTheFirstColumn) {
  const TextRows rows = {{"a", "1/1/2004"}, {"b", "1/1/2005"}, {"c", "1/1/2006"}, {"d", ""}};
  const auto kept = [&](const char* word) {
    Cells names;
    for (const auto& row :
         KeptRows({"Name", "Due"}, rows, {TextRow("Name"), DateRow("Due", word, kFirst, kLast)}))
      names.push_back(row[0]);
    return names;
  };
  EXPECT_EQ(kept("equals"), (Cells{"b"}));
  EXPECT_EQ(kept("does not equal"), (Cells{"a", "c"}));
  EXPECT_EQ(kept("is before"), (Cells{"a"}));
  EXPECT_EQ(kept("is after"), (Cells{"c"}));
  EXPECT_EQ(kept("is between"), (Cells{"b"}));
  EXPECT_EQ(kept("is not between"), (Cells{"a", "c", "d"}));
  EXPECT_EQ(kept("is empty"), (Cells{"d"}));
}

}  // namespace
}  // namespace sifter
