#pragma once

#include "base/Conversions.h"
#include "matching/ColumnCache.h"
#include "matching/FilterCriterion.h"
#include "matching/MatchRows.h"
#include "matching/Operators.h"

#include <cstdint>
#include <span>
#include <vector>

namespace sifter {

// One criterion on its way over the rows.
struct MatchPass {
  const FilterCriterion& criterion;
  std::int32_t column;                    // 1-based
  std::span<const FilterCriterion> rows;  // all of the dialog's, for references by caption
  bool caseSensitive;
  const Conversions& conversions;
};

// The 1-based positions of the rows that fail a test, ascending. A date cell that is no date, a
// missing cell or an error of the host's list ends the pass with that error.
std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test, const LiveRows& rows);
std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test, const LiveRows& rows);
std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test, const LiveRows& rows);

// The same rows, by their places in the cache (0-based); all of them have the column.
struct CachedRows {
  ColumnCache& cache;
  const std::vector<std::uint32_t>& places;
};

// The same for rows of our own. `cached` may be used where it isn't null.
std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test, const OwnRows& rows,
                                      const CachedRows* cached);
std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test, const OwnRows& rows,
                                      const CachedRows* cached);
std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test, const OwnRows& rows,
                                      const CachedRows* cached);

}  // namespace sifter
