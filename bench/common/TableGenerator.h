#pragma once

#include <cstddef>
#include <string>

namespace sifter::bench {

// The table that all numbers in the README are about, as CSV (UTF-8, a header line, lines ended
// by a line feed): the same bytes on every platform and in every run. A larger table begins with
// the rows of a smaller one.
//
//   Product   one to three words
//   Category  twelve of them, each in lower, upper and mixed case
//   City      one of 500
//   Notes     20 to 60 characters, some beyond ASCII, commas and quotes among them
//   Quantity, Price, Weight, Balance   numbers; 2 to 8 in a hundred cells are empty
//   Ordered   M/D/YYYY, 2000 to 2019
//   Shipped   M/D/YYYY, up to 60 days later; a fifth of the cells is empty
std::string GeneratedTable(std::size_t rows);

inline constexpr std::size_t kGeneratedColumns = 10;

// The sizes that are measured. A filter handles no more rows than the last of these.
inline constexpr std::size_t kTableSizes[] = {1000, 10000, 32767};

}  // namespace sifter::bench
