#pragma once

#include "sift/CsvTable.h"
#include "sift/UserError.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace sifter {

// A file that is no CSV. what() begins with "line N: ".
class CsvError : public UserError {
 public:
  CsvError(std::size_t line, const std::string& what)
      : UserError("line " + std::to_string(line) + ": " + what), line_(line) {}

  // The line of the file, counted from 1; cells with line ends in them take several.
  std::size_t Line() const { return line_; }

 private:
  std::size_t line_;
};

// Reads a whole file: RFC 4180 in UTF-8.
//
// A leading byte-order mark is passed over. Lines end with CR LF or LF, the last one may have no
// end. A cell in quotes may hold commas, line ends and quotes, each quote written twice. Blanks
// belong to the cell. The first record is the header. A record with fewer cells is filled up with
// empty ones; an empty line is a record too, of one empty cell.
//
// A CsvError is:
//   - a file without a header line;
//   - a record with more cells than the header (the line where the record begins);
//   - a quote inside a cell that doesn't begin with one, text behind a closing quote, a quote that
//     is never closed (the line where it opens);
//   - a CR without LF outside quotes;
//   - a byte that is no UTF-8, or a NUL: such a file is no text, or text in another encoding, and
//     reading it all the same would filter by what isn't there.
CsvTable ReadCsv(std::string_view bytes);

}  // namespace sifter
