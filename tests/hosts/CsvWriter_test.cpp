#include "sift/CsvWriter.h"

#include "Tables.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

std::string Record(const std::vector<std::string>& cells) {
  std::string out;
  AppendCsvRecord(out, TextsOf(cells));
  return out;
}

struct WriteCase {
  const char* name;
  std::vector<std::string> cells;
  const char* record;
};

TEST(AppendCsvRecord, PutsQuotesOnlyWhereTheyAreNeeded) {
  const WriteCase cases[] = {
      {"plain", {"a", "1/5/2020", "it's", " b "}, "a,1/5/2020,it's, b \n"},
      {"comma", {"a,b", "c"}, "\"a,b\",c\n"},
      {"quotes", {"say \"oak\"", "\""}, "\"say \"\"oak\"\"\",\"\"\"\"\n"},
      {"line ends", {"a\nb", "a\r\nb", "a\rb"}, "\"a\nb\",\"a\r\nb\",\"a\rb\"\n"},
      {"empty cells", {"", "", ""}, ",,\n"},
      {"beyond ASCII", {"é漢", "é,漢"}, "é漢,\"é,漢\"\n"},
  };
  for (const WriteCase& c : cases) EXPECT_EQ(Record(c.cells), c.record) << c.name;
}

// Many readers pass over empty lines, and the record would be gone.
TEST(AppendCsvRecord, WritesNoEmptyLine) { EXPECT_EQ(Record({""}), "\"\"\n"); }

TEST(AppendCsvRecord, KeepsAByteOrderMarkThatBelongsToACell) {
  EXPECT_EQ(Record({"\xEF\xBB\xBF"
                    "a"}),
            "\"\xEF\xBB\xBF"
            "a\"\n");
}

TEST(AppendCsvRecord, AppendsBehindWhatIsThere) {
  std::string out = "a,b\n";
  AppendCsvRecord(out, TextsOf({"1", "2"}));
  EXPECT_EQ(out, "a,b\n1,2\n");
}

TEST(AppendCsvRecord, IsReadAgainAsItWas) {
  const std::string bytes =
      "a,\"b,\"\"\n\",\n\"x\r\ny\",  ,\xEF\xBB\xBF\n\n1,2,3\n\"\"\"\",',\"\n\"\n漢,é,𝄞";
  const CsvTable table = ReadCsv(bytes);
  std::string written;
  AppendCsvRecord(written, table.header);
  for (std::size_t i = 0; i < table.RecordCount(); ++i) AppendCsvRecord(written, table.Record(i));
  EXPECT_EQ(ReadCsv(written), table);
}

}  // namespace
}  // namespace sifter
