#include "base/Text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <unordered_set>
#include <utility>
#include <vector>

namespace sifter {
namespace {

static_assert(sizeof(Text) == sizeof(void*));

// The shared part of a text, which nothing else shows.
const detail::TextBlock* BlockOf(const Text& text) {
  const detail::TextBlock* block = nullptr;
  std::memcpy(&block, &text, sizeof block);
  return block;
}

std::uint32_t References(const Text& text) { return BlockOf(text)->references; }

TEST(Text, KeepsItsCodeUnits) {
  const Text text(u"caf\u00E9");
  EXPECT_EQ(text.View(), u"caf\u00E9");
  EXPECT_EQ(text.Length(), 4u);
  EXPECT_FALSE(text.IsEmpty());
}

TEST(Text, IsOneNullPointerWhenEmpty) {
  for (const Text& empty : {Text(), Text(u""), Text(TextView()), u""_text, Text::FromUtf8("")}) {
    EXPECT_EQ(BlockOf(empty), nullptr);
    EXPECT_EQ(empty.View(), u"");
    EXPECT_EQ(empty.Length(), 0u);
    EXPECT_TRUE(empty.IsEmpty());
  }
}

TEST(Text, KeepsNullsAndUnpairedSurrogates) {
  const std::u16string units{u'a', u'\0', char16_t{0xD800}, u'b', char16_t{0xDC00}};
  EXPECT_EQ(Text(units).View(), units);
}

TEST(Text, IsSharedByItsCopies) {
  Text first(u"shared");
  EXPECT_EQ(References(first), 1u);
  {
    const Text second(first);
    EXPECT_TRUE(second.SharesWith(first));
    EXPECT_EQ(References(first), 2u);
    Text third;
    third = second;
    EXPECT_EQ(References(first), 3u);
  }
  EXPECT_EQ(References(first), 1u);
}

TEST(Text, ChangesHandsWithoutCounting) {
  Text first(u"moved");
  Text second(std::move(first));
  EXPECT_EQ(References(second), 1u);
  Text third;
  third = std::move(second);
  EXPECT_EQ(References(third), 1u);
  EXPECT_EQ(third, u"moved");
}

TEST(Text, LetsGoOfWhatItHeldWhenAssigned) {
  const Text kept(u"kept");
  const Text other(u"other");
  Text text(kept);
  text = other;
  EXPECT_EQ(References(kept), 1u);
  EXPECT_EQ(References(other), 2u);
}

TEST(Text, SurvivesAssignmentToItself) {
  Text text(u"itself");
  const Text& same = text;
  text = same;
  EXPECT_EQ(text, u"itself");
  EXPECT_EQ(References(text), 1u);
}

TEST(Text, IsNeverCountedWhenALiteral) {
  const Text literal = u"All"_text;
  EXPECT_EQ(References(literal), detail::TextBlock::kImmortal);
  {
    std::vector<Text> copies(1000, literal);
    EXPECT_EQ(References(literal), detail::TextBlock::kImmortal);
  }
  EXPECT_EQ(References(literal), detail::TextBlock::kImmortal);
  EXPECT_EQ(literal, u"All");
  EXPECT_TRUE(literal.SharesWith(u"All"_text)) << "one block for all uses";
}

TEST(Text, MayBeALiteralInAnyThread) {
  const Text literal = u"is between"_text;
  const auto copyOften = [&literal] {
    for (int i = 0; i < 1000; ++i) {
      const Text copy(literal);
      ASSERT_EQ(copy.Length(), 10u);
    }
  };
  std::thread other(copyOften);
  copyOften();
  other.join();
  EXPECT_EQ(literal, u"is between");
}

TEST(Text, ComparesByCodeUnit) {
  EXPECT_EQ(Text(u"abc"), Text(u"abc"));
  EXPECT_NE(Text(u"abc"), Text(u"ABC"));
  EXPECT_NE(Text(u"\u00E9"), Text(u"e\u0301")) << "no normalisation";
  EXPECT_EQ(Text(u"abc"), u"abc"_text);
  EXPECT_FALSE(Text(u"abc").SharesWith(Text(u"abc")));
  EXPECT_EQ(Text(), Text(u""));
  EXPECT_NE(Text(), Text(u" "));
}

TEST(Text, OrdersByCodeUnit) {
  // U+FFFD is a higher code unit than the surrogates of any character beyond it.
  const std::vector<Text> ascending{Text(), u"A",      u"AB",         u"B",
                                    u"a",   u"\u00E4", u"\U0001F600", u"\uFFFD"};
  for (std::size_t i = 0; i < ascending.size(); ++i)
    for (std::size_t j = 0; j < ascending.size(); ++j)
      EXPECT_EQ(ascending[i] <=> ascending[j], i <=> j) << i << ' ' << j;
}

TEST(Text, HashesByContent) {
  const std::unordered_set<Text> texts{u"one", u"two", u"one", Text(), u""_text, u"two"_text};
  EXPECT_EQ(texts.size(), 3u);
  EXPECT_TRUE(texts.contains(Text(u"two")));
}

TEST(FromUtf8, DecodesEveryLengthOfSequence) {
  EXPECT_EQ(Text::FromUtf8("a\u00E9\u20AC\U0001F600"), u"a\u00E9\u20AC\U0001F600");
  EXPECT_EQ(Text::FromUtf8(std::string("a\0b", 3)), TextView(u"a\0b", 3));
  EXPECT_EQ(Text::FromUtf8("\xEF\xBB\xBFx"), u"\uFEFFx") << "a byte-order mark is a character";
}

TEST(FromUtf8, PutsAReplacementForEachOffendingByte) {
  const struct {
    const char* name;
    std::string_view bytes;
    TextView text;
  } cases[] = {
      {"continuation alone", "a\x80z", u"a\uFFFDz"},
      {"two bytes, cut by the end", "a\xC3", u"a\uFFFD"},
      {"two bytes, cut by a letter", "\xC3z", u"\uFFFDz"},
      {"three bytes, cut by the end", "\xE2\x82", u"\uFFFD\uFFFD"},
      {"three bytes, cut by a letter", "\xE2\x82z", u"\uFFFD\uFFFDz"},
      {"four bytes, cut by a letter", "\xF0\x9F\x98z", u"\uFFFD\uFFFD\uFFFDz"},
      {"overlong slash", "\xC0\xAF", u"\uFFFD\uFFFD"},
      {"overlong, three bytes", "\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},
      {"overlong, four bytes", "\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
      {"past the last plane", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"no lead at all", "\xFF\xFE", u"\uFFFD\uFFFD"},
      {"good after bad", "\xC3\xC3\xA9", u"\uFFFD\u00E9"},
      {"last code point", "\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Text::FromUtf8(c.bytes).View(), std::u16string(c.text)) << c.name;
}

TEST(FromUtf8, TakesAnyBytes) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes(static_cast<std::size_t>(i % 40), '\0');
    for (char& c : bytes) c = static_cast<char>(byte(random));
    const Text text = Text::FromUtf8(bytes);
    ASSERT_EQ(Text::FromUtf8(text.ToUtf8()), text) << "what came out is sound";
    ASSERT_LE(text.Length(), bytes.size());
  }
}

TEST(ToUtf8, EncodesEveryLengthOfSequence) {
  EXPECT_EQ(Text(u"a\u00E9\u20AC\U0001F600").ToUtf8(), "a\u00E9\u20AC\U0001F600");
  EXPECT_EQ(Text(u"\U0010FFFF").ToUtf8(), "\xF4\x8F\xBF\xBF");
  EXPECT_EQ(Text().ToUtf8(), "");
}

TEST(ToUtf8, PutsAReplacementForAnUnpairedSurrogate) {
  const struct {
    const char* name;
    std::u16string units;
    const char* bytes;
  } cases[] = {
      {"high at the end", {u'a', char16_t{0xD800}}, "a\uFFFD"},
      {"high before a letter", {char16_t{0xD800}, u'z'}, "\uFFFDz"},
      {"low alone", {char16_t{0xDC00}, u'z'}, "\uFFFDz"},
      {"two high, one low",
       {char16_t{0xD83D}, char16_t{0xD83D}, char16_t{0xDE00}},
       "\uFFFD\U0001F600"},
  };
  for (const auto& c : cases) EXPECT_EQ(Text(c.units).ToUtf8(), c.bytes) << c.name;
}

TEST(ToUtf8, ComesBackForEveryCharacter) {
  for (char32_t point = 0; point <= 0x10FFFF; ++point) {
    if (point >= 0xD800 && point <= 0xDFFF) continue;
    std::u16string units;
    if (point < 0x10000) {
      units = static_cast<char16_t>(point);
    } else {
      units = {static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)),
               static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF))};
    }
    const Text text(units);
    ASSERT_EQ(Text::FromUtf8(text.ToUtf8()), text) << std::hex << static_cast<unsigned>(point);
  }
}

TEST(Concat, JoinsTextsAndViews) {
  const Text middle(u"to");
  EXPECT_EQ(Concat({u"from ", middle, u" end"}), u"from to end");
  EXPECT_EQ(Concat({}), Text());
  EXPECT_EQ(Concat({u"", Text(), u""}), Text());
}

TEST(IntegerToText, WritesDecimalDigits) {
  const struct {
    std::int64_t number;
    TextView text;
  } cases[] = {{0, u"0"},
               {7, u"7"},
               {-7, u"-7"},
               {32767, u"32767"},
               {1000000, u"1000000"},
               {std::numeric_limits<std::int64_t>::min(), u"-9223372036854775808"},
               {std::numeric_limits<std::int64_t>::max(), u"9223372036854775807"}};
  for (const auto& c : cases) EXPECT_EQ(IntegerToText(c.number), c.text) << c.number;
}

}  // namespace
}  // namespace sifter
