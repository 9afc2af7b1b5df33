#pragma once

#include "base/Text.h"
#include "matching/ColumnDataType.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sifter {

// How a text cell C is held against a parameter P. An empty P is found in every cell but an empty
// one, because the search starts at the first character and an empty cell has none.
enum class TextTest : std::uint8_t {
  kNone,
  kContains,
  kDoesNotContain,
  kStartsWith,
  kEndsWith,
  kEquals,
  kDoesNotEqual,
};

enum class NumberTest : std::uint8_t {
  kNone,
  kEquals,
  kDoesNotEqual,
  kGreaterThan,
  kLessThan,
  kBetween,
  kNotBetween,
};

enum class DateTest : std::uint8_t {
  kNone,
  kEquals,
  kDoesNotEqual,
  kAfter,
  kBefore,
  kBetween,
  kNotBetween,
  kEmpty,
};

// One operator word, with what it means for each type of column.
struct OperatorRow {
  TextView word;            // as the drop-down lists show it
  TextView key;             // as it is recognised: the word in upper case
  std::int16_t parameters;  // how many values the user gives
  TextTest text;
  NumberTest number;
  DateTest date;

  bool Suits(ColumnDataType type) const;
};

// The word of a row that takes no part in the filter. It is recognised exactly as written.
inline constexpr TextView kAllWord = u"All";

// Every operator but "All", in the order of the drop-down lists.
std::span<const OperatorRow> OperatorVocabulary();

// The drop-down list for a type, "All" first. A code that is no type gives an empty list.
std::vector<Text> OperatorWords(std::int32_t type);

// The row whose key this is, or null. `key` is in upper case.
const OperatorRow* FindOperator(TextView key);

// Whether the key asks for two values.
bool IsRangeKey(TextView key);

}  // namespace sifter
