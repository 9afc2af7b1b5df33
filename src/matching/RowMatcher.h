#pragma once

#include "base/Conversions.h"
#include "base/Ref.h"
#include "base/Text.h"
#include "listmodel/HostListView.h"
#include "matching/ColumnCache.h"
#include "matching/FilterCriterion.h"
#include "matching/Operators.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sifter {

class MatchedRows;

// One run of the engine: takes every row that fails a criterion out of a list, in place. Nothing
// is put back or moved, and the rows that stay keep their order.
//
// Nothing here raises. An error ends the operator routine in which it comes up, silently: the
// criterion that it was testing removes nothing, what earlier ones removed stays removed, and the
// run goes on with the next row of the dialog. A list with a failing row beyond position 32767
// loses none to that criterion.
class RowMatcher {
 public:
  // `list` may be null; then nothing happens. `criteria`, `conversions` and `cache` are borrowed;
  // the cache keeps from one run to the next what it read from a list of our own.
  RowMatcher(Ref<HostListView> list, std::span<const FilterCriterion> criteria, bool caseSensitive,
             const Conversions& conversions, ColumnCache& cache);
  ~RowMatcher();

  // Walks over the criteria in order and calls the routine for each one's type and word. A word
  // that its type doesn't have is passed over, and so is "All".
  void ApplyCriteria();

  // The operator routines. Each applies its test for every criterion with its word and type, so a
  // word that stands in two rows has its routine called twice. The second call changes nothing
  // where the first one succeeded. Where it failed on a cell that is no date, it is a second try:
  // by then another criterion may have taken that cell's row out.
  void FilterContains();
  void FilterDoesNotContain();
  void FilterStartsWith();
  void FilterEndsWith();
  void FilterTextEquals();
  void FilterTextNotEqual();
  void FilterNumberEquals();
  void FilterNumberNotEqual();
  void FilterGreaterThan();
  void FilterLessThan();
  void FilterNumberBetween();
  void FilterNumberNotBetween();
  void FilterDateEquals();
  void FilterDateNotEqual();
  void FilterDateBefore();
  void FilterDateAfter();
  void FilterDateBetween();
  void FilterDateNotBetween();
  void FilterDateEmpty();

 private:
  void Dispatch(const FilterCriterion& criterion);

  template <class Test>
  void Run(ColumnDataType type, TextView key, Test test);

  Ref<HostListView> list_;
  std::span<const FilterCriterion> criteria_;
  bool caseSensitive_;
  const Conversions& conversions_;
  std::vector<Text> keys_;     // each criterion's word in upper case
  std::vector<bool> applied_;  // whose test has run over all rows
  std::unique_ptr<MatchedRows> rows_;
};

// The helpers that the textbook form of the engine is made of. `matchList` holds the positions of
// the rows that passed, each with a comma in front (",3,7,12").

// The positions of the other rows of `list`, ascending, joined by single commas; "" when every
// row is in the list. An error of the list gives "".
Text NonMatchingIndexes(HostListView& list, TextView matchList);

// Removes the rows at these positions (joined by commas, ascending) from the last to the first. A
// position over 32767 or more commas than that end it there, silently; so does any error.
void RemoveListItems(HostListView& list, TextView indexes);

}  // namespace sifter
