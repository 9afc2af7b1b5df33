#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "base/Value.h"

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <ostream>
#include <string>

// How texts and values look in failures, recordings and dumps. Two that differ look different,
// but that a number looks the same in every width.

namespace sifter {

inline std::string EscapedUnit(char16_t unit) {
  char escaped[8];
  std::snprintf(escaped, sizeof escaped, "\\u%04X", static_cast<unsigned>(unit));
  return escaped;
}

inline bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
inline bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// In quotes, as UTF-8; quotes, backslashes, control characters and unpaired surrogates escaped.
inline std::string Quoted(TextView text) {
  std::string quoted = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      quoted += Text(text.substr(i++, 2)).ToUtf8();
    } else if (unit < u' ' || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      quoted += EscapedUnit(unit);
    } else {
      if (unit == u'"' || unit == u'\\') quoted += '\\';
      quoted += Text(TextView(&unit, 1)).ToUtf8();
    }
  }
  return quoted + '"';
}

inline std::string Shown(double number) {
  char digits[40];
  const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
  return std::string(digits, end.ptr);
}

// Empty, Null, True, 5, 1.5, #1.25#, "text", object.
inline std::string Shown(const Value& value) {
  if (value.IsEmpty()) return "Empty";
  if (value.IsNull()) return "Null";
  if (const bool* boolean = value.As<bool>()) return *boolean ? "True" : "False";
  if (const std::int16_t* number = value.As<std::int16_t>()) return std::to_string(*number);
  if (const std::int32_t* number = value.As<std::int32_t>()) return std::to_string(*number);
  if (const double* number = value.As<double>()) return Shown(*number);
  if (const Date* date = value.As<Date>()) return '#' + Shown(date->serial) + '#';
  if (const Text* text = value.As<Text>()) return Quoted(*text);
  return *value.As<Ref<Object>>() ? "object" : "Nothing";
}

inline void PrintTo(const Text& text, std::ostream* out) { *out << Quoted(text); }
inline void PrintTo(const Value& value, std::ostream* out) { *out << Shown(value); }

}  // namespace sifter
