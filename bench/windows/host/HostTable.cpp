#include "host/HostTable.h"

#include "base/Text.h"
#include "common/TableGenerator.h"
#include "sift/CsvReader.h"

namespace sifter::bench {

namespace {

std::vector<std::wstring> Wide(std::span<const Text> texts) {
  std::vector<std::wstring> wide;
  for (const Text& text : texts) wide.emplace_back(text.View().begin(), text.View().end());
  return wide;
}

}  // namespace

HostTable MakeHostTable(std::size_t rows) {
  const CsvTable table = ReadCsv(GeneratedTable(rows));
  HostTable made;
  made.captions = Wide(table.header);
  for (std::size_t i = 0; i < table.RecordCount(); ++i) made.rows.push_back(Wide(table.Record(i)));
  return made;
}

}  // namespace sifter::bench
