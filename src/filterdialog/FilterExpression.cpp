#include "filterdialog/FilterExpression.h"

#include "base/RuntimeError.h"
#include "matching/ColumnDataType.h"
#include "matching/FilterCriterion.h"

namespace sifter {

ParameterParts SplitParameters(TextView parameterText) {
  const std::size_t at = parameterText.find(kParameterSeparator);
  if (at == TextView::npos) return {Text(parameterText), Text(), false};
  // One "@" stays on either side. The texts are for hosts to show, and hosts that take them apart
  // count on the halves as they have always been.
  return {Text(parameterText.substr(0, at + 1)), Text(parameterText.substr(at + 1)), true};
}

namespace {

// What stands around the values in a condition.
struct Pattern {
  TextView word;
  TextView before;
  TextView between;  // of a range: between its two values
  TextView after;
};

// "starts with" has its wildcard in front and "ends with" behind, the other way round than their
// names say. Hosts hand these texts to databases of their own and have adapted to it.
constexpr Pattern kTextPatterns[] = {
    {u"equals", u" = '", u"", u"'"},        {u"does not equal", u" <> '", u"", u"'"},
    {u"contains", u" like '*", u"", u"*'"}, {u"starts with", u" like '*", u"", u"'"},
    {u"ends with", u" like '", u"", u"*'"}, {u"does not contain", u" NOT like '*", u"", u"*'"},
};

constexpr Pattern kNumberPatterns[] = {
    {u"equals", u" = ", u"", u""},
    {u"does not equal", u" <> ", u"", u""},
    {u"is less than", u" < ", u"", u""},
    {u"is greater than", u" > ", u"", u""},
    {u"is between", u" > ", u" AND < ", u""},
    {u"is not between", u" < ", u" AND > ", u""},
};

constexpr TextView kDateRange = u"is between";
constexpr TextView kEmptyDate = u"is empty";

constexpr Pattern kDatePatterns[] = {
    {u"equals", u" = #", u"", u"#"},           {u"does not equal", u" <> #", u"", u"#"},
    {u"is before", u" < #", u"", u"#"},        {u"is after", u" > #", u"", u"#"},
    {kDateRange, u" > #", u"# AND < #", u"#"}, {u"is not between", u" < #", u"# AND > #", u"#"},
};

template <std::size_t N>
const Pattern* FindPattern(const Pattern (&patterns)[N], TextView word) {
  for (const Pattern& pattern : patterns)
    if (pattern.word == word) return &pattern;
  return nullptr;
}

Text Fill(TextView column, const Pattern& pattern, const ParameterParts& parts) {
  if (pattern.between.empty())
    return Concat({column, pattern.before, parts.first.View(), pattern.after});
  return Concat({column, pattern.before, parts.first.View(), pattern.between, parts.second.View(),
                 pattern.after});
}

void Complain(Prompts& prompts, std::initializer_list<TextView> parts) {
  prompts.Show(Concat(parts), Text(Prompts::kDefaultTitle), PromptIcon::kNone);
}

// True when the first value suits the type; `name` is the type's, as the message has it.
bool FirstSuits(bool suits, TextView name, const ParameterParts& parts, Prompts& prompts) {
  if (!suits)
    Complain(prompts, {u"data type is ", name, u" but parameter equals ", parts.first.View()});
  return suits;
}

bool SecondSuits(bool suits, TextView name, const Pattern& pattern, const ParameterParts& parts,
                 Prompts& prompts) {
  if (!suits)
    Complain(prompts, {u"data type is ", name, u" and operator = '", pattern.word,
                       u"' but the second parameter = ", parts.second.View()});
  return suits;
}

Text TextFragment(TextView column, TextView word, const ParameterParts& parts) {
  const Pattern* pattern = FindPattern(kTextPatterns, word);
  return pattern == nullptr ? Text() : Fill(column, *pattern, parts);
}

// The separator's "@" that a half of a range keeps is no part of a number, so a number range from
// the dialog always ends with the message about its first value.
Text NumberFragment(TextView column, TextView word, const ParameterParts& parts,
                    const Conversions& conversions, Prompts& prompts) {
  if (!FirstSuits(conversions.IsNumeric(parts.first), u"number", parts, prompts)) return Text();
  const Pattern* pattern = FindPattern(kNumberPatterns, word);
  if (pattern == nullptr) return Text();
  if (!pattern->between.empty() &&
      !SecondSuits(conversions.IsNumeric(parts.second), u"number", *pattern, parts, prompts))
    return Text();
  return Fill(column, *pattern, parts);
}

// A date that was parted from another one still has the separator's "@" on its inner side. It is
// overlooked in testing, and only there: the text goes into the condition with it.
bool IsDateBesideSeparator(TextView part, bool first, bool separated,
                           const Conversions& conversions) {
  if (separated && first && part.ends_with(u'@')) part.remove_suffix(1);
  if (separated && !first && part.starts_with(u'@')) part.remove_prefix(1);
  return conversions.IsDate(part);
}

Text DateFragment(TextView column, TextView word, const ParameterParts& parts,
                  const Conversions& conversions, Prompts& prompts) {
  if (word == kEmptyDate) return Concat({u"Is Null ", column});
  if (!FirstSuits(IsDateBesideSeparator(parts.first, true, parts.separated, conversions), u"date",
                  parts, prompts))
    return Text();
  const Pattern* pattern = FindPattern(kDatePatterns, word);
  if (pattern == nullptr) return Text();
  if (!pattern->between.empty() &&
      !SecondSuits(IsDateBesideSeparator(parts.second, false, parts.separated, conversions),
                   u"date", *pattern, parts, prompts))
    return Text();
  // A date range has no condition: its end is multiplied with the closing "#" where it should be
  // joined to it. Hosts know the filter of a date range by its empty pair of parentheses, and the
  // error box tells the user that the condition is missing.
  if (word == kDateRange) throw RuntimeError(ErrorNumber::kTypeMismatch);
  return Fill(column, *pattern, parts);
}

}  // namespace

Text BuildFilterFragment(TextView column, TextView operatorWord, TextView parameterText,
                         std::int32_t dataType, const Conversions& conversions, Prompts& prompts) {
  const ParameterParts parts = SplitParameters(parameterText);
  switch (dataType) {
    case static_cast<std::int32_t>(ColumnDataType::kText):
      return TextFragment(column, operatorWord, parts);
    case static_cast<std::int32_t>(ColumnDataType::kNumber):
      return NumberFragment(column, operatorWord, parts, conversions, prompts);
    case static_cast<std::int32_t>(ColumnDataType::kDate):
      return DateFragment(column, operatorWord, parts, conversions, prompts);
    default:
      return Text();
  }
}

Text JoinCondition(TextView filterString, TextView fragment) {
  return Concat({filterString, kJoin, u"(", fragment, u")"});
}

Text JoinSentence(TextView filterPlainEnglish, TextView column, TextView operatorWord,
                  TextView value) {
  return Concat({filterPlainEnglish, kJoin, column, u" ", operatorWord, u" ", value});
}

}  // namespace sifter
