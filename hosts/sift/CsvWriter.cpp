#include "sift/CsvWriter.h"

#include <algorithm>
#include <cstddef>

namespace sifter {

namespace {

constexpr char16_t kByteOrderMark = 0xFEFF;

bool NeedsQuotes(TextView cell) {
  // At the start of a file an unquoted U+FEFF would be read as its byte-order mark.
  if (!cell.empty() && cell.front() == kByteOrderMark) return true;
  return std::any_of(cell.begin(), cell.end(), [](char16_t unit) {
    return unit == u',' || unit == u'"' || unit == u'\r' || unit == u'\n';
  });
}

void AppendPlain(std::string& out, const Text& cell) {
  const TextView units = cell;
  if (std::all_of(units.begin(), units.end(), [](char16_t unit) { return unit < 0x80; })) {
    for (const char16_t unit : units) out += static_cast<char>(unit);
  } else {
    out += cell.ToUtf8();
  }
}

void AppendQuoted(std::string& out, const Text& cell) {
  out += '"';
  for (const char c : cell.ToUtf8()) {
    if (c == '"') out += '"';
    out += c;
  }
  out += '"';
}

}  // namespace

void AppendCsvRecord(std::string& out, std::span<const Text> cells) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) out += ',';
    // A record of one empty cell would be an empty line, which many readers pass over.
    const bool wouldVanish = cells.size() == 1 && cells[i].IsEmpty();
    if (wouldVanish || NeedsQuotes(cells[i])) {
      AppendQuoted(out, cells[i]);
    } else {
      AppendPlain(out, cells[i]);
    }
  }
  out += '\n';
}

}  // namespace sifter
