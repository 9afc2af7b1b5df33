#include "Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <exception>

namespace {

constexpr int kRepetitions = 1500;
constexpr int kBannerRepetitions = 15;

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

// Measures the pieces, the whole apply beside the yardsticks, and the banner. --pieces, --ratios
// and --banner choose one of the three.
int main(int argc, char** argv) {
  const bool onlyRatios = TakeOption(argc, argv, "--ratios");
  const bool onlyPieces = TakeOption(argc, argv, "--pieces");
  const bool onlyBanner = TakeOption(argc, argv, "--banner");
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  if (!onlyRatios && !onlyBanner) benchmark::RunSpecifiedBenchmarks();
  if (onlyPieces) return 0;
  try {
    if (!onlyBanner) sifter::bench::PrintRatios(kRepetitions);
    if (!onlyRatios) sifter::bench::PrintReapplying(kBannerRepetitions);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_pieces: %s\n", error.what());
    return 1;
  }
  return 0;
}
