#pragma once

namespace sifter {

// The classes of characters that numbers and dates are written with. They don't depend on a
// locale, and but for the spaces a character outside ASCII is in none of them.

constexpr bool IsBlank(char16_t unit) { return unit == u' ' || (unit >= u'\t' && unit <= u'\r'); }

// Blanks, and what Unicode counts as white space beside them: the no-break space, the wide one ...
constexpr bool IsSpace(char16_t unit) {
  if (unit < 0x80) return IsBlank(unit);
  return unit == 0x85 || unit == 0xA0 || unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200A) ||
         unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F || unit == 0x3000;
}

constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

constexpr int DigitValue(char16_t digit) { return digit - u'0'; }

constexpr bool IsLetter(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

// For letters only; other characters may become different ones.
constexpr char16_t LowerLetter(char16_t letter) { return static_cast<char16_t>(letter | 0x20); }

// The value of a digit in base 8, 10 or 16; -1 when it is no digit of that base.
constexpr int DigitValue(char16_t unit, int base) {
  int value = -1;
  if (IsDigit(unit)) {
    value = DigitValue(unit);
  } else if (IsLetter(unit)) {
    value = LowerLetter(unit) - u'a' + 10;
  }
  return value < base ? value : -1;
}

}  // namespace sifter
