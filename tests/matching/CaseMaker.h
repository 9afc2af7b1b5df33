#pragma once

#include "Choices.h"
#include "base/Ref.h"
#include "base/Text.h"
#include "listmodel/HostListView.h"
#include "listmodel/MemoryListView.h"
#include "matching/ColumnDataType.h"
#include "matching/FilterCriterion.h"

#include <cstdint>
#include <vector>

namespace sifter {

// Makes lists and criteria that go for the engine's weak spots: equal and nearly equal texts,
// numbers and dates in odd forms, cells of the wrong kind, references of all sorts, words that
// don't suit their column and words that stand in several rows.
class CaseMaker {
 public:
  // Starts with columns of its own choice, 1 to 5.
  explicit CaseMaker(Choices& choices);

  // An empty list with the columns.
  Ref<MemoryListView> EmptyList() const;

  // Every row carries a tag of its own.
  void AddRow(HostListView& list, std::int32_t index = 0);

  // Does to a list what hosts do between two runs: changes or clears a cell, changes the look of
  // a row, puts rows in, takes rows out, sorts them.
  void Edit(HostListView& list);

  // A row of the dialog for every column, now and then for one less or one more. Values are taken
  // from the list's own cells where it has rows.
  std::vector<FilterCriterion> Criteria(HostListView& list);

 private:
  struct Column {
    Text caption;
    ColumnDataType type;
  };

  std::int32_t AnyPosition(HostListView& list);
  void Dress(ListItem& item);
  Text Cell(ColumnDataType type);
  Text MixedText();
  FilterCriterion CriterionFor(HostListView& list, std::size_t k);
  Text Word(std::int32_t type);
  Text TypedValue(HostListView& list, std::size_t k, ColumnDataType type);
  Text CellOf(HostListView& list, std::size_t k);
  Text Part(const Text& text);
  Text Reference(ColumnDataType type);
  Date Picked();

  Choices& choices_;
  std::vector<Column> columns_;
  std::int64_t tags_ = 0;
};

}  // namespace sifter
