#include "ConversionTexts.h"

#include <utility>

namespace sifter {

namespace {

std::u16string Decimal(std::uint32_t number) {
  return std::u16string(IntegerToText(static_cast<std::int64_t>(number)).View());
}

}  // namespace

TextView ConversionTexts::Any(Choices choices) {
  return choices.begin()[Below(static_cast<std::uint32_t>(choices.size()))];
}

std::u16string ConversionTexts::Digits(std::uint32_t most) {
  std::u16string digits;
  for (std::uint32_t count = Below(most + 1); count > 0; --count) digits += Any(u"0123456789");
  return digits;
}

std::u16string ConversionTexts::Amount() {
  std::u16string amount = Digits(4);
  for (; OneIn(4);) amount += u"," + Digits(3);
  if (OneIn(2)) amount += u"." + Digits(4);
  if (OneIn(8)) amount += u"," + Digits(3);
  if (OneIn(4)) {
    amount += Any(u"eE");
    amount += Any({u"", u"", u"-", u"+"});
    amount += Digits(3);
  }
  return amount;
}

std::u16string ConversionTexts::Number() {
  if (OneIn(12)) {
    std::u16string based(Any({u"&H", u"&h", u"&O", u"&o", u"&"}));
    for (std::uint32_t count = Below(20); count > 0; --count) based += Any(u"01234567789abcDEF");
    return based;
  }
  constexpr auto kNothing = u"";
  std::u16string text(Any({kNothing, kNothing, u" ", u"\t"}));
  for (int i = 0; i < 3; ++i)
    text += Any({kNothing, kNothing, kNothing, kNothing, u"-", u"+", u"(", u"$", u" "});
  text += Amount();
  for (int i = 0; i < 3; ++i)
    text += Any({kNothing, kNothing, kNothing, kNothing, u"-", u"+", u")", u"$", u" "});
  return text;
}

TextView ConversionTexts::Month() {
  return Any({u"Jan",  u"January", u"feb",    u"February", u"MAR",  u"March",
              u"Apr",  u"april",   u"May",    u"Jun",      u"JUNE", u"Jul",
              u"July", u"Aug",     u"August", u"Sep",      u"Sept", u"September",
              u"Oct",  u"October", u"Nov",    u"NOVEMBER", u"Dec",  u"December"});
}

TextView ConversionTexts::Separator() {
  return Any({u"/", u"/", u"/", u"-", u"-", u" ", u", ", u",", u".", u" / ", u"  "});
}

std::u16string ConversionTexts::DayNumber() {
  switch (Below(8)) {
    case 0:
      return Decimal(1900 + Below(200));
    case 1:
      return Decimal(Below(100));
    case 2:
      return u"0" + Decimal(Below(10));
    case 3:
      return Decimal(Below(11000));
    case 4:
      return Decimal(1 + Below(31));
    default:
      return Decimal(1 + Below(12));
  }
}

std::u16string ConversionTexts::Day() {
  const std::u16string separator(Separator());
  std::u16string day;
  const std::uint32_t parts = OneIn(4) ? 2 : 3;
  const std::uint32_t named = OneIn(3) ? Below(parts) : parts;
  for (std::uint32_t part = 0; part < parts; ++part) {
    if (part > 0) day += OneIn(6) ? Separator() : TextView(separator);
    day += part == named ? std::u16string(Month()) : DayNumber();
  }
  return day;
}

std::u16string ConversionTexts::TimeOfDay() {
  const std::u16string mark(Any({u":", u":", u":", u".", u": "}));
  std::u16string time = Decimal(Below(26));
  const std::uint32_t fields = Below(3);
  for (std::uint32_t field = 0; field < fields; ++field)
    time += mark + (OneIn(3) ? u"0" + Decimal(Below(10)) : Decimal(Below(62)));
  if (fields == 0 || OneIn(2)) time += Any({u" AM", u" PM", u"am", u"pm", u" a", u"P", u", PM"});
  return time;
}

std::u16string ConversionTexts::Date() {
  switch (Below(6)) {
    case 0:
      return TimeOfDay();
    case 1:
      return Day() + std::u16string(Any({u" ", u"  ", u", ", u""})) + TimeOfDay();
    case 2:
      return TimeOfDay() + std::u16string(Any({u" ", u"  ", u", ", u""})) + Day();
    default:
      return Day();
  }
}

std::u16string ConversionTexts::Damaged(std::u16string text, TextView alphabet) {
  for (std::uint32_t changes = 1 + Below(2); changes > 0; --changes) {
    const std::size_t at = Below(static_cast<std::uint32_t>(text.size()) + 1);
    switch (Below(4)) {
      case 0:
        text.insert(at, 1, Any(alphabet));
        break;
      case 1:
        if (at < text.size()) text.erase(at, 1);
        break;
      case 2:
        if (at < text.size()) text[at] = Any(alphabet);
        break;
      default:
        if (at + 1 < text.size()) std::swap(text[at], text[at + 1]);
        break;
    }
  }
  return text;
}

std::u16string ConversionTexts::NearNumber() {
  return Damaged(Number(), u"0123456789.,,+-$()eEdDxX&Hh %#@\t\u00A0'_:/\u20AC");
}

std::u16string ConversionTexts::NearDate() {
  return Damaged(Date(), u"0123456789//--::.., \t\u00A0aApPmMtTzJjnbe'+()@");
}

std::u16string ConversionTexts::Jumble() {
  std::u16string text;
  for (std::uint32_t count = 1 + Below(8); count > 0; --count) {
    switch (Below(6)) {
      case 0:
        text += Month();
        break;
      case 1:
        text += Any({u"AM", u"pm", u"a", u"P", u"Mon", u"Friday", u"and", u"th", u"$"});
        break;
      case 2:
        text += Any({u":", u".", u" ", u" ", u"(", u")"});
        break;
      case 3:
        text += Separator();
        break;
      default:
        text += DayNumber();
        break;
    }
  }
  return text;
}

}  // namespace sifter
