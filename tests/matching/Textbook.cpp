#include "Textbook.h"

#include "base/RuntimeError.h"
#include "base/Value.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace sifter::textbook {

namespace {

constexpr std::int32_t kText = 0;
constexpr std::int32_t kNumber = 1;
constexpr std::int32_t kDate = 2;

// Ends `work` silently at a run-time error.
template <class Work>
void Trapped(Work work) {
  try {
    work();
  } catch (const RuntimeError&) {
    return;
  }
}

std::int16_t Checked16(std::size_t number) {
  if (number > 32767) throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<std::int16_t>(number);
}

std::u16string Decimal(std::int32_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

std::u16string Units(const Value& value) { return std::u16string(ValueToText(value).View()); }

// The item's text in column `c`, 1-based.
std::u16string ColumnText(ListItem& item, std::int32_t c) {
  return Units(c == 1 ? item.Text() : item.SubItems(c - 1));
}

std::u16string CellText(ListItem& item, std::size_t k) {
  return ColumnText(item, static_cast<std::int32_t>(k) + 1);
}

Date ConvertedToDate(TextView text, const Conversions& conversions) {
  const std::optional<Date> date = conversions.ToDate(text);
  if (!date) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return *date;
}

}  // namespace

struct Engine::Routine {
  std::int32_t type;
  TextView word;
};

Engine::Engine(HostListView& list, std::span<const FilterCriterion> rows, bool caseSensitive,
               const Conversions& conversions)
    : list_(list), rows_(rows), caseSensitive_(caseSensitive), conversions_(conversions) {}

void Engine::ApplyCriteria() {
  static constexpr Routine kRoutines[] = {
      {kText, u"CONTAINS"},       {kText, u"EQUALS"},           {kText, u"DOES NOT CONTAIN"},
      {kText, u"DOES NOT EQUAL"}, {kText, u"STARTS WITH"},      {kText, u"ENDS WITH"},
      {kNumber, u"EQUALS"},       {kNumber, u"DOES NOT EQUAL"}, {kNumber, u"IS GREATER THAN"},
      {kNumber, u"IS LESS THAN"}, {kNumber, u"IS BETWEEN"},     {kNumber, u"IS NOT BETWEEN"},
      {kDate, u"EQUALS"},         {kDate, u"DOES NOT EQUAL"},   {kDate, u"IS AFTER"},
      {kDate, u"IS BEFORE"},      {kDate, u"IS BETWEEN"},       {kDate, u"IS NOT BETWEEN"},
      {kDate, u"IS EMPTY"},
  };
  for (const FilterCriterion& row : rows_) {
    if (row.operatorWord == u"All") continue;
    const std::u16string word = Upper(row.operatorWord);
    for (const Routine& routine : kRoutines)
      if (routine.type == row.dataType && routine.word == word) Run(routine);
  }
}

void Engine::Run(const Routine& routine) {
  Trapped([&] {
    for (std::size_t k = 0; k < rows_.size(); ++k)
      if (Upper(rows_[k].operatorWord) == routine.word && rows_[k].dataType == routine.type)
        Pass(routine, k);
  });
}

void Engine::Pass(const Routine& routine, std::size_t k) {
  std::u16string matchList;
  const Ref<ListItemCollection> items = list_.ListItems();
  const std::int32_t count = items->Count();
  for (std::int32_t i = 1; i <= count; ++i) {
    const Ref<ListItem> item = items->Item(i);
    if (Passes(routine, k, *item)) matchList += u"," + Decimal(ValueToInt32(item->Index()));
  }
  RemoveListItems(list_, NonMatchingIndexes(list_, matchList));
}

bool Engine::Passes(const Routine& routine, std::size_t k, ListItem& item) const {
  if (routine.type == kText) return PassesText(routine.word, k, item);
  if (routine.type == kNumber) return PassesNumber(routine.word, k, item);
  return PassesDate(routine.word, k, item);
}

bool Engine::PassesText(TextView word, std::size_t k, ListItem& item) const {
  std::u16string cell = CellText(item, k);
  std::u16string parameter = TextParameter(k, item);
  if (!caseSensitive_) {
    cell = Upper(cell);
    parameter = Upper(parameter);
  }
  if (word == u"CONTAINS") return PositionOf(parameter, cell) > 0;
  if (word == u"DOES NOT CONTAIN") return PositionOf(parameter, cell) == 0;
  if (word == u"EQUALS") return cell == parameter;
  if (word == u"DOES NOT EQUAL") return cell != parameter;
  const std::size_t length = std::min(parameter.size(), cell.size());
  if (word == u"STARTS WITH") return cell.substr(0, length) == parameter;
  return cell.substr(cell.size() - length) == parameter;
}

bool Engine::PassesNumber(TextView word, std::size_t k, ListItem& item) const {
  const std::u16string cell = CellText(item, k);
  const double value = LeadingNumber(cell);
  const double first = NumberParameter(rows_[k].from, item);
  if (word == u"EQUALS") return value == first;
  if (word == u"DOES NOT EQUAL") return value != first;
  if (word == u"IS GREATER THAN") return value > first;
  if (word == u"IS LESS THAN") return value < first;
  const double second = NumberParameter(rows_[k].to, item);
  if (word == u"IS BETWEEN") return !cell.empty() && first < value && value < second;
  return value < first || value > second;
}

bool Engine::PassesDate(TextView word, std::size_t k, ListItem& item) const {
  const std::u16string cell = CellText(item, k);
  if (word == u"IS EMPTY") return cell.empty();
  const bool range = word == u"IS BETWEEN" || word == u"IS NOT BETWEEN";
  const Date first = DateParameter(rows_[k].from, rows_[k].dateFrom, item);
  const Date second = range ? DateParameter(rows_[k].to, rows_[k].dateTo, item) : Date();
  if (cell.empty()) return word == u"IS NOT BETWEEN";
  const Date date = ConvertedToDate(cell, conversions_);
  const int toFirst = CompareMoments(date, first);
  if (word == u"EQUALS") return toFirst == 0;
  if (word == u"DOES NOT EQUAL") return toFirst != 0;
  if (word == u"IS BEFORE") return toFirst < 0;
  if (word == u"IS AFTER") return toFirst > 0;
  const int toSecond = CompareMoments(date, second);
  if (word == u"IS BETWEEN") return toFirst >= 0 && toSecond <= 0;
  return toFirst < 0 || toSecond > 0;
}

std::u16string Engine::TextParameter(std::size_t k, ListItem& item) const {
  const std::int16_t c = ColumnFromReference(rows_[k].text);
  return c > 0 ? ColumnText(item, c) : std::u16string(rows_[k].text.View());
}

double Engine::NumberParameter(TextView typed, ListItem& item) const {
  const std::int16_t c = ColumnFromReference(typed);
  return LeadingNumber(c > 0 ? ColumnText(item, c) : std::u16string(typed));
}

Date Engine::DateParameter(TextView typed, Date picked, ListItem& item) const {
  const std::int16_t c = ColumnFromReference(typed);
  return c > 0 ? ConvertedToDate(ColumnText(item, c), conversions_) : picked;
}

std::int16_t Engine::ColumnFromReference(TextView text) const {
  if (text.size() < 3) return 0;
  if (text[0] != u'[' || text[text.size() - 1] != u']') return 0;
  const std::u16string name(text.begin() + 1, text.end() - 1);
  for (std::size_t j = 0; j < rows_.size(); ++j)
    if (name == rows_[j].caption.View()) return Checked16(j + 1);
  return 0;
}

std::u16string Engine::Upper(TextView text) const {
  std::u16string upper;
  for (const char16_t unit : text) upper += conversions_.ToUpper(unit);
  return upper;
}

std::size_t PositionOf(TextView wanted, TextView text) {
  for (std::size_t position = 1; position <= text.size(); ++position)
    if (text.substr(position - 1, wanted.size()) == wanted) return position;
  return 0;
}

int CompareMoments(Date a, Date b) {
  const auto compare = [](double left, double right) {
    return left < right ? -1 : left > right ? 1 : 0;
  };
  const double dayA = std::trunc(a.serial);
  const double dayB = std::trunc(b.serial);
  if (dayA != dayB) return compare(dayA, dayB);
  return compare(std::abs(a.serial - dayA), std::abs(b.serial - dayB));
}

std::u16string TrimData(std::u16string text, TextView what) {
  if (what.empty()) return text;
  while (TextView(text).substr(0, what.size()) == what) text.erase(0, what.size());
  while (text.size() >= what.size() && TextView(text).substr(text.size() - what.size()) == what)
    text.erase(text.size() - what.size());
  return text;
}

std::int16_t CountOccurrences(TextView text, TextView delimiter) {
  std::size_t count = 0;
  for (std::size_t p = 1; p <= text.size(); ++p)
    if (text.substr(p - 1, delimiter.size()) == delimiter) ++count;
  return Checked16(count);
}

std::u16string GetField(TextView text, TextView delimiter, std::int16_t n) {
  if (n == 0) return u"Cannot return an instance of zero";
  if (n < 0) return u"";
  // Where each delimiter begins; an empty one begins nowhere.
  std::vector<std::size_t> delimiters;
  for (std::size_t at = 0; !delimiter.empty() && at < text.size();) {
    const bool found = text.substr(at, delimiter.size()) == delimiter;
    if (found) delimiters.push_back(at);
    at += found ? delimiter.size() : 1;
  }
  const auto field = static_cast<std::size_t>(n);
  if (field > delimiters.size() + 1) return u"Instance Too Large";
  const std::size_t begin = field == 1 ? 0 : delimiters[field - 2] + delimiter.size();
  const std::size_t end = field == delimiters.size() + 1 ? text.size() : delimiters[field - 1];
  return std::u16string(text.substr(begin, end - begin));
}

std::u16string NonMatchingIndexes(HostListView& list, TextView matchList) {
  std::u16string result;
  Trapped([&] {
    const std::u16string matching = u"," + TrimData(std::u16string(matchList), u",") + u",";
    std::u16string others;
    const Ref<ListItemCollection> items = list.ListItems();
    const std::int32_t count = items->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
      const std::u16string index = Decimal(ValueToInt32(items->Item(i)->Index()));
      if (PositionOf(u"," + index + u",", matching) == 0) others += index + u",";
    }
    result = TrimData(others, u",");
  });
  return result;
}

void RemoveListItems(HostListView& list, TextView indexes) {
  if (indexes.empty()) return;
  Trapped([&] {
    const std::size_t fields =
        std::size_t{1} + static_cast<std::size_t>(CountOccurrences(indexes, u","));
    for (std::int16_t f = Checked16(fields); f >= 1; --f) {
      const std::u16string index = GetField(indexes, u",", f);
      list.ListItems()->Remove(std::int32_t{ValueToInt16(Text(index))});
    }
  });
}

}  // namespace sifter::textbook
