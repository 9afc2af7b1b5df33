#include "sift/TableWriter.h"

#include "sift/DisplayWidth.h"
#include "sift/OneLine.h"

#include <algorithm>
#include <utility>

namespace sifter {

namespace {

constexpr std::size_t kGap = 2;

}  // namespace

TableWriter::TableWriter(std::span<const Text> names, std::vector<Alignment> alignments)
    : alignments_(std::move(alignments)), widths_(names.size(), 1) {
  Add(names);
}

void TableWriter::Add(std::span<const Text> cells) {
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    cells_.push_back({OnOneLine(cells[i]), DisplayWidth(cells[i])});
    widths_[i] = std::max(widths_[i], cells_.back().width);
  }
}

void TableWriter::AppendLine(std::string& out, std::span<const Cell> line) const {
  std::size_t blanks = 0;  // due before the next cell; none stand at the end of a line
  for (std::size_t i = 0; i < line.size(); ++i) {
    const std::size_t padding = widths_[i] - line[i].width;
    if (alignments_[i] == Alignment::kRight) blanks += padding;
    if (!line[i].utf8.empty()) out.append(std::exchange(blanks, 0), ' ');
    out += line[i].utf8;
    if (alignments_[i] == Alignment::kLeft) blanks += padding;
    blanks += kGap;
  }
  out += '\n';
}

void TableWriter::AppendRule(std::string& out) const {
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    if (i > 0) out.append(kGap, ' ');
    out.append(widths_[i], '-');
  }
  out += '\n';
}

std::string TableWriter::Written() const {
  std::string out;
  const std::span<const Cell> all(cells_);
  for (std::size_t at = 0; at < all.size(); at += widths_.size()) {
    AppendLine(out, all.subspan(at, widths_.size()));
    if (at == 0) AppendRule(out);
  }
  return out;
}

}  // namespace sifter
