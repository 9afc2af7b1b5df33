#include "filterdialog/FilterExpression.h"

#include "base/Conversions.h"
#include "support/ClockFake.h"
#include "support/Errors.h"
#include "support/HeadlessPrompts.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

constexpr std::int32_t kText = 0;
constexpr std::int32_t kNumber = 1;
constexpr std::int32_t kDate = 2;

struct FragmentCase {
  std::int32_t type;
  const char16_t* word;
  const char16_t* parameters;
  const char16_t* fragment;
  const char* message = "";  // the one message shown, or none
};

void PrintTo(const FragmentCase& c, std::ostream* out) {
  *out << "type " << c.type << ' ' << Quoted(c.word) << ' ' << Quoted(c.parameters);
}

class FilterFragment : public testing::TestWithParam<FragmentCase> {
 protected:
  Recorder recorder;
  ClockFake clock;
  EnUsConversions conversions{clock};
  HeadlessPrompts prompts{recorder};
};

TEST_P(FilterFragment, IsBuiltFromWordTypeAndParameters) {
  const FragmentCase& c = GetParam();
  const Text fragment =
      BuildFilterFragment(u"col", c.word, c.parameters, c.type, conversions, prompts);
  EXPECT_EQ(fragment, c.fragment);
  const std::string message = c.message;
  EXPECT_EQ(prompts.Boxes(), message.empty() ? std::vector<std::string>{}
                                             : std::vector<std::string>{Message(message)});
}

// Hosts hand these texts to databases of their own: "starts with" and "ends with" have their
// wildcards the other way round than their names say, quotes are not doubled, and a separator in
// the user's text cuts it off.
INSTANTIATE_TEST_SUITE_P(
    Texts, FilterFragment,
    testing::Values(FragmentCase{kText, u"equals", u"abc", u"col = 'abc'"},
                    FragmentCase{kText, u"does not equal", u"abc", u"col <> 'abc'"},
                    FragmentCase{kText, u"contains", u"abc", u"col like '*abc*'"},
                    FragmentCase{kText, u"starts with", u"ab", u"col like '*ab'"},
                    FragmentCase{kText, u"ends with", u"ab", u"col like 'ab*'"},
                    FragmentCase{kText, u"does not contain", u"abc", u"col NOT like '*abc*'"},
                    FragmentCase{kText, u"contains", u"", u"col like '**'"},
                    FragmentCase{kText, u"equals", u"O'Hara \"x\"", u"col = 'O'Hara \"x\"'"},
                    FragmentCase{kText, u"contains", u"foo@@bar", u"col like '*foo@*'"},
                    FragmentCase{kText, u"equals", u"a@@@b", u"col = 'a@'"},
                    FragmentCase{kText, u"equals", u"@@", u"col = '@'"},
                    FragmentCase{kText, u"equals", u"a@b", u"col = 'a@b'"},
                    FragmentCase{kText, u"equals", u"[Price]", u"col = '[Price]'"},
                    FragmentCase{kText, u"Equals", u"abc", u""},
                    FragmentCase{kText, u"EQUALS", u"abc", u""},
                    FragmentCase{kText, u"is between", u"a@@b", u""},
                    FragmentCase{kText, u"is empty", u"", u""},
                    FragmentCase{kText, u"All", u"abc", u""},
                    FragmentCase{kText, u"", u"abc", u""}));

// The half of a range keeps an "@" of the separator and so is no number: a range from the dialog
// always ends with the message about its first value. Only texts that are numbers with the "@"
// cut off by hand show the pattern of a range.
INSTANTIATE_TEST_SUITE_P(
    Numbers, FilterFragment,
    testing::Values(
        FragmentCase{kNumber, u"equals", u"5", u"col = 5"},
        FragmentCase{kNumber, u"does not equal", u"5", u"col <> 5"},
        FragmentCase{kNumber, u"is less than", u"5", u"col < 5"},
        FragmentCase{kNumber, u"is greater than", u"5", u"col > 5"},
        FragmentCase{kNumber, u"is greater than", u" 1,234 ", u"col >  1,234 "},
        FragmentCase{kNumber, u"is between", u"10@@20", u"",
                     "data type is number but parameter equals 10@"},
        FragmentCase{kNumber, u"is not between", u"10@@20", u"",
                     "data type is number but parameter equals 10@"},
        FragmentCase{kNumber, u"equals", u"10@@20", u"",
                     "data type is number but parameter equals 10@"},
        FragmentCase{kNumber, u"is between", u"10", u"",
                     "data type is number and operator = 'is between' but the second parameter "
                     "= "},
        FragmentCase{kNumber, u"is not between", u"10", u"",
                     "data type is number and operator = 'is not between' but the second "
                     "parameter = "},
        FragmentCase{kNumber, u"equals", u"", u"", "data type is number but parameter equals "},
        FragmentCase{kNumber, u"equals", u"12abc", u"",
                     "data type is number but parameter equals 12abc"},
        FragmentCase{kNumber, u"equals", u"[Price]", u"",
                     "data type is number but parameter equals [Price]"},
        FragmentCase{kNumber, u"contains", u"x", u"", "data type is number but parameter equals x"},
        FragmentCase{kNumber, u"contains", u"5", u""},
        FragmentCase{kNumber, u"is empty", u"5", u""}, FragmentCase{kNumber, u"", u"5", u""},
        FragmentCase{kNumber, u"Equals", u"5", u""}));

// What is left of the separator is overlooked in testing a date, and only there.
INSTANTIATE_TEST_SUITE_P(
    Dates, FilterFragment,
    testing::Values(
        FragmentCase{kDate, u"equals", u"1/5/2020", u"col = #1/5/2020#"},
        FragmentCase{kDate, u"does not equal", u"1/5/2020", u"col <> #1/5/2020#"},
        FragmentCase{kDate, u"is before", u"1/5/2020", u"col < #1/5/2020#"},
        FragmentCase{kDate, u"is after", u"1/5/2020", u"col > #1/5/2020#"},
        FragmentCase{kDate, u"is not between", u"1/5/2020@@1/9/2020",
                     u"col < #1/5/2020@# AND > #@1/9/2020#"},
        FragmentCase{kDate, u"equals", u"1/5/2020@@1/9/2020", u"col = #1/5/2020@#"},
        FragmentCase{kDate, u"is after", u"1/5/2020@@x", u"col > #1/5/2020@#"},
        FragmentCase{kDate, u"is empty", u"1/5/2020", u"Is Null col"},
        FragmentCase{kDate, u"is empty", u"no date", u"Is Null col"},
        FragmentCase{kDate, u"is empty", u"", u"Is Null col"},
        FragmentCase{kDate, u"equals", u"soon", u"", "data type is date but parameter equals soon"},
        FragmentCase{kDate, u"equals", u"", u"", "data type is date but parameter equals "},
        FragmentCase{kDate, u"equals", u"1/5/2020@", u"",
                     "data type is date but parameter equals 1/5/2020@"},
        FragmentCase{kDate, u"is before", u"soon@@1/9/2020", u"",
                     "data type is date but parameter equals soon@"},
        FragmentCase{kDate, u"equals", u"1/5/2020@@@1/9/2020", u"col = #1/5/2020@#"},
        FragmentCase{kDate, u"is between", u"1/5/2020@@later", u"",
                     "data type is date and operator = 'is between' but the second parameter = "
                     "@later"},
        FragmentCase{kDate, u"is not between", u"1/5/2020@@later", u"",
                     "data type is date and operator = 'is not between' but the second "
                     "parameter = @later"},
        FragmentCase{kDate, u"is not between", u"1/5/2020", u"",
                     "data type is date and operator = 'is not between' but the second "
                     "parameter = "},
        FragmentCase{kDate, u"is not between", u"1/5/2020@@@1/9/2020", u"",
                     "data type is date and operator = 'is not between' but the second "
                     "parameter = @@1/9/2020"},
        FragmentCase{kDate, u"contains", u"1/5/2020", u""},
        FragmentCase{kDate, u"Is Before", u"1/5/2020", u""},
        FragmentCase{kDate, u"", u"1/5/2020", u""}));

INSTANTIATE_TEST_SUITE_P(OtherTypes, FilterFragment,
                         testing::Values(FragmentCase{3, u"equals", u"abc", u""},
                                         FragmentCase{-1, u"equals", u"5", u""},
                                         FragmentCase{3, u"is empty", u"", u""}));

// Hosts know the filter of a date range by its missing condition.
TEST_F(FilterFragment, ADateRangeBetweenTwoDatesIsATypeMismatchEveryTime) {
  for (const char16_t* parameters : {u"1/5/2020@@1/9/2020", u"1/9/2020@@1/5/2020"})
    EXPECT_EQ(ErrorOf([&] {
                BuildFilterFragment(u"col", u"is between", parameters, kDate, conversions, prompts);
              }),
              "13: Type mismatch");
  EXPECT_EQ(prompts.Boxes(), std::vector<std::string>{});
}

struct SplitCase {
  const char16_t* text;
  const char16_t* first;
  const char16_t* second;
  bool separated;
};

TEST(SplitParameters, BothHalvesKeepAnAtSignOfTheSeparator) {
  const SplitCase cases[] = {
      {u"10@@20", u"10@", u"@20", true}, {u"a@@@b", u"a@", u"@@b", true},
      {u"@@", u"@", u"@", true},         {u"a@@b@@c", u"a@", u"@b@@c", true},
      {u"a", u"a", u"", false},          {u"", u"", u"", false},
      {u"a@b", u"a@b", u"", false},
  };
  for (const SplitCase& c : cases) {
    const ParameterParts parts = SplitParameters(c.text);
    EXPECT_EQ(parts.first, c.first) << Quoted(c.text);
    EXPECT_EQ(parts.second, c.second) << Quoted(c.text);
    EXPECT_EQ(parts.separated, c.separated) << Quoted(c.text);
  }
}

TEST(JoinCriteria, EveryPieceComesWithTheWordBeforeIt) {
  EXPECT_EQ(JoinCondition(u"", u"a = 1"), u" AND (a = 1)");
  EXPECT_EQ(JoinCondition(u" AND (a = 1)", u""), u" AND (a = 1) AND ()");
  EXPECT_EQ(JoinSentence(u"", u"Qty", u"equals", u"5"), u" AND Qty equals 5");
  EXPECT_EQ(JoinSentence(u" AND a", u"Qty", u"", u""), u" AND a AND Qty  ");
}

}  // namespace

}  // namespace sifter
