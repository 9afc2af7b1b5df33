#include "base/RuntimeError.h"
#include "listmodel/RowStore.h"
#include "support/Errors.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <numeric>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

// RowStore against the plainest thing that does the same: a vector of rows in which keys are looked
// for one by one. Two stores at a time, which share rows with each other, and handles to the rows
// of both, through long random sequences.

namespace sifter {

namespace {

struct ModelRow {
  std::int32_t id;
  Text text;
  Text key;       // the Key field
  Text storedAs;  // the key that the row is found under
};

using ModelRows = std::vector<std::shared_ptr<ModelRow>>;

struct Side {
  std::unique_ptr<RowStore> store = std::make_unique<RowStore>();
  ModelRows rows;
};

struct Held {
  RowHandle handle;
  std::shared_ptr<ModelRow> row;
};

std::int32_t PositionIn(const ModelRows& rows, const Text& key) {
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (!key.IsEmpty() && rows[i]->storedAs == key) return static_cast<std::int32_t>(i) + 1;
  return 0;
}

std::int32_t IdOf(const RowData& row) { return row.ForeColor(); }

class RandomWalk {
 public:
  explicit RandomWalk(unsigned seed) : random_(seed) {}

  void Step() {
    Side& side = sides_[Below(2)];
    switch (Below(24)) {
      case 0:
      case 1:
      case 2:
      case 3:
      case 4:
        Insert(side);
        break;
      case 5:
      case 6:
        Remove(side);
        break;
      case 7:
        RemoveSome(side);
        break;
      case 8:
        Reorder(side);
        break;
      case 9:
        ShareAll(side);
        break;
      case 10:
      case 11:
        Hold(side);
        break;
      case 12:
        LetGo();
        break;
      case 13:
      case 14:
        EditHeld();
        break;
      case 15:
      case 16:
        EditInPassing(side);
        break;
      case 17:
        SetKey(side, true);
        break;
      case 18:
        SetKey(side, false);
        break;
      case 19:
      case 20:
        LookUp(side);
        break;
      case 21:
        CopyHandle();
        break;
      case 22:
        if (Below(40) == 0) Empty(side);
        break;
      default:
        InsertBadly(side);
    }
  }

  void CheckEverything() const {
    for (const Side& side : sides_) Check(side);
    for (const Held& held : held_) Check(held);
  }

  std::size_t RowsSeen() const { return rowsSeen_; }

 private:
  std::size_t Below(std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_);
  }

  std::int32_t AnyPosition(const Side& side) {
    return static_cast<std::int32_t>(Below(side.rows.size())) + 1;
  }

  // Few enough for many to be taken.
  Text AnyKey() {
    return Below(3) == 0 ? Text() : IntegerToText(static_cast<std::int64_t>(Below(150)));
  }

  std::shared_ptr<ModelRow> NewModelRow() {
    const Text key = AnyKey();
    ++lastId_;
    return std::make_shared<ModelRow>(ModelRow{lastId_, IntegerToText(lastId_), key, key});
  }

  static RowPtr RowLike(const ModelRow& model) {
    RowPtr row = RowData::Make(1, model.id);
    row.Edit().SetColumnText(0, model.text);
    if (!model.key.IsEmpty()) row.Edit().EditExtras().key = model.key;
    return row;
  }

  void Insert(Side& side) {
    const std::shared_ptr<ModelRow> model = NewModelRow();
    const auto index = Below(2) == 0 ? side.rows.size() : Below(side.rows.size() + 1);
    const auto position = static_cast<std::int32_t>(index) + 1;
    const bool taken = PositionIn(side.rows, model->key) != 0;
    const std::uint64_t version = side.store->Version();
    EXPECT_EQ(ErrorOf([&] { side.store->Insert(position, RowLike(*model)); }),
              taken ? kTakenKeyError : "nothing");
    EXPECT_EQ(side.store->Version() != version, !taken);
    if (!taken) side.rows.insert(side.rows.begin() + static_cast<std::ptrdiff_t>(index), model);
  }

  void InsertBadly(Side& side) {
    const std::int32_t count = side.store->Count();
    const std::int32_t position = Below(2) == 0 ? 0 : count + 2;
    const std::shared_ptr<ModelRow> model = NewModelRow();
    EXPECT_EQ(ErrorOf([&] { side.store->Insert(position, RowLike(*model)); }), kBadPositionError);
  }

  void Remove(Side& side) {
    if (side.rows.empty()) return;
    const std::int32_t position = AnyPosition(side);
    side.store->Remove(position);
    RemoveFromModel(side, position);
  }

  static void RemoveFromModel(Side& side, std::int32_t position) {
    side.rows.erase(side.rows.begin() + (position - 1));
  }

  void RemoveSome(Side& side) {
    std::vector<std::int32_t> positions;
    const std::size_t rarity = 2 + Below(30);
    for (std::size_t i = 0; i < side.rows.size(); ++i)
      if (Below(rarity) == 0) positions.push_back(static_cast<std::int32_t>(i) + 1);
    side.store->RemoveAscending(positions);
    for (auto position = positions.rbegin(); position != positions.rend(); ++position)
      RemoveFromModel(side, *position);
  }

  void Reorder(Side& side) {
    std::vector<std::int32_t> order(side.rows.size());
    std::iota(order.begin(), order.end(), 1);
    std::shuffle(order.begin(), order.end(), random_);
    side.store->Reorder(order);
    ModelRows rows;
    for (const std::int32_t old : order)
      rows.push_back(side.rows[static_cast<std::size_t>(old - 1)]);
    side.rows = rows;
  }

  // The other store becomes a copy of this one.
  void ShareAll(Side& side) {
    if (!side.store->KeysArePlain()) return;
    Side& other = &side == &sides_[0] ? sides_[1] : sides_[0];
    Empty(other);
    for (std::int32_t i = 1; i <= side.store->Count(); ++i)
      other.store->AppendShared(side.store->At(i));
    for (const std::shared_ptr<ModelRow>& row : side.rows)
      other.rows.push_back(std::make_shared<ModelRow>(*row));
  }

  // By clearing the store or by ending it and beginning anew.
  void Empty(Side& side) {
    if (Below(2) == 0)
      side.store->Clear();
    else
      side.store = std::make_unique<RowStore>();
    side.rows.clear();
  }

  void Hold(Side& side) {
    if (side.rows.empty()) return;
    const std::int32_t position = AnyPosition(side);
    held_.push_back(
        {side.store->HandleAt(position), side.rows[static_cast<std::size_t>(position) - 1]});
  }

  void CopyHandle() {
    if (held_.empty()) return;
    const Held held = held_[Below(held_.size())];
    held_[Below(held_.size())] = held;
  }

  void LetGo() {
    if (held_.size() < 20) return;
    for (int i = 0; i < 10; ++i)
      held_.erase(held_.begin() + static_cast<std::ptrdiff_t>(Below(held_.size())));
  }

  void Edit(const RowHandle& handle, ModelRow& row) {
    row.text = IntegerToText(static_cast<std::int64_t>(Below(1000)));
    handle.Edit().SetColumnText(0, row.text);
  }

  void EditHeld() {
    if (held_.empty()) return;
    const Held& held = held_[Below(held_.size())];
    Edit(held.handle, *held.row);
  }

  void EditInPassing(Side& side) {
    if (side.rows.empty()) return;
    const std::int32_t position = AnyPosition(side);
    Edit(side.store->HandleAt(position), *side.rows[static_cast<std::size_t>(position) - 1]);
  }

  void SetKey(Side& side, bool reindex) {
    if (side.rows.empty() || (!reindex && Below(20) != 0)) return;
    const std::int32_t position = AnyPosition(side);
    ModelRow& row = *side.rows[static_cast<std::size_t>(position) - 1];
    const Text key = AnyKey();
    const std::int32_t holder = PositionIn(side.rows, key);
    const bool taken = reindex && holder != 0 && holder != position;
    EXPECT_EQ(ErrorOf([&] { side.store->HandleAt(position).SetKey(key, reindex); }),
              taken ? kTakenKeyError : "nothing");
    if (taken) return;
    row.key = key;
    if (reindex) row.storedAs = key;
  }

  void LookUp(Side& side) {
    const Text key = AnyKey();
    const std::int32_t expected = PositionIn(side.rows, key);
    std::int32_t position = 0;
    EXPECT_EQ(ErrorOf([&] { position = side.store->PositionOfKey(key); }),
              expected == 0 ? kBadKeyError : "nothing");
    EXPECT_EQ(position, expected);
  }

  void Check(const Side& side) const {
    RowStore& store = *side.store;
    ASSERT_EQ(store.Count(), static_cast<std::int32_t>(side.rows.size()));
    std::vector<const RowData*> collected;
    store.CollectRows(collected);
    ASSERT_EQ(collected.size(), side.rows.size());
    bool plain = true;
    for (std::size_t i = 0; i < side.rows.size(); ++i) {
      const ModelRow& model = *side.rows[i];
      const auto position = static_cast<std::int32_t>(i) + 1;
      const RowData& row = store.At(position);
      ASSERT_EQ(collected[i], &row);
      ASSERT_EQ(IdOf(row), model.id);
      ASSERT_EQ(row.ColumnText(0), model.text);
      ASSERT_EQ(row.Extras().key, model.key);
      if (!model.storedAs.IsEmpty()) {
        ASSERT_EQ(store.PositionOfKey(model.storedAs), position);
      }
      plain = plain && model.key == model.storedAs;
    }
    EXPECT_EQ(store.KeysArePlain(), plain);
    rowsSeen_ += side.rows.size();
  }

  void Check(const Held& held) const {
    ASSERT_EQ(IdOf(held.handle.Row()), held.row->id);
    ASSERT_EQ(held.handle.Row().ColumnText(0), held.row->text);
    std::int32_t position = 0;
    for (const Side& side : sides_) {
      const auto found = std::find(side.rows.begin(), side.rows.end(), held.row);
      if (found != side.rows.end())
        position = static_cast<std::int32_t>(found - side.rows.begin()) + 1;
    }
    ASSERT_EQ(held.handle.Position(), position);
  }

  std::mt19937 random_;
  std::int32_t lastId_ = 0;
  Side sides_[2];
  std::vector<Held> held_;
  mutable std::size_t rowsSeen_ = 0;
};

TEST(RowStoreModel, AgreesThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u, 4u}) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomWalk walk(seed);
    for (int step = 1; step <= 20000; ++step) {
      walk.Step();
      if (step % 20 == 0) walk.CheckEverything();
      ASSERT_FALSE(testing::Test::HasFailure()) << "step " << step;
    }
    // A walk whose lists stay empty would agree about nothing.
    EXPECT_GT(walk.RowsSeen(), 20000u);
  }
}

TEST(RowStoreModel, RemoveAscendingEqualsRemovingOneByOne) {
  std::mt19937 random(7);
  for (int round = 0; round < 300; ++round) {
    const int count = static_cast<int>(random() % 60);
    RowStore atOnce;
    RowStore oneByOne;
    std::vector<std::int32_t> positions;
    for (int i = 1; i <= count; ++i) {
      RowPtr row = RowData::Make(0, i);
      if (random() % 2 == 0) row.Edit().EditExtras().key = IntegerToText(i);
      atOnce.AppendShared(*row);
      oneByOne.AppendShared(*row);
      if (random() % 3 != 0) positions.push_back(i);
    }
    atOnce.RemoveAscending(positions);
    for (auto i = positions.rbegin(); i != positions.rend(); ++i) oneByOne.Remove(*i);
    ASSERT_EQ(atOnce.Count(), oneByOne.Count());
    for (std::int32_t i = 1; i <= atOnce.Count(); ++i) {
      const RowData& row = atOnce.At(i);
      ASSERT_EQ(&row, &oneByOne.At(i));
      if (!row.Extras().key.IsEmpty()) {
        ASSERT_EQ(atOnce.PositionOfKey(row.Extras().key), i);
        ASSERT_EQ(oneByOne.PositionOfKey(row.Extras().key), i);
      }
    }
    for (const std::int32_t gone : positions)
      ASSERT_EQ(ErrorOf([&] { atOnce.PositionOfKey(IntegerToText(gone)); }), kBadKeyError);
  }
}

}  // namespace

}  // namespace sifter
