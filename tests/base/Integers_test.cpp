#include "base/Integers.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace sifter {
namespace {

template <class Convert>
void ExpectOverflow(Convert convert, std::int64_t number) {
  try {
    convert(number);
    ADD_FAILURE() << number << " was converted";
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "6: Overflow") << number;
  }
}

constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

TEST(ToInt16, KeepsWhatFits) {
  for (const int number : {-32768, -1, 0, 1, 32767}) EXPECT_EQ(ToInt16(number), number);
}

TEST(ToInt16, IsOverflowBeyond) {
  for (const std::int64_t number : {kLeast, std::int64_t{-32769}, std::int64_t{32768}, kMost})
    ExpectOverflow(ToInt16, number);
}

TEST(ToInt32, KeepsWhatFits) {
  for (const std::int64_t number : {-2147483648LL, -1LL, 0LL, 32768LL, 2147483647LL})
    EXPECT_EQ(ToInt32(number), number);
}

TEST(ToInt32, IsOverflowBeyond) {
  for (const std::int64_t number :
       {kLeast, std::int64_t{-2147483649}, std::int64_t{2147483648}, kMost})
    ExpectOverflow(ToInt32, number);
}

}  // namespace
}  // namespace sifter
