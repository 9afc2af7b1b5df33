#include "sift/CsvReader.h"
#include "sift/CsvWriter.h"

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

std::string Written(const CsvTable& table) {
  std::string bytes;
  AppendCsvRecord(bytes, table.header);
  for (std::size_t i = 0; i < table.RecordCount(); ++i) AppendCsvRecord(bytes, table.Record(i));
  return bytes;
}

std::size_t LinesOf(std::string_view bytes) {
  std::size_t lines = 1;
  for (const char c : bytes) lines += c == '\n' ? 1 : 0;
  return lines;
}

}  // namespace

// Whatever is read is written so that it is read again as the same table, in the same bytes from
// then on; what isn't read is refused with a line of the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    const CsvTable table = ReadCsv(bytes);
    Require(!table.header.empty());
    Require(table.cells.size() % table.header.size() == 0);
    const std::string written = Written(table);
    const CsvTable again = ReadCsv(written);
    Require(again == table);
    Require(Written(again) == written);
  } catch (const CsvError& error) {
    Require(error.Line() >= 1 && error.Line() <= LinesOf(bytes));
  }
  return 0;
}
