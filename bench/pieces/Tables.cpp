#include "Tables.h"

#include "sift/CsvReader.h"

#include <map>

namespace sifter::bench {

const CsvTable& Table(std::size_t rows) {
  static std::map<std::size_t, CsvTable> tables;
  const auto known = tables.find(rows);
  if (known != tables.end()) return known->second;
  return tables.emplace(rows, ReadCsv(GeneratedTable(rows))).first->second;
}

const Conversions& EnUs() {
  static const SystemClock clock;
  static const EnUsConversions conversions(clock);
  return conversions;
}

}  // namespace sifter::bench
