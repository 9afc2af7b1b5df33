#include "base/AbsorbErrors.h"
#include "listmodel/RowStore.h"
#include "support/LifeProbe.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>

// What a store holds after memory has run out in the middle of a change. Running out counts as a
// run-time error, which a dialog reports and then goes on with the list that it has.

namespace {

// Allocations that still succeed; below 0 all of them.
long allocationsLeft = -1;

void* AllocateOrNull(std::size_t size) {
  if (allocationsLeft == 0) return nullptr;
  if (allocationsLeft > 0) --allocationsLeft;
  return std::malloc(size == 0 ? 1 : size);
}

void* Allocate(std::size_t size) {
  if (void* memory = AllocateOrNull(size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return AllocateOrNull(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return AllocateOrNull(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

namespace sifter {

namespace {

// Runs `work` on fresh stores with the first, the second ... allocation failing, until it gets by
// with what there is, and calls `check` after each failure. Gives the number of failures.
template <class MakeStore, class Work, class Check>
int FailEachAllocation(MakeStore makeStore, Work work, Check check) {
  for (int allowed = 0;; ++allowed) {
    RowStore store;
    makeStore(store);
    allocationsLeft = allowed;
    const bool done = AbsorbErrors([&] { work(store); });
    allocationsLeft = -1;
    if (done) return allowed;
    check(store);
  }
}

RowPtr RowWithKey(const Text& key) {
  RowPtr row = RowData::Make(0, 0);
  row.Edit().EditExtras().key = key;
  return row;
}

// Full to the brim, so that the next row needs memory in every place.
void FillUp(RowStore& store) {
  for (int i = 1; i <= 16; ++i) store.Append(RowWithKey(IntegerToText(i)));
}

void ExpectFull(RowStore& store) {
  ASSERT_EQ(store.Count(), 16);
  for (int i = 1; i <= 16; ++i) EXPECT_EQ(store.PositionOfKey(IntegerToText(i)), i);
  store.Append(RowWithKey(u"new"));
  EXPECT_EQ(store.PositionOfKey(u"new"), 17);
}

TEST(RowStoreOutOfMemory, InsertLeavesTheStoreAsItWas) {
  int alive = 0;
  RowPtr row = RowWithKey(u"new");
  row.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
  const int failures = FailEachAllocation(
      FillUp, [&](RowStore& store) { store.Insert(5, row); }, ExpectFull);
  EXPECT_GE(failures, 2);
  row = RowPtr();
  EXPECT_EQ(alive, 0);
}

TEST(RowStoreOutOfMemory, AppendSharedLeavesTheStoreAsItWas) {
  int alive = 0;
  RowPtr row = RowWithKey(u"new");
  row.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
  const int failures = FailEachAllocation(
      FillUp, [&](RowStore& store) { store.AppendShared(*row); }, ExpectFull);
  EXPECT_GE(failures, 1);
  row = RowPtr();
  EXPECT_EQ(alive, 0);
}

TEST(RowStoreOutOfMemory, RemoveAscendingLeavesTheStoreAsItWas) {
  const std::vector<std::int32_t> positions = {1, 5, 16};
  const int failures = FailEachAllocation(
      FillUp, [&](RowStore& store) { store.RemoveAscending(positions); }, ExpectFull);
  EXPECT_GE(failures, 1);
}

TEST(RowStoreOutOfMemory, ANewKeyThatCannotBeTakenDownIsRefusedWhole) {
  // Shared rows, so that the one that gets the key has to be copied.
  RowStore source;
  FillUp(source);
  const auto share = [&](RowStore& store) {
    for (int i = 1; i <= 16; ++i) store.AppendShared(source.At(i));
    static_cast<void>(store.PositionOfKey(u"1"));
  };
  const auto rekey = [](RowStore& store) { store.HandleAt(5).SetKey(u"new", true); };
  const int failures = FailEachAllocation(share, rekey, ExpectFull);
  EXPECT_GE(failures, 4);
  EXPECT_EQ(source.PositionOfKey(u"5"), 5);
}

}  // namespace

}  // namespace sifter
