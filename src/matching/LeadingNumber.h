#pragma once

#include "base/Text.h"

namespace sifter {

// The number that a text begins with, however it goes on; 0 when it begins with none. It never
// fails and is never infinite, and no locale has a part in it: "12abc" is 12, "1,234" is 1, "$5"
// and "(5)" are 0, "" is 0.
//
// Blanks, tabs and line ends in front are skipped. Then comes
//   - a sign or none, digits with at most one decimal point among them, and an exponent, which
//     counts only when it has digits: "-1.5e3x" is -1500, ".5" is 0.5, "5." and "5e" are 5;
//   - or, with no sign, &H and hexadecimal or &O and octal digits, the letter in either case:
//     "&H1F" is 31. They are a plain magnitude whatever their number: "&HFFFF" is 65535 and
//     "&HFFFFFFFF" is 4294967295, never negative.
// The reading stops at the first character that doesn't go on with this, a blank included.
//
// The result is the nearest double. What is too large for one is the largest double there is,
// with its sign, and what is too small is 0.
double LeadingNumber(TextView text);

}  // namespace sifter
