#pragma once

#include "base/Text.h"
#include "listmodel/GapBuffer.h"
#include "listmodel/RowData.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace sifter {

class RowStore;

namespace detail {

// Stands in a store in the place of a row that somebody holds a handle to.
struct RowNode {
  RowPtr row;
  RowStore* store;   // null once the row has left its store
  std::size_t hint;  // where the row stood when last looked for, 0-based
  std::uint32_t handles = 0;
  std::optional<Text> collectionKey;  // when it isn't the row's Key field
};

}  // namespace detail

// Holds on to one row of a store while rows come and go around it. Reading and writing go on to
// work after the row or the whole store has gone; nobody else sees such a write.
class RowHandle {
 public:
  RowHandle(const RowHandle& other) noexcept;
  RowHandle& operator=(RowHandle other) noexcept;
  ~RowHandle();

  const RowData& Row() const noexcept { return *node_->row; }
  const RowPtr& Shared() const noexcept { return node_->row; }
  RowData& Edit() const;
  void ReplaceRow(RowPtr row) const;

  // Writes the row's Key field. With `reindex` the row is also found under the new key from now
  // on (error 457 when another row has it); without, it stays under the key it came with.
  void SetKey(Text key, bool reindex) const;

  // 1-based; 0 when the row has left its store.
  std::int32_t Position() const noexcept;

  friend bool operator==(const RowHandle& a, const RowHandle& b) = default;

 private:
  friend class RowStore;
  explicit RowHandle(detail::RowNode* node) noexcept : node_(node) { ++node_->handles; }

  detail::RowNode* node_;
};

// An ordered collection of rows, some of them under a key. The rows of the snapshots and of the
// in-memory list live in one of these each.
//
// Positions are 1-based. A position outside the collection is error 9, a key that isn't there
// error 5, a key that is taken error 457; after an error the store is as it was before.
class RowStore {
 public:
  RowStore() = default;
  RowStore(const RowStore&) = delete;
  RowStore& operator=(const RowStore&) = delete;
  ~RowStore();

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(rows_.Size()); }
  const RowData& At(std::int32_t position) const;
  RowHandle HandleAt(std::int32_t position);
  std::int32_t PositionOfKey(const Text& key);

  // Inserts at `position`, 1 to Count() + 1, under the row's Key field when that isn't empty.
  void Insert(std::int32_t position, RowPtr row);
  void Append(RowPtr row) { Insert(Count() + 1, std::move(row)); }

  void Remove(std::int32_t position);

  // Removes the rows at these positions, which must be ascending and in range, in one go.
  void RemoveAscending(const std::vector<std::int32_t>& positions);

  void Clear() noexcept;
  void Reserve(std::int32_t count) { rows_.Reserve(static_cast<std::size_t>(count)); }

  // Puts the rows in the order that `order` gives: old positions, each once.
  void Reorder(const std::vector<std::int32_t>& order);

  // True when every row's collection key is its Key field, so that the Key fields are unique and
  // the rows can all be shared with another store.
  bool KeysArePlain() const noexcept { return oddKeys_ == 0; }

  // Appends a row of another store, shared. The caller vouches for its key being free here: the
  // rows come from one store with plain keys, and this one was empty before the first of them.
  void AppendShared(const RowData& row);

  // Makes these the rows. Their keys must be unique. The version moves further than single changes
  // could move it, so that nobody who counts changes takes this for changes of their own.
  void Assign(std::vector<RowPtr> rows);

  // Changes with every change of the rows, their order or their content.
  std::uint64_t Version() const noexcept { return version_; }

  // All rows in order, valid until the next change.
  void CollectRows(std::vector<const RowData*>& rows) const;

 private:
  friend class RowHandle;

  // A row, or (with the lowest bit set) the node of a row with handles.
  using Entry = std::uintptr_t;

  static Entry EntryOf(RowData* row) noexcept { return reinterpret_cast<Entry>(row); }
  static Entry EntryOf(detail::RowNode* node) noexcept { return reinterpret_cast<Entry>(node) | 1; }
  static detail::RowNode* NodeOf(Entry entry) noexcept {
    return (entry & 1) != 0 ? reinterpret_cast<detail::RowNode*>(entry & ~Entry{1}) : nullptr;
  }
  static const RowData* RowOf(Entry entry) noexcept {
    const detail::RowNode* node = NodeOf(entry);
    return node != nullptr ? node->row.Get() : reinterpret_cast<const RowData*>(entry);
  }
  static const Text& CollectionKeyOf(Entry entry) noexcept;

  std::size_t Checked(std::int32_t position) const;
  std::size_t IndexOf(detail::RowNode* node) const noexcept;
  void Forget(detail::RowNode* node) noexcept;
  void Release(Entry entry) noexcept;
  void ReleaseAll(std::span<const Entry> entries) noexcept;
  void SetKey(detail::RowNode* node, Text key, bool reindex);
  void BuildKeyIndex();
  bool FindNear(const Text& key, std::size_t& index) const noexcept;
  void RequireFreeKey(const Text& key);
  void DropKey(const Text& key) noexcept;

  GapBuffer<Entry> rows_;
  std::unordered_map<Text, std::size_t> keys_;  // to where the row was when last looked for
  bool keysIndexed_ = true;  // false while rows have been appended without looking at their keys
  std::int32_t oddKeys_ = 0;
  std::uint64_t version_ = 0;
};

}  // namespace sifter
