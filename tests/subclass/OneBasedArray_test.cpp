#include "subclass/OneBasedArray.h"

#include "support/Errors.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <type_traits>
#include <vector>

namespace sifter {

namespace {

OneBasedArray<int> Array(std::initializer_list<int> entries) {
  OneBasedArray<int> array;
  for (const int entry : entries) array.Append(entry);
  return array;
}

std::vector<int> Entries(const OneBasedArray<int>& array) {
  std::vector<int> entries;
  for (std::int16_t i = 1; i <= array.Count(); ++i) entries.push_back(array[i]);
  return entries;
}

TEST(OneBasedArray, GrowsAtItsEnd) {
  EXPECT_EQ(Entries({}), (std::vector<int>{}));
  EXPECT_EQ(Entries(Array({7, 8, 9})), (std::vector<int>{7, 8, 9}));
}

TEST(OneBasedArray, RemovalMovesTheLaterEntriesDown) {
  OneBasedArray<int> array = Array({7, 8, 9});
  array.RemoveAt(2);
  EXPECT_EQ(Entries(array), (std::vector<int>{7, 9}));
  array.RemoveAt(1);
  EXPECT_EQ(Entries(array), (std::vector<int>{9}));
  array.RemoveAt(1);
  EXPECT_EQ(Entries(array), (std::vector<int>{}));
}

TEST(OneBasedArray, IsNeverLargerThanItsCount) {
  OneBasedArray<int> array = Array({7, 8, 9});
  EXPECT_EQ(ErrorOf([&] { array[4] = 1; }), kBadPositionError);
  array.RemoveAt(1);
  EXPECT_EQ(ErrorOf([&] { array[3] = 1; }), kBadPositionError);
}

TEST(OneBasedArray, HasNoPositionZeroAndNoneBelow) {
  OneBasedArray<int> array = Array({7});
  EXPECT_EQ(ErrorOf([&] { array[0] = 1; }), kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { array[-1] = 1; }), kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { array.RemoveAt(0); }), kBadPositionError);
  EXPECT_EQ(ErrorOf([&] { array.RemoveAt(2); }), kBadPositionError);
  EXPECT_EQ(Entries(array), (std::vector<int>{7}));
}

TEST(OneBasedArray, LetsGoOfWhatIsRemoved) {
  OneBasedArray<std::shared_ptr<int>> array;
  const auto held = std::make_shared<int>(1);
  array.Append(held);
  array.Append(held);
  array.RemoveAt(1);
  EXPECT_EQ(held.use_count(), 2);
}

TEST(OneBasedArray, FindsTheFirstPosition) {
  const OneBasedArray<int> array = Array({7, 8, 8});
  EXPECT_EQ(array.Find([](int entry) { return entry == 8; }), 2);
  EXPECT_EQ(array.Find([](int entry) { return entry == 9; }), 0);
}

TEST(OneBasedArray, CountsIn16BitsAndOverflowsWithoutHarm) {
  OneBasedArray<int> array;
  static_assert(std::is_same_v<decltype(array.Count()), std::int16_t>);
  const std::int16_t most = std::numeric_limits<std::int16_t>::max();
  for (int i = 1; i <= most; ++i) array.Append(i);
  EXPECT_EQ(ErrorOf([&] { array.Append(0); }), kOverflowError);
  EXPECT_EQ(array.Count(), most);
  EXPECT_EQ(array[most], most);
}

}  // namespace

}  // namespace sifter
