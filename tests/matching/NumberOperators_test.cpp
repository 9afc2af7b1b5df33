#include "Criteria.h"
#include "EveryWay.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

using Cells = std::vector<std::string>;

struct NumberCase {
  const char* name;
  const char* word;
  const char* from;
  const char* to;
  Cells cells;
  Cells kept;
};

void CheckAll(const std::vector<NumberCase>& cases) {
  for (const NumberCase& c : cases) {
    SCOPED_TRACE(c.name);
    const FilterCriterion criterion = NumberRow("Qty", c.word, c.from, c.to);
    EXPECT_EQ(KeptCells("Qty", c.cells, criterion), c.kept);
    EXPECT_EQ(KeptCells("Qty", c.cells, criterion, MatchCase::kOn), c.kept) << "case plays no part";
  }
}

TEST(NumberOperators, CompareWithOneNumber) {
  const Cells cells = {"-1", "0", "", "4.9", "5", "5.0", "5.1", "50"};
  CheckAll({
      {"equals", "equals", "5", "", cells, {"5", "5.0"}},
      {"does not equal", "does not equal", "5", "", cells, {"-1", "0", "", "4.9", "5.1", "50"}},
      {"is greater than", "is greater than", "5", "", cells, {"5.1", "50"}},
      {"is less than", "is less than", "5", "", cells, {"-1", "0", "", "4.9"}},
  });
}

TEST(NumberOperators, TakeAnEmptyCellForZero) {
  const Cells cells = {"", "0", "1", "-1"};
  CheckAll({
      {"equals", "equals", "0", "", cells, {"", "0"}},
      {"does not equal", "does not equal", "0", "", cells, {"1", "-1"}},
      {"is greater than", "is greater than", "-1", "", cells, {"", "0", "1"}},
      {"is less than", "is less than", "1", "", cells, {"", "0", "-1"}},
      {"is not between", "is not between", "1", "5", cells, {"", "0", "-1"}},
  });
}

// Everywhere else an empty cell is 0. Lists with missing prices depend on their staying out of
// every range.
TEST(NumberOperators, AnEmptyCellIsInNoRange) {
  CheckAll({{"is between", "is between", "-5", "5", {"", "0", "1"}, {"0", "1"}}});
}

// Unlike dates, numbers that equal a bound are in neither range.
TEST(NumberOperators, ANumberThatEqualsABoundPassesNeitherRange) {
  const Cells cells = {"1", "3", "5", ""};
  CheckAll({
      {"is between", "is between", "1", "5", cells, {"3"}},
      {"is not between", "is not between", "1", "5", cells, {""}},
      {"equal bounds", "is between", "3", "3", cells, {}},
      {"outside equal bounds", "is not between", "3", "3", cells, {"1", "5", ""}},
  });
}

TEST(NumberOperators, BoundsInTheWrongOrderAreNotExchanged) {
  const Cells cells = {"0", "1", "3", "5", "9", ""};
  CheckAll({
      {"is between", "is between", "5", "1", cells, {}},
      {"is not between", "is not between", "5", "1", cells, cells},
  });
}

TEST(NumberOperators, ReadTheNumberThatACellBeginsWith) {
  const Cells cells = {"12abc", "abc", "1,234", "$5", "(5)", "5-", " 7", "1e2x", "&H10", ".5"};
  CheckAll({
      {"12abc", "equals", "12", "", cells, {"12abc"}},
      {"none", "equals", "0", "", cells, {"abc", "$5", "(5)"}},
      {"group separator ends it", "equals", "1", "", cells, {"1,234"}},
      {"sign behind is left out", "equals", "5", "", cells, {"5-"}},
      {"blanks in front", "equals", "7", "", cells, {" 7"}},
      {"exponent", "equals", "100", "", cells, {"1e2x"}},
      {"hexadecimal", "equals", "16", "", cells, {"&H10"}},
      {"point first", "equals", "0.5", "", cells, {".5"}},
  });
}

TEST(NumberOperators, ReadParametersInTheSameWay) {
  const Cells cells = {"0", "1", "12", ""};
  CheckAll({
      {"empty box", "equals", "", "", cells, {"0", ""}},
      {"both boxes empty", "is not between", "", "", cells, {"1", "12"}},
      {"letters behind", "equals", "12abc", "", cells, {"12"}},
      {"group separator", "equals", "1,234", "", cells, {"1"}},
      {"no number", "equals", "many", "", cells, {"0", ""}},
  });
}

// The second box may still show after a change from a range to one of these.
TEST(NumberOperators, OfOneParameterLeaveTheSecondBoxAlone) {
  CheckAll({
      {"equals", "equals", "1", "5", {"1", "5"}, {"1"}},
      {"is less than", "is less than", "1", "5", {"0", "3"}, {"0"}},
  });
}

TEST(NumberOperators, TooLargeIsTheLargestNumber) {
  CheckAll(
      {{"is greater than", "is greater than", "1e308", "", {"1e400", "-1e400", "1"}, {"1e400"}},
       {"equals", "equals", "1e999", "", {"1e400", "1"}, {"1e400"}}});
}

TEST(NumberOperators, AReferenceComparesEachRowWithItsOwnCell) {
  const TextRows rows = {{"5", "3"}, {"3", "5"}, {"0", "x"}, {"", ""}, {"4", ""}};
  const FilterCriterion price = NumberRow("Price");
  EXPECT_EQ(
      KeptRows({"Qty", "Price"}, rows, {NumberRow("Qty", "is greater than", "[Price]"), price}),
      (TextRows{{"5", "3"}, {"4", ""}}));
  EXPECT_EQ(
      KeptRows({"Qty", "Price"}, rows, {NumberRow("Qty", "is between", "[Price]", "5"), price}),
      (TextRows{{"4", ""}}));
  EXPECT_EQ(
      KeptRows({"Qty", "Price"}, rows, {NumberRow("Qty", "is between", "2", "[Price]"), price}),
      (TextRows{{"3", "5"}}));
  EXPECT_EQ(KeptRows({"Qty", "Price"}, rows, {NumberRow("Qty", "equals", "[Qty]"), price}), rows);
}

TEST(NumberOperators, AReferenceInAnotherCaseIsZero) {
  const TextRows rows = {{"5", "5"}, {"0", "5"}};
  EXPECT_EQ(
      KeptRows({"Qty", "Price"}, rows, {NumberRow("Qty", "equals", "[price]"), NumberRow("Price")}),
      (TextRows{{"0", "5"}}));
}

TEST(NumberOperators, WorkOnACellAsOnTheFirstColumn) {
  const TextRows rows = {{"a", "1"}, {"b", "3"}, {"c", "5"}, {"d", ""}};
  const auto kept = [&](const FilterCriterion& criterion) {
    Cells names;
    for (const auto& row : KeptRows({"Name", "Qty"}, rows, {TextRow("Name"), criterion}))
      names.push_back(row[0]);
    return names;
  };
  EXPECT_EQ(kept(NumberRow("Qty", "equals", "3")), (Cells{"b"}));
  EXPECT_EQ(kept(NumberRow("Qty", "does not equal", "3")), (Cells{"a", "c", "d"}));
  EXPECT_EQ(kept(NumberRow("Qty", "is greater than", "1")), (Cells{"b", "c"}));
  EXPECT_EQ(kept(NumberRow("Qty", "is less than", "3")), (Cells{"a", "d"}));
  EXPECT_EQ(kept(NumberRow("Qty", "is between", "1", "5")), (Cells{"b"}));
  EXPECT_EQ(kept(NumberRow("Qty", "is not between", "1", "5")), (Cells{"d"}));
}

}  // namespace
}  // namespace sifter
