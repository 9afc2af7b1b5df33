#include "matching/MatchedRows.h"

#include "listmodel/RowStore.h"
#include "listmodel/SharedRows.h"

#include <numeric>

namespace sifter {

namespace {

// A list that is reached through its members alone.
class MatchedLiveRows final : public MatchedRows {
 public:
  explicit MatchedLiveRows(HostListView& list) : list_(list) {}

  std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test) override {
    return sifter::FailingRows(pass, test, LiveRows(list_));
  }
  std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test) override {
    return sifter::FailingRows(pass, test, LiveRows(list_));
  }
  std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test) override {
    return sifter::FailingRows(pass, test, LiveRows(list_));
  }

  bool Remove(const std::vector<std::int32_t>& positions) override {
    const Ref<ListItemCollection> items = list_.ListItems();
    for (auto position = positions.rbegin(); position != positions.rend(); ++position)
      items->Remove(*position);
    // What the host did when it saw them go is not to be seen from here.
    return positions.empty();
  }

 private:
  HostListView& list_;
};

// A list of our own. As long as nobody else changes it, its rows' places in the cache are known.
class MatchedOwnRows final : public MatchedRows {
 public:
  MatchedOwnRows(SharedRows& list, const Conversions& conversions, ColumnCache& cache)
      : list_(list), cache_(cache) {
    Collect();
    cache_.Align(rows_, conversions);
    alignment_ = cache_.Alignment();
    cached_ = true;
  }

  std::vector<std::int32_t> FailingRows(const MatchPass& pass, TextTest test) override {
    return Test(pass, test);
  }
  std::vector<std::int32_t> FailingRows(const MatchPass& pass, NumberTest test) override {
    return Test(pass, test);
  }
  std::vector<std::int32_t> FailingRows(const MatchPass& pass, DateTest test) override {
    return Test(pass, test);
  }

  bool Remove(const std::vector<std::int32_t>& positions) override {
    const std::int32_t columns = list_.ColumnCount();
    try {
      list_.RemoveRows(positions);
    } catch (...) {
      Collect();
      throw;
    }
    const std::uint64_t changes = list_.Rows().Version() - version_;
    const bool onlyThese = (changes == 1 || changes == positions.size()) &&
                           list_.Rows().Count() == CountWithout(positions) &&
                           list_.ColumnCount() == columns;
    if (onlyThese) {
      Drop(positions);
      return true;
    }
    Collect();
    return false;
  }

 private:
  std::int32_t CountWithout(const std::vector<std::int32_t>& positions) const {
    return static_cast<std::int32_t>(rows_.size() - positions.size());
  }

  // Starts over with the rows as they are now.
  void Collect() {
    list_.Rows().CollectRows(rows_);
    places_.resize(rows_.size());
    std::iota(places_.begin(), places_.end(), 0u);
    version_ = list_.Rows().Version();
    cached_ = false;
  }

  void Drop(const std::vector<std::int32_t>& positions) {
    version_ = list_.Rows().Version();
    if (positions.empty()) return;
    std::size_t kept = static_cast<std::size_t>(positions.front()) - 1;
    std::size_t next = 0;
    for (std::size_t i = kept; i < rows_.size(); ++i) {
      if (next < positions.size() && static_cast<std::size_t>(positions[next]) == i + 1) {
        ++next;
        continue;
      }
      rows_[kept] = rows_[i];
      places_[kept++] = places_[i];
    }
    rows_.resize(kept);
    places_.resize(kept);
  }

  template <class TestKind>
  std::vector<std::int32_t> Test(const MatchPass& pass, TestKind test) {
    if (list_.Rows().Version() != version_) Collect();
    const OwnRows rows(rows_, list_.ColumnCount());
    const auto column = static_cast<std::size_t>(pass.column - 1);
    const bool inCache = cached_ && cache_.Alignment() == alignment_ && column < cache_.Columns() &&
                         (column == 0 || pass.column <= list_.ColumnCount());
    const CachedRows cached{cache_, places_};
    return sifter::FailingRows(pass, test, rows, inCache ? &cached : nullptr);
  }

  SharedRows& list_;
  ColumnCache& cache_;
  std::vector<const RowData*> rows_;
  std::vector<std::uint32_t> places_;
  std::uint64_t version_ = 0;    // of the list, when these were its rows
  std::uint64_t alignment_ = 0;  // of the cache, when it knew these places
  bool cached_ = false;
};

}  // namespace

std::unique_ptr<MatchedRows> MatchedRows::Of(HostListView& list, const Conversions& conversions,
                                             ColumnCache& cache) {
  if (SharedRows* own = list.Shared())
    return std::make_unique<MatchedOwnRows>(*own, conversions, cache);
  return std::make_unique<MatchedLiveRows>(list);
}

}  // namespace sifter
