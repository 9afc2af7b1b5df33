#include "common/RowHash.h"

#include <gtest/gtest.h>

#include <vector>

namespace sifter::bench {
namespace {

std::uint64_t HashOf(const std::vector<std::uint32_t>& rows) { return RowHash(rows); }

TEST(RowHash, IsTheUsualOneOverTheNumbersAsFourBytesLowestFirst) {
  EXPECT_EQ(HashOf({}), 0xCBF29CE484222325u);
  EXPECT_EQ(HashOf({0}), 0x4D25767F9DCE13F5u);
  EXPECT_EQ(HashOf({0, 1, 0x01020304}), 0xCF8575AFC807E8D0u);
}

TEST(RowHash, TellsOrders) { EXPECT_NE(HashOf({1, 2}), HashOf({2, 1})); }

}  // namespace
}  // namespace sifter::bench
