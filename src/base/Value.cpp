#include "base/Value.h"

#include "base/Integers.h"
#include "base/RuntimeError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>

namespace sifter {

namespace {

std::optional<double> NumberHeld(const Value& value) {
  if (const bool* boolean = value.As<bool>()) return *boolean ? -1 : 0;
  if (const std::int16_t* number = value.As<std::int16_t>()) return *number;
  if (const std::int32_t* number = value.As<std::int32_t>()) return *number;
  if (const double* number = value.As<double>()) return *number;
  if (const Date* date = value.As<Date>()) return date->serial;
  return std::nullopt;
}

std::string Narrow(TextView text) {
  std::string bytes;
  for (const char16_t unit : text) bytes += unit < 0x80 ? static_cast<char>(unit) : '?';
  return bytes;
}

std::optional<double> ParseWhole(TextView text) {
  std::string bytes = Narrow(text);
  const std::size_t first = bytes.find_first_not_of(' ');
  if (first == std::string::npos) return std::nullopt;
  bytes = bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
  if (bytes.size() > 1 && bytes[0] == '+' && bytes[1] != '-') bytes.erase(0, 1);
  double number = 0;
  const char* end = bytes.data() + bytes.size();
  const std::from_chars_result read = std::from_chars(bytes.data(), end, number);
  if (read.ec == std::errc::result_out_of_range && read.ptr == end)
    throw RuntimeError(ErrorNumber::kOverflow);
  if (read.ec != std::errc() || read.ptr != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

Text NumberToText(double number) {
  char digits[40];
  const std::to_chars_result end =
      std::to_chars(digits, digits + sizeof digits, number, std::chars_format::general, 15);
  std::replace(digits, end.ptr, 'e', 'E');
  return Text::FromUtf8(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
}

bool EqualsIgnoringCase(TextView text, TextView lowerCase) {
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [](char16_t a, char16_t b) {
                      return (a >= u'A' && a <= u'Z' ? static_cast<char16_t>(a + 32) : a) == b;
                    });
}

double RoundHalfToEven(double number) { return number - std::remainder(number, 1.0); }

std::int64_t ToWhole(const Value& value) {
  const double rounded = RoundHalfToEven(ValueToDouble(value));
  if (!(std::abs(rounded) < 9e15)) throw RuntimeError(ErrorNumber::kOverflow);
  return static_cast<std::int64_t>(rounded);
}

}  // namespace

bool operator==(const Value& a, const Value& b) {
  const std::optional<double> numberA = NumberHeld(a);
  const std::optional<double> numberB = NumberHeld(b);
  if (numberA || numberB) return numberA && numberB && *numberA == *numberB;
  return a.held_ == b.held_;
}

Text ValueToText(const Value& value) {
  if (value.IsEmpty()) return Text();
  if (value.IsNull()) throw RuntimeError(ErrorNumber::kInvalidUseOfNull);
  if (const Text* text = value.As<Text>()) return *text;
  if (const bool* boolean = value.As<bool>()) return *boolean ? u"True"_text : u"False"_text;
  if (const std::optional<double> number = NumberHeld(value)) return NumberToText(*number);
  throw RuntimeError(ErrorNumber::kTypeMismatch);
}

double ValueToDouble(const Value& value) {
  if (value.IsEmpty()) return 0;
  if (value.IsNull()) throw RuntimeError(ErrorNumber::kInvalidUseOfNull);
  if (const std::optional<double> number = NumberHeld(value)) return *number;
  if (const Text* text = value.As<Text>())
    if (const std::optional<double> number = ParseWhole(*text)) return *number;
  throw RuntimeError(ErrorNumber::kTypeMismatch);
}

bool ValueToBoolean(const Value& value) {
  if (const Text* text = value.As<Text>()) {
    if (EqualsIgnoringCase(*text, u"true")) return true;
    if (EqualsIgnoringCase(*text, u"false")) return false;
  }
  return ValueToDouble(value) != 0;
}

std::int32_t ValueToInt32(const Value& value) { return ToInt32(ToWhole(value)); }

std::int16_t ValueToInt16(const Value& value) { return ToInt16(ToWhole(value)); }

}  // namespace sifter
