#include "sift/Report.h"

#include "Tables.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

CsvTable Table() { return ReadCsv("Name,Qty\nOak,3\nHornbeam,1200\nElm,5\n"); }

FilterResult Result() {
  return {.columns = {{u"Name", ColumnDataType::kText}, {u"Qty", ColumnDataType::kNumber}},
          .total = 3,
          .kept = {1, 2},
          .filter = u"(Name = 'x')",
          .english = u"Name equals x",
          .messages = {{u"RowSifter", u"one"}, {u"Error", u"two\nlines"}},
          .notes = {"three"}};
}

TEST(ChosenFormat, IsATableForAReaderAndCsvForAProgram) {
  EXPECT_EQ(ChosenFormat(OutputFormat::kAutomatic, true), OutputFormat::kTable);
  EXPECT_EQ(ChosenFormat(OutputFormat::kAutomatic, false), OutputFormat::kCsv);
  for (const OutputFormat asked : {OutputFormat::kTable, OutputFormat::kCsv, OutputFormat::kJson})
    for (const bool onTerminal : {false, true}) EXPECT_EQ(ChosenFormat(asked, onTerminal), asked);
}

TEST(OutputOf, PrintsTheKeptRecords) {
  EXPECT_EQ(OutputOf(Table(), Result(), OutputFormat::kCsv, false),
            "Name,Qty\nOak,3\nHornbeam,1200\n");
  EXPECT_EQ(OutputOf(Table(), Result(), OutputFormat::kTable, false),
            "Name       Qty\n"
            "--------  ----\n"
            "Oak          3\n"
            "Hornbeam  1200\n");
}

TEST(OutputOf, PrintsTheColumns) {
  FilterResult result = Result();
  result.columns.push_back({u"Due,\nthen", ColumnDataType::kDate});
  EXPECT_EQ(OutputOf(Table(), result, OutputFormat::kCsv, true),
            "Column,Type\nName,text\nQty,number\n\"Due,\nthen\",date\n");
  EXPECT_EQ(OutputOf(Table(), result, OutputFormat::kTable, true),
            "Column     Type\n"
            "---------  ------\n"
            "Name       text\n"
            "Qty        number\n"
            "Due,␊then  date\n");
}

TEST(OutputOf, PrintsTheSameJsonEitherWay) {
  EXPECT_EQ(OutputOf(Table(), Result(), OutputFormat::kJson, false),
            OutputOf(Table(), Result(), OutputFormat::kJson, true));
}

TEST(RemarksOn, EndsWithTheCountAndTheSentence) {
  constexpr const char* kRemarks =
      "RowSifter: one\n"
      "Error: two␊lines\n"
      "Note: three\n"
      "Displaying 2 of 3 Items\n"
      "Name equals x\n";
  EXPECT_EQ(RemarksOn(Result(), OutputFormat::kCsv, false), kRemarks);
  EXPECT_EQ(RemarksOn(Result(), OutputFormat::kTable, false), kRemarks);
}

TEST(RemarksOn, LeavesAnEmptySentenceOut) {
  EXPECT_EQ(RemarksOn({.total = 5, .kept = {}}, OutputFormat::kCsv, false),
            "Displaying 0 of 5 Items\n");
}

TEST(RemarksOn, CountsNothingUnderColumns) {
  EXPECT_EQ(RemarksOn(Result(), OutputFormat::kCsv, true),
            "RowSifter: one\nError: two␊lines\nNote: three\n");
}

TEST(RemarksOn, RepeatsNothingThatIsInTheJson) {
  EXPECT_EQ(RemarksOn(Result(), OutputFormat::kJson, false), "Note: three\n");
}

}  // namespace
}  // namespace sifter
