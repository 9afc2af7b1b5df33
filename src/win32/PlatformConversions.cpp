#include "win32/PlatformConversions.h"

#include "base/Calendar.h"
#include "win32/TerminatedText.h"
#include "win32/UniqueBstr.h"

#include <cstddef>
#include <oleauto.h>
#include <windows.h>

namespace sifter {

namespace {

bool HasZero(TextView text) { return text.find(u'\0') != TextView::npos; }

struct UpperCase {
  static constexpr std::size_t kSize = 0x10000;

  UpperCase() {
    for (std::size_t unit = 0; unit < kSize; ++unit) units[unit] = static_cast<wchar_t>(unit);
    CharUpperBuffW(units, kSize);
  }

  wchar_t units[kSize];
};

}  // namespace

bool PlatformConversions::IsNumeric(TextView text) const {
  if (text.empty() || HasZero(text)) return false;
  double number = 0;
  return SUCCEEDED(VarR8FromStr(TerminatedText(text).Get(), LOCALE_USER_DEFAULT, 0, &number));
}

std::optional<Date> PlatformConversions::ToDate(TextView text) const {
  if (text.empty() || HasZero(text)) return std::nullopt;
  DATE date = 0;
  if (FAILED(VarDateFromStr(TerminatedText(text).Get(), LOCALE_USER_DEFAULT, 0, &date)))
    return std::nullopt;
  // Systems differ in the last bits of a time of day; equal moments must be equal numbers.
  const std::optional<CalendarTime> time = CalendarOf(Date{date});
  return time ? std::optional(DateOf(*time)) : std::nullopt;
}

Text PlatformConversions::DateToText(Date date) const {
  // The platform writes something even for what is no number.
  if (!CalendarOf(date)) return Text();
  UniqueBstr text;
  if (FAILED(VarBstrFromDate(date.serial, LOCALE_USER_DEFAULT, 0, text.Receive()))) return Text();
  return Text(text.View());
}

const char16_t* PlatformConversions::UpperCaseTable() const {
  static const UpperCase table;
  return reinterpret_cast<const char16_t*>(table.units);
}

std::uint32_t PlatformConversions::Generation() const {
  const std::optional<CalendarTime> now = CalendarOf(clock_.Now());
  const int year = now ? now->year : 0;
  if (locale_.HasChanged() || year != year_) ++generation_;
  year_ = year;
  return generation_;
}

}  // namespace sifter
