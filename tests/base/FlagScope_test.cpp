#include "base/FlagScope.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace sifter {

namespace {

TEST(FlagScope, SetsTheFlagUntilTheScopeEnds) {
  bool flag = false;
  {
    const FlagScope scope(flag);
    EXPECT_TRUE(flag);
  }
  EXPECT_FALSE(flag);
}

TEST(FlagScope, AnInnerScopeLeavesTheFlagToTheOuterOne) {
  bool flag = false;
  {
    const FlagScope outer(flag);
    { const FlagScope inner(flag); }
    EXPECT_TRUE(flag);
  }
  EXPECT_FALSE(flag);
}

TEST(FlagScope, AFlagThatWasSetBeforeStaysSet) {
  bool flag = true;
  { const FlagScope scope(flag); }
  EXPECT_TRUE(flag);
}

TEST(FlagScope, AnErrorEndsTheScopeToo) {
  bool flag = false;
  EXPECT_THROW(
      {
        const FlagScope scope(flag);
        throw std::runtime_error("any");
      },
      std::runtime_error);
  EXPECT_FALSE(flag);
}

}  // namespace

}  // namespace sifter
