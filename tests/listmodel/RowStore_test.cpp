#include "listmodel/RowStore.h"

#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sifter {

namespace {

RowPtr NewRow(const char16_t* text, const char16_t* key = u"") {
  RowPtr row = RowData::Make(0, 0);
  row.Edit().SetColumnText(0, text);
  if (!Text(key).IsEmpty()) row.Edit().EditExtras().key = key;
  return row;
}

std::vector<std::string> TextsOf(const RowStore& store) {
  std::vector<std::string> texts;
  for (std::int32_t i = 1; i <= store.Count(); ++i)
    texts.push_back(store.At(i).ColumnText(0).ToUtf8());
  return texts;
}

using Strings = std::vector<std::string>;

// a, b, c, d; each under its text in upper case.
void AppendFour(RowStore& store) {
  store.Append(NewRow(u"a", u"A"));
  store.Append(NewRow(u"b", u"B"));
  store.Append(NewRow(u"c", u"C"));
  store.Append(NewRow(u"d", u"D"));
}

class RowStoreTest : public testing::Test {
 protected:
  RowStoreTest() { AppendFour(store); }

  RowStore store;
};

TEST_F(RowStoreTest, RowsStandWhereTheyWereInserted) {
  store.Insert(1, NewRow(u"first"));
  store.Insert(3, NewRow(u"third"));
  store.Insert(7, NewRow(u"last"));
  EXPECT_EQ(TextsOf(store), (Strings{"first", "a", "third", "b", "c", "d", "last"}));
}

TEST_F(RowStoreTest, APositionThatDoesNotExistIsBadAndChangesNothing) {
  const std::uint64_t version = store.Version();
  for (const std::int32_t position : {-2147483647 - 1, -1, 0, 5, 2147483647}) {
    EXPECT_EQ(ErrorOf([&] { store.At(position); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { store.HandleAt(position); }), kBadPositionError);
    EXPECT_EQ(ErrorOf([&] { store.Remove(position); }), kBadPositionError);
  }
  EXPECT_EQ(ErrorOf([&] { store.Insert(0, NewRow(u"x")); }), kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { store.Insert(6, NewRow(u"x", u"X")); }), kBadPositionError);
  EXPECT_EQ(TextsOf(store), (Strings{"a", "b", "c", "d"}));
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"X"); }), kBadKeyError);
  EXPECT_EQ(store.Version(), version);
}

TEST_F(RowStoreTest, KeysAreFoundExactlyAsWritten) {
  EXPECT_EQ(store.PositionOfKey(u"C"), 3);
  for (const char16_t* key : {u"c", u"", u"C ", u"3"})
    EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(key); }), kBadKeyError);
}

TEST_F(RowStoreTest, KeysFollowTheirRows) {
  store.Insert(1, NewRow(u"x"));
  EXPECT_EQ(store.PositionOfKey(u"C"), 4);
  store.Remove(2);
  store.Remove(1);
  EXPECT_EQ(store.PositionOfKey(u"C"), 2);
  store.Reorder({3, 2, 1});
  EXPECT_EQ(store.PositionOfKey(u"B"), 3);
  EXPECT_EQ(store.PositionOfKey(u"D"), 1);
}

TEST(RowStore, KeysAreFoundHoweverFarTheirRowsHaveMoved) {
  constexpr std::int32_t kRows = 1000;
  RowStore store;
  for (std::int32_t i = 1; i <= kRows; ++i) {
    RowPtr row = RowData::Make(0, i);
    row.Edit().EditExtras().key = IntegerToText(i);
    store.Append(std::move(row));
  }
  const auto expectPositions = [&](auto positionOf) {
    for (std::int32_t i = 1; i <= kRows; ++i) {
      std::int32_t position = 0;
      ErrorOf([&] { position = store.PositionOfKey(IntegerToText(i)); });
      ASSERT_EQ(position, positionOf(i)) << "key " << i;
    }
  };
  std::vector<std::int32_t> order(kRows);
  for (std::int32_t i = 0; i < kRows; ++i) order[static_cast<std::size_t>(i)] = kRows - i;
  store.Reorder(order);
  expectPositions([](std::int32_t i) { return kRows + 1 - i; });
  std::vector<std::int32_t> firstHalf(order.rbegin(), order.rbegin() + kRows / 2);
  store.RemoveAscending(firstHalf);
  expectPositions([](std::int32_t i) { return i > kRows / 2 ? 0 : kRows / 2 + 1 - i; });
}

TEST_F(RowStoreTest, ATakenKeyIsRefusedUntilItsRowIsGone) {
  EXPECT_EQ(ErrorOf([&] { store.Append(NewRow(u"x", u"B")); }), kTakenKeyError);
  EXPECT_EQ(TextsOf(store), (Strings{"a", "b", "c", "d"}));
  store.Remove(2);
  store.Append(NewRow(u"x", u"B"));
  EXPECT_EQ(store.PositionOfKey(u"B"), 4);
}

TEST_F(RowStoreTest, ManyRowsMayBeWithoutAKey) {
  store.Append(NewRow(u"x"));
  store.Append(NewRow(u"x"));
  EXPECT_EQ(store.Count(), 6);
}

TEST_F(RowStoreTest, AHandleFollowsItsRow) {
  const RowHandle handle = store.HandleAt(3);
  store.Insert(1, NewRow(u"x"));
  EXPECT_EQ(handle.Position(), 4);
  store.Remove(1);
  store.Remove(1);
  EXPECT_EQ(handle.Position(), 2);
  store.Reorder({3, 1, 2});
  EXPECT_EQ(handle.Position(), 3);
  EXPECT_EQ(handle.Row().ColumnText(0), u"c");
}

TEST_F(RowStoreTest, HandlesToOneRowAreEqual) {
  const RowHandle handle = store.HandleAt(3);
  EXPECT_TRUE(handle == store.HandleAt(3));
  EXPECT_FALSE(handle == store.HandleAt(2));
}

TEST_F(RowStoreTest, AHandleOutlivesItsRowInTheStore) {
  RowHandle handle = store.HandleAt(2);
  store.Remove(2);
  EXPECT_EQ(handle.Position(), 0);
  EXPECT_EQ(handle.Row().ColumnText(0), u"b");
  handle.Edit().SetColumnText(0, u"changed");
  handle.SetKey(u"A", true);
  EXPECT_EQ(handle.Row().ColumnText(0), u"changed");
  EXPECT_EQ(handle.Row().Extras().key, u"A");
  EXPECT_EQ(TextsOf(store), (Strings{"a", "c", "d"}));
  EXPECT_EQ(store.PositionOfKey(u"A"), 1);
  handle = store.HandleAt(1);
  EXPECT_EQ(handle.Position(), 1);
}

TEST(RowStore, AHandleOutlivesTheStore) {
  std::optional<RowHandle> handle;
  {
    RowStore store;
    AppendFour(store);
    handle = store.HandleAt(2);
  }
  const RowHandle copy = *handle;
  handle.reset();
  EXPECT_EQ(copy.Position(), 0);
  copy.Edit().SetColumnText(0, u"changed");
  EXPECT_EQ(copy.Row().ColumnText(0), u"changed");
}

TEST_F(RowStoreTest, ClearedRowsLiveOnInTheirHandles) {
  const RowHandle handle = store.HandleAt(2);
  store.Clear();
  EXPECT_EQ(store.Count(), 0);
  EXPECT_EQ(handle.Position(), 0);
  EXPECT_EQ(handle.Row().Extras().key, u"B");
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"B"); }), kBadKeyError);
  AppendFour(store);
  EXPECT_EQ(store.PositionOfKey(u"B"), 2);
}

TEST_F(RowStoreTest, SetKeyMovesTheRowToItsNewKey) {
  const RowHandle handle = store.HandleAt(2);
  handle.SetKey(u"X", true);
  EXPECT_EQ(store.PositionOfKey(u"X"), 2);
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"B"); }), kBadKeyError);
  EXPECT_EQ(ErrorOf([&] { handle.SetKey(u"A", true); }), kTakenKeyError);
  EXPECT_EQ(handle.Row().Extras().key, u"X");
  handle.SetKey(u"", true);
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"X"); }), kBadKeyError);
  store.Append(NewRow(u"x", u"X"));
  EXPECT_TRUE(store.KeysArePlain());
}

TEST_F(RowStoreTest, SetKeyWithoutReindexingLeavesTheRowUnderItsOldKey) {
  store.HandleAt(2).SetKey(u"X", false);
  EXPECT_EQ(store.At(2).Extras().key, u"X");
  EXPECT_EQ(store.PositionOfKey(u"B"), 2);
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"X"); }), kBadKeyError);
  EXPECT_FALSE(store.KeysArePlain());
  store.HandleAt(1).SetKey(u"X", false);
  store.Append(NewRow(u"x", u"X"));
  EXPECT_EQ(store.PositionOfKey(u"X"), 5);
  store.Remove(2);
  store.Remove(1);
  EXPECT_TRUE(store.KeysArePlain());
  EXPECT_EQ(store.PositionOfKey(u"X"), 3);
}

TEST_F(RowStoreTest, ReindexingPicksUpARowThatStoodUnderAnotherKey) {
  store.HandleAt(2).SetKey(u"X", false);
  store.HandleAt(2).SetKey(u"X", true);
  EXPECT_EQ(store.PositionOfKey(u"X"), 2);
  EXPECT_EQ(ErrorOf([&] { store.PositionOfKey(u"B"); }), kBadKeyError);
  EXPECT_TRUE(store.KeysArePlain());
  store.HandleAt(2).SetKey(u"Y", false);
  store.HandleAt(2).SetKey(u"Z", true);
  EXPECT_EQ(store.PositionOfKey(u"Z"), 2);
  store.Append(NewRow(u"x", u"X"));
  EXPECT_EQ(store.PositionOfKey(u"X"), 5);
}

TEST_F(RowStoreTest, RemoveAscendingTakesOutTheRowsAtThesePositions) {
  const RowHandle kept = store.HandleAt(3);
  const RowHandle gone = store.HandleAt(4);
  store.RemoveAscending({});
  EXPECT_EQ(store.Count(), 4);
  store.RemoveAscending({1, 2, 4});
  EXPECT_EQ(TextsOf(store), (Strings{"c"}));
  EXPECT_EQ(store.PositionOfKey(u"C"), 1);
  EXPECT_EQ(kept.Position(), 1);
  EXPECT_EQ(gone.Position(), 0);
  EXPECT_EQ(gone.Row().ColumnText(0), u"d");
  store.Append(NewRow(u"x", u"A"));
  EXPECT_EQ(TextsOf(store), (Strings{"c", "x"}));
}

TEST_F(RowStoreTest, CollectRowsGivesThemInOrder) {
  store.Remove(2);
  std::vector<const RowData*> rows;
  store.CollectRows(rows);
  EXPECT_EQ(rows, (std::vector<const RowData*>{&store.At(1), &store.At(2), &store.At(3)}));
}

TEST_F(RowStoreTest, SharedRowsAreTheSameUntilOneStoreChangesThem) {
  RowStore other;
  for (std::int32_t i = 1; i <= store.Count(); ++i) other.AppendShared(store.At(i));
  EXPECT_EQ(&other.At(2), &store.At(2));
  EXPECT_EQ(other.PositionOfKey(u"D"), 4);
  EXPECT_EQ(ErrorOf([&] { other.Append(NewRow(u"x", u"D")); }), kTakenKeyError);

  other.HandleAt(2).Edit().SetColumnText(0, u"theirs");
  store.HandleAt(3).Edit().SetColumnText(0, u"ours");
  other.HandleAt(4).SetKey(u"Z", true);
  EXPECT_EQ(TextsOf(store), (Strings{"a", "b", "ours", "d"}));
  EXPECT_EQ(TextsOf(other), (Strings{"a", "theirs", "c", "d"}));
  EXPECT_EQ(store.PositionOfKey(u"D"), 4);
  EXPECT_EQ(other.PositionOfKey(u"Z"), 4);
  EXPECT_EQ(ErrorOf([&] { other.PositionOfKey(u"D"); }), kBadKeyError);
  EXPECT_EQ(&other.At(1), &store.At(1));
}

TEST_F(RowStoreTest, ASharedRowOfOneThatIsHeldIsAShareOfItsPresentState) {
  const RowHandle handle = store.HandleAt(1);
  handle.Edit().SetColumnText(0, u"now");
  RowStore other;
  other.AppendShared(store.At(1));
  handle.Edit().SetColumnText(0, u"later");
  EXPECT_EQ(TextsOf(other), (Strings{"now"}));
}

TEST_F(RowStoreTest, VersionChangesWithEveryChangeAndWithNothingElse) {
  std::vector<std::uint64_t> versions = {store.Version()};
  const auto changed = [&] {
    versions.push_back(store.Version());
    return versions.back() != versions[versions.size() - 2];
  };
  const RowHandle handle = store.HandleAt(2);
  static_cast<void>(handle.Position());
  static_cast<void>(store.PositionOfKey(u"A"));
  static_cast<void>(store.At(1));
  EXPECT_FALSE(changed());
  store.Append(NewRow(u"e"));
  EXPECT_TRUE(changed());
  store.Insert(1, NewRow(u"f"));
  EXPECT_TRUE(changed());
  store.AppendShared(*NewRow(u"g"));
  EXPECT_TRUE(changed());
  handle.Edit().SetColumnText(0, u"x");
  EXPECT_TRUE(changed());
  handle.SetKey(u"X", true);
  EXPECT_TRUE(changed());
  handle.SetKey(u"Y", false);
  EXPECT_TRUE(changed());
  handle.ReplaceRow(handle.Shared().WithNewCell(1, 0));
  EXPECT_TRUE(changed());
  store.Reorder({7, 6, 5, 4, 3, 2, 1});
  EXPECT_TRUE(changed());
  store.Remove(1);
  EXPECT_TRUE(changed());
  store.RemoveAscending({1, 2});
  EXPECT_TRUE(changed());
  store.Clear();
  EXPECT_TRUE(changed());
}

TEST(RowStore, RowsEndWithTheirLastShare) {
  int alive = 0;
  const auto row = [&] {
    RowPtr made = RowData::Make(0, 0);
    made.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<LifeProbe>(alive)));
    return made;
  };
  {
    RowStore store;
    for (int i = 0; i < 6; ++i) store.Append(row());
    EXPECT_EQ(alive, 6);
    store.Remove(1);
    EXPECT_EQ(alive, 5);
    store.RemoveAscending({1, 3});
    EXPECT_EQ(alive, 3);
    {
      const RowHandle handle = store.HandleAt(1);
      store.Remove(1);
      EXPECT_EQ(alive, 3);
    }
    EXPECT_EQ(alive, 2);
    {
      RowStore other;
      other.AppendShared(store.At(1));
      store.Clear();
      EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
    EXPECT_EQ(ErrorOf([&] { store.Insert(9, row()); }), kBadPositionError);
    EXPECT_EQ(alive, 0);
    store.Append(row());
  }
  EXPECT_EQ(alive, 0);
}

// Takes a look at the store when it ends, as the end of a host's object may.
class Onlooker final : public Object {
 public:
  Onlooker(RowStore& store, std::vector<std::int32_t>& counts) : store_(store), counts_(counts) {}

 private:
  ~Onlooker() override {
    counts_.push_back(store_.Count());
    store_.Append(NewRow(u"from within"));
  }

  RowStore& store_;
  std::vector<std::int32_t>& counts_;
};

TEST(RowStore, TheEndOfAHostsObjectFindsTheStoreWithoutTheRow) {
  std::vector<std::int32_t> counts;
  RowStore store;
  for (int i = 0; i < 4; ++i) {
    RowPtr row = NewRow(u"x");
    row.Edit().EditExtras().icon = Value(Ref<Object>(MakeRef<Onlooker>(store, counts)));
    store.Append(std::move(row));
  }
  store.Remove(4);
  EXPECT_EQ(TextsOf(store), (Strings{"x", "x", "x", "from within"}));
  store.RemoveAscending({3});
  EXPECT_EQ(TextsOf(store), (Strings{"x", "x", "from within", "from within"}));
  store.Clear();
  EXPECT_EQ(TextsOf(store), (Strings{"from within", "from within"}));
  EXPECT_EQ(counts, (std::vector<std::int32_t>{3, 3, 0, 1}));
}

TEST(RowStore, CountsBeyond32767Rows) {
  RowStore store;
  store.Reserve(40000);
  for (int i = 0; i < 40000; ++i) store.Append(NewRow(u"x"));
  store.HandleAt(40000).SetKey(u"last", true);
  EXPECT_EQ(store.Count(), 40000);
  EXPECT_EQ(store.PositionOfKey(u"last"), 40000);
}

}  // namespace

}  // namespace sifter
