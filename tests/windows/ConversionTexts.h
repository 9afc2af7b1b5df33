#pragma once

#include "base/Text.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>

namespace sifter {

// Makes texts that a conversion to numbers or dates may or may not take; the same ones for the same
// seed, whatever the compiler.
class ConversionTexts {
 public:
  explicit ConversionTexts(std::uint32_t seed) : random_(seed) {}

  // Numbers as en-US users write them, now and then with more than belongs there.
  std::u16string Number();
  // Dates, times and both, with one of many separators.
  std::u16string Date();
  // A number or a date in which one or two characters were taken away, added, changed or swapped.
  std::u16string NearNumber();
  std::u16string NearDate();
  // Words, numbers and marks in any order.
  std::u16string Jumble();

 private:
  using Choices = std::initializer_list<TextView>;

  std::uint32_t Below(std::uint32_t bound) { return random_() % bound; }
  bool OneIn(std::uint32_t n) { return Below(n) == 0; }
  TextView Any(Choices choices);
  char16_t Any(TextView units) { return units[Below(static_cast<std::uint32_t>(units.size()))]; }

  std::u16string Digits(std::uint32_t most);
  std::u16string Amount();
  std::u16string Day();
  std::u16string TimeOfDay();
  std::u16string DayNumber();
  TextView Month();
  TextView Separator();
  std::u16string Damaged(std::u16string text, TextView alphabet);

  std::mt19937 random_;
};

}  // namespace sifter
