#pragma once

#include "base/Conversions.h"
#include "base/Text.h"
#include "base/Value.h"
#include "filterdialog/frmFilter.h"
#include "matching/ColumnDataType.h"
#include "sift/Arguments.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace sifter {

// What a user puts into a parameter field: a text that is typed, or a date that is chosen.
struct FieldInput {
  Text typed;
  std::optional<Date> chosen;

  friend bool operator==(const FieldInput&, const FieldInput&) = default;
};

// What a user does in one row of the dialog for one --where.
struct RowAction {
  std::int32_t row;            // 0-based
  std::int32_t operatorIndex;  // in the row's drop-down list
  std::vector<FieldInput> parameters;

  friend bool operator==(const RowAction&, const RowAction&) = default;
};

// The type of a row of the dialog that has been built.
ColumnDataType TypeOfRow(const frmFilter& form, std::int32_t row);

// Checks the criteria against the rows of a dialog that has been set up, and says what is to be
// done there. A UserError names the columns that there are, the words that the row's list offers,
// or what a date parameter may be.
std::vector<RowAction> PlanCriteria(const frmFilter& form, const std::vector<Where>& criteria,
                                    const Conversions& conversions);

// Does it. The dialog should be on the screen: text values are only asked for where they show.
void Perform(frmFilter& form, const RowAction& action);

// The texts in fields over date pickers that name no column although their rows take part: the
// pickers' dates, today's unless one was chosen, are what such a row compares with.
std::vector<Text> UnresolvedReferences(const frmFilter& form);

}  // namespace sifter
