#include "sift/Arguments.h"

#include "matching/Operators.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <ostream>

namespace sifter {

void PrintTo(const Where& where, std::ostream* out) {
  *out << '{' << where.column << '|' << where.operatorWord;
  for (const std::string& parameter : where.parameters) *out << '|' << parameter;
  *out << '}';
}

void PrintTo(const Arguments& arguments, std::ostream* out) {
  *out << arguments.file << " match case " << arguments.matchCase << " columns "
       << arguments.listColumns << " help " << arguments.help << " format "
       << static_cast<int>(arguments.format) << ' ' << testing::PrintToString(arguments.criteria);
}

namespace {

using Words = std::vector<std::string>;

struct ArgumentsCase {
  const char* name;
  Words words;
  Arguments arguments;
};

Arguments WithCriteria(const std::vector<Where>& criteria) {
  return {.file = "t.csv", .criteria = criteria};
}

void CheckAll(const std::vector<ArgumentsCase>& cases) {
  for (const ArgumentsCase& c : cases) EXPECT_EQ(ParseArguments(c.words), c.arguments) << c.name;
}

TEST(ParseArguments, TakesFileAndOptionsInAnyOrder) {
  CheckAll({
      {"file alone", {"t.csv"}, {.file = "t.csv"}},
      {"standard input", {"-"}, {.file = "-"}},
      {"match case", {"t.csv", "--match-case"}, {.file = "t.csv", .matchCase = true}},
      {"options first", {"--columns", "t.csv"}, {.file = "t.csv", .listColumns = true}},
      {"json", {"--json", "t.csv"}, {.file = "t.csv", .format = OutputFormat::kJson}},
      {"csv", {"t.csv", "--csv"}, {.file = "t.csv", .format = OutputFormat::kCsv}},
      {"table", {"t.csv", "--table"}, {.file = "t.csv", .format = OutputFormat::kTable}},
      {"the same format twice",
       {"--csv", "t.csv", "--csv"},
       {.file = "t.csv", .format = OutputFormat::kCsv}},
      {"file that looks like an option",
       {"--csv", "--", "--json"},
       {.file = "--json", .format = OutputFormat::kCsv}},
      {"criterion before the file",
       {"--where", "Qty", "equals", "5", "t.csv"},
       WithCriteria({{"Qty", "equals", {"5"}}})},
  });
}

TEST(ParseArguments, LetsTheOperatorSayHowManyParametersFollow) {
  CheckAll({
      {"none", {"--where", "Due", "is empty", "t.csv"}, WithCriteria({{"Due", "is empty", {}}})},
      {"All", {"--where", "Due", "All", "t.csv"}, WithCriteria({{"Due", "All", {}}})},
      {"two",
       {"--where", "Qty", "is between", "1", "5", "t.csv"},
       WithCriteria({{"Qty", "is between", {"1", "5"}}})},
      {"two of the other kind",
       {"--where", "Qty", "is not between", "1", "5", "t.csv"},
       WithCriteria({{"Qty", "is not between", {"1", "5"}}})},
      {"several on one column, in order",
       {"t.csv", "--where", "Qty", "is between", "1", "5", "--where", "Qty", "equals", "3"},
       WithCriteria({{"Qty", "is between", {"1", "5"}}, {"Qty", "equals", {"3"}}})},
      {"negative, dashed and empty parameters",
       {"t.csv", "--where", "Qty", "is between", "-5", "-", "--where", "A", "equals", "", "--where",
        "B", "contains", "--", "--where", "C", "equals", "--other"},
       WithCriteria({{"Qty", "is between", {"-5", "-"}},
                     {"A", "equals", {""}},
                     {"B", "contains", {"--"}},
                     {"C", "equals", {"--other"}}})},
  });
}

// Every word of the vocabulary takes the number of parameters that its table says.
TEST(ParseArguments, KnowsEveryOperator) {
  for (const OperatorRow& row : OperatorVocabulary()) {
    const std::string word = Text(row.word).ToUtf8();
    Where where{"A", word, Words(static_cast<std::size_t>(row.parameters), "x")};
    Words words = {"--where", "A", word};
    words.insert(words.end(), where.parameters.begin(), where.parameters.end());
    words.emplace_back("t.csv");
    EXPECT_EQ(ParseArguments(words), WithCriteria({where}));
  }
}

// Which words there are instead can only be told when the file has been read.
TEST(ParseArguments, LetsAnOperatorThatThereIsNotPass) {
  CheckAll({
      {"parameters up to the next option",
       {"t.csv", "--where", "Qty", "like", "a", "b", "c", "--where", "Qty", "null", "--where",
        "Qty", "equals", "5"},
       WithCriteria(
           {{"Qty", "like", {"a", "b", "c"}}, {"Qty", "null", {}}, {"Qty", "equals", {"5"}}})},
      {"one parameter before the file",
       {"--where", "Qty", "like", "a", "t.csv"},
       WithCriteria({{"Qty", "like", {"a"}}})},
      {"written in capitals",
       {"t.csv", "--where", "Qty", "EQUALS", "5"},
       WithCriteria({{"Qty", "EQUALS", {"5"}}})},
  });
}

TEST(ParseArguments, LetsHelpStandForEverything) {
  EXPECT_TRUE(ParseArguments({"--help"}).help);
  EXPECT_TRUE(ParseArguments({"-h"}).help);
  EXPECT_TRUE(ParseArguments({"t.csv", "--help", "--nonsense"}).help);
}

std::string ErrorOf(const Words& words) {
  try {
    ParseArguments(words);
  } catch (const UserError& error) {
    return error.what();
  }
  return "nothing";
}

struct ErrorCase {
  Words words;
  const char* error;
};

TEST(ParseArguments, SaysWhatWasExpected) {
  const ErrorCase cases[] = {
      {{}, "no file given; a CSV file or - was expected (sift --help tells more)"},
      {{"--json"}, "no file given; a CSV file or - was expected (sift --help tells more)"},
      {{"--"}, "no file given; a CSV file or - was expected (sift --help tells more)"},
      {{""}, "the name of the file is empty"},
      {{"a.csv", "b.csv"}, "unexpected argument \"b.csv\"; the file is \"a.csv\""},
      {{"a.csv", "-"}, "unexpected argument \"-\"; the file is \"a.csv\""},
      {{"a.csv", "--frob"}, "unknown option \"--frob\" (sift --help tells which there are)"},
      {{"a.csv", "--where=b"}, "unknown option \"--where=b\" (sift --help tells which there are)"},
      {{"a.csv", "-x"}, "unknown option \"-x\" (sift --help tells which there are)"},
      {{"a.csv", "--json", "--csv"}, "only one of --json, --csv and --table can be given"},
      {{"a.csv", "--where"},
       "--where takes a column, an operator and its parameters; the column is missing"},
      {{"a.csv", "--where", "--json"},
       "--where takes a column, an operator and its parameters; the column is missing"},
      {{"a.csv", "--where", "Qty"}, "--where \"Qty\" is followed by an operator; it is missing"},
      {{"a.csv", "--where", "Qty", "equals"},
       "\"equals\" takes a parameter; --where \"Qty\" gives it none"},
      {{"a.csv", "--where", "Qty", "equals", "--match-case"},
       "\"equals\" takes a parameter; --where \"Qty\" gives it none"},
      {{"a.csv", "--where", "Qty", "is between"},
       "\"is between\" takes two parameters; --where \"Qty\" gives it none"},
      {{"a.csv", "--where", "Qty", "is between", "5", "--where", "A", "equals", "1"},
       "\"is between\" takes two parameters; --where \"Qty\" gives it only \"5\""},
      {{"a.csv", "--where", "Q\xFF", "equals", "5"}, "the argument \"Q\xEF\xBF\xBD\" is not UTF-8"},
      {{"a.csv", "--where", "Qty", "equals", "\xE9"}, "the argument \"\xEF\xBF\xBD\" is not UTF-8"},
  };
  for (const ErrorCase& c : cases)
    EXPECT_EQ(ErrorOf(c.words), c.error) << testing::PrintToString(c.words);
}

TEST(HelpText, NamesEveryOptionAndEveryOperator) {
  const std::string help = HelpText();
  for (const char* word :
       {"--where", "--match-case", "--columns", "--table", "--csv", "--json", "--help"})
    EXPECT_NE(help.find(word), std::string::npos) << word;
  for (const OperatorRow& row : OperatorVocabulary())
    EXPECT_NE(help.find(Text(row.word).ToUtf8()), std::string::npos) << Text(row.word).ToUtf8();
}

TEST(HelpText, FitsATerminalOfAHundredColumns) {
  const std::string help = HelpText();
  for (std::size_t at = 0; at < help.size();) {
    const std::size_t end = help.find('\n', at);
    EXPECT_LE(end - at, 100u) << help.substr(at, end - at);
    at = end + 1;
  }
}

}  // namespace
}  // namespace sifter
