#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "listmodel/RowData.h"
#include "matching/CaseFolding.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace sifter {

// One column's texts, folded or not, end to end.
class TextColumn {
 public:
  TextColumn(const std::vector<RowPtr>& rows, std::size_t column, const CaseFolding& folding);

  TextView operator[](std::size_t row) const {
    return TextView(units_).substr(begins_[row], begins_[row + 1] - begins_[row]);
  }

 private:
  std::u16string units_;
  std::vector<std::size_t> begins_;
};

// One column read as numbers. An empty cell's number is 0.
struct NumberColumn {
  std::vector<double> numbers;
  std::vector<std::uint8_t> empty;
};

// One column read as dates.
struct DateColumn {
  std::vector<double> moments;  // CellTests.h
  std::vector<std::uint8_t> empty;
  std::vector<std::uint8_t> bad;  // neither empty nor a date
};

// What was once read from the columns of a list, for as long as the list provably holds the same
// rows. It keeps a share of every row; a shared row never changes, so finding the same row at the
// same place proves that its cells are what they were.
//
// Rows are counted from 0 here, columns as well (column 0 is the rows' own text). Only columns
// below Columns() may be asked for.
class ColumnCache {
 public:
  // Makes these rows the ones that the columns belong to. What is known of them is kept when they
  // are the ones that it was read from, and dropped otherwise.
  void Align(const std::vector<const RowData*>& rows, const Conversions& conversions);

  void Clear();

  // Changes with the rows that the columns belong to. Whoever has kept their places must find it
  // unchanged before using them.
  std::uint64_t Alignment() const { return alignment_; }

  // How many columns every one of the rows has.
  std::size_t Columns() const { return columns_; }

  const TextColumn& Texts(std::size_t column, const CaseFolding& folding);
  const NumberColumn& Numbers(std::size_t column);
  const DateColumn& Dates(std::size_t column, const Conversions& conversions);

 private:
  std::vector<RowPtr> rows_;
  std::size_t columns_ = 0;
  std::uint64_t alignment_ = 0;
  std::uint32_t generation_ = 0;  // of the conversions that the columns were read with
  std::map<std::pair<std::size_t, bool>, TextColumn> texts_;
  std::map<std::size_t, NumberColumn> numbers_;
  std::map<std::size_t, DateColumn> dates_;
};

}  // namespace sifter
