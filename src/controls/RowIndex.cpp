#include "controls/RowIndex.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>

namespace sifter {

bool SameRow(const RowData& given, const RowData& listed) {
  if (&given == &listed) return true;
  const RowExtras& a = given.Extras();
  const RowExtras& b = listed.Extras();
  if (given.ColumnText(0) != listed.ColumnText(0) || a.key != b.key || a.tag != b.tag ||
      !(a.icon == b.icon) || !(a.smallIcon == b.smallIcon) || a.toolTipText != b.toolTipText ||
      given.CellCount() < listed.CellCount())
    return false;
  for (std::size_t j = 1; j <= listed.CellCount(); ++j)
    if (given.ColumnText(j) != listed.ColumnText(j)) return false;
  if (!given.HasCellExtras() && !listed.HasCellExtras()) return true;
  for (std::size_t j = 1; j <= listed.CellCount(); ++j) {
    const CellExtras first = given.Cell(j);
    const CellExtras second = listed.Cell(j);
    if (first.key != second.key || first.tag != second.tag ||
        !(first.reportIcon == second.reportIcon))
      return false;
  }
  return true;
}

namespace {

// The table takes the lowest bits, so every bit of the hash has to reach them.
std::size_t Mixed(std::size_t hash) {
  std::uint64_t bits = hash;
  bits = (bits ^ bits >> 32) * 0x9E3779B97F4A7C15u;
  return static_cast<std::size_t>(bits ^ bits >> 29);
}

// Rows that are the same have the same hash, when it is taken over as many cells.
std::size_t Hash(const RowData& row, std::size_t cells) {
  const std::hash<Text> hash;
  std::size_t combined = cells;
  const auto add = [&](const Text& text) { combined = combined * 1000003 ^ hash(text); };
  for (std::size_t column = 0; column <= cells; ++column) add(row.ColumnText(column));
  add(row.Extras().key);
  add(row.Extras().tag);
  return Mixed(combined);
}

}  // namespace

RowIndex::RowIndex(ListViewDump& dump) : rows_(dump.Shared()->Rows()) {
  const auto count = static_cast<std::size_t>(rows_.Count());
  chains_.resize(std::bit_ceil(2 * count + 2));
  links_.reserve(count);
  Update();
}

// The chain of a hash, or the empty place for it.
RowIndex::Chain& RowIndex::ChainOf(std::size_t hash) {
  std::size_t at = hash & (chains_.size() - 1);
  while (chains_[at].last != 0 && chains_[at].hash != hash) at = (at + 1) & (chains_.size() - 1);
  return chains_[at];
}

void RowIndex::Grow() {
  std::vector<Chain> old(chains_.size() * 2);
  old.swap(chains_);
  for (const Chain& chain : old)
    if (chain.last != 0) ChainOf(chain.hash) = chain;
}

void RowIndex::Insert(Position position) {
  const RowData& row = rows_.At(position);
  const std::size_t cells = row.CellCount();
  if (std::find(cellCounts_.begin(), cellCounts_.end(), cells) == cellCounts_.end())
    cellCounts_.push_back(cells);
  links_.push_back({0, false});
  const std::size_t hash = Hash(row, cells);
  Chain& chain = ChainOf(hash);
  if (chain.last != 0) {
    LinkOf(chain.last).next = position;
    if (chain.first == 0) chain.first = position;
    chain.last = position;
    return;
  }
  chain = {hash, position, position};
  if (++used_ * 2 > chains_.size()) Grow();
}

void RowIndex::Update() {
  while (static_cast<Position>(links_.size()) < rows_.Count())
    Insert(static_cast<Position>(links_.size()) + 1);
}

std::int32_t RowIndex::PositionOf(const RowData& given) {
  Position first = 0;
  for (const std::size_t cells : cellCounts_) {
    if (cells > given.CellCount()) continue;
    Chain& chain = ChainOf(Hash(given, cells));
    if (chain.last == 0) continue;
    while (chain.first != 0 && LinkOf(chain.first).taken) chain.first = LinkOf(chain.first).next;
    for (Position position = chain.first; position != 0; position = LinkOf(position).next) {
      if (LinkOf(position).taken || !SameRow(given, rows_.At(position))) continue;
      first = first == 0 ? position : std::min(first, position);
      break;
    }
  }
  return first;
}

void RowIndex::Take(std::int32_t position) { LinkOf(position).taken = true; }

}  // namespace sifter
