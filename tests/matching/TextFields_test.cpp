#include "matching/TextFields.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

struct TrimCase {
  const char* name;
  TextView text;
  TextView what;
  TextView trimmed;
};

TEST(TrimData, TakesEveryCopyOffBothEnds) {
  const TrimCase cases[] = {
      {"both ends", u",,3,7,,", u",", u"3,7"},
      {"nothing to take", u"3,7", u",", u"3,7"},
      {"inside stays", u"a,,b", u",", u"a,,b"},
      {"only copies", u",,,,", u",", u""},
      {"empty text", u"", u",", u""},
      {"long token", u" AND (a) AND ", u" AND ", u"(a)"},
      {"twice in front", u" AND  AND x", u" AND ", u"x"},
      {"part of the token stays", u"abababa", u"ab", u"a"},
      {"copies that overlap", u"aaa", u"aa", u"a"},
      {"the front goes first", u"xyxyx", u"xyx", u"yx"},
      {"longer than the text", u"ab", u"abc", u"ab"},
      {"case counts", u"andxAND", u"AND", u"andx"},
      {"blanks are characters", u"  x ", u" ", u"x"},
      {"accents count", u"éexé", u"é", u"ex"},
  };
  for (const TrimCase& c : cases) EXPECT_EQ(TrimData(c.text, c.what), c.trimmed) << c.name;
}

TEST(TrimData, WithNothingToTrimLeavesTheTextAsItIs) {
  EXPECT_EQ(TrimData(u" x ", u""), u" x ");
  EXPECT_EQ(TrimData(u"", u""), u"");
}

// A value that ends like the joint between two criteria loses that end; hosts show this text.
TEST(TrimData, TakesAJointOffTheEndOfAValueAsWell) {
  EXPECT_EQ(TrimData(u" AND Name equals salt AND ", u" AND "), u"Name equals salt");
}

struct CountCase {
  const char* name;
  TextView text;
  TextView delimiter;
  int count;
};

TEST(CountOccurrences, CountsEveryPlaceWhereTheDelimiterStarts) {
  const CountCase cases[] = {
      {"commas", u"a,b,c", u",", 2},
      {"none", u"abc", u",", 0},
      {"empty text", u"", u",", 0},
      {"overlapping", u",,,", u",,", 2},
      {"overlapping inside", u"a,,,b", u",,", 2},
      {"cut off by the end", u"abab a", u"ab ", 1},
      {"longer than the text", u"a", u"ab", 0},
      {"whole text", u"ab", u"ab", 1},
      {"case counts", u"aAa", u"a", 2},
      {"surrogate halves are units", u"\xD83D\xDE00", u"\xDE00", 1},
  };
  for (const CountCase& c : cases)
    EXPECT_EQ(CountOccurrences(c.text, c.delimiter), c.count) << c.name;
}

TEST(CountOccurrences, OfNothingIsTheLengthOfTheText) {
  EXPECT_EQ(CountOccurrences(u"abc", u""), 3);
  EXPECT_EQ(CountOccurrences(u"", u""), 0);
}

TEST(CountOccurrences, BeyondSixteenBitsIsZero) {
  EXPECT_EQ(CountOccurrences(std::u16string(32767, u','), u","), 32767);
  EXPECT_EQ(CountOccurrences(std::u16string(32768, u','), u","), 0);
}

TEST(GetField, FieldsOfAList) {
  EXPECT_EQ(GetField(u"a,b", u",", 1), u"a");
  EXPECT_EQ(GetField(u"a,b", u",", 2), u"b");
  EXPECT_EQ(GetField(u"a,b,c", u",", 2), u"b");
  EXPECT_EQ(GetField(u"a,b,c", u",", 3), u"c");
}

TEST(GetField, ZeroSaysSoAsData) {
  EXPECT_EQ(GetField(u"a,b", u",", 0), u"Cannot return an instance of zero");
  EXPECT_EQ(GetField(u"", u"", 0), u"Cannot return an instance of zero");
}

TEST(GetField, BeyondTheLastFieldSaysInstanceTooLarge) {
  EXPECT_EQ(GetField(u"a,b", u",", 3), u"Instance Too Large");
  EXPECT_EQ(GetField(u"", u",", 2), u"Instance Too Large");
  EXPECT_EQ(GetField(u"a,b", u",", 32767), u"Instance Too Large");
}

TEST(GetField, BelowZeroIsEmpty) {
  EXPECT_EQ(GetField(u"a,b", u",", -1), u"");
  EXPECT_EQ(GetField(u"a,b", u",", -32768), u"");
}

TEST(GetField, FirstFieldWithoutDelimiterIsTheWholeText) {
  EXPECT_EQ(GetField(u"abc", u",", 1), u"abc");
  EXPECT_EQ(GetField(u"", u",", 1), u"");
}

TEST(GetField, EmptyFieldsAreFields) {
  std::vector<Text> fields;
  for (std::int16_t n = 1; n <= 5; ++n) fields.push_back(GetField(u",,x,", u",", n));
  EXPECT_EQ(fields, (std::vector<Text>{u"", u"", u"x", u"", u"Instance Too Large"}));
}

TEST(GetField, LongDelimiter) {
  EXPECT_EQ(GetField(u"1@@2@@3", u"@@", 2), u"2");
  EXPECT_EQ(GetField(u"1@@2@@3", u"@@", 3), u"3");
  EXPECT_EQ(GetField(u"1@@2@@3", u"@@", 4), u"Instance Too Large");
}

// CountOccurrences finds two delimiters here. The search for fields goes on behind each one that
// it has found, and finds one; lists that hosts have written with doubled delimiters depend on it.
TEST(GetField, OverlappingDelimitersDoNotCount) {
  EXPECT_EQ(CountOccurrences(u"a,,,b", u",,"), 2);
  EXPECT_EQ(GetField(u"a,,,b", u",,", 1), u"a");
  EXPECT_EQ(GetField(u"a,,,b", u",,", 2), u",b");
  EXPECT_EQ(GetField(u"a,,,b", u",,", 3), u"Instance Too Large");
}

TEST(GetField, AnEmptyDelimiterPartsNothing) {
  EXPECT_EQ(GetField(u"a,b", u"", 1), u"a,b");
  EXPECT_EQ(GetField(u"a,b", u"", 2), u"Instance Too Large");
}

TEST(GetField, CaseOfTheDelimiterCounts) { EXPECT_EQ(GetField(u"1x2X3", u"x", 2), u"2X3"); }

}  // namespace
}  // namespace sifter
