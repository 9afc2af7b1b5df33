#pragma once

#include "sift/CsvReader.h"
#include "sift/CsvTable.h"

#include <string>
#include <string_view>
#include <vector>

// Tables as UTF-8 texts, for tests to read well.

namespace sifter {

using Lines = std::vector<std::vector<std::string>>;

inline std::vector<Text> TextsOf(const std::vector<std::string>& utf8) {
  std::vector<Text> texts;
  for (const std::string& text : utf8) texts.push_back(Text::FromUtf8(text));
  return texts;
}

// The header and the records behind it.
inline Lines LinesOf(const CsvTable& table) {
  const auto utf8 = [](std::span<const Text> cells) {
    std::vector<std::string> line;
    for (const Text& cell : cells) line.push_back(cell.ToUtf8());
    return line;
  };
  Lines lines = {utf8(table.header)};
  for (std::size_t i = 0; i < table.RecordCount(); ++i) lines.push_back(utf8(table.Record(i)));
  return lines;
}

// What ReadCsv says about the bytes; "nothing" when it reads them.
inline std::string CsvErrorOf(std::string_view bytes) {
  try {
    ReadCsv(bytes);
  } catch (const CsvError& error) {
    return error.what();
  }
  return "nothing";
}

}  // namespace sifter
