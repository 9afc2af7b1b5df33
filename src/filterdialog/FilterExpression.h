#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "forms/Prompts.h"

#include <cstdint>

namespace sifter {

// The two texts that describe a filter: a condition in the style of a database query, and a
// sentence. Rows are never selected by them.

// The parts of a parameter text at its first "@@". Each part keeps one "@" of the separator:
// "10@@20" gives "10@" and "@20". Without a separator the first part is the whole text.
struct ParameterParts {
  Text first;
  Text second;
  bool separated;
};
ParameterParts SplitParameters(TextView parameterText);

// The condition of one criterion, or "" when there is none. `operatorWord` is the displayed word,
// exactly; `parameterText` one value or two joined by "@@"; quotes in it are not doubled.
//
// A value that doesn't suit the type gets a message (the default title, no icon) and "". A date
// range "is between" two dates is error 13.
Text BuildFilterFragment(TextView column, TextView operatorWord, TextView parameterText,
                         std::int32_t dataType, const Conversions& conversions, Prompts& prompts);

// The texts with one more criterion joined to them. The first one leaves a leading " AND " that is
// trimmed off when the texts are complete.
Text JoinCondition(TextView filterString, TextView fragment);
Text JoinSentence(TextView filterPlainEnglish, TextView column, TextView operatorWord,
                  TextView value);

// What joins two criteria.
inline constexpr TextView kJoin = u" AND ";

}  // namespace sifter
