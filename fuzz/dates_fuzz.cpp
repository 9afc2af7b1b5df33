#include "base/Calendar.h"
#include "base/Conversions.h"
#include "support/ClockFake.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>

using namespace sifter;

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// The bytes as the text of a cell.
void TryText(std::string_view bytes, const Conversions& conversions) {
  const Text text = Text::FromUtf8(bytes);
  const std::optional<Date> date = conversions.ToDate(text);
  if (!date) return;
  Require(CalendarOf(*date).has_value());
  Require(conversions.ToDate(conversions.DateToText(*date)) == date);
  Require(conversions.ToDate(Concat({u" ", text, u"\t"})) == date);
  Require(conversions.ToDate(conversions.ToUpper(text)) == date);
  Require(!conversions.IsDate(Concat({text, u"@"})));
}

// The first bytes as the serial that a host hands over.
void TrySerial(std::string_view bytes, const Conversions& conversions) {
  Date date;
  if (bytes.size() < sizeof date.serial) return;
  std::memcpy(&date.serial, bytes.data(), sizeof date.serial);
  const Text text = conversions.DateToText(date);
  const std::optional<CalendarTime> time = CalendarOf(date);
  Require(text.IsEmpty() == !time.has_value());
  if (time) Require(conversions.ToDate(text) == DateOf(*time));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const ClockFake clock;
  static const EnUsConversions conversions(clock);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  TryText(bytes, conversions);
  TrySerial(bytes, conversions);
  return 0;
}
