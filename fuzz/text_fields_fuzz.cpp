// One program is one source here; the textbook's sources come in whole.
#include "../tests/matching/Textbook.cpp"
#include "../tests/matching/TextbookNumber.cpp"
#include "base/Text.h"
#include "matching/LeadingNumber.h"
#include "matching/TextFields.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace sifter;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// Few different code units, so that delimiters are found and overlap.
std::u16string UnitsOf(std::string_view bytes) {
  constexpr char16_t kUnits[] = u",ab@1é\xD83D\xDE00";
  std::u16string units;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    units += code < 0x80 ? static_cast<char16_t>(code) : kUnits[code % 8];
  }
  return units;
}

void TryTrimming(TextView text, TextView what) {
  Require(TrimData(text, what) == TextView(textbook::TrimData(std::u16string(text), what)));
}

void TryCounting(TextView text, TextView delimiter) {
  if (text.size() <= 32767)
    Require(CountOccurrences(text, delimiter) == textbook::CountOccurrences(text, delimiter));
}

void TryFields(TextView text, TextView delimiter, std::int16_t any) {
  Require(GetField(text, delimiter, any) == TextView(textbook::GetField(text, delimiter, any)));
  std::u16string joined;
  for (std::int16_t n = 1; n < 64; ++n) {
    const Text field = GetField(text, delimiter, n);
    Require(field == TextView(textbook::GetField(text, delimiter, n)));
    if (n > 1) joined += delimiter;
    joined += field.View();
    if (joined.size() >= text.size()) break;
  }
  // Up to the last field that was asked for, the fields and their delimiters are the text.
  if (!delimiter.empty()) Require(text.starts_with(TextView(joined).substr(0, text.size())));
}

void TryLeadingNumber(TextView text) {
  Require(LeadingNumber(text) == textbook::LeadingNumber(text));
}

}  // namespace

// The first two bytes are a field number, the third is the length of the delimiter; then come the
// delimiter and the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kHead = 3;
  if (size < kHead) return 0;
  const auto any = std::bit_cast<std::int16_t>(static_cast<std::uint16_t>(data[0] | data[1] << 8));
  const std::size_t length = std::min<std::size_t>(data[2] % 8, size - kHead);
  const std::string_view bytes(reinterpret_cast<const char*>(data) + kHead, size - kHead);
  const std::u16string delimiter = UnitsOf(bytes.substr(0, length));
  const std::u16string text = UnitsOf(bytes.substr(length));
  TryTrimming(text, delimiter);
  TryCounting(text, delimiter);
  TryFields(text, delimiter, any);
  TryLeadingNumber(text);
  return 0;
}
