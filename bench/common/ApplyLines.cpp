#include "common/ApplyLines.h"

#include "common/RowHash.h"

#include <array>
#include <cinttypes>
#include <cstdio>

namespace sifter::bench {

namespace {

template <class... Values>
std::string Formatted(const char* format, Values... values) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (static_cast<unsigned char>(c) < 0x20)
      quoted += Formatted("\\u%04x", static_cast<unsigned>(c));
    else
      quoted += c;
  }
  return quoted + '"';
}

std::string Listed(const std::vector<std::int64_t>& numbers) {
  std::string listed = "[";
  for (const std::int64_t number : numbers) {
    if (listed.size() > 1) listed += ',';
    listed += std::to_string(number);
  }
  return listed + ']';
}

std::string Field(const char* name, std::int64_t number) {
  return std::string("\"") + name + "\":" + std::to_string(number);
}

std::string Opening(std::size_t tableRows) {
  return "{\"peer\":\"rowsifter\",\"n\":" + std::to_string(tableRows);
}

}  // namespace

std::string WorkloadLine(std::size_t tableRows, const std::string& name,
                         std::span<const std::uint32_t> rowsLeft, const Durations& durations) {
  return Opening(tableRows) + ",\"w\":" + Quoted(name) +
         ",\"rows\":" + std::to_string(rowsLeft.size()) +
         Formatted(",\"hash\":\"%016" PRIx64 "\"", RowHash(rowsLeft)) +
         ",\"wall_ns\":" + Listed(durations.wall) + ",\"cpu_ns\":" + Listed(durations.cpu) + '}';
}

std::string MemoryLine(std::size_t tableRows, std::size_t columns, const LoadedMemory& memory) {
  const double cells = static_cast<double>(tableRows) * static_cast<double>(columns);
  const double perCell = cells > 0 ? static_cast<double>(memory.heap) / cells : 0;
  return Opening(tableRows) + ",\"mem\":{" + Field("rss_base_kb", memory.residentBase) + ',' +
         Field("rss_loaded_kb", memory.residentLoaded) + ',' +
         Field("rss_peak_kb", memory.residentPeak) + ',' +
         Field("heap_loaded_minus_base", memory.heap) +
         Formatted(",\"heap_bytes_per_cell\":%.2f}}", perCell);
}

}  // namespace sifter::bench
