#pragma once

#include "base/Text.h"
#include "sift/UserError.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace sifter {

// One --where, as given. Texts are UTF-8.
struct Where {
  std::string column;
  std::string operatorWord;
  std::vector<std::string> parameters;

  friend bool operator==(const Where&, const Where&) = default;
};

enum class OutputFormat {
  kAutomatic,  // a table for a reader, CSV for a program
  kTable,
  kCsv,
  kJson,
};

struct Arguments {
  std::string file;  // "-" for the standard input
  std::vector<Where> criteria{};
  bool matchCase = false;
  bool listColumns = false;
  bool help = false;  // then nothing else counts
  OutputFormat format = OutputFormat::kAutomatic;

  friend bool operator==(const Arguments&, const Arguments&) = default;
};

// Reads the command line, without the program's own name. Options and the file may come in any
// order; behind "--" only a file can follow.
//
// The operator says how many parameters follow it, so that they may begin with dashes; but where
// one of the program's own options stands in place of a parameter, the parameter is missing. An
// operator that there isn't takes whatever stands up to the next option: which words the column
// offers is told when the file has been read.
//
// Throws UserError.
Arguments ParseArguments(const std::vector<std::string>& words);

// How many parameters an operator takes, by its displayed word; nothing when there is no such word.
std::optional<std::size_t> ParameterCount(TextView operatorWord);

// What --help prints.
std::string HelpText();

}  // namespace sifter
