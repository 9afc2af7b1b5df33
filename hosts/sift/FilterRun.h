#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "base/Text.h"
#include "matching/ColumnDataType.h"
#include "sift/Arguments.h"
#include "sift/CsvTable.h"
#include "sift/HeadlessDialog.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sifter {

struct FilteredColumn {
  Text name;
  ColumnDataType type;

  friend bool operator==(const FilteredColumn&, const FilteredColumn&) = default;
};

// What the dialog made of a table.
struct FilterResult {
  std::vector<FilteredColumn> columns{};
  std::int32_t total = 0;            // records of the table
  std::vector<std::int32_t> kept{};  // numbers of records, from 1, in the table's order
  Text filter{};                     // the dialog's FilterString
  Text english{};                    // and its FilterPlainEnglish
  std::vector<Message> messages{};   // the boxes that it showed
  std::vector<std::string> notes{};  // what it doesn't say but the user should know; UTF-8
};

// Puts the table into a list in memory, sets up the criteria dialog for it, does there what
// `arguments` say as a user would, and presses Apply. Throws UserError before anything is applied
// when the criteria don't suit the table.
FilterResult FilterTable(const CsvTable& table, const Arguments& arguments,
                         const Conversions& conversions, const Clock& clock);

}  // namespace sifter
