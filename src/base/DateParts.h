#pragma once

#include "base/Text.h"

#include <optional>

namespace sifter {

// What a date text is made of, before anyone decides which number is the day.
struct DateParts {
  static constexpr int kMostNumbers = 3;

  int numbers[kMostNumbers] = {};  // as written, none above 9999
  int numberCount = 0;
  int namedMonth = 0;  // 1 to 12; 0 when no month is named
  int numbersBeforeMonth = 0;
  int secondOfDay = -1;  // -1 when there is no time of day

  bool HasDay() const { return numberCount > 0 || namedMonth > 0; }
  bool HasTime() const { return secondOfDay >= 0; }
};

// Takes a text apart by the en-US rules:
//   - the parts of the day are numbers and at most one month, by its full name or by three
//     letters, in any case;
//   - the time of day is h:mm or h:mm:ss, with : or . between, and may be followed by AM, PM, A or
//     P in any case; with one of these the hour may also stand alone;
//   - the time of day stands before or after the day, not within it;
//   - between all of these stand spaces and commas, as many as one likes, or nothing where a digit
//     meets a letter;
//   - between two parts may also stand / or -, at most twice in a text;
//   - spaces around all this are skipped; a comma or a mark there makes it no date.
// Nothing for any other text.
std::optional<DateParts> ReadDateParts(TextView text);

}  // namespace sifter
