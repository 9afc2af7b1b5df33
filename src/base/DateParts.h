#pragma once

#include "base/Text.h"

#include <optional>

namespace sifter {

// What a date text is made of, before anyone decides which number is the day.
struct DateParts {
  static constexpr int kMostNumbers = 3;

  int numbers[kMostNumbers] = {};  // as written, none above 9999
  int numberCount = 0;
  int namedMonth = 0;    // 1 to 12; 0 when no month is named
  int secondOfDay = -1;  // -1 when there is no time of day

  bool HasDay() const { return numberCount > 0 || namedMonth > 0; }
  bool HasTime() const { return secondOfDay >= 0; }
};

// Takes a text apart by the en-US rules:
//   - the parts of the day are numbers and at most one month, by its full name or by three
//     letters, in any case; between two of them stand blanks or one of / - , or nothing where a
//     digit meets a letter;
//   - the time of day is h:mm or h:mm:ss, with : or . between, and may be followed by AM, PM, A or
//     P in any case; with one of these the hour may also stand alone;
//   - the time of day stands before or after the day, with blanks between;
//   - blanks around all this are skipped.
// Nothing for any other text.
std::optional<DateParts> ReadDateParts(TextView text);

}  // namespace sifter
