#include "IconSizes.h"
#include "win32/Pictures.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

TEST(OwnPictures, HaveAnImageForEverySize) {
  const std::vector<int> sizes = {16, 20, 24, 28, 32, 40, 48};
  for (const wchar_t* key : {L"FilterEmpty", L"FilterFull", L"print"})
    EXPECT_EQ(IconSizes(GetModuleHandleW(nullptr), key), sizes);
}

TEST(OwnPictures, AreFoundByTheirKeys) {
  for (const char16_t* key : {u"FilterEmpty", u"FilterFull", u"print"})
    EXPECT_TRUE(OwnPicture(key, 16));
  EXPECT_FALSE(OwnPicture(u"FilterHalf", 16));
}

}  // namespace

}  // namespace sifter
