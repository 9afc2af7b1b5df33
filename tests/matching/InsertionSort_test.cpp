#include "matching/InsertionSort.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

#include <vector>

namespace sifter {
namespace {

std::vector<Text> Sorted(std::vector<Text> texts) {
  InsertionSort(texts);
  return texts;
}

TEST(InsertionSort, SortsByCodeUnitAndLeavesElementZeroAlone) {
  EXPECT_EQ(Sorted({u"z", u"c", u"a", u"B"}), (std::vector<Text>{u"z", u"B", u"a", u"c"}));
}

TEST(InsertionSort, ShortArraysStayAsTheyAre) {
  EXPECT_EQ(Sorted({}), std::vector<Text>());
  EXPECT_EQ(Sorted({u"b"}), (std::vector<Text>{u"b"}));
  EXPECT_EQ(Sorted({u"b", u"a"}), (std::vector<Text>{u"b", u"a"}));
}

TEST(InsertionSort, EqualAndEmptyTexts) {
  EXPECT_EQ(Sorted({u"", u"b", u"", u"b", u"a", u""}),
            (std::vector<Text>{u"", u"", u"", u"a", u"b", u"b"}));
}

TEST(InsertionSort, GoesByCodeUnitBeyondAscii) {
  EXPECT_EQ(Sorted({u"", u"\xFF5E", u"\xD83D\xDE00", u"é", u"z", u"10", u"9"}),
            (std::vector<Text>{u"", u"10", u"9", u"z", u"é", u"\xD83D\xDE00", u"\xFF5E"}));
}

TEST(InsertionSort, SortsAnArrayThatIsInTheWrongOrder) {
  EXPECT_EQ(Sorted({u"0", u"e", u"d", u"c", u"b", u"a"}),
            (std::vector<Text>{u"0", u"a", u"b", u"c", u"d", u"e"}));
}

}  // namespace
}  // namespace sifter
