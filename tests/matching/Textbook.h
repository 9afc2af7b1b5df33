#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "listmodel/HostListView.h"
#include "matching/FilterCriterion.h"

#include <cstdint>
#include <span>
#include <string>

// The engine by the textbook: the rows that pass are noted down as a text, their complement is
// searched for in it row by row, and the rows found are removed through the text's fields. It is
// quadratic and takes no short cut; the engine has to give the same result.
//
// Nothing here comes from the engine but the record of a criterion. Everything works on any list,
// member by member.

namespace sifter::textbook {

class Engine {
 public:
  // All is borrowed.
  Engine(HostListView& list, std::span<const FilterCriterion> rows, bool caseSensitive,
         const Conversions& conversions);

  // Never raises.
  void ApplyCriteria();

 private:
  struct Routine;

  void Run(const Routine& routine);
  void Pass(const Routine& routine, std::size_t k);
  bool Passes(const Routine& routine, std::size_t k, ListItem& item) const;
  bool PassesText(TextView word, std::size_t k, ListItem& item) const;
  bool PassesNumber(TextView word, std::size_t k, ListItem& item) const;
  bool PassesDate(TextView word, std::size_t k, ListItem& item) const;

  std::u16string TextParameter(std::size_t k, ListItem& item) const;
  double NumberParameter(TextView typed, ListItem& item) const;
  Date DateParameter(TextView typed, Date picked, ListItem& item) const;
  std::int16_t ColumnFromReference(TextView text) const;
  std::u16string Upper(TextView text) const;

  HostListView& list_;
  std::span<const FilterCriterion> rows_;
  bool caseSensitive_;
  const Conversions& conversions_;
};

// The 1-based place of `wanted` in `text`, searching from the first character; 0 when it isn't
// there, which holds for anything in an empty text.
std::size_t PositionOf(TextView wanted, TextView text);

double LeadingNumber(TextView text);

// Negative when `a` comes before `b`, 0 when they are the same moment.
int CompareMoments(Date a, Date b);

std::u16string TrimData(std::u16string text, TextView what);
std::u16string GetField(TextView text, TextView delimiter, std::int16_t n);

// Beyond 32767: error 6.
std::int16_t CountOccurrences(TextView text, TextView delimiter);

std::u16string NonMatchingIndexes(HostListView& list, TextView matchList);
void RemoveListItems(HostListView& list, TextView indexes);

}  // namespace sifter::textbook
