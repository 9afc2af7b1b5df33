#pragma once

#include "base/RuntimeError.h"
#include "base/Text.h"

#include <vector>

namespace sifter {

// One criterion of a filter given as text.
struct TextCriterion {
  Text column;          // the caption of the column
  Text operatorNumber;  // the entry of the row's operator list, from 0, in decimal
  Text first;
  Text second;

  friend bool operator==(const TextCriterion&, const TextCriterion&) = default;
};

// The error of a filter text that can't be read, or that names a column which isn't there:
// 0x80040001 without a description.
RuntimeError BadFilterText();

// Takes a filter text apart. Each criterion reads
//   column ".." operator number "1==" first parameter "2==" second parameter "*?"
// and the first "..", "1==" and "2==" count. "*?" ends a criterion wherever it stands, inside a
// parameter too. Without "2==" everything behind "1==" is the first parameter. Nothing is read of
// a text of one character, or of a single character behind the last "*?". Hosts have such texts
// stored, and they have to go on meaning what they meant.
//
// Error BadFilterText when a criterion lacks its "*?", ".." or "1==".
std::vector<TextCriterion> ParseFilterText(TextView text);

}  // namespace sifter
