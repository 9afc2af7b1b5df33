#include "matching/ParameterValues.h"

#include "base/Integers.h"
#include "base/RuntimeError.h"

#include <optional>

namespace sifter {

std::int16_t ColumnFromReference(TextView text, std::span<const FilterCriterion> rows) {
  if (text.size() < 3 || text.front() != u'[' || text.back() != u']') return 0;
  const TextView name = text.substr(1, text.size() - 2);
  for (std::size_t j = 0; j < rows.size(); ++j)
    if (rows[j].caption == name) return ToInt16(static_cast<std::int64_t>(j) + 1);
  return 0;
}

Text StripQuotes(const Text& text) {
  // The first character is held against a text of 23, so nothing is ever stripped. Hosts' users
  // have typed quotes to find quotes for as long as there has been this box; stripping them would
  // change what their criteria match.
  constexpr TextView kQuoteTest = u" \"and right(OrgStr,1)=\"";
  static_assert(kQuoteTest.size() == 23);
  if (text.Length() > 2 && text.View().substr(0, 1) == kQuoteTest)
    return Text(text.View().substr(1, text.Length() - 2));
  return text;
}

Date CellDate(TextView text, const Conversions& conversions) {
  const std::optional<Date> date = conversions.ToDate(text);
  if (!date) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return *date;
}

namespace {

bool IsTextRow(const FilterCriterion& row) {
  return row.dataType == static_cast<std::int32_t>(ColumnDataType::kText);
}

}  // namespace

ParameterControl::ParameterControl(const FilterCriterion& row, ParameterSlot slot,
                                   std::span<const FilterCriterion> rows)
    : text_(IsTextRow(row)                  ? row.text
            : slot == ParameterSlot::kFirst ? row.from
                                            : row.to),
      date_(slot == ParameterSlot::kFirst ? row.dateFrom : row.dateTo),
      reference_(ColumnFromReference(text_, rows)) {}

}  // namespace sifter
