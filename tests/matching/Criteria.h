#pragma once

#include "base/Calendar.h"
#include "base/Text.h"
#include "base/Value.h"
#include "matching/ColumnDataType.h"
#include "matching/FilterCriterion.h"

#include <string_view>

// Criteria as a user would set them, in few words. Texts are UTF-8.

namespace sifter {

inline FilterCriterion Criterion(ColumnDataType type, std::string_view caption,
                                 std::string_view word) {
  FilterCriterion criterion;
  criterion.caption = Text::FromUtf8(caption);
  criterion.dataType = static_cast<std::int32_t>(type);
  criterion.operatorWord = Text::FromUtf8(word);
  return criterion;
}

inline FilterCriterion TextRow(std::string_view caption, std::string_view word = "All",
                               std::string_view text = "") {
  FilterCriterion criterion = Criterion(ColumnDataType::kText, caption, word);
  criterion.text = Text::FromUtf8(text);
  return criterion;
}

inline FilterCriterion NumberRow(std::string_view caption, std::string_view word = "All",
                                 std::string_view from = "", std::string_view to = "") {
  FilterCriterion criterion = Criterion(ColumnDataType::kNumber, caption, word);
  criterion.from = Text::FromUtf8(from);
  criterion.to = Text::FromUtf8(to);
  return criterion;
}

inline FilterCriterion DateRow(std::string_view caption, std::string_view word = "All",
                               Date from = Date(), Date to = Date()) {
  FilterCriterion criterion = Criterion(ColumnDataType::kDate, caption, word);
  criterion.dateFrom = from;
  criterion.dateTo = to;
  return criterion;
}

// A date row with something typed over its pickers.
inline FilterCriterion Overlaid(FilterCriterion criterion, std::string_view from,
                                std::string_view to = "") {
  criterion.from = Text::FromUtf8(from);
  criterion.to = Text::FromUtf8(to);
  return criterion;
}

inline Date Day(int year, int month, int day, int hour = 0) {
  return DateOf({.year = year, .month = month, .day = day, .hour = hour});
}

}  // namespace sifter
