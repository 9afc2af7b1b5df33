#include "matching/ParameterInput.h"

#include "Criteria.h"
#include "matching/ParameterValues.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace sifter {
namespace {

TEST(DroppedReference, OfAColumnOfTheSameTypeIsItsCaptionInBrackets) {
  for (const char16_t* type : {u"0", u"1", u"2"})
    EXPECT_EQ(DroppedReference(type, u"Price", type), Text(u"[Price]")) << Text(type).ToUtf8();
}

TEST(DroppedReference, OfADateColumnIsNotTakenByANumberRow) {
  EXPECT_EQ(DroppedReference(u"2", u"Due", u"1"), std::nullopt);
  EXPECT_EQ(DroppedReference(u"1", u"Price", u"0"), std::nullopt);
}

// Tags are held against each other as texts.
TEST(DroppedReference, TagsThatLookAlikeAreNotEqual) {
  EXPECT_EQ(DroppedReference(u"1", u"Price", u"01"), std::nullopt);
  EXPECT_EQ(DroppedReference(u"1", u"Price", u" 1"), std::nullopt);
}

TEST(DroppedReference, OfALabelThatHeadsNoRowIsNotTaken) {
  EXPECT_EQ(DroppedReference(u"", u"and", u"1"), std::nullopt);
  EXPECT_EQ(DroppedReference(u"", u"and", u""), std::nullopt);
}

TEST(DroppedReference, OfACaptionWithABracketStillResolves) {
  const std::vector<FilterCriterion> rows = {NumberRow("a"), NumberRow("a]b")};
  const std::optional<Text> reference = DroppedReference(u"1", u"a]b", u"1");
  ASSERT_EQ(reference, Text(u"[a]b]"));
  EXPECT_EQ(ColumnFromReference(*reference, rows), 2);
}

TEST(DroppedReference, OfAnEmptyCaptionIsAPairOfBrackets) {
  EXPECT_EQ(DroppedReference(u"1", u"", u"1"), Text(u"[]"));
}

TEST(IsReferenceInTheMaking, TakesNothingAndWhatBeginsWithABracket) {
  for (const TextView text : {u"", u"[", u"[D", u"[Due]", u"[[", u"[Due] "})
    EXPECT_TRUE(IsReferenceInTheMaking(text)) << Text(text).ToUtf8();
  for (const TextView text : {u"5", u"1/1/2005", u" [", u"D", u"]", u" "})
    EXPECT_FALSE(IsReferenceInTheMaking(text)) << Text(text).ToUtf8();
}

TEST(EnterKey, IsThirteen) { EXPECT_EQ(kEnterKey, 13); }

}  // namespace
}  // namespace sifter
