#include "base/MonthNames.h"

#include "base/Characters.h"

#include <algorithm>
#include <cstddef>

namespace sifter {

namespace {

constexpr std::size_t kAbbreviated = 3;

constexpr TextView kMonths[] = {u"january",   u"february", u"march",    u"april",
                                u"may",       u"june",     u"july",     u"august",
                                u"september", u"october",  u"november", u"december"};

bool StartsInAnyCase(TextView month, TextView word) {
  return std::equal(word.begin(), word.end(), month.begin(),
                    [](char16_t a, char16_t b) { return LowerLetter(a) == b; });
}

}  // namespace

int MonthNamed(TextView word) {
  if (word.size() < kAbbreviated) return 0;
  int number = 0;
  for (const TextView month : kMonths) {
    ++number;
    const bool whole = word.size() == month.size() || word.size() == kAbbreviated;
    if (whole && StartsInAnyCase(month, word)) return number;
  }
  return 0;
}

}  // namespace sifter
