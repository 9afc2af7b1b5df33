#include "sift/Report.h"

#include "sift/CsvWriter.h"
#include "sift/JsonWriter.h"
#include "sift/OneLine.h"
#include "sift/TableWriter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace sifter {

namespace {

const Text& TypeName(ColumnDataType type) {
  static const std::array<Text, kColumnDataTypes> names = {u"text"_text, u"number"_text,
                                                           u"date"_text};
  return names.at(static_cast<std::size_t>(type));
}

// The lines of a listing, whatever it is printed as.
struct Listing {
  std::span<const Text> names;
  std::vector<Alignment> alignments;
  std::vector<std::span<const Text>> lines;
};

std::string Printed(const Listing& listing, OutputFormat format) {
  if (format == OutputFormat::kTable) {
    TableWriter table(listing.names, listing.alignments);
    for (const std::span<const Text> line : listing.lines) table.Add(line);
    return table.Written();
  }
  std::string out;
  AppendCsvRecord(out, listing.names);
  for (const std::span<const Text> line : listing.lines) AppendCsvRecord(out, line);
  return out;
}

std::string PrintedRecords(const CsvTable& table, const FilterResult& result, OutputFormat format) {
  Listing listing{table.header, {}, {}};
  for (const FilteredColumn& column : result.columns) {
    listing.alignments.push_back(column.type == ColumnDataType::kNumber ? Alignment::kRight
                                                                        : Alignment::kLeft);
  }
  for (const std::int32_t record : result.kept)
    listing.lines.push_back(table.Record(static_cast<std::size_t>(record) - 1));
  return Printed(listing, format);
}

std::string PrintedColumns(const FilterResult& result, OutputFormat format) {
  const std::array<Text, 2> names = {u"Column"_text, u"Type"_text};
  std::vector<std::array<Text, 2>> columns;
  for (const FilteredColumn& column : result.columns)
    columns.push_back({column.name, TypeName(column.type)});
  Listing listing{names, {Alignment::kLeft, Alignment::kLeft}, {}};
  for (const std::array<Text, 2>& column : columns) listing.lines.emplace_back(column);
  return Printed(listing, format);
}

}  // namespace

OutputFormat ChosenFormat(OutputFormat asked, bool onTerminal) {
  if (asked != OutputFormat::kAutomatic) return asked;
  return onTerminal ? OutputFormat::kTable : OutputFormat::kCsv;
}

std::string OutputOf(const CsvTable& table, const FilterResult& result, OutputFormat format,
                     bool listColumns) {
  if (format == OutputFormat::kJson) return JsonOf(result);
  return listColumns ? PrintedColumns(result, format) : PrintedRecords(table, result, format);
}

std::string RemarksOn(const FilterResult& result, OutputFormat format, bool listColumns) {
  std::string remarks;
  const bool json = format == OutputFormat::kJson;
  if (!json) {
    for (const Message& message : result.messages)
      remarks += OnOneLine(message.title) + ": " + OnOneLine(message.text) + '\n';
  }
  for (const std::string& note : result.notes) remarks += "Note: " + note + '\n';
  if (json || listColumns) return remarks;
  remarks += "Displaying " + std::to_string(result.kept.size()) + " of " +
             std::to_string(result.total) + " Items\n";
  if (!result.english.IsEmpty()) remarks += OnOneLine(result.english) + '\n';
  return remarks;
}

}  // namespace sifter
