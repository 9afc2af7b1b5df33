#include "common/ApplyArguments.h"

#include "sift/Arguments.h"
#include "sift/UserError.h"

#include <algorithm>
#include <charconv>

namespace sifter::bench {

namespace {

constexpr const char* kUsage =
    "expected FILE.csv REPS WARMUP [--standard] [--workload NAME [--where COLUMN OPERATOR [P1 "
    "[P2]]]... [--match-case]]...";

int ReadCount(const std::string& word, int least, const char* name) {
  int count = 0;
  const char* end = word.data() + word.size();
  const std::from_chars_result read = std::from_chars(word.data(), end, count);
  if (read.ec != std::errc() || read.ptr != end || count < least)
    throw UserError(std::string(name) + " is a number from " + std::to_string(least) + " on");
  return count;
}

// `options` are those of one workload, behind its name.
Workload ReadWorkload(const std::string& file, const std::string& name,
                      std::vector<std::string> options) {
  options.insert(options.begin(), file);
  const Arguments read = ParseArguments(options);
  if (read.help || read.listColumns || read.format != OutputFormat::kAutomatic)
    throw UserError("a workload takes --where and --match-case alone");
  return {name, read.criteria, read.matchCase};
}

}  // namespace

ApplyArguments ParseApplyArguments(const std::vector<std::string>& words) {
  if (words.size() < 3) throw UserError(kUsage);
  ApplyArguments arguments{.file = words[0],
                           .repetitions = ReadCount(words[1], 1, "REPS"),
                           .warmUps = ReadCount(words[2], 0, "WARMUP"),
                           .workloads = {}};
  auto at = words.begin() + 3;
  if (at != words.end() && *at == "--standard") {
    arguments.workloads.assign(StandardWorkloads().begin(), StandardWorkloads().end());
    ++at;
  }
  while (at != words.end()) {
    if (*at != "--workload" || at + 1 == words.end()) throw UserError(kUsage);
    const auto end = std::find(at + 2, words.end(), "--workload");
    arguments.workloads.push_back(ReadWorkload(arguments.file, *(at + 1), {at + 2, end}));
    at = end;
  }
  return arguments;
}

}  // namespace sifter::bench
