#pragma once

#include "base/Text.h"

namespace sifter {

// Whether the whole text is a number as en-US users write it:
//   - digits with at most one decimal point: 5, 5., .5;
//   - commas anywhere but in front of them, their places are not checked: 1,234 and 1,2,3 and
//     3.4,,5;
//   - an exponent after them, e or E: 1e5, 1E-5;
//   - one sign, before or after: -5, 5-; or parentheses in its place: (5);
//   - a $ before, after or on both sides: $5, -$5, 5$, ($5), $5$;
//   - spaces around any of these, but not within the digits and the exponent;
//   - or instead, with nothing but spaces around it, &H with up to 64 bits of hexadecimal digits
//     or &O with up to 64 bits of octal ones, in any case: &H1F, &o17.
// A number too large for a double is no number; one too small is 0 and is one.
bool IsEnUsNumber(TextView text);

}  // namespace sifter
