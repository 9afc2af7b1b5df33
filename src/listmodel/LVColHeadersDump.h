#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "base/Value.h"

#include <cstdint>
#include <vector>

namespace sifter {

class LVItemsDump;

// One column of a snapshot.
struct LVColHeaderDump final : Object {
  sifter::Text text;
  std::int16_t width = 0;
  std::int16_t alignment = 0;
  std::int16_t icon = 0;

  const sifter::Text& Text() const { return text; }
  std::int16_t Width() const { return width; }
  std::int16_t Alignment() const { return alignment; }
  std::int16_t Icon() const { return icon; }

  // The key that the column is stored under, "" when none, so that a host whose list has lost
  // its columns gets them back whole.
  const sifter::Text& Key() const { return key; }

 private:
  friend class LVColHeadersDump;
  sifter::Text key;
};

// The columns of a snapshot: an ordered collection, 1-based, some columns under a key. Errors are
// those of LVItemsDump.
class LVColHeadersDump final : public Object {
 public:
  std::int32_t Count() const { return static_cast<std::int32_t>(columns_.size()); }
  Ref<LVColHeaderDump> Item(const Value& positionOrKey) const;

  // Taking columns away leaves the rows' cells as they are.
  void Remove(const Value& positionOrKey);
  void Clear();

  // Appends the column, under `key` when that isn't empty; with `index` >= 1 inserts it behind
  // position `index`, without a key (beyond the last position: error 9). Every stored row then has
  // its number of cells set for the new number of columns; an error from that reaches the caller
  // with the column stored.
  //
  // The width is cut to a whole number, alignment and icon are rounded; out of 16 bits is error 6
  // and stores nothing. An icon that is no number (the key of a picture) is stored as 0.
  Ref<LVColHeaderDump> Add(std::int32_t index, const Value& key, const Value& text,
                           const Value& width, const Value& alignment, const Value& icon);

  // Enumeration in collection order, for range loops. Columns may go meanwhile.
  class Enumerator {
   public:
    explicit Enumerator(Ref<LVColHeadersDump> columns) : columns_(std::move(columns)) {}
    Ref<LVColHeaderDump> operator*() const { return columns_->Item(position_); }
    Enumerator& operator++() {
      ++position_;
      return *this;
    }
    struct End {};
    bool operator==(End) const { return position_ > columns_->Count(); }

   private:
    Ref<LVColHeadersDump> columns_;
    std::int32_t position_ = 1;
  };
  Enumerator begin() { return Enumerator(Ref<LVColHeadersDump>(this)); }
  Enumerator::End end() { return {}; }

 private:
  friend class ListViewDump;

  std::size_t IndexOf(const Value& positionOrKey) const;
  const Ref<LVColHeaderDump>* Find(const Text& key) const;

  std::vector<Ref<LVColHeaderDump>> columns_;
  LVItemsDump* mpLVItems = nullptr;  // the sibling; null once it has ended
};

}  // namespace sifter
