#pragma once

#include "EngineRun.h"
#include "matching/FilterCriterion.h"
#include "support/Lists.h"

#include <string>
#include <vector>

// What the engine leaves of a list, whichever way it reaches the list's rows.

namespace sifter {

// The rows that stay of a list, applied to
//   - a list of our own, read for the first time;
//   - the same rows again, from what the cache has kept of them;
//   - a list with an observer;
//   - a foreign list, member by member;
//   - a list that the textbook engine works on.
// All of them have to agree; what is given back is what the first one says.
TextRows KeptRows(const std::vector<std::string>& columns, const TextRows& rows,
                  const std::vector<FilterCriterion>& criteria,
                  MatchCase matchCase = MatchCase::kOff);

// The same for a list of one column.
std::vector<std::string> KeptCells(const std::string& column, const std::vector<std::string>& cells,
                                   const FilterCriterion& criterion,
                                   MatchCase matchCase = MatchCase::kOff);

}  // namespace sifter
