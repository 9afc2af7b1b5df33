#include "base/Clock.h"
#include "base/Conversions.h"
#include "sift/Sift.h"
#include "sift/Terminal.h"

int main(int argc, char** argv) {
  const sifter::StandardStreams streams;
  const sifter::SystemClock clock;
  const sifter::EnUsConversions conversions(clock);
  return sifter::RunSift(sifter::Utf8Arguments(argc, argv), conversions, clock);
}
