#include "sift/CsvReader.h"

#include "Tables.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

using namespace std::string_view_literals;

struct ReadCase {
  const char* name;
  std::string_view bytes;
  Lines lines;
};

void CheckAll(const std::vector<ReadCase>& cases) {
  for (const ReadCase& c : cases) EXPECT_EQ(LinesOf(ReadCsv(c.bytes)), c.lines) << c.name;
}

TEST(ReadCsv, TakesTheFirstRecordForTheHeader) {
  CheckAll({
      {"header and records",
       "Name,Qty\nOak,3\nElm,5\n",
       {{"Name", "Qty"}, {"Oak", "3"}, {"Elm", "5"}}},
      {"header alone", "Name,Qty\n", {{"Name", "Qty"}}},
      {"header without line end", "Name", {{"Name"}}},
      {"equal and empty names", "a,,a\n1,2,3\n", {{"a", "", "a"}, {"1", "2", "3"}}},
      {"quoted header over two lines", "\"a\nb\",c\n1,2\n", {{"a\nb", "c"}, {"1", "2"}}},
      {"empty header line", "\n1\n", {{""}, {"1"}}},
  });
}

TEST(ReadCsv, TakesEveryKindOfLineEnd) {
  const Lines lines = {{"a", "b"}, {"1", "2"}, {"3", "4"}};
  CheckAll({
      {"LF", "a,b\n1,2\n3,4\n", lines},
      {"CR LF", "a,b\r\n1,2\r\n3,4\r\n", lines},
      {"mixed", "a,b\r\n1,2\n3,4\r\n", lines},
      {"last line without end", "a,b\n1,2\n3,4", lines},
      {"last line without end behind quotes", "a,b\n1,2\n3,\"4\"", lines},
  });
}

TEST(ReadCsv, TakesQuotedCells) {
  CheckAll({
      {"comma", "a\n\"1,2\"\n", {{"a"}, {"1,2"}}},
      {"line ends", "a,b\n\"1\r\n2\n\",x\n", {{"a", "b"}, {"1\r\n2\n", "x"}}},
      {"lone CR", "a\n\"1\r2\"\n", {{"a"}, {"1\r2"}}},
      {"doubled quotes", "a\n\"say \"\"oak\"\"\"\n", {{"a"}, {"say \"oak\""}}},
      {"only quotes", "a\n\"\"\"\"\n", {{"a"}, {"\""}}},
      {"empty", "a,b\n\"\",\"\"\n", {{"a", "b"}, {"", ""}}},
      {"doubled quotes twice in a record",
       "a,b\n\"x\"\"\",\"y\"\"\"\n",
       {{"a", "b"}, {"x\"", "y\""}}},
      {"at the end of the file", "a,b\n1,\"2\"", {{"a", "b"}, {"1", "2"}}},
  });
}

TEST(ReadCsv, KeepsBlanks) {
  CheckAll({{"blanks", " a , b\n 1 ,\t2 \n", {{" a ", " b"}, {" 1 ", "\t2 "}}}});
}

TEST(ReadCsv, FillsShortRecordsUpWithEmptyCells) {
  CheckAll({
      {"short", "a,b,c\n1\n1,2\n", {{"a", "b", "c"}, {"1", "", ""}, {"1", "2", ""}}},
      {"empty line", "a,b\n\n1,2\n", {{"a", "b"}, {"", ""}, {"1", "2"}}},
      {"empty line at the end", "a\n1\n\n", {{"a"}, {"1"}, {""}}},
      {"comma at the end", "a,b\n1,", {{"a", "b"}, {"1", ""}}},
  });
}

TEST(ReadCsv, PassesOverOneByteOrderMark) {
  CheckAll({
      {"mark",
       "\xEF\xBB\xBF"
       "a,b\n1,2\n",
       {{"a", "b"}, {"1", "2"}}},
      {"mark before quotes", "\xEF\xBB\xBF\"a\"\n1\n", {{"a"}, {"1"}}},
      {"second mark",
       "\xEF\xBB\xBF\xEF\xBB\xBF"
       "a\n",
       {{"\xEF\xBB\xBF"
         "a"}}},
      {"mark in a cell", "a\n\xEF\xBB\xBF\n", {{"a"}, {"\xEF\xBB\xBF"}}},
  });
}

TEST(ReadCsv, ReadsAllOfUnicode) {
  const CsvTable table = ReadCsv("é,漢\n𝄞,\"\xF4\x8F\xBF\xBF\"\n");
  EXPECT_EQ(table.header, (std::vector<Text>{u"é", u"漢"}));
  EXPECT_EQ(table.cells, (std::vector<Text>{u"\xD834\xDD1E", u"\xDBFF\xDFFF"}));
}

struct ErrorCase {
  const char* name;
  std::string_view bytes;
  const char* error;
};

TEST(ReadCsv, NamesTheLineOfWhatIsWrong) {
  constexpr const char* kHeader =
      "line 1: a header line with the names of the columns was expected";
  constexpr const char* kAfterQuote =
      "line 2: text after a closing quote; a quote inside a quoted cell is written twice";
  constexpr const char* kCarriageReturn =
      "line 2: a carriage return without a line feed; end lines with CR LF or LF, or put the cell "
      "in quotes";
  const ErrorCase cases[] = {
      {"nothing", "", kHeader},
      {"byte-order mark alone", "\xEF\xBB\xBF", kHeader},
      {"long record", "a,b\n1,2\n1,2,3\n",
       "line 3: a record of 3 cells, but the header has only 2"},
      {"long record over several lines", "a\n1\n\"x\ny\",2\n",
       "line 3: a record of 2 cells, but the header has only 1"},
      {"long record behind one over several lines", "a\n\"x\r\ny\r\n\"\r\n1,2\r\n",
       "line 5: a record of 2 cells, but the header has only 1"},
      {"comma too many", "a\n1,\n", "line 2: a record of 2 cells, but the header has only 1"},
      {"quote inside", "a\n1\"2\"\n",
       "line 2: a quote inside a cell that does not begin with one; put the whole cell in quotes "
       "and "
       "write its own quotes twice"},
      {"quote behind a blank", "a,b\n1, \"2\"\n",
       "line 2: a quote inside a cell that does not begin with one; put the whole cell in quotes "
       "and "
       "write its own quotes twice"},
      {"text behind quotes", "a\n\"1\"2\n", kAfterQuote},
      {"blank behind quotes", "a\n\"1\" \n", kAfterQuote},
      {"unclosed", "a\n1\n\"2\n3\n", "line 3: the quote that opens here is never closed"},
      {"unclosed behind a doubled quote", "a\n\"2\"\"",
       "line 2: the quote that opens here is never closed"},
      {"opening quote at the end", "a\n\"", "line 2: the quote that opens here is never closed"},
      {"CR alone", "a\n1\r2\n", kCarriageReturn},
      {"CR at the end", "a\n1\r", kCarriageReturn},
      {"CR alone behind quotes", "a\n\"1\"\r2\n", kCarriageReturn},
      {"NUL", "a\n1\n\0\n"sv, "line 3: a NUL byte; a text file was expected"},
      {"no UTF-8", "a\n1\n\xE9\n", "line 3: not UTF-8; save the file as UTF-8"},
      {"NUL before no UTF-8", "a\n\0\xE9\n"sv, "line 2: a NUL byte; a text file was expected"},
      {"no UTF-8 before NUL", "a\n\xE9\0\n"sv, "line 2: not UTF-8; save the file as UTF-8"},
      {"UTF-16",
       "\xFF\xFE"
       "a\0"sv,
       "line 1: this is UTF-16; save the file as UTF-8"},
      {"UTF-16 the other way round", "\xFE\xFF\0a"sv,
       "line 1: this is UTF-16; save the file as UTF-8"},
  };
  for (const ErrorCase& c : cases) EXPECT_EQ(CsvErrorOf(c.bytes), c.error) << c.name;
}

TEST(ReadCsv, TellsTheLineAsANumberToo) {
  try {
    ReadCsv("a\n1\n\"");
    FAIL() << "nothing was said";
  } catch (const CsvError& error) {
    EXPECT_EQ(error.Line(), 3u);
  }
}

TEST(ReadCsv, LetsEqualCellsOfAColumnShareATextWhereTheyComeOften) {
  std::string bytes = "Kind,Number\n";
  for (int i = 0; i < 5000; ++i)
    bytes += (i % 2 == 0 ? "even," : "odd,") + std::to_string(i) + '\n';
  bytes += "even,4999\n";
  const CsvTable table = ReadCsv(bytes);
  ASSERT_EQ(table.RecordCount(), 5001u);
  EXPECT_TRUE(table.Record(0)[0].SharesWith(table.Record(5000)[0]));
  EXPECT_EQ(table.Record(4999)[1], table.Record(5000)[1]);
  for (int i = 0; i < 5000; ++i)
    ASSERT_EQ(table.Record(static_cast<std::size_t>(i))[1].ToUtf8(), std::to_string(i));
}

}  // namespace
}  // namespace sifter
