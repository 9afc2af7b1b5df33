#include "sift/Arguments.h"

#include "matching/Operators.h"
#include "sift/OneLine.h"
#include "sift/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace sifter {

namespace {

constexpr std::string_view kOptions[] = {"--where", "--match-case", "--json", "--csv",
                                         "--table", "--columns",    "--help"};

bool IsOption(std::string_view word) {
  return std::find(std::begin(kOptions), std::end(kOptions), word) != std::end(kOptions);
}

class ArgumentReader {
 public:
  explicit ArgumentReader(const std::vector<std::string>& words) : words_(words) {}

  Arguments Read() {
    while (at_ < words_.size() && !arguments_.help) ReadWord(words_[at_++]);
    if (arguments_.file.empty() && !arguments_.help)
      throw UserError("no file given; a CSV file or - was expected (sift --help tells more)");
    return arguments_;
  }

 private:
  void ReadWord(const std::string& word) {
    if (optionsEnded_ || word == "-" || !word.starts_with('-')) {
      TakeFile(word);
    } else if (word == "--") {
      optionsEnded_ = true;
    } else if (word == "--where") {
      ReadWhere();
    } else if (word == "--match-case") {
      arguments_.matchCase = true;
    } else if (word == "--columns") {
      arguments_.listColumns = true;
    } else if (word == "--help" || word == "-h") {
      arguments_.help = true;
    } else if (word == "--json") {
      TakeFormat(OutputFormat::kJson);
    } else if (word == "--csv") {
      TakeFormat(OutputFormat::kCsv);
    } else if (word == "--table") {
      TakeFormat(OutputFormat::kTable);
    } else {
      throw UserError("unknown option " + InQuotes(word) + " (sift --help tells which there are)");
    }
  }

  void TakeFile(const std::string& word) {
    if (word.empty()) throw UserError("the name of the file is empty");
    if (!arguments_.file.empty()) {
      throw UserError("unexpected argument " + InQuotes(word) + "; the file is " +
                      InQuotes(arguments_.file));
    }
    arguments_.file = word;
  }

  void TakeFormat(OutputFormat format) {
    if (arguments_.format != OutputFormat::kAutomatic && arguments_.format != format)
      throw UserError("only one of --json, --csv and --table can be given");
    arguments_.format = format;
  }

  void ReadWhere() {
    Where where;
    where.column = Take(
        "--where takes a column, an operator and its parameters; the column is "
        "missing");
    where.operatorWord =
        Take("--where " + InQuotes(where.column) + " is followed by an operator; it is missing");
    const std::optional<std::size_t> count = ParameterCount(Text::FromUtf8(where.operatorWord));
    if (count) {
      ReadParameters(where, *count);
    } else {
      ReadWhateverFollows(where);
    }
    arguments_.criteria.push_back(where);
  }

  void ReadParameters(Where& where, std::size_t count) {
    while (where.parameters.size() < count) {
      where.parameters.push_back(
          Take(InQuotes(where.operatorWord) + " takes " +
               (count == 1 ? "a parameter" : "two parameters") + "; --where " +
               InQuotes(where.column) + " gives it " +
               (where.parameters.empty() ? "none" : "only " + InQuotes(where.parameters.front()))));
    }
  }

  void ReadWhateverFollows(Where& where) {
    const std::size_t most = arguments_.file.empty() ? 1 : words_.size();
    while (where.parameters.size() < most && at_ < words_.size() && !IsOption(words_[at_]))
      where.parameters.push_back(Take(""));
  }

  // The next word, which is meant for --where.
  std::string Take(const std::string& ifMissing) {
    if (at_ == words_.size() || IsOption(words_[at_])) throw UserError(ifMissing);
    const std::string& word = words_[at_++];
    if (FindMalformedUtf8(word) != std::string::npos)
      throw UserError("the argument " + InQuotes(word) + " is not UTF-8");
    return word;
  }

  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
  bool optionsEnded_ = false;
  Arguments arguments_;
};

}  // namespace

std::optional<std::size_t> ParameterCount(TextView operatorWord) {
  if (operatorWord == kAllWord) return 0;
  for (const OperatorRow& row : OperatorVocabulary())
    if (row.word == operatorWord) return static_cast<std::size_t>(row.parameters);
  return std::nullopt;
}

Arguments ParseArguments(const std::vector<std::string>& words) {
  return ArgumentReader(words).Read();
}

namespace {

// The operators of a type as the drop-down list shows them, without "All".
std::string OperatorLine(ColumnDataType type) {
  std::string line;
  for (const Text& word : OperatorWords(static_cast<std::int32_t>(type)))
    if (word != kAllWord) line += (line.empty() ? "" : ", ") + word.ToUtf8();
  return line + '\n';
}

}  // namespace

std::string HelpText() {
  return R"(Usage: sift FILE.csv [--where COLUMN OPERATOR [P1 [P2]]]... [options]

Shows the records of a CSV file that meet all criteria. FILE.csv is UTF-8, and its first line
names the columns. "-" reads the standard input.

  --where COLUMN OPERATOR [P1 [P2]]
                  keep records by what stands in a column (see below)
  --match-case    tell upper from lower case
  --columns       list the columns and their types instead of the records
  --table, --csv, --json
                  how to print; without any, a table on a terminal and CSV elsewhere
  --help          print this text

Operators by the type of the column:
  text    )" +
         OperatorLine(ColumnDataType::kText) + "  number  " +
         OperatorLine(ColumnDataType::kNumber) + "  date    " +
         OperatorLine(ColumnDataType::kDate) + R"(
"is between" and "is not between" take two parameters, "is empty" takes none. "All" takes none
either and puts the column out of the filter again. [Name] as a parameter compares with what stands
in the column of that name.

Exit codes: 0 done, 1 the output could not be written, 2 the arguments or the file are wrong.
)";
}

}  // namespace sifter
