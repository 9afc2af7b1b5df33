#pragma once

#include "base/Ref.h"
#include "base/Text.h"

#include <cstdint>
#include <utility>
#include <variant>

namespace sifter {

// A moment as automation hosts count it: days since 30 December 1899, local time, the time of day
// as the fraction. Before that day the fraction still counts forward from midnight (-1.25 is
// 29 December 1899, 6:00).
struct Date {
  double serial = 0;

  friend bool operator==(const Date&, const Date&) = default;
};

// The variant of the object model: what a list's member may hold or return.
class Value {
 public:
  struct Null {
    friend bool operator==(Null, Null) = default;
  };

  Value() = default;  // empty: never set
  Value(Null) : held_(Null()) {}
  Value(bool truth) : held_(truth) {}
  Value(std::int16_t number) : held_(number) {}
  Value(std::int32_t number) : held_(number) {}
  Value(double number) : held_(number) {}
  Value(Date date) : held_(date) {}
  Value(Text text) : held_(std::move(text)) {}
  Value(const char16_t* text) : held_(Text(text)) {}
  Value(Ref<Object> object) : held_(std::move(object)) {}

  bool IsEmpty() const noexcept { return Is<std::monostate>(); }
  bool IsNull() const noexcept { return Is<Null>(); }

  template <class T>
  bool Is() const noexcept {
    return std::holds_alternative<T>(held_);
  }
  template <class T>
  const T* As() const noexcept {
    return std::get_if<T>(&held_);
  }

  // Numbers, Booleans (True is -1) and dates are equal by value, whatever their width; texts by
  // code unit; objects by identity; a number never equals a text. Empty equals only empty, so
  // that an icon that was never set is told from icon 0 and from icon "".
  friend bool operator==(const Value& a, const Value& b);

 private:
  std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, Date, Text,
               Ref<Object>>
      held_;
};

// What a member of type string makes of a value: empty is "", numbers in decimal with a point,
// Booleans "True" and "False". Null is error 94, an object error 13.
Text ValueToText(const Value& value);

// What a Boolean member makes of a value: a number is true unless 0; the texts True and False in
// any case and texts that are numbers convert; anything else is error 13, Null error 94.
bool ValueToBoolean(const Value& value);

// What a 32-bit or 16-bit member makes of a value: fractions round to the nearest, halves to the
// even number; texts that are numbers convert. Out of range is error 6, anything else error 13,
// Null error 94.
std::int32_t ValueToInt32(const Value& value);
std::int16_t ValueToInt16(const Value& value);

// As above without rounding.
double ValueToDouble(const Value& value);

}  // namespace sifter
