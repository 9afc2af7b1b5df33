#pragma once

#include "base/Text.h"

#include <cstdint>

namespace sifter {

// Helpers for texts that carry a list of fields. Everything is compared by code unit; positions
// and counts of fields are 16-bit.

// The text without the leading and then without the trailing copies of `strTrimWhat`. An empty
// token leaves the text as it is.
Text TrimData(TextView strString, TextView strTrimWhat);

// Number of places in `text` where `delimiter` starts. Overlapping places count:
// CountOccurrences(",,,", ",,") is 2. An empty delimiter starts at every unit. More than 32767
// places are too many to count: the result is 0.
std::int16_t CountOccurrences(TextView text, TextView delimiter);

// Field `n` (1-based) of a text whose fields are parted by `delimiter`; here overlapping places
// do not count: the search goes on behind each delimiter.
//
// n = 0 returns "Cannot return an instance of zero" and an n beyond the last field "Instance Too
// Large", both as data; n < 0 returns "". An empty delimiter parts nothing.
Text GetField(TextView text, TextView delimiter, std::int16_t n);

}  // namespace sifter
