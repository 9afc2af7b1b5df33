#pragma once

#include "base/Text.h"
#include "base/Value.h"

#include <cstdint>
#include <optional>

namespace sifter {

// Port: the conversions whose rules belong to the user's locale. On Windows the platform's own
// automation conversions answer; elsewhere the portable en-US implementation does.
//
// Only the tests of a column's type, the conversion of dates and the folding of case ask here.
// Numbers are compared by their leading number (matching/LeadingNumber.h), which has no locale.
class Conversions {
 public:
  virtual ~Conversions() = default;

  // Whether the whole text is a number: 1,234 and $5 and (5) are; 12abc, "" and a number too
  // large for a double are not.
  virtual bool IsNumeric(TextView text) const = 0;

  // The date and time that the whole text stands for, or nothing when it is no date. A date
  // without a year is in the current year; a time without a date is on day 0.
  virtual std::optional<Date> ToDate(TextView text) const = 0;

  bool IsDate(TextView text) const { return ToDate(text).has_value(); }

  // The short date form, with the time of day after it unless it is midnight; a moment of day 0
  // is the time alone. To the nearest second. "" for a serial that is no date.
  virtual Text DateToText(Date date) const = 0;

  // 65536 entries: the upper case of each code unit, one to one (a sharp s stays itself). The
  // table lives as long as the process.
  virtual const char16_t* UpperCaseTable() const = 0;

  // Changes whenever the answers above may have changed, so that what was converted once can be
  // kept for as long as it is the same.
  virtual std::uint32_t Generation() const = 0;

  char16_t ToUpper(char16_t unit) const { return UpperCaseTable()[unit]; }
  Text ToUpper(TextView text) const;
};

class Clock;

// The en-US conversions, the same on every platform. EnUsNumbers.h and EnUsDates.h say what they
// accept. The clock gives the current year.
class EnUsConversions final : public Conversions {
 public:
  // `clock` must outlive this object.
  explicit EnUsConversions(const Clock& clock) : clock_(clock) {}

  bool IsNumeric(TextView text) const override;
  std::optional<Date> ToDate(TextView text) const override;
  Text DateToText(Date date) const override;
  const char16_t* UpperCaseTable() const override;
  std::uint32_t Generation() const override;

 private:
  const Clock& clock_;
};

}  // namespace sifter
