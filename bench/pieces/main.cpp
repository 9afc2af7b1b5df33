#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <exception>

namespace {

constexpr int kRepetitions = 1500;

// Takes an option of our own out of the arguments; the others are the benchmark library's.
bool TakeOption(int& argc, char** argv, const char* option) {
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], option) == 0) {
      for (int j = i; j < argc; ++j) argv[j] = argv[j + 1];
      --argc;
      return true;
    }
  return false;
}

}  // namespace

// Measures the pieces, and then the whole apply beside the yardsticks. --ratios leaves the pieces
// out, --pieces the yardsticks.
int main(int argc, char** argv) {
  const bool onlyRatios = TakeOption(argc, argv, "--ratios");
  const bool onlyPieces = TakeOption(argc, argv, "--pieces");
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  if (!onlyRatios) benchmark::RunSpecifiedBenchmarks();
  if (onlyPieces) return 0;
  try {
    sifter::bench::PrintRatios(kRepetitions);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_pieces: %s\n", error.what());
    return 1;
  }
  return 0;
}
