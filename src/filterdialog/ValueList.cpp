#include "filterdialog/ValueList.h"

#include "base/RuntimeError.h"
#include "listmodel/RowStore.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace sifter {

namespace {

// Tells which texts have been seen, without an allocation for each: a table of places in `values`,
// in which a text stands at its hash or behind it.
class SeenTexts {
 public:
  explicit SeenTexts(std::vector<Text>& values) : values_(values), slots_(kLeastSlots) {}

  // Appends `text` to the values unless it is among those that were appended before.
  void Add(const Text& text) {
    const std::size_t hash = std::hash<Text>()(text);
    std::size_t at = hash & (slots_.size() - 1);
    for (; slots_[at].number != 0; at = (at + 1) & (slots_.size() - 1))
      if (slots_[at].hash == hash && values_[slots_[at].number - 1] == text) return;
    values_.push_back(text);
    slots_[at] = {hash, values_.size()};
    if (++count_ * 2 > slots_.size()) Grow();
  }

 private:
  struct Slot {
    std::size_t hash = 0;
    std::size_t number = 0;  // of the value, from 1; 0 in a free slot
  };

  static constexpr std::size_t kLeastSlots = 64;  // a power of two, as all their numbers are

  void Grow() {
    std::vector<Slot> grown(slots_.size() * 4);
    for (const Slot& slot : slots_) {
      if (slot.number == 0) continue;
      std::size_t at = slot.hash & (grown.size() - 1);
      while (grown[at].number != 0) at = (at + 1) & (grown.size() - 1);
      grown[at] = slot;
    }
    slots_ = std::move(grown);
  }

  std::vector<Text>& values_;
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

}  // namespace

void CollectDistinctValues(ListViewDump& list, std::int32_t column, std::vector<Text>& values) {
  const RowStore& rows = list.Shared()->Rows();
  const auto cell = static_cast<std::size_t>(column);
  SeenTexts seen(values);
  for (std::int32_t i = 1; i <= rows.Count(); ++i) {
    const RowData& row = rows.At(i);
    if (cell > row.CellCount()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    const Text& value = row.ColumnText(cell);
    if (!value.IsEmpty()) seen.Add(value);
  }
}

}  // namespace sifter
