#pragma once

#include "TemporaryFolder.h"

#include <cstdlib>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace sifter {

// Tests that start the built program itself. Only where programs are started by a POSIX shell; a
// cross-compiled build tests the parts alone.
#ifdef _WIN32
inline constexpr bool kCanRunSift = false;
#else
inline constexpr bool kCanRunSift = true;
#endif

struct Outcome {
  int exitCode = 0;
  std::string out{};
  std::string err{};

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

inline void PrintTo(const Outcome& outcome, std::ostream* out) {
  *out << "exit code " << outcome.exitCode << "\n--- out\n"
       << outcome.out << "--- err\n"
       << outcome.err << "---";
}

inline std::string InShellQuotes(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'')
      quoted += "'\\''";
    else
      quoted += c;
  }
  return quoted + '\'';
}

// Runs a command of the shell and gives its exit code.
inline int RunInShell(const std::string& command) {
  const int status = std::system(command.c_str());
#ifdef _WIN32
  return status;
#else
  return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + status;
#endif
}

// The program with these words behind it, as the shell reads it.
inline std::string SiftCommand(const std::vector<std::string>& words) {
  std::string command = InShellQuotes(SIFT_PROGRAM);
  for (const std::string& word : words) command += ' ' + InShellQuotes(word);
  return command;
}

// Runs the program in `folder`, in which input and output are kept.
inline Outcome RunSift(const TemporaryFolder& folder, const std::vector<std::string>& words,
                       const std::string& input = "") {
  folder.Write("stdin", input);
  const std::string inFolder = "cd " + InShellQuotes(folder.PathOf("")) + " && ";
  Outcome outcome;
  outcome.exitCode = RunInShell(inFolder + SiftCommand(words) + " <stdin >stdout 2>stderr");
  outcome.out = folder.Read("stdout");
  outcome.err = folder.Read("stderr");
  return outcome;
}

}  // namespace sifter
