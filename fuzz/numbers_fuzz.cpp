#include "base/Conversions.h"
#include "matching/LeadingNumber.h"
#include "support/ClockFake.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace sifter;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void TryLeadingNumber(const Text& text) {
  const double number = LeadingNumber(text);
  Require(std::isfinite(number));
  Require(LeadingNumber(Concat({u" ", text})) == number);
  Require(LeadingNumber(Concat({text, u"x1"})) == number);
}

void TryNumberTest(const Text& text, const Conversions& conversions) {
  const bool isNumeric = conversions.IsNumeric(text);
  Require(conversions.IsNumeric(Concat({u"\t", text, u" "})) == isNumeric);
  Require(conversions.IsNumeric(conversions.ToUpper(text)) == isNumeric);
  Require(!conversions.IsNumeric(Concat({text, u"@"})));
  if (!isNumeric) return;
  const TextView units = text.View();
  Require(units.find_first_of(u"0123456789abcdefABCDEF") != TextView::npos);
  Require(units.find_first_not_of(u"0123456789abcdefABCDEF.,+-$()&hHoO \t\n\v\f\r") ==
          TextView::npos);
}

void TryUpperCase(const Text& text, const Conversions& conversions) {
  const Text upper = conversions.ToUpper(text);
  Require(upper.Length() == text.Length());
  Require(conversions.ToUpper(upper) == upper);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ClockFake clock;
  static const EnUsConversions conversions(clock);
  const Text text = Text::FromUtf8({reinterpret_cast<const char*>(data), size});
  TryLeadingNumber(text);
  TryNumberTest(text, conversions);
  TryUpperCase(text, conversions);
  return 0;
}
