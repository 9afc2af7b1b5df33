#include "sift/CriteriaPlan.h"

#include "sift/OneLine.h"
#include "sift/UserError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

namespace sifter {

namespace {

std::int32_t RowOfColumn(const frmFilter& form, const Text& name) {
  std::vector<Text> captions;
  for (std::int32_t i = 0; i < form.ColumnCount(); ++i) {
    captions.push_back(form.lblColumnHeaderText[i].Caption());
    if (captions.back() == name) return i;
  }
  throw UserError("there is no column " + InQuotes(name.View()) + "; the columns are " +
                  ListInQuotes(captions));
}

std::string Described(const frmFilter& form, std::int32_t row) {
  constexpr std::array kTypes = {"a text", "a number", "a date"};
  return InQuotes(form.lblColumnHeaderText[row].Caption().View()) + " is " +
         kTypes.at(static_cast<std::size_t>(TypeOfRow(form, row))) + " column";
}

std::int32_t OperatorIndex(const frmFilter& form, std::int32_t row, const Text& word) {
  const std::vector<Text>& words = form.cboOperator[row].Entries();
  const auto found = std::find(words.begin(), words.end(), word);
  if (found == words.end()) {
    throw UserError(Described(form, row) + ", which does not offer " + InQuotes(word.View()) +
                    " but " + ListInQuotes(words));
  }
  return static_cast<std::int32_t>(found - words.begin());
}

bool IsTypedReference(const Text& parameter) { return parameter.View().starts_with(u'['); }

FieldInput InputFor(const frmFilter& form, std::int32_t row, const Text& parameter,
                    const Conversions& conversions) {
  if (TypeOfRow(form, row) != ColumnDataType::kDate || IsTypedReference(parameter))
    return {parameter, std::nullopt};
  const std::optional<Date> date = conversions.ToDate(parameter);
  if (!date) {
    throw UserError(Described(form, row) + ", but " + InQuotes(parameter.View()) +
                    " is no date; a date such as 12/31/2024 or a column in square brackets was "
                    "expected");
  }
  return {Text(), date};
}

void FillDateField(DatePicker& picker, TextBox& overlay, const FieldInput& input) {
  if (input.chosen) {
    picker.SetValue(*input.chosen);
  } else {
    overlay.Edit(input.typed);
  }
}

bool NamesColumn(const frmFilter& form, const Text& reference) {
  for (std::int32_t i = 0; i < form.ColumnCount(); ++i) {
    const Text& caption = form.lblColumnHeaderText[i].Caption();
    if (!caption.IsEmpty() && reference == Concat({u"[", caption.View(), u"]"})) return true;
  }
  return false;
}

void NoteUnresolved(const frmFilter& form, const Text& overlay, std::vector<Text>& unresolved) {
  if (!overlay.IsEmpty() && !NamesColumn(form, overlay)) unresolved.push_back(overlay);
}

}  // namespace

ColumnDataType TypeOfRow(const frmFilter& form, std::int32_t row) {
  return static_cast<ColumnDataType>(ValueToInt16(form.lblColumnHeaderText[row].Tag()));
}

std::vector<RowAction> PlanCriteria(const frmFilter& form, const std::vector<Where>& criteria,
                                    const Conversions& conversions) {
  std::vector<RowAction> actions;
  for (const Where& where : criteria) {
    const std::int32_t row = RowOfColumn(form, Text::FromUtf8(where.column));
    RowAction action{row, OperatorIndex(form, row, Text::FromUtf8(where.operatorWord)), {}};
    for (const std::string& parameter : where.parameters)
      action.parameters.push_back(InputFor(form, row, Text::FromUtf8(parameter), conversions));
    actions.push_back(action);
  }
  return actions;
}

void Perform(frmFilter& form, const RowAction& action) {
  const std::int32_t row = action.row;
  form.cboOperator[row].SetListIndex(action.operatorIndex);
  for (std::size_t i = 0; i < action.parameters.size(); ++i) {
    const FieldInput& input = action.parameters[i];
    const bool first = i == 0;
    TextBox& box = first ? form.txtFrom[row] : form.txtTo[row];
    switch (TypeOfRow(form, row)) {
      case ColumnDataType::kText:
        form.cboCriteria[row].SetText(input.typed);
        break;
      case ColumnDataType::kNumber:
        box.Edit(input.typed);
        break;
      case ColumnDataType::kDate:
        FillDateField(first ? form.dtpFrom[row] : form.dtpTo[row], box, input);
        break;
    }
  }
}

std::vector<Text> UnresolvedReferences(const frmFilter& form) {
  std::vector<Text> unresolved;
  for (std::int32_t i = 0; i < form.ColumnCount(); ++i) {
    if (TypeOfRow(form, i) != ColumnDataType::kDate) continue;
    const std::size_t parameters = ParameterCount(form.cboOperator[i].Text()).value_or(0);
    if (parameters > 0) NoteUnresolved(form, form.txtFrom[i].Text(), unresolved);
    if (parameters > 1) NoteUnresolved(form, form.txtTo[i].Text(), unresolved);
  }
  return unresolved;
}

}  // namespace sifter
