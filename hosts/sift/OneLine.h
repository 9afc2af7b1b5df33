#pragma once

#include "base/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace sifter {

// Text for one line of a terminal, in UTF-8: characters that would move the cursor or switch the
// terminal stand there as signs. ␊ is a line feed, ␛ an escape.
std::string OnOneLine(TextView text);

// The same in double quotes, for messages.
std::string InQuotes(TextView text);
std::string InQuotes(std::string_view utf8);

// All of them, with commas between.
std::string ListInQuotes(const std::vector<Text>& texts);

}  // namespace sifter
