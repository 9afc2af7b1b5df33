#include "sift/FilterRun.h"

#include "Tables.h"
#include "sift/UserError.h"
#include "support/ClockFake.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <numeric>

namespace sifter {

void PrintTo(const FilteredColumn& column, std::ostream* out) {
  *out << Quoted(column.name) << " type " << static_cast<int>(column.type);
}

namespace {

using Records = std::vector<std::int32_t>;

constexpr const char* kTable =
    "Name,Qty,Due,Paid\n"
    "Oak,3,1/5/2020,1/5/2020\n"
    "abc,7,1/9/2020,\n"
    "xABCx,12,,1/9/2020\n"
    "Elm,,1/7/2020,1/6/2020\n"
    "Oak,3,1/5/2020,1/5/2020\n";

FilterResult Filtered(std::string_view bytes, const std::vector<Where>& criteria,
                      bool matchCase = false) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  return FilterTable(ReadCsv(bytes),
                     {.file = "t.csv", .criteria = criteria, .matchCase = matchCase}, conversions,
                     clock);
}

TEST(FilterTable, TellsWhatTheDialogDecidedAboutTheColumns) {
  const FilterResult result = Filtered(kTable, {});
  EXPECT_EQ(result.columns, (std::vector<FilteredColumn>{{u"Name", ColumnDataType::kText},
                                                         {u"Qty", ColumnDataType::kNumber},
                                                         {u"Due", ColumnDataType::kDate},
                                                         {u"Paid", ColumnDataType::kDate}}));
}

TEST(FilterTable, KeepsEverythingWithoutCriteria) {
  const FilterResult result = Filtered(kTable, {});
  EXPECT_EQ(result.total, 5);
  EXPECT_EQ(result.kept, (Records{1, 2, 3, 4, 5}));
  EXPECT_EQ(result.filter, u"");
  EXPECT_EQ(result.english, u"");
  EXPECT_TRUE(result.messages.empty());
  EXPECT_TRUE(result.notes.empty());
}

struct FilterCase {
  const char* name;
  std::vector<Where> criteria;
  Records kept;
  const char16_t* filter;
  const char16_t* english;
  std::vector<Message> messages;
};

const Message kTypeMismatch = {u"Error", u"Error number is 13, Type mismatch"};

Message BadNumber(const char16_t* parameter) {
  return {u"RowSifter",
          Concat({u"data type is number but parameter equals ", TextView(parameter)})};
}

TEST(FilterTable, FiltersAsTheDialogDoes) {
  const FilterCase cases[] = {
      {"text",
       {{"Name", "contains", {"abc"}}},
       {2, 3},
       u"(Name like '*abc*')",
       u"Name contains abc",
       {}},
      {"two columns",
       {{"Name", "contains", {"abc"}}, {"Qty", "is greater than", {"7"}}},
       {3},
       u"(Name like '*abc*') AND (Qty > 7)",
       u"Name contains abc AND Qty is greater than 7",
       {}},
      {"rows of the dialog in their order",
       {{"Qty", "is less than", {"5"}}, {"Name", "equals", {"Oak"}}},
       {1, 5},
       u"(Name = 'Oak') AND (Qty < 5)",
       u"Name equals Oak AND Qty is less than 5",
       {}},
      {"nothing kept",
       {{"Name", "equals", {"none"}}},
       {},
       u"(Name = 'none')",
       u"Name equals none",
       {}},
      {"date",
       {{"Due", "is after", {"1/6/2020"}}},
       {2, 4},
       u"(Due > #1/6/2020#)",
       u"Due is after 1/6/2020",
       {}},
      {"referenced cell that is no date, which ends the criterion",
       {{"Due", "equals", {"[Due]"}}},
       {1, 2, 3, 4, 5},
       u"(Due = #6/15/2007#)",
       u"Due equals 6/15/2007",
       {}},
      {"is empty",
       {{"Paid", "is empty", {}}},
       {2},
       u"(Is Null Paid)",
       u"Paid is empty 6/15/2007",
       {}},
      {"column put out again",
       {{"Name", "equals", {"Oak"}}, {"Name", "All", {}}},
       {1, 2, 3, 4, 5},
       u"",
       u"",
       {}},
      {"no number",
       {{"Qty", "equals", {"many"}}, {"Name", "equals", {"Elm"}}},
       {4},
       u"(Name = 'Elm') AND ()",
       u"Name equals Elm AND Qty equals many",
       {BadNumber(u"many")}},
      {"number range, which never has a condition",
       {{"Qty", "is between", {"3", "12"}}},
       {2},
       u"()",
       u"Qty is between 3 & 12",
       {BadNumber(u"3@")}},
      {"second field left over from a range",
       {{"Qty", "is between", {"3", "12"}}, {"Qty", "equals", {"7"}}},
       {2},
       u"()",
       u"Qty equals 7 & 12",
       {BadNumber(u"7@")}},
      {"date range, which is an error box",
       {{"Due", "is between", {"1/5/2020", "1/7/2020"}}},
       {1, 4, 5},
       u"()",
       u"Due is between 1/5/2020 & 1/7/2020",
       {kTypeMismatch}},
  };
  for (const FilterCase& c : cases) {
    const FilterResult result = Filtered(kTable, c.criteria);
    EXPECT_EQ(result.kept, c.kept) << c.name;
    EXPECT_EQ(result.filter, c.filter) << c.name;
    EXPECT_EQ(result.english, c.english) << c.name;
    EXPECT_EQ(result.messages, c.messages) << c.name;
    EXPECT_EQ(result.total, 5) << c.name;
    EXPECT_TRUE(result.notes.empty()) << c.name;
  }
}

TEST(FilterTable, TellsUpperFromLowerCaseWhenAsked) {
  EXPECT_EQ(Filtered(kTable, {{"Name", "contains", {"abc"}}}, true).kept, Records{2});
}

// Nothing in the records tells them apart.
TEST(FilterTable, TellsEqualRecordsApart) {
  EXPECT_EQ(Filtered("a\nx\ny\nx\nx\n", {{"a", "equals", {"x"}}}).kept, (Records{1, 3, 4}));
}

TEST(FilterTable, ComparesTheColumnsOfARecord) {
  constexpr const char* kDates =
      "Due,Paid\n1/5/2020,1/5/2020\n1/5/2020,1/6/2020\n1/7/2020,1/6/2020\n";
  EXPECT_EQ(Filtered(kDates, {{"Due", "is before", {"[Paid]"}}}).kept, Records{2});
  EXPECT_EQ(Filtered(kDates, {{"Due", "is between", {"[Paid]", "1/6/2020"}}}).kept, Records{1});
  EXPECT_EQ(Filtered("a,b\nx,X\nx,y\n", {{"a", "equals", {"[b]"}}}).kept, Records{1});
}

TEST(FilterTable, TakesTheFirstColumnOfAName) {
  EXPECT_EQ(Filtered("a,a\n1,x\nx,1\n", {{"a", "equals", {"x"}}}).kept, Records{2});
}

TEST(FilterTable, TakesATableWithoutRecords) {
  const FilterResult result = Filtered("a,b\n", {{"a", "equals", {"x"}}});
  EXPECT_EQ(result.kept, Records());
  EXPECT_EQ(result.total, 0);
  EXPECT_EQ(result.english, u"a equals x");
}

TEST(FilterTable, NotesAReferenceThatNamesNoColumn) {
  EXPECT_EQ(
      Filtered(kTable, {{"Due", "is after", {"[Piad]"}}}).notes,
      std::vector<std::string>{
          "\"[Piad]\" names no column, so that the date in its date picker was compared with"});
}

TEST(FilterTable, RefusesWhatDoesNotSuitTheTable) {
  EXPECT_THROW(Filtered(kTable, {{"None", "equals", {"x"}}}), UserError);
}

std::string Numbers(int last) {
  std::string bytes = "n\n";
  for (int i = 1; i <= last; ++i) bytes += std::to_string(i) + '\n';
  return bytes;
}

constexpr int kLastCountedRow = 32767;

TEST(FilterTable, FiltersAsManyRecordsAsTheEngineCounts) {
  const FilterResult result = Filtered(Numbers(kLastCountedRow), {{"n", "is less than", {"3"}}});
  EXPECT_EQ(result.kept, (Records{1, 2}));
  EXPECT_TRUE(result.notes.empty());
}

// The engine takes rows away from the last one on and stops at a number that it cannot count.
TEST(FilterTable, NotesWhenTheEngineCannotCountTheRecords) {
  const FilterResult result =
      Filtered(Numbers(kLastCountedRow + 1), {{"n", "is less than", {"3"}}});
  Records all(kLastCountedRow + 1);
  std::iota(all.begin(), all.end(), 1);
  EXPECT_TRUE(result.kept == all);
  EXPECT_EQ(result.notes, std::vector<std::string>{
                              "the table has 32768 records, and a criterion that a record behind "
                              "number 32767 does not meet takes none away"});
}

TEST(FilterTable, NotesNothingAboutALongTableThatIsNotFiltered) {
  EXPECT_TRUE(Filtered(Numbers(kLastCountedRow + 1), {}).notes.empty());
}

// The dialog lays out 80 rows of controls; the box says so, and the columns filter all the same.
TEST(FilterTable, TakesMoreColumnsThanTheDialogCanLayOut) {
  std::string header = "c1";
  for (int i = 2; i <= 81; ++i) header += ",c" + std::to_string(i);
  const std::string records = std::string(80, ',') + "x\n" + std::string(80, ',') + "y\n";
  const FilterResult result = Filtered(header + '\n' + records, {{"c81", "equals", {"y"}}});
  EXPECT_EQ(result.kept, Records{2});
  EXPECT_EQ(result.messages, (std::vector<Message>{{u"Error", u"Error number is 6, Overflow"}}));
}

}  // namespace
}  // namespace sifter
