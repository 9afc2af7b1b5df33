#include "controls/BannerTexts.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

TEST(BannerTexts, TheBeginningsDifferInTheCaseOfOneLetter) {
  EXPECT_EQ(Text(kDesignedCaption), u"Displaying X of Y items");
  EXPECT_EQ(Text(kCreatedCaption), u"Displaying all items");
  EXPECT_EQ(PlacedCaption(u"Items"), u"Displaying All Items");
  EXPECT_EQ(AllCaption(u"Items"), u"Displaying all Items");
}

TEST(BannerTexts, TheItemWordIsTakenAsItIs) {
  EXPECT_EQ(AllCaption(u"trees of ours"), u"Displaying all trees of ours");
  EXPECT_EQ(AllCaption(u""), u"Displaying all ");
  EXPECT_EQ(PlacedCaption(u""), u"Displaying All ");
  EXPECT_EQ(CountCaption(1, 1, u""), u"Displaying 1 of 1 ");
}

TEST(BannerTexts, NumbersAreInPlainDecimal) {
  struct Row {
    std::int32_t shown, total;
    const char16_t* caption;
  };
  const Row rows[] = {
      {12, 40, u"Displaying 12 of 40 Items"},
      {0, 0, u"Displaying 0 of 0 Items"},
      {0, 40, u"Displaying 0 of 40 Items"},
      {1, 32767, u"Displaying 1 of 32767 Items"},
      {1234567, 1234567, u"Displaying 1234567 of 1234567 Items"},
  };
  for (const Row& row : rows) EXPECT_EQ(CountCaption(row.shown, row.total, u"Items"), row.caption);
}

TEST(BannerTexts, ToolTips) {
  EXPECT_EQ(Text(kFilteredToolTip), u"List is Filtered");
  EXPECT_EQ(Text(kUnfilteredToolTip), u"List is not Filtered");
}

}  // namespace

}  // namespace sifter
