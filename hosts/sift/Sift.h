#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"

#include <string>
#include <vector>

namespace sifter {

// How the program ends.
inline constexpr int kDone = 0;
inline constexpr int kNotWritten = 1;  // the output could not be written, or memory ran out
inline constexpr int kUserError = 2;   // the arguments or the file are wrong

// The whole program: reads, filters, writes to the standard streams and returns the exit code.
// Nothing is written to the standard output before everything has been read and filtered.
int RunSift(const std::vector<std::string>& words, const Conversions& conversions,
            const Clock& clock);

}  // namespace sifter
