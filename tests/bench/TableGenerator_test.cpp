#include "common/TableGenerator.h"

#include "base/Conversions.h"
#include "common/DialogUnderTest.h"
#include "common/TextList.h"
#include "sift/CsvReader.h"
#include "support/ClockFake.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace sifter::bench {
namespace {

std::vector<Text> ColumnOf(const CsvTable& table, std::size_t column) {
  std::vector<Text> cells;
  for (std::size_t i = 0; i < table.RecordCount(); ++i) cells.push_back(table.Record(i)[column]);
  return cells;
}

std::size_t CountEmpty(const std::vector<Text>& cells) {
  return static_cast<std::size_t>(std::count(cells.begin(), cells.end(), Text()));
}

bool IsBeyondAscii(const Text& text) {
  const TextView units = text.View();
  return std::any_of(units.begin(), units.end(), [](char16_t unit) { return unit > 0x7F; });
}

TEST(GeneratedTable, BeginsWithTheSameRowsEverywhere) {
  EXPECT_EQ(GeneratedTable(3),
            "Product,Category,City,Notes,Quantity,Price,Weight,Balance,Ordered,Shipped\n"
            "Hinge saw,Electrical,Clayford,Hook screw magnet 東京 granite amber bench wire,"
            "540,147.94,49.839,-1667.63,1/3/2019,\n"
            "Kettle,Garden,Kingston,Mirror timber lever lever hinge,"
            "285,572.21,71.803,-2020.59,10/9/2016,11/9/2016\n"
            "Oak,paint,Woodcombe,Spade rail filter maple apple motor spring wool st,"
            "339,300.45,7.426,1102.82,9/19/2003,\n");
}

TEST(GeneratedTable, OfMoreRowsBeginsWithThatOfFewer) {
  EXPECT_TRUE(GeneratedTable(1000).starts_with(GeneratedTable(400)));
}

TEST(GeneratedTable, HasAsManyRecordsAsAskedFor) {
  EXPECT_EQ(ReadCsv(GeneratedTable(0)).RecordCount(), 0u);
  EXPECT_EQ(ReadCsv(GeneratedTable(1000)).RecordCount(), 1000u);
  EXPECT_EQ(ReadCsv(GeneratedTable(1000)).header.size(), kGeneratedColumns);
}

TEST(GeneratedTable, HasFourTextFourNumberAndTwoDateColumns) {
  DialogUnderTest dialog(MakeTextList(ReadCsv(GeneratedTable(1000))));
  std::vector<Text> types;
  for (std::int32_t i = 0; i < dialog.Form().ColumnCount(); ++i)
    types.push_back(dialog.Form().lblColumnHeaderText[i].Tag());
  EXPECT_EQ(types, (std::vector<Text>{u"0", u"0", u"0", u"0", u"1", u"1", u"1", u"1", u"2", u"2"}));
}

TEST(GeneratedTable, WritesTwelveCategoriesEachInThreeWays) {
  const std::vector<Text> categories = ColumnOf(ReadCsv(GeneratedTable(5000)), 1);
  EXPECT_EQ(std::set<Text>(categories.begin(), categories.end()).size(), 36u);
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  std::set<Text> folded;
  for (const Text& category : categories) folded.insert(conversions.ToUpper(category));
  EXPECT_EQ(folded.size(), 12u);
}

TEST(GeneratedTable, KnowsFiveHundredCities) {
  const std::vector<Text> cities = ColumnOf(ReadCsv(GeneratedTable(10000)), 2);
  EXPECT_EQ(std::set<Text>(cities.begin(), cities.end()).size(), 500u);
}

TEST(GeneratedTable, HasNotesOfTwentyToSixtyCharactersSomeBeyondAscii) {
  const std::vector<Text> notes = ColumnOf(ReadCsv(GeneratedTable(5000)), 3);
  std::set<std::size_t> lengths;
  for (const Text& text : notes) lengths.insert(text.Length());
  EXPECT_EQ(*lengths.begin(), 20u);
  EXPECT_EQ(*lengths.rbegin(), 60u);
  EXPECT_EQ(lengths.size(), 41u);
  const auto foreign = std::count_if(notes.begin(), notes.end(), IsBeyondAscii);
  EXPECT_GT(foreign, 1000);
  EXPECT_LT(foreign, 2000);
}

TEST(GeneratedTable, LeavesSomeNumbersAndAFifthOfTheSecondDatesEmpty) {
  const CsvTable table = ReadCsv(GeneratedTable(10000));
  for (std::size_t column = 0; column < 10; ++column) {
    const std::size_t empty = CountEmpty(ColumnOf(table, column));
    SCOPED_TRACE(table.header[column].ToUtf8());
    if (column < 4 || column == 8) {
      EXPECT_EQ(empty, 0u);
    } else if (column < 8) {
      EXPECT_GT(empty, 100u);
      EXPECT_LT(empty, 1000u);
    } else {
      EXPECT_GT(empty, 1900u);
      EXPECT_LT(empty, 2100u);
    }
  }
}

}  // namespace
}  // namespace sifter::bench
