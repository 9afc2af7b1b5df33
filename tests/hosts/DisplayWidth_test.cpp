#include "sift/DisplayWidth.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

struct WidthCase {
  const char* name;
  TextView text;
  std::size_t columns;
};

TEST(DisplayWidth, CountsTheColumnsOfATerminal) {
  const WidthCase cases[] = {
      {"nothing", u"", 0},
      {"ASCII", u"Oak 12", 6},
      {"Latin", u"Größe", 5},
      {"Greek, Cyrillic, Hebrew", u"άλфшש", 5},
      {"ideographs", u"漢字", 4},
      {"kana", u"かなカナ", 8},
      {"half-width kana", u"\uFF8A\uFF9D", 2},
      {"full-width letters", u"\uFF21\uFF22", 4},
      {"Korean syllables", u"한국", 4},
      {"Korean letters that join", u"\u1112\u1161\u11AB", 2},
      {"ideograph of a later plane", u"\U00020000", 2},
      {"combining accents", u"e\u0301x\u0323\u0307", 2},
      {"Arabic vowel signs", u"\u0645\u064F\u062D", 2},
      {"vowel signs of Thai and Hindi", u"\u0E01\u0E34\u0915\u0941", 2},
      {"soft hyphen", u"a\u00ADb", 3},
      {"zero-width space and joiners", u"a\u200Bb\u200Cc", 3},
      {"emoji", u"😀", 2},
      {"emoji with a skin tone", u"👋🏽", 2},
      {"skin tone alone", u"🏽", 2},
      {"family", u"👩\u200D👩\u200D👧", 2},
      {"family and a word", u"👩\u200D👩\u200D👧 ok", 5},
      {"flag", u"🇩🇪", 2},
      {"sign that is no emoji", u"\u2764", 1},
      {"the same as an emoji", u"\u2764\uFE0F", 2},
      {"digit as a key", u"1\uFE0F\u20E3", 2},
      {"letter that has no emoji form", u"a\uFE0F", 1},
      {"emoji selector behind an emoji", u"😀\uFE0F", 2},
      {"joiner between letters", u"a\u200Db", 2},
      {"half a pair", u"a\xD83D", 2},
      {"mark alone", u"\u0301", 0},
      {"signs for control characters", u"\u240A\u241B", 2},
      {"box drawing and currency", u"│€", 2},
  };
  for (const WidthCase& c : cases) EXPECT_EQ(DisplayWidth(c.text), c.columns) << c.name;
}

}  // namespace
}  // namespace sifter
