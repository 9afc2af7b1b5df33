#include "base/Calendar.h"
#include "base/Clock.h"
#include "base/Conversions.h"
#include "base/EnUsDates.h"
#include "base/EnUsNumbers.h"
#include "base/UpperCase.h"

namespace sifter {

bool EnUsConversions::IsNumeric(TextView text) const { return IsEnUsNumber(text); }

std::optional<Date> EnUsConversions::ToDate(TextView text) const {
  return ParseEnUsDate(text, clock_);
}

Text EnUsConversions::DateToText(Date date) const { return EnUsDateText(date); }

const char16_t* EnUsConversions::UpperCaseTable() const { return SimpleUpperCaseTable(); }

// A date without a year becomes another one when the year does; nothing else ever changes.
std::uint32_t EnUsConversions::Generation() const {
  const std::optional<CalendarTime> now = CalendarOf(clock_.Now());
  return now ? static_cast<std::uint32_t>(now->year) : 0;
}

}  // namespace sifter
