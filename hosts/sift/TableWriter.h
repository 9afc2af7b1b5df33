#pragma once

#include "base/Text.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace sifter {

enum class Alignment { kLeft, kRight };

// A table for reading: columns as wide as their widest cell, two blanks between them, a line under
// the header. Line ends and other control characters stand in the cells as signs (OnOneLine).
class TableWriter {
 public:
  // The names and alignments of the columns, as many of one as of the other.
  TableWriter(std::span<const Text> names, std::vector<Alignment> alignments);

  // A line with as many cells as there are columns.
  void Add(std::span<const Text> cells);

  // The whole table in UTF-8, each line with a line feed.
  std::string Written() const;

 private:
  struct Cell {
    std::string utf8;
    std::size_t width;  // in columns of the terminal
  };

  void AppendLine(std::string& out, std::span<const Cell> line) const;
  void AppendRule(std::string& out) const;

  std::vector<Alignment> alignments_;
  std::vector<std::size_t> widths_;
  std::vector<Cell> cells_;  // line by line, the names first
};

}  // namespace sifter
