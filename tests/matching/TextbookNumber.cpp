#include "Textbook.h"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace sifter::textbook {

namespace {

// Reads what is in front of a text, one character at a time.
class Reader {
 public:
  explicit Reader(TextView text) : text_(text) {}

  // The next character if it is one of these; it is then taken.
  char Take(const char* wanted) {
    if (at_ == text_.size() || text_[at_] > 127) return 0;
    for (; *wanted != 0; ++wanted)
      if (static_cast<char16_t>(*wanted) == text_[at_]) {
        ++at_;
        return *wanted;
      }
    return 0;
  }

  std::string TakeAll(const char* wanted) {
    std::string taken;
    while (const char unit = Take(wanted)) taken += unit;
    return taken;
  }

 private:
  TextView text_;
  std::size_t at_ = 0;
};

constexpr const char* kDigits = "0123456789";

double Finite(double number) {
  const double largest = std::numeric_limits<double>::max();
  return std::isinf(number) ? std::copysign(largest, number) : number;
}

std::string BitsOf(const std::string& octal) {
  std::string bits;
  for (const char digit : octal)
    for (int bit = 2; bit >= 0; --bit) bits += ((digit - '0') >> bit) % 2 == 1 ? '1' : '0';
  bits.insert(0, (4 - bits.size() % 4) % 4, '0');
  return bits;
}

std::string HexOf(const std::string& octal) {
  const std::string bits = BitsOf(octal);
  std::string hex;
  for (std::size_t i = 0; i < bits.size(); i += 4)
    hex += "0123456789ABCDEF"[std::stoi(bits.substr(i, 4), nullptr, 2)];
  return hex;
}

double Based(Reader reader) {
  std::string hex;
  if (reader.Take("hH") != 0) {
    hex = reader.TakeAll("0123456789abcdefABCDEF");
  } else if (reader.Take("oO") != 0) {
    hex = HexOf(reader.TakeAll("01234567"));
  }
  return hex.empty() ? 0 : Finite(std::strtod(("0x" + hex).c_str(), nullptr));
}

}  // namespace

double LeadingNumber(TextView text) {
  Reader reader(text);
  reader.TakeAll(" \t\n\v\f\r");
  if (reader.Take("&") != 0) return Based(reader);
  std::string number;
  if (const char sign = reader.Take("+-")) number += sign;
  const std::string whole = reader.TakeAll(kDigits);
  const std::string places = reader.Take(".") != 0 ? reader.TakeAll(kDigits) : "";
  if (whole.empty() && places.empty()) return 0;
  number += "0" + whole + "." + places + "0";
  if (reader.Take("eE") != 0) {
    const char sign = reader.Take("+-");
    const std::string exponent = reader.TakeAll(kDigits);
    if (!exponent.empty()) number += (sign == '-' ? "e-" : "e+") + exponent;
  }
  return Finite(std::strtod(number.c_str(), nullptr));
}

}  // namespace sifter::textbook
