#include "matching/Operators.h"

#include "matching/ColumnDataType.h"
#include "matching/FilterCriterion.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {
namespace {

using Words = std::vector<std::string>;

Words WordsOf(std::int32_t type) {
  Words words;
  for (const Text& word : OperatorWords(type)) words.push_back(word.ToUtf8());
  return words;
}

TEST(OperatorWords, OfATextColumn) {
  EXPECT_EQ(WordsOf(0), (Words{"All", "contains", "does not contain", "does not equal", "ends with",
                               "equals", "starts with"}));
}

TEST(OperatorWords, OfANumberColumn) {
  EXPECT_EQ(WordsOf(1), (Words{"All", "does not equal", "equals", "is between", "is greater than",
                               "is less than", "is not between"}));
}

TEST(OperatorWords, OfADateColumnEndWithIsEmptyOutOfTheAlphabet) {
  EXPECT_EQ(WordsOf(2), (Words{"All", "does not equal", "equals", "is after", "is before",
                               "is between", "is not between", "is empty"}));
}

TEST(OperatorWords, OfAnyOtherTypeAreNone) {
  for (const std::int32_t type : {-1, 3, 4, 32767, 65536, -65536})
    EXPECT_EQ(WordsOf(type), Words()) << type;
}

struct VocabularyRow {
  const char* word;
  const char* key;
  int parameters;
  const char* types;
};

TEST(OperatorVocabulary, HasEveryWordWithItsKeyParametersAndTypes) {
  const VocabularyRow rows[] = {
      {"contains", "CONTAINS", 1, "0"},
      {"does not contain", "DOES NOT CONTAIN", 1, "0"},
      {"does not equal", "DOES NOT EQUAL", 1, "012"},
      {"ends with", "ENDS WITH", 1, "0"},
      {"equals", "EQUALS", 1, "012"},
      {"is after", "IS AFTER", 1, "2"},
      {"is before", "IS BEFORE", 1, "2"},
      {"is between", "IS BETWEEN", 2, "12"},
      {"is greater than", "IS GREATER THAN", 1, "1"},
      {"is less than", "IS LESS THAN", 1, "1"},
      {"is not between", "IS NOT BETWEEN", 2, "12"},
      {"is empty", "IS EMPTY", 0, "2"},
      {"starts with", "STARTS WITH", 1, "0"},
  };
  EXPECT_EQ(OperatorVocabulary().size(), std::size(rows));
  for (const VocabularyRow& row : rows) {
    SCOPED_TRACE(row.word);
    const OperatorRow* found = FindOperator(Text::FromUtf8(row.key));
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(Text(found->word).ToUtf8(), row.word);
    EXPECT_EQ(found->parameters, row.parameters);
    std::string types;
    for (int type = 0; type < kColumnDataTypes; ++type)
      if (found->Suits(static_cast<ColumnDataType>(type))) types += std::to_string(type);
    EXPECT_EQ(types, row.types);
  }
}

TEST(OperatorVocabulary, ATypeThatIsNoneSuitsNoWord) {
  for (const OperatorRow& row : OperatorVocabulary())
    EXPECT_FALSE(row.Suits(static_cast<ColumnDataType>(3))) << Text(row.word).ToUtf8();
}

TEST(FindOperator, TakesKeysOnly) {
  for (const char16_t* text :
       {u"contains", u"Contains", u"ALL", u"All", u"", u" EQUALS", u"EQUALS "})
    EXPECT_EQ(FindOperator(text), nullptr) << Text(text).ToUtf8();
}

TEST(IsRangeKey, OnlyForTheTwoRanges) {
  Words ranges;
  for (const OperatorRow& row : OperatorVocabulary())
    if (IsRangeKey(row.key)) ranges.push_back(Text(row.key).ToUtf8());
  EXPECT_EQ(ranges, (Words{"IS BETWEEN", "IS NOT BETWEEN"}));
  EXPECT_FALSE(IsRangeKey(u"is between"));
  EXPECT_FALSE(IsRangeKey(u""));
}

TEST(Vocabulary, AllAndTheSeparatorAreTheseTexts) {
  EXPECT_EQ(Text(kAllWord), u"All");
  EXPECT_EQ(Text(kParameterSeparator), u"@@");
}

}  // namespace
}  // namespace sifter
