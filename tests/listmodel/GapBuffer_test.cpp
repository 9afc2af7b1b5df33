#include "listmodel/GapBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <utility>
#include <vector>

namespace sifter {

namespace {

using Buffer = GapBuffer<int>;

std::vector<int> ItemsByIndex(const Buffer& buffer) {
  std::vector<int> items;
  for (std::size_t i = 0; i < buffer.Size(); ++i) items.push_back(buffer[i]);
  return items;
}

std::vector<int> ItemsByRun(const Buffer& buffer) {
  std::vector<int> items(buffer.BeforeGap().begin(), buffer.BeforeGap().end());
  items.insert(items.end(), buffer.BehindGap().begin(), buffer.BehindGap().end());
  return items;
}

Buffer MakeBuffer(int count) {
  Buffer buffer;
  for (int i = 0; i < count; ++i) buffer.Append(i);
  return buffer;
}

TEST(GapBuffer, StartsEmpty) {
  Buffer buffer;
  EXPECT_EQ(buffer.Size(), 0u);
  EXPECT_EQ(ItemsByRun(buffer), std::vector<int>());
  EXPECT_TRUE(buffer.Contiguous().empty());
}

TEST(GapBuffer, RemovingFromTheTopDownLeavesACompleteSequenceEachTime) {
  Buffer buffer = MakeBuffer(6);
  buffer.Remove(5);
  EXPECT_EQ(ItemsByIndex(buffer), (std::vector<int>{0, 1, 2, 3, 4}));
  buffer.Remove(3);
  EXPECT_EQ(ItemsByIndex(buffer), (std::vector<int>{0, 1, 2, 4}));
  buffer.Remove(0);
  EXPECT_EQ(ItemsByIndex(buffer), (std::vector<int>{1, 2, 4}));
  EXPECT_EQ(ItemsByRun(buffer), (std::vector<int>{1, 2, 4}));
}

TEST(GapBuffer, ItemsCanBeOverwrittenOnBothSidesOfTheGap) {
  Buffer buffer = MakeBuffer(4);
  buffer.Remove(1);
  buffer[0] = 10;
  buffer[2] = 30;
  EXPECT_EQ(ItemsByRun(buffer), (std::vector<int>{10, 2, 30}));
}

TEST(GapBuffer, ReserveKeepsTheItems) {
  Buffer buffer = MakeBuffer(5);
  buffer.Remove(2);
  buffer.Reserve(1000);
  buffer.Reserve(3);
  EXPECT_EQ(ItemsByIndex(buffer), (std::vector<int>{0, 1, 3, 4}));
}

TEST(GapBuffer, MovingTakesTheItemsAlong) {
  Buffer buffer = MakeBuffer(3);
  Buffer other(std::move(buffer));
  EXPECT_EQ(ItemsByIndex(other), (std::vector<int>{0, 1, 2}));
  Buffer third;
  third = std::move(other);
  EXPECT_EQ(ItemsByIndex(third), (std::vector<int>{0, 1, 2}));
}

// One random change, made to a buffer and to a vector alike.
class RandomChange {
 public:
  explicit RandomChange(unsigned seed) : random_(seed) {}

  void Make(Buffer& buffer, std::vector<int>& items) {
    const int value = Below(1000);
    switch (Below(16)) {
      case 0:
        buffer.Append(value);
        items.push_back(value);
        break;
      case 1:
        Truncate(buffer, items);
        break;
      case 2:
        Reverse(buffer, items);
        break;
      case 3:
        buffer.Reserve(items.size() + static_cast<std::size_t>(Below(50)));
        break;
      case 4:
        if (!items.empty()) Overwrite(buffer, items, value);
        break;
      case 5:
      case 6:
      case 7:
      case 8:
        if (!items.empty()) Remove(buffer, items);
        break;
      default:
        Insert(buffer, items, value);
    }
  }

 private:
  int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
  std::size_t IndexBelow(std::size_t bound) {
    return static_cast<std::size_t>(Below(static_cast<int>(bound)));
  }

  void Insert(Buffer& buffer, std::vector<int>& items, int value) {
    const std::size_t index = IndexBelow(items.size() + 1);
    buffer.Insert(index, value);
    items.insert(items.begin() + static_cast<std::ptrdiff_t>(index), value);
  }

  void Remove(Buffer& buffer, std::vector<int>& items) {
    const std::size_t index = IndexBelow(items.size());
    buffer.Remove(index);
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(index));
  }

  void Overwrite(Buffer& buffer, std::vector<int>& items, int value) {
    const std::size_t index = IndexBelow(items.size());
    buffer[index] = value;
    items[index] = value;
  }

  // Only a little until there are many, or the sequences would never grow.
  void Truncate(Buffer& buffer, std::vector<int>& items) {
    const std::size_t most = items.size() < 400 ? 4 : items.size();
    const std::size_t size = items.size() - std::min(items.size(), IndexBelow(most));
    buffer.Truncate(size);
    items.resize(size);
  }

  void Reverse(Buffer& buffer, std::vector<int>& items) {
    const std::span<int> run = buffer.Contiguous();
    std::reverse(run.begin(), run.end());
    std::reverse(items.begin(), items.end());
  }

  std::mt19937 random_;
};

TEST(GapBuffer, AgreesWithAVectorThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u}) {
    RandomChange change(seed);
    Buffer buffer;
    std::vector<int> items;
    for (int step = 0; step < 20000; ++step) {
      change.Make(buffer, items);
      ASSERT_EQ(buffer.Size(), items.size()) << "seed " << seed << " step " << step;
      if (step % 16 != 0) continue;
      ASSERT_EQ(ItemsByIndex(buffer), items) << "seed " << seed << " step " << step;
      ASSERT_EQ(ItemsByRun(buffer), items) << "seed " << seed << " step " << step;
    }
  }
}

}  // namespace

}  // namespace sifter
