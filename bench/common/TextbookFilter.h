#pragma once

#include "base/Conversions.h"
#include "listmodel/HostListView.h"
#include "matching/FilterCriterion.h"

#include <span>

namespace sifter::bench {

// Yardstick: the filter as it is told in words. For each criterion the positions of the rows that
// pass are collected as a text, every row's position is searched for in it, and the others are
// taken out of a second text field by field, the last one first. All of it goes through the
// list's members, and its cost grows with the square of the rows.
//
// It is quadratic by its method alone: the searches are the standard library's. Each criterion is
// applied once, so a date column must hold dates or nothing.
void TextbookFilter(HostListView& list, std::span<const FilterCriterion> criteria,
                    bool caseSensitive, const Conversions& conversions);

}  // namespace sifter::bench
