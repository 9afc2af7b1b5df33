#pragma once

#include "base/Ref.h"
#include "base/Value.h"
#include "listmodel/LVItemDump.h"
#include "listmodel/RowStore.h"

#include <cstdint>

namespace sifter {

class LVColHeadersDump;

// The rows of a snapshot: an ordered collection, 1-based, some rows under a key. A position that
// doesn't exist is error 9, a key that isn't there error 5, a taken key error 457; a text is
// always a key, even "2". After an error the collection is as it was before.
class LVItemsDump final : public Object {
 public:
  std::int32_t Count() const { return rows_.Count(); }
  Ref<LVItemDump> Item(const Value& positionOrKey);
  void Remove(const Value& positionOrKey);
  void Clear();

  // A row with an empty cell for every column but the first. With a key it is appended under that
  // key, whatever `index` says; without, it is inserted at position `index`, and appended when
  // `index` is below 1 or Count() + 1. Beyond that is error 9.
  Ref<LVItemDump> Add(std::int32_t index, const Value& key, const Value& text, const Value& icon,
                      const Value& smallIcon);

  // SetSubItemNum(num) on every row in order; an error ends it there.
  void SetItemSubItemNum(std::int32_t num);

  // Enumeration in collection order, for range loops. Rows may go meanwhile.
  class Enumerator {
   public:
    explicit Enumerator(Ref<LVItemsDump> items) : items_(std::move(items)) {}
    Ref<LVItemDump> operator*() const { return items_->Item(position_); }
    Enumerator& operator++() {
      ++position_;
      return *this;
    }
    struct End {};
    bool operator==(End) const { return position_ > items_->Count(); }

   private:
    Ref<LVItemsDump> items_;
    std::int32_t position_ = 1;
  };
  Enumerator begin() { return Enumerator(Ref<LVItemsDump>(this)); }
  Enumerator::End end() { return {}; }

 private:
  friend class ListViewDump;

  std::int32_t Position(const Value& positionOrKey);

  RowStore rows_;
  LVColHeadersDump* mpColHeaders = nullptr;  // the sibling; null once it has ended
};

}  // namespace sifter
