#pragma once

#include "base/Text.h"
#include "sift/FilterRun.h"

#include <string>

namespace sifter {

// Appends a text as a JSON string in UTF-8. Surrogates that are no pair, which UTF-8 cannot hold,
// are written as \uXXXX.
void AppendJsonString(std::string& out, TextView text);

// One object on one line:
// {"columns":[{"name":"...","type":0}],"total":N,"kept":[1,2],"filter":"...","english":"...",
// "messages":[{"title":"...","text":"..."}]}
// Types are 0 text, 1 number, 2 date; kept are the numbers of records, from 1.
std::string JsonOf(const FilterResult& result);

}  // namespace sifter
