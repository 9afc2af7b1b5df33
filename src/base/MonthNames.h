#pragma once

#include "base/Text.h"

namespace sifter {

// 1 to 12 for an English month's full name or its first three letters, in any case; 0 for any
// other word. The word must consist of ASCII letters.
int MonthNamed(TextView word);

}  // namespace sifter
