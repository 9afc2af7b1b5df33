#include "matching/ColumnCache.h"

#include "matching/CellTests.h"
#include "matching/LeadingNumber.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace sifter {

TextColumn::TextColumn(const std::vector<RowPtr>& rows, std::size_t column,
                       const CaseFolding& folding) {
  std::size_t length = 0;
  for (const RowPtr& row : rows) length += row->ColumnText(column).Length();
  units_.reserve(length);
  begins_.reserve(rows.size() + 1);
  for (const RowPtr& row : rows) {
    begins_.push_back(units_.size());
    folding.Append(units_, row->ColumnText(column));
  }
  begins_.push_back(units_.size());
}

void ColumnCache::Align(const std::vector<const RowData*>& rows, const Conversions& conversions) {
  const bool same =
      generation_ == conversions.Generation() &&
      std::equal(rows.begin(), rows.end(), rows_.begin(), rows_.end(),
                 [](const RowData* row, const RowPtr& known) { return row == known.Get(); });
  if (same) return;
  Clear();
  generation_ = conversions.Generation();
  rows_.reserve(rows.size());
  columns_ = std::numeric_limits<std::size_t>::max();
  for (const RowData* row : rows) {
    rows_.push_back(RowPtr::Share(row));
    columns_ = std::min(columns_, row->CellCount() + 1);
  }
}

void ColumnCache::Clear() {
  ++alignment_;
  rows_.clear();
  columns_ = 0;
  texts_.clear();
  numbers_.clear();
  dates_.clear();
}

const TextColumn& ColumnCache::Texts(std::size_t column, const CaseFolding& folding) {
  const std::pair key(column, folding.CaseSensitive());
  const auto known = texts_.find(key);
  if (known != texts_.end()) return known->second;
  return texts_.emplace(key, TextColumn(rows_, column, folding)).first->second;
}

namespace {

NumberColumn ReadNumbers(const std::vector<RowPtr>& rows, std::size_t column) {
  NumberColumn read;
  read.numbers.reserve(rows.size());
  read.empty.reserve(rows.size());
  for (const RowPtr& row : rows) {
    const Text& cell = row->ColumnText(column);
    read.numbers.push_back(LeadingNumber(cell));
    read.empty.push_back(cell.IsEmpty());
  }
  return read;
}

DateColumn ReadDates(const std::vector<RowPtr>& rows, std::size_t column,
                     const Conversions& conversions) {
  DateColumn read;
  read.moments.reserve(rows.size());
  read.empty.reserve(rows.size());
  read.bad.reserve(rows.size());
  for (const RowPtr& row : rows) {
    const Text& cell = row->ColumnText(column);
    const std::optional<Date> date = cell.IsEmpty() ? std::nullopt : conversions.ToDate(cell);
    read.moments.push_back(date ? MomentOf(*date) : 0);
    read.empty.push_back(cell.IsEmpty());
    read.bad.push_back(!cell.IsEmpty() && !date);
  }
  return read;
}

}  // namespace

const NumberColumn& ColumnCache::Numbers(std::size_t column) {
  const auto known = numbers_.find(column);
  if (known != numbers_.end()) return known->second;
  return numbers_.emplace(column, ReadNumbers(rows_, column)).first->second;
}

const DateColumn& ColumnCache::Dates(std::size_t column, const Conversions& conversions) {
  const auto known = dates_.find(column);
  if (known != dates_.end()) return known->second;
  return dates_.emplace(column, ReadDates(rows_, column, conversions)).first->second;
}

}  // namespace sifter
