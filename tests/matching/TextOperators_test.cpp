#include "Criteria.h"
#include "EveryWay.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

using Cells = std::vector<std::string>;

const Cells kEveryKind = {"abc",  "ABC",  "aBc", "xabcx", "xABCx", "abcx", "ABCx",
                          "xabc", "xABC", "ab",  "abd",   "",      " "};

struct OperatorCase {
  const char* word;
  Cells caseOff;
  Cells caseOn;
};

// What stays of kEveryKind when held against abc.
const OperatorCase kOperatorCases[] = {
    {"contains",
     {"abc", "ABC", "aBc", "xabcx", "xABCx", "abcx", "ABCx", "xabc", "xABC"},
     {"abc", "xabcx", "abcx", "xabc"}},
    {"does not contain",
     {"ab", "abd", "", " "},
     {"ABC", "aBc", "xABCx", "ABCx", "xABC", "ab", "abd", "", " "}},
    {"starts with", {"abc", "ABC", "aBc", "abcx", "ABCx"}, {"abc", "abcx"}},
    {"ends with", {"abc", "ABC", "aBc", "xabc", "xABC"}, {"abc", "xabc"}},
    {"equals", {"abc", "ABC", "aBc"}, {"abc"}},
    {"does not equal",
     {"xabcx", "xABCx", "abcx", "ABCx", "xabc", "xABC", "ab", "abd", "", " "},
     {"ABC", "aBc", "xabcx", "xABCx", "abcx", "ABCx", "xabc", "xABC", "ab", "abd", "", " "}},
};

class TextOperator : public testing::TestWithParam<OperatorCase> {};

TEST_P(TextOperator, OfTheFirstColumnIgnoresCase) {
  EXPECT_EQ(KeptCells("Name", kEveryKind, TextRow("Name", GetParam().word, "aBc")),
            GetParam().caseOff);
}

TEST_P(TextOperator, OfTheFirstColumnMatchesCase) {
  EXPECT_EQ(KeptCells("Name", kEveryKind, TextRow("Name", GetParam().word, "abc"), MatchCase::kOn),
            GetParam().caseOn);
}

// The cells stand in the third column here.
Cells KeptInThirdColumn(const FilterCriterion& criterion, MatchCase matchCase) {
  TextRows rows;
  for (const std::string& cell : kEveryKind) rows.push_back({"abc", "ABC", cell});
  Cells kept;
  for (const std::vector<std::string>& row :
       KeptRows({"a", "b", "c"}, rows, {TextRow("a"), TextRow("b"), criterion}, matchCase))
    kept.push_back(row[2]);
  return kept;
}

TEST_P(TextOperator, OfACellIgnoresCase) {
  EXPECT_EQ(KeptInThirdColumn(TextRow("c", GetParam().word, "ABc"), MatchCase::kOff),
            GetParam().caseOff);
}

TEST_P(TextOperator, OfACellMatchesCase) {
  EXPECT_EQ(KeptInThirdColumn(TextRow("c", GetParam().word, "abc"), MatchCase::kOn),
            GetParam().caseOn);
}

std::string WordAsName(const testing::TestParamInfo<OperatorCase>& info) {
  std::string name = info.param.word;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
}

void PrintTo(const OperatorCase& c, std::ostream* out) { *out << c.word; }

INSTANTIATE_TEST_SUITE_P(Words, TextOperator, testing::ValuesIn(kOperatorCases), WordAsName);

struct CellsCase {
  const char* name;
  const char* word;
  const char* parameter;
  Cells cells;
  Cells kept;
};

void CheckAll(const std::vector<CellsCase>& cases) {
  for (const CellsCase& c : cases) {
    SCOPED_TRACE(c.name);
    for (const MatchCase matchCase : {MatchCase::kOff, MatchCase::kOn})
      EXPECT_EQ(KeptCells("Name", c.cells, TextRow("Name", c.word, c.parameter), matchCase),
                c.kept);
  }
}

// The search starts at a cell's first character, and an empty cell has none: nothing is found in
// it, not even an empty text. Hosts tell the empty cells from the others by this.
TEST(TextOperators, AnEmptyParameter) {
  const Cells cells = {"abc", "", " "};
  CheckAll({
      {"contains", "contains", "", cells, {"abc", " "}},
      {"does not contain", "does not contain", "", cells, {""}},
      {"starts with", "starts with", "", cells, {"abc", "", " "}},
      {"ends with", "ends with", "", cells, {"abc", "", " "}},
      {"equals", "equals", "", cells, {""}},
      {"does not equal", "does not equal", "", cells, {"abc", " "}},
  });
}

TEST(TextOperators, BlanksCount) {
  const Cells cells = {"abc", " abc", "abc ", " abc "};
  CheckAll({
      {"equals", "equals", "abc ", cells, {"abc "}},
      {"starts with", "starts with", " ", cells, {" abc", " abc "}},
      {"ends with", "ends with", "c ", cells, {"abc ", " abc "}},
      {"contains", "contains", " abc ", cells, {" abc "}},
  });
}

TEST(TextOperators, StarsAndQuestionMarksAreThemselves) {
  const Cells cells = {"a*c", "abc", "a?c", "a[b]c", "a#c"};
  CheckAll({
      {"star", "equals", "a*c", cells, {"a*c"}},
      {"star inside", "contains", "*", cells, {"a*c"}},
      {"question mark", "equals", "a?c", cells, {"a?c"}},
      {"brackets", "contains", "[b]", cells, {"a[b]c"}},
      {"hash", "ends with", "#c", cells, {"a#c"}},
  });
}

TEST(TextOperators, AParameterLongerThanTheCellFails) {
  const Cells cells = {"ab", "abc", "bc", "abcd"};
  CheckAll({
      {"starts with", "starts with", "abcd", cells, {"abcd"}},
      {"ends with", "ends with", "abcd", cells, {"abcd"}},
      {"contains", "contains", "abcd", cells, {"abcd"}},
  });
}

TEST(TextOperators, QuotesAreCharacters) {
  const Cells cells = {"\"oak\"", "oak", "an \"oak\" tree"};
  CheckAll({
      {"equals", "equals", "\"oak\"", cells, {"\"oak\""}},
      {"contains", "contains", "\"oak\"", cells, {"\"oak\"", "an \"oak\" tree"}},
  });
}

TEST(TextOperators, AParameterThatLooksLikeTwoIsTakenWhole) {
  CheckAll({{"contains", "contains", "foo@@bar", {"foo", "foo@@bar", "bar"}, {"foo@@bar"}}});
}

TEST(TextOperators, FoldCaseBeyondAsciiButNeitherAccentsNorWidths) {
  EXPECT_EQ(KeptCells("Name", {"É", "é", "e", "E", "e\xCC\x81"}, TextRow("Name", "equals", "é")),
            (Cells{"É", "é"}));
  EXPECT_EQ(KeptCells("Name", {"ａ", "Ａ", "a", "A"}, TextRow("Name", "equals", "ａ")),
            (Cells{"ａ", "Ａ"}));
  EXPECT_EQ(KeptCells("Name", {"straße", "STRASSE", "STRAßE"}, TextRow("Name", "equals", "Straße")),
            (Cells{"straße", "STRAßE"}));
  EXPECT_EQ(KeptCells("Name", {"ж", "Ж"}, TextRow("Name", "equals", "Ж")), (Cells{"ж", "Ж"}));
  EXPECT_EQ(KeptCells("Name", {"É", "é"}, TextRow("Name", "equals", "é"), MatchCase::kOn),
            (Cells{"é"}));
}

TEST(TextOperators, FindTheParameterWhereverItStands) {
  CheckAll({
      {"after false starts", "contains", "aab", {"aaab", "aaaab", "aba", "aaa"}, {"aaab", "aaaab"}},
      {"at the very end", "contains", "xyz", {"0123456789xyz", "0123456789xy"}, {"0123456789xyz"}},
      {"single character",
       "contains",
       "q",
       {"aaaaaaaq", "qaaaaaaa", "aaaqaaaa", "aaaaaaaa"},
       {"aaaaaaaq", "qaaaaaaa", "aaaqaaaa"}},
      {"half of a pair", "does not contain", "😀", {"😁", "😀", "x😀x"}, {"😁"}},
  });
}

TEST(TextOperators, AReferenceComparesTwoCellsOfTheSameRow) {
  const TextRows rows = {{"abc", "ABC"}, {"abc", "b"}, {"", ""}, {"x", "[Name]"}};
  const FilterCriterion other = TextRow("Other");
  EXPECT_EQ(KeptRows({"Name", "Other"}, rows, {TextRow("Name", "equals", "[Other]"), other}),
            (TextRows{{"abc", "ABC"}, {"", ""}}));
  EXPECT_EQ(KeptRows({"Name", "Other"}, rows, {TextRow("Name", "equals", "[Other]"), other},
                     MatchCase::kOn),
            (TextRows{{"", ""}}));
  EXPECT_EQ(KeptRows({"Name", "Other"}, rows, {TextRow("Name", "contains", "[Other]"), other}),
            (TextRows{{"abc", "ABC"}, {"abc", "b"}}));
  EXPECT_EQ(
      KeptRows({"Name", "Other"}, rows, {TextRow("Name"), TextRow("Other", "equals", "[Name]")}),
      (TextRows{{"abc", "ABC"}, {"", ""}}));
}

TEST(TextOperators, AReferenceInAnotherCaseIsAPlainText) {
  const TextRows rows = {{"abc", "abc"}, {"x", "[name]"}};
  EXPECT_EQ(
      KeptRows({"Name", "Other"}, rows, {TextRow("Name"), TextRow("Other", "equals", "[name]")}),
      (TextRows{{"x", "[name]"}}));
}

TEST(TextOperators, ThereIsNoIsEmptyForTexts) {
  CheckAll({{"is empty", "is empty", "", {"a", "", " "}, {"a", "", " "}}});
}

}  // namespace
}  // namespace sifter
