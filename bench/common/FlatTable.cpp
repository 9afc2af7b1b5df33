#include "common/FlatTable.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace sifter::bench {

FlatTable::FlatTable(HostListView& list)
    : columns_(static_cast<std::size_t>(list.ColumnHeaders()->Count())) {
  const Ref<ListItemCollection> items = list.ListItems();
  const std::int32_t count = items->Count();
  std::vector<std::size_t> begins;
  for (std::int32_t i = 1; i <= count; ++i) {
    const Ref<ListItem> item = items->Item(i);
    const std::size_t begin = units_.size();
    begins.push_back(begin);
    units_.resize(begin + columns_);
    for (std::size_t column = 0; column < columns_; ++column) {
      const Text cell =
          ValueToText(column == 0 ? item->Text() : item->SubItems(static_cast<int>(column)));
      units_.insert(units_.end(), cell.View().begin(), cell.View().end());
      const std::size_t end = units_.size() - begin - columns_;
      if (end > std::numeric_limits<char16_t>::max())
        throw std::length_error("a row of a flat table holds up to 65535 units");
      units_[begin + column] = static_cast<char16_t>(end);
    }
  }
  for (const std::size_t begin : begins) rows_.push_back(units_.data() + begin);
}

std::uint32_t FlatTable::NumberOf(Row row) const {
  return static_cast<std::uint32_t>(std::lower_bound(rows_.begin(), rows_.end(), row) -
                                    rows_.begin());
}

}  // namespace sifter::bench
