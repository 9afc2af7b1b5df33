#include "sift/FilterRun.h"

#include "forms/CheckBox.h"
#include "sift/CriteriaPlan.h"
#include "sift/HostList.h"
#include "sift/OneLine.h"
#include "sift/UserError.h"

#include <cstddef>
#include <limits>

namespace sifter {

namespace {

// Rows behind this one cannot be taken away by a criterion, nor any row together with them: the
// engine counts in 16 bits.
constexpr std::int32_t kLastCountedRow = std::numeric_limits<std::int16_t>::max();

std::vector<FilteredColumn> ColumnsOf(const frmFilter& form) {
  std::vector<FilteredColumn> columns;
  columns.reserve(static_cast<std::size_t>(form.ColumnCount()));
  for (std::int32_t i = 0; i < form.ColumnCount(); ++i)
    columns.push_back({form.lblColumnHeaderText[i].Caption(), TypeOfRow(form, i)});
  return columns;
}

void RequireListable(const CsvTable& table) {
  constexpr std::size_t kMost = std::numeric_limits<std::int32_t>::max();
  if (table.RecordCount() > kMost)
    throw UserError("too many records: " + std::to_string(table.RecordCount()));
  if (table.header.size() > static_cast<std::size_t>(kLastCountedRow)) {
    throw UserError("too many columns: " + std::to_string(table.header.size()) + ", at most " +
                    std::to_string(kLastCountedRow) + " were expected");
  }
}

std::vector<std::string> NotesOn(const frmFilter& form, const std::vector<RowAction>& actions,
                                 std::int32_t total) {
  std::vector<std::string> notes;
  for (const Text& reference : UnresolvedReferences(form)) {
    notes.push_back(InQuotes(reference.View()) +
                    " names no column, so that the date in its date picker was compared with");
  }
  if (total > kLastCountedRow && !actions.empty()) {
    notes.push_back("the table has " + std::to_string(total) + " records, and a criterion that " +
                    "a record behind number " + std::to_string(kLastCountedRow) +
                    " does not meet takes none away");
  }
  return notes;
}

}  // namespace

FilterResult FilterTable(const CsvTable& table, const Arguments& arguments,
                         const Conversions& conversions, const Clock& clock) {
  RequireListable(table);
  const Ref<MemoryListView> list = MakeHostList(table);
  HeadlessDialog dialog(conversions, clock);
  frmFilter& form = dialog.Form();
  form.UsersListview = list;
  form.SetUpForm();
  const std::vector<RowAction> actions = PlanCriteria(form, arguments.criteria, conversions);
  dialog.ShowModal([&] {
    for (const RowAction& action : actions) Perform(form, action);
    if (arguments.matchCase) form.chkCaseSensitive.SetValue(CheckValue::kChecked);
    form.cmdApply.SetValue(true);
  });
  const auto total = static_cast<std::int32_t>(table.RecordCount());
  return {.columns = ColumnsOf(form),
          .total = total,
          .kept = RecordsShown(*list),
          .filter = form.FilterString,
          .english = form.FilterPlainEnglish,
          .messages = dialog.Messages(),
          .notes = NotesOn(form, actions, total)};
}

}  // namespace sifter
