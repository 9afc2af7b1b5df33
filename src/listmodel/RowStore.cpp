#include "listmodel/RowStore.h"

#include "base/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace sifter {

RowHandle::RowHandle(const RowHandle& other) noexcept : RowHandle(other.node_) {}

RowHandle& RowHandle::operator=(RowHandle other) noexcept {
  std::swap(node_, other.node_);
  return *this;
}

RowHandle::~RowHandle() {
  if (--node_->handles > 0) return;
  if (node_->store != nullptr)
    node_->store->Forget(node_);
  else
    delete node_;
}

RowData& RowHandle::Edit() const {
  if (node_->store != nullptr) ++node_->store->version_;
  return node_->row.Edit();
}

void RowHandle::ReplaceRow(RowPtr row) const {
  if (node_->store != nullptr) ++node_->store->version_;
  node_->row = std::move(row);
}

void RowHandle::SetKey(Text key, bool reindex) const {
  if (node_->store != nullptr) {
    node_->store->SetKey(node_, std::move(key), reindex);
  } else if (key != Row().Extras().key) {
    node_->row.Edit().EditExtras().key = std::move(key);
  }
}

std::int32_t RowHandle::Position() const noexcept {
  if (node_->store == nullptr) return 0;
  return static_cast<std::int32_t>(node_->store->IndexOf(node_)) + 1;
}

RowStore::~RowStore() { Clear(); }

const Text& RowStore::CollectionKeyOf(Entry entry) noexcept {
  const detail::RowNode* node = NodeOf(entry);
  return node != nullptr && node->collectionKey ? *node->collectionKey : RowOf(entry)->Extras().key;
}

std::size_t RowStore::Checked(std::int32_t position) const {
  if (position < 1 || position > Count()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return static_cast<std::size_t>(position) - 1;
}

const RowData& RowStore::At(std::int32_t position) const {
  return *RowOf(rows_[Checked(position)]);
}

RowHandle RowStore::HandleAt(std::int32_t position) {
  const std::size_t index = Checked(position);
  Entry& entry = rows_[index];
  if (detail::RowNode* node = NodeOf(entry)) {
    node->hint = index;
    return RowHandle(node);
  }
  auto* row = reinterpret_cast<RowData*>(entry);
  auto* node = new detail::RowNode{RowPtr::Adopt(row), this, index, 0, std::nullopt};
  entry = EntryOf(node);
  return RowHandle(node);
}

// Rows mostly stay near where they were last seen, so the search goes outward from there.
std::size_t RowStore::IndexOf(detail::RowNode* node) const noexcept {
  const Entry wanted = EntryOf(node);
  const std::size_t size = rows_.Size();
  const std::size_t start = std::min(node->hint, size - 1);
  for (std::size_t step = 0; step < size; ++step) {
    if (step <= start && rows_[start - step] == wanted) return node->hint = start - step;
    if (start + step < size && rows_[start + step] == wanted) return node->hint = start + step;
  }
  return node->hint = 0;
}

// The last handle has gone: the row stands in the store by itself again, unless it has a key that
// only the node can hold or has moved since it was last looked for.
void RowStore::Forget(detail::RowNode* node) noexcept {
  if (node->collectionKey || node->hint >= rows_.Size() || rows_[node->hint] != EntryOf(node))
    return;
  rows_[node->hint] = EntryOf(node->row.Release());
  delete node;
}

void RowStore::Release(Entry entry) noexcept {
  detail::RowNode* node = NodeOf(entry);
  if (node == nullptr) {
    RowPtr::Adopt(reinterpret_cast<RowData*>(entry));
    return;
  }
  if (node->collectionKey) --oddKeys_;
  node->store = nullptr;
  if (node->handles == 0) delete node;
}

void RowStore::BuildKeyIndex() {
  if (keysIndexed_) return;
  keys_.clear();
  for (std::size_t i = 0; i < rows_.Size(); ++i) {
    const Text& key = CollectionKeyOf(rows_[i]);
    if (!key.IsEmpty()) keys_.emplace(key, i);
  }
  keysIndexed_ = true;
}

void RowStore::RequireFreeKey(const Text& key) {
  BuildKeyIndex();
  if (keys_.contains(key)) throw RuntimeError(ErrorNumber::kDuplicateKey);
}

void RowStore::DropKey(const Text& key) noexcept {
  if (keysIndexed_ && !key.IsEmpty()) keys_.erase(key);
}

// A row that has moved a little is found beside where it was last seen. Otherwise all places are
// taken down anew, so that looking up every key after many removals takes one more pass only.
std::int32_t RowStore::PositionOfKey(const Text& key) {
  BuildKeyIndex();
  auto found = keys_.find(key);
  if (key.IsEmpty() || found == keys_.end()) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  if (!FindNear(key, found->second)) {
    keysIndexed_ = false;
    BuildKeyIndex();
    found = keys_.find(key);
  }
  return static_cast<std::int32_t>(found->second) + 1;
}

bool RowStore::FindNear(const Text& key, std::size_t& index) const noexcept {
  constexpr std::size_t kReach = 64;
  for (std::size_t step = 0; step <= kReach; ++step) {
    // In front of the first row the place wraps round to one behind the last.
    for (const std::size_t place : {index - step, index + step}) {
      if (place >= rows_.Size() || CollectionKeyOf(rows_[place]) != key) continue;
      index = place;
      return true;
    }
  }
  return false;
}

void RowStore::Insert(std::int32_t position, RowPtr row) {
  if (position < 1 || position > Count() + 1) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  const auto index = static_cast<std::size_t>(position) - 1;
  const Text& key = row->Extras().key;
  if (!key.IsEmpty()) RequireFreeKey(key);
  // Memory may run out up to the second of these lines, the others can't fail.
  rows_.MakeRoom();
  if (!key.IsEmpty()) keys_.emplace(key, index);
  rows_.Insert(index, EntryOf(row.Release()));
  ++version_;
}

void RowStore::AppendShared(const RowData& row) {
  rows_.MakeRoom();
  if (!row.Extras().key.IsEmpty()) keysIndexed_ = false;
  rows_.Append(EntryOf(RowPtr::Share(&row).Release()));
  ++version_;
}

void RowStore::SetKey(detail::RowNode* node, Text key, bool reindex) {
  const Text field = node->row->Extras().key;
  const Text storedAs = node->collectionKey.value_or(field);
  const bool moves = reindex && key != storedAs;
  if (moves && !key.IsEmpty()) RequireFreeKey(key);
  // Memory may run out in these two lines, what follows can't fail.
  if (key != field) node->row.Edit().EditExtras();
  if (moves && !key.IsEmpty()) keys_.emplace(key, IndexOf(node));
  if (moves) DropKey(storedAs);
  const bool wasOdd = node->collectionKey.has_value();
  node->collectionKey.reset();
  if (!reindex && key != storedAs) node->collectionKey = storedAs;
  oddKeys_ += (node->collectionKey ? 1 : 0) - (wasOdd ? 1 : 0);
  if (key == field) return;
  node->row.Edit().EditExtras().key = std::move(key);
  ++version_;
}

void RowStore::Remove(std::int32_t position) {
  const std::size_t index = Checked(position);
  const Entry entry = rows_[index];
  DropKey(CollectionKeyOf(entry));
  rows_.Remove(index);
  ++version_;
  Release(entry);
}

void RowStore::RemoveAscending(const std::vector<std::int32_t>& positions) {
  if (positions.empty()) return;
  const std::span<Entry> rows = rows_.Contiguous();
  std::vector<Entry> removed;
  removed.reserve(positions.size());
  std::size_t kept = static_cast<std::size_t>(positions.front()) - 1;
  std::size_t next = 0;
  for (std::size_t i = kept; i < rows.size(); ++i) {
    const Entry entry = rows[i];
    if (next < positions.size() && static_cast<std::size_t>(positions[next]) == i + 1) {
      ++next;
      if (!keys_.empty()) DropKey(CollectionKeyOf(entry));
      removed.push_back(entry);
    } else {
      rows[kept++] = entry;
    }
  }
  rows_.Truncate(kept);
  ++version_;
  ReleaseAll(removed);
}

// The rows lie scattered over the heap, and each is touched once for its count of shares: fetching
// ahead is what a long list's way through the processor's caches costs least by.
void RowStore::ReleaseAll(std::span<const Entry> entries) noexcept {
  constexpr std::size_t kAhead = 16;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (i + kAhead < entries.size())
      __builtin_prefetch(reinterpret_cast<const void*>(entries[i + kAhead] & ~Entry{1}), 1);
    Release(entries[i]);
  }
}

void RowStore::Clear() noexcept {
  // A row may hold the last share of an object of the host's, whose end may call back in here.
  GapBuffer<Entry> rows = std::exchange(rows_, GapBuffer<Entry>());
  keys_.clear();
  keysIndexed_ = true;
  ++version_;
  ReleaseAll(rows.BeforeGap());
  ReleaseAll(rows.BehindGap());
  // A list that is cleared is mostly filled again with as many rows.
  rows.Truncate(0);
  if (rows_.Size() == 0) rows_ = std::move(rows);
}

void RowStore::Assign(std::vector<RowPtr> rows) {
  GapBuffer<Entry> entries;
  entries.Reserve(rows.size());
  for (RowPtr& row : rows) entries.Append(EntryOf(row.Release()));
  Clear();
  rows_ = std::move(entries);
  keysIndexed_ = false;
  version_ += std::uint64_t{1} << 32;
}

void RowStore::Reorder(const std::vector<std::int32_t>& order) {
  const std::span<Entry> rows = rows_.Contiguous();
  const std::vector<Entry> before(rows.begin(), rows.end());
  for (std::size_t i = 0; i < rows.size(); ++i)
    rows[i] = before[static_cast<std::size_t>(order[i]) - 1];
  ++version_;
}

void RowStore::CollectRows(std::vector<const RowData*>& rows) const {
  rows.clear();
  rows.reserve(rows_.Size());
  for (const Entry entry : rows_.BeforeGap()) rows.push_back(RowOf(entry));
  for (const Entry entry : rows_.BehindGap()) rows.push_back(RowOf(entry));
}

}  // namespace sifter
