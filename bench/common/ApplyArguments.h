#pragma once

#include "common/Workloads.h"

#include <string>
#include <vector>

namespace sifter::bench {

struct ApplyArguments {
  std::string file;  // as the console host takes it
  int repetitions = 0;
  int warmUps = 0;
  std::vector<Workload> workloads;
};

// Reads FILE.csv REPS WARMUP [--standard] [--workload NAME [--where COLUMN OPERATOR [P1 [P2]]]...
// [--match-case]]..., without the program's own name. Criteria are read as the console host reads
// them; --standard stands for the workloads of the generated table. Throws UserError.
ApplyArguments ParseApplyArguments(const std::vector<std::string>& words);

}  // namespace sifter::bench
