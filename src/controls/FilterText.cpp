#include "controls/FilterText.h"

#include <optional>

namespace sifter {

namespace {

// Cuts `text` at the first `mark`: returns what stands before it and leaves what stands behind.
std::optional<TextView> CutAt(TextView& text, TextView mark) {
  const std::size_t at = text.find(mark);
  if (at == TextView::npos) return std::nullopt;
  const TextView before = text.substr(0, at);
  text.remove_prefix(at + mark.size());
  return before;
}

TextView RequireCutAt(TextView& text, TextView mark) {
  const std::optional<TextView> before = CutAt(text, mark);
  if (!before) throw BadFilterText();
  return *before;
}

TextCriterion ParseCriterion(TextView text) {
  TextCriterion criterion;
  criterion.column = Text(RequireCutAt(text, u".."));
  criterion.operatorNumber = Text(RequireCutAt(text, u"1=="));
  const std::optional<TextView> first = CutAt(text, u"2==");
  criterion.first = Text(first ? *first : text);
  if (first) criterion.second = Text(text);
  return criterion;
}

}  // namespace

RuntimeError BadFilterText() {
  return RuntimeError(static_cast<std::int32_t>(0x80040001u), Text());
}

std::vector<TextCriterion> ParseFilterText(TextView text) {
  std::vector<TextCriterion> criteria;
  while (text.size() > 1) criteria.push_back(ParseCriterion(RequireCutAt(text, u"*?")));
  return criteria;
}

}  // namespace sifter
