#include "sift/CsvReader.h"

#include "sift/RecentTexts.h"
#include "sift/Utf8.h"

#include <algorithm>
#include <array>

namespace sifter {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::size_t LineAt(std::string_view bytes, std::size_t at) {
  return 1 + static_cast<std::size_t>(
                 std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

void RequireText(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
    throw CsvError(1, "this is UTF-16; save the file as UTF-8");
  const std::size_t nul = bytes.find('\0');
  const std::size_t malformed = FindMalformedUtf8(bytes);
  if (nul < malformed) throw CsvError(LineAt(bytes, nul), "a NUL byte; a text file was expected");
  if (malformed != std::string_view::npos)
    throw CsvError(LineAt(bytes, malformed), "not UTF-8; save the file as UTF-8");
}

// Whether a byte ends or breaks a cell that is not in quotes.
constexpr std::array<bool, 256> kSpecial = [] {
  std::array<bool, 256> special{};
  for (const char c : {',', '"', '\r', '\n'}) special[static_cast<unsigned char>(c)] = true;
  return special;
}();

class CellReader {
 public:
  explicit CellReader(std::string_view bytes) : bytes_(bytes) {}

  bool AtEnd() const { return at_ == bytes_.size(); }
  std::size_t Line() const { return line_; }

  // The next cell without its quotes, and what follows it. A view into the file, or, where
  // quotes written twice had to be made one, a view that the next call ends.
  std::string_view Read() {
    const std::string_view cell = Peek() == '"' ? ReadQuoted() : ReadPlain();
    ReadSeparator();
    return cell;
  }

  // Of the last cell read.
  bool IsViewOfFile() const { return viewOfFile_; }
  bool EndedRecord() const { return endedRecord_; }

 private:
  // NUL stands for the end of the file; there is no other one in it.
  char Peek(std::size_t ahead = 0) const {
    return at_ + ahead < bytes_.size() ? bytes_[at_ + ahead] : '\0';
  }

  std::string_view ReadPlain() {
    viewOfFile_ = true;
    const std::size_t first = at_;
    while (at_ < bytes_.size() && !kSpecial[static_cast<unsigned char>(bytes_[at_])]) ++at_;
    if (Peek() == '"') {
      throw CsvError(line_,
                     "a quote inside a cell that does not begin with one; "
                     "put the whole cell in quotes and write its own quotes twice");
    }
    return bytes_.substr(first, at_ - first);
  }

  std::string_view ReadQuoted() {
    const std::size_t openedOn = line_;
    const std::size_t first = ++at_;
    bool doubled = false;
    for (;; ++at_) {
      at_ = std::min(bytes_.find('"', at_), bytes_.size());
      if (AtEnd()) throw CsvError(openedOn, "the quote that opens here is never closed");
      if (Peek(1) != '"') break;
      doubled = true;
      ++at_;
    }
    const std::string_view inside = bytes_.substr(first, at_ - first);
    ++at_;
    line_ += static_cast<std::size_t>(std::count(inside.begin(), inside.end(), '\n'));
    viewOfFile_ = !doubled;
    return doubled ? Undoubled(inside) : inside;
  }

  std::string_view Undoubled(std::string_view inside) {
    undoubled_.clear();
    for (std::size_t i = 0; i < inside.size(); ++i) {
      undoubled_ += inside[i];
      if (inside[i] == '"') ++i;
    }
    return undoubled_;
  }

  void ReadSeparator() {
    endedRecord_ = true;
    if (AtEnd()) return;
    switch (Peek()) {
      case ',':
        ++at_;
        endedRecord_ = false;
        break;
      case '\r':
        if (Peek(1) != '\n') {
          throw CsvError(line_,
                         "a carriage return without a line feed; "
                         "end lines with CR LF or LF, or put the cell in quotes");
        }
        at_ += 2;
        ++line_;
        break;
      case '\n':
        ++at_;
        ++line_;
        break;
      default:
        throw CsvError(line_,
                       "text after a closing quote; a quote inside a quoted cell is written twice");
    }
  }

  std::string_view bytes_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::string undoubled_;
  bool viewOfFile_ = true;
  bool endedRecord_ = false;
};

std::vector<Text> ReadHeader(CellReader& reader) {
  std::vector<Text> header;
  do header.push_back(Text::FromUtf8(reader.Read()));
  while (!reader.EndedRecord());
  return header;
}

// Reads one record behind the ones that `table` has.
void ReadRecord(CellReader& reader, RecentTexts& texts, CsvTable& table) {
  const std::size_t columns = table.header.size();
  const std::size_t line = reader.Line();
  std::size_t count = 0;
  do {
    const std::string_view cell = reader.Read();
    if (count < columns) {
      table.cells.push_back(reader.IsViewOfFile() ? texts.TextOf(count, cell)
                                                  : Text::FromUtf8(cell));
    }
    ++count;
  } while (!reader.EndedRecord());
  if (count > columns) {
    throw CsvError(line, "a record of " + std::to_string(count) +
                             " cells, but the header has only " + std::to_string(columns));
  }
  table.cells.resize(table.cells.size() + columns - count);
}

// At least as many as there will be, but for records filled up: no cell is without a byte that
// ends it, only the last one.
std::size_t ExpectedCells(std::string_view bytes, std::size_t columns) {
  const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
  return std::min(lines * columns, bytes.size());
}

}  // namespace

CsvTable ReadCsv(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  if (bytes.empty()) throw CsvError(1, "a header line with the names of the columns was expected");
  RequireText(bytes);
  CellReader reader(bytes);
  CsvTable table;
  table.header = ReadHeader(reader);
  table.cells.reserve(ExpectedCells(bytes, table.header.size()));
  RecentTexts texts(table.header.size());
  while (!reader.AtEnd()) ReadRecord(reader, texts, table);
  return table;
}

}  // namespace sifter
