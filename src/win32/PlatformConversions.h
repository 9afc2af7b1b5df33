#pragma once

#include "base/Clock.h"
#include "base/Conversions.h"
#include "win32/LocaleWatch.h"

namespace sifter {

// The platform's own automation conversions, in the user's locale as it is set at the moment of
// the call. A text that contains a zero code unit is no number and no date: the platform's
// functions would read up to it and call the rest part of neither.
//
// Upper-casing is the platform's simple one, without the rules of any single language.
class PlatformConversions final : public Conversions {
 public:
  // `clock` must outlive this object. It only tells when a year ends; the platform asks the
  // machine's own clock for the year of a date that has none.
  explicit PlatformConversions(const Clock& clock) : clock_(clock) {}

  bool IsNumeric(TextView text) const override;
  std::optional<Date> ToDate(TextView text) const override;
  Text DateToText(Date date) const override;
  const char16_t* UpperCaseTable() const override;
  std::uint32_t Generation() const override;

 private:
  const Clock& clock_;
  mutable LocaleWatch locale_;
  mutable int year_ = 0;
  mutable std::uint32_t generation_ = 0;
};

}  // namespace sifter
