#include "RunSift.h"
#include "sift/Arguments.h"

#include <gtest/gtest.h>

#include <filesystem>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace sifter {
namespace {

constexpr const char* kTable =
    "Name,Qty,Due\n"
    "Oak,3,1/5/2020\n"
    "abc,7,1/9/2020\n"
    "xABCx,12,\n"
    "\"Elm, \"\"old\"\"\",,1/7/2020\n";

class SiftProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!kCanRunSift) GTEST_SKIP() << "the program cannot be started from here";
    folder_.Write("t.csv", kTable);
  }

  Outcome Run(const std::vector<std::string>& words, const std::string& input = "") {
    return RunSift(folder_, words, input);
  }

  TemporaryFolder folder_;
};

TEST_F(SiftProgramTest, WritesCsvIntoAPipe) {
  EXPECT_EQ(Run({"t.csv", "--where", "Name", "does not contain", "abc"}),
            (Outcome{.out = "Name,Qty,Due\n"
                            "Oak,3,1/5/2020\n"
                            "\"Elm, \"\"old\"\"\",,1/7/2020\n",
                     .err = "Displaying 2 of 4 Items\n"
                            "Name does not contain abc\n"}));
}

TEST_F(SiftProgramTest, WritesATableWhenAsked) {
  EXPECT_EQ(Run({"t.csv", "--table", "--where", "Qty", "is greater than", "3"}),
            (Outcome{.out = "Name   Qty  Due\n"
                            "-----  ---  --------\n"
                            "abc      7  1/9/2020\n"
                            "xABCx   12\n",
                     .err = "Displaying 2 of 4 Items\n"
                            "Qty is greater than 3\n"}));
}

TEST_F(SiftProgramTest, WritesJsonAndNothingElse) {
  EXPECT_EQ(
      Run({"t.csv", "--json", "--where", "Qty", "is less than", "many", "--where", "Due",
           "is before", "1/9/2020"}),
      (Outcome{.out = "{\"columns\":[{\"name\":\"Name\",\"type\":0},{\"name\":\"Qty\",\"type\":1},"
                      "{\"name\":\"Due\",\"type\":2}],\"total\":4,\"kept\":[],"
                      "\"filter\":\"() AND (Due < #1/9/2020#)\","
                      "\"english\":\"Qty is less than many AND Due is before 1/9/2020\","
                      "\"messages\":[{\"title\":\"RowSifter\",\"text\":"
                      "\"data type is number but parameter equals many\"}]}\n"}));
}

TEST_F(SiftProgramTest, KeepsEverythingWithoutCriteria) {
  EXPECT_EQ(Run({"t.csv"}), (Outcome{.out = kTable, .err = "Displaying 4 of 4 Items\n"}));
}

TEST_F(SiftProgramTest, ReadsTheStandardInput) {
  EXPECT_EQ(Run({"-", "--where", "a", "equals", "x"},
                "\xEF\xBB\xBF"
                "a\r\nx\r\ny"),
            (Outcome{.out = "a\nx\n", .err = "Displaying 1 of 2 Items\na equals x\n"}));
}

TEST_F(SiftProgramTest, MatchesCaseWhenAsked) {
  EXPECT_EQ(Run({"t.csv", "--match-case", "--where", "Name", "contains", "ABC"}),
            (Outcome{.out = "Name,Qty,Due\nxABCx,12,\n",
                     .err = "Displaying 1 of 4 Items\nName contains ABC\n"}));
}

TEST_F(SiftProgramTest, ComparesTextsBeyondAscii) {
  EXPECT_EQ(Run({"-", "--where", "größe", "equals", "ÄRGER 漢"}, "größe\närger 漢\narger 漢\n"),
            (Outcome{.out = "größe\närger 漢\n",
                     .err = "Displaying 1 of 2 Items\ngröße equals ÄRGER 漢\n"}));
}

TEST_F(SiftProgramTest, ListsTheColumns) {
  EXPECT_EQ(Run({"t.csv", "--columns"}),
            (Outcome{.out = "Column,Type\nName,text\nQty,number\nDue,date\n"}));
}

TEST_F(SiftProgramTest, PrintsMessagesInFrontOfTheCount) {
  EXPECT_EQ(Run({"t.csv", "--where", "Due", "is between", "1/5/2020", "1/8/2020", "--where", "Qty",
                 "is between", "1", "5"}),
            (Outcome{.out = "Name,Qty,Due\nOak,3,1/5/2020\n",
                     .err = "RowSifter: data type is number but parameter equals 1@\n"
                            "Error: Error number is 13, Type mismatch\n"
                            "Displaying 1 of 4 Items\n"
                            "Qty is between 1 & 5 AND Due is between 1/5/2020 & 1/8/2020\n"}));
}

TEST_F(SiftProgramTest, Helps) { EXPECT_EQ(Run({"--help"}), (Outcome{.out = HelpText()})); }

struct FailureCase {
  std::vector<std::string> words;
  const char* err;
};

TEST_F(SiftProgramTest, SaysInOneLineWhatIsWrongAndPrintsNothing) {
  folder_.Write("long.csv", "a\n1\n1,2\n");
  folder_.Write("empty.csv", "");
  folder_.Write("strange.csv", "a\n\"x\nb\"\"");
  const FailureCase cases[] = {
      {{}, "sift: no file given; a CSV file or - was expected (sift --help tells more)\n"},
      {{"none.csv"}, "sift: cannot read none.csv: No such file or directory\n"},
      {{"."}, "sift: cannot read .: Is a directory\n"},
      {{"long.csv"}, "sift: long.csv, line 3: a record of 2 cells, but the header has only 1\n"},
      {{"empty.csv"},
       "sift: empty.csv, line 1: a header line with the names of the columns was expected\n"},
      {{"-"},
       "sift: the standard input, line 1: a header line with the names of the columns was "
       "expected\n"},
      {{"strange.csv"}, "sift: strange.csv, line 2: the quote that opens here is never closed\n"},
      {{"t.csv", "--frob"},
       "sift: unknown option \"--frob\" (sift --help tells which there are)\n"},
      {{"t.csv", "--where", "Na\nme", "equals", "x"},
       "sift: there is no column \"Na␊me\"; the columns are \"Name\", \"Qty\", \"Due\"\n"},
      {{"t.csv", "--where", "Qty", "contains", "1"},
       "sift: \"Qty\" is a number column, which does not offer \"contains\" but \"All\", "
       "\"does not equal\", \"equals\", \"is between\", \"is greater than\", \"is less than\", "
       "\"is not between\"\n"},
      {{"t.csv", "--where", "Qty", "is between", "1"},
       "sift: \"is between\" takes two parameters; --where \"Qty\" gives it only \"1\"\n"},
      {{"t.csv", "--json", "--where", "Due", "is after", "soon"},
       "sift: \"Due\" is a date column, but \"soon\" is no date; a date such as 12/31/2024 or a "
       "column in square brackets was expected\n"},
      {{"t.csv", "--where", "Name", "equals", "Oak", "--where", "None", "equals", "x"},
       "sift: there is no column \"None\"; the columns are \"Name\", \"Qty\", \"Due\"\n"},
  };
  for (const FailureCase& c : cases)
    EXPECT_EQ(Run(c.words), (Outcome{.exitCode = 2, .err = c.err}))
        << testing::PrintToString(c.words);
}

#ifndef _WIN32

std::string ExampleTable() {
  const auto root = std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
  return (root / "examples" / "clock-changes.csv").string();
}

// As README.md shows it.
TEST_F(SiftProgramTest, FiltersTheTableThatComesWithIt) {
  EXPECT_EQ(
      Run({ExampleTable(), "--table", "--where", "Region", "equals", "europe", "--where", "Offset",
           "is greater than", "3", "--where", "Changed", "is after", "1/1/2014"}),
      (Outcome{.out =
                   "Place       Region  Country  Changed     Minutes  Offset  Name  Until\n"
                   "----------  ------  -------  ----------  -------  ------  ----  ----------\n"
                   "Astrakhan   Europe  Russia   3/27/2016        60       4  +04\n"
                   "Saratov     Europe  Russia   12/4/2016        60       4  +04\n"
                   "Simferopol  Europe  Russia   3/30/2014       120       4  MSK   10/26/2014\n"
                   "Ulyanovsk   Europe  Russia   3/27/2016        60       4  +04\n"
                   "Volgograd   Europe  Russia   10/28/2018       60       4  +04   12/27/2020\n",
               .err = "Displaying 5 of 3887 Items\n"
                      "Region equals europe AND Changed is after 1/1/2014 AND "
                      "Offset is greater than 3\n"}));
}

TEST_F(SiftProgramTest, SaysThatTheOutputCannotBeWritten) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  const std::string err = folder_.PathOf("stderr");
  EXPECT_EQ(RunInShell(SiftCommand({ExampleTable()}) + " >/dev/full 2>" + InShellQuotes(err)), 1);
  EXPECT_EQ(folder_.Read("stderr"), "sift: cannot write the output: No space left on device\n");
}

// As in front of `head`, which has what it wants.
TEST_F(SiftProgramTest, EndsQuietlyWhenNobodyReadsThePipeAnyMore) {
  const std::string err = InShellQuotes(folder_.PathOf("stderr"));
  const std::string code = InShellQuotes(folder_.PathOf("code"));
  RunInShell("( " + SiftCommand({ExampleTable()}) + " 2>" + err + "; echo $? >" + code +
             " ) | true");
  EXPECT_EQ(folder_.Read("code"), "1\n");
  EXPECT_EQ(folder_.Read("stderr"), "");
}

// A terminal that the test sits behind. Device() is "" where the system offers none.
class PseudoTerminal {
 public:
  PseudoTerminal() : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) return;
    if (const char* name = ptsname(master_)) device_ = name;
  }
  ~PseudoTerminal() {
    if (master_ >= 0) close(master_);
  }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Device() const { return device_; }

  // What has been written to the terminal by now, in one piece; it ends lines with CR LF.
  std::string Shown() const {
    char bytes[4096];
    const ssize_t count = read(master_, bytes, sizeof bytes);
    return count > 0 ? std::string(bytes, static_cast<std::size_t>(count)) : std::string();
  }

 private:
  int master_;
  std::string device_;
};

TEST_F(SiftProgramTest, WritesATableToATerminal) {
  const PseudoTerminal terminal;
  if (terminal.Device().empty()) GTEST_SKIP() << "no pseudo-terminals here";
  // The shell keeps the terminal open until the test has read from it.
  const int kept = open(terminal.Device().c_str(), O_RDWR | O_NOCTTY);
  EXPECT_EQ(RunInShell(SiftCommand({folder_.PathOf("t.csv"), "--where", "Name", "equals", "Oak"}) +
                       " >" + terminal.Device() + " 2>" + InShellQuotes(folder_.PathOf("stderr"))),
            0);
  EXPECT_EQ(terminal.Shown(),
            "Name  Qty  Due\r\n"
            "----  ---  --------\r\n"
            "Oak     3  1/5/2020\r\n");
  EXPECT_EQ(folder_.Read("stderr"), "Displaying 1 of 4 Items\nName equals Oak\n");
  close(kept);
}

#endif

}  // namespace
}  // namespace sifter
