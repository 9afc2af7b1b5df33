#include "sift/Utf8.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace sifter {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

struct Utf8Case {
  const char* name;
  std::string bytes;
  std::size_t malformedAt;
};

TEST(FindMalformedUtf8, FindsTheFirstByteThatIsNone) {
  const Utf8Case cases[] = {
      {"nothing", "", kNowhere},
      {"ASCII", "plain text of some length", kNowhere},
      {"first and last of two bytes", "\xC2\x80\xDF\xBF", kNowhere},
      {"first and last of three bytes", "\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF",
       kNowhere},
      {"first and last of four bytes", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", kNowhere},
      {"a tail alone", "abc\x80", 3},
      {"lead that there isn't", "abcdefgh\xC1\x80", 8},
      {"lead past the last plane", "\xF5\x80\x80\x80", 0},
      {"two bytes overlong", "\xC0\xAF", 0},
      {"three bytes overlong", "\xE0\x9F\xBF", 0},
      {"four bytes overlong", "\xF0\x8F\xBF\xBF", 0},
      {"surrogate", "a\xED\xA0\x80", 1},
      {"past the last plane", "\xF4\x90\x80\x80", 0},
      {"cut off after one", "abcdefgh\xE6", 8},
      {"cut off after two", "a\xE6\xBC", 1},
      {"cut off after three", "\xF0\x9D\x84", 0},
      {"wrong second byte", "\xE6z\xA2", 0},
      {"wrong third byte", "\xE6\xBCz", 0},
      {"wrong fourth byte", "\xF0\x9D\x84z", 0},
      {"behind good ones", "é漢𝄞\xFF", 9},
  };
  for (const Utf8Case& c : cases) EXPECT_EQ(FindMalformedUtf8(c.bytes), c.malformedAt) << c.name;
}

// The reader refuses what this finds and converts the rest, so the two have to agree.
TEST(FindMalformedUtf8, AgreesWithTheConversion) {
  std::mt19937 random(7);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes;
    const std::size_t length = random() % 12;
    while (bytes.size() < length) {
      constexpr unsigned char kTelling[] = {'a',  0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC1,
                                            0xC2, 0xDF, 0xE0, 0xE1, 0xED, 0xEF, 0xF0, 0xF4};
      bytes += static_cast<char>(kTelling[random() % std::size(kTelling)]);
    }
    const bool wellFormed = FindMalformedUtf8(bytes) == kNowhere;
    EXPECT_EQ(wellFormed, Text::FromUtf8(bytes).ToUtf8() == bytes) << "case " << i;
  }
}

}  // namespace
}  // namespace sifter
