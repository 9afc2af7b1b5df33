#include "base/UpperCase.h"

#include "base/Conversions.h"
#include "support/ClockFake.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace sifter {
namespace {

TEST(UpperCase, MapsOneCodeUnitToOneCodeUnit) {
  const char16_t* const table = SimpleUpperCaseTable();
  const struct {
    const char* name;
    char16_t unit;
    char16_t upper;
  } cases[] = {
      {"letter", u'a', u'A'},
      {"last letter", u'z', u'Z'},
      {"capital letter", u'A', u'A'},
      {"digit", u'7', u'7'},
      {"brace beside the letters", u'{', u'{'},
      {"grave beside the letters", u'`', u'`'},
      {"null", u'\0', u'\0'},
      {"a umlaut", u'\u00E4', u'\u00C4'},
      {"division sign among letters", u'\u00F7', u'\u00F7'},
      {"y diaeresis", u'\u00FF', u'\u0178'},
      {"micro sign", u'\u00B5', u'\u00B5'},
      {"sharp s", u'\u00DF', u'\u00DF'},
      {"capital sharp s", u'\u1E9E', u'\u1E9E'},
      {"dotless i", u'\u0131', u'\u0131'},
      {"i", u'i', u'I'},
      {"long s", u'\u017F', u'\u017F'},
      {"title-case digraph", u'\u01C5', u'\u01C5'},
      {"small digraph", u'\u01C6', u'\u01C4'},
      {"final sigma", u'\u03C2', u'\u03C2'},
      {"sigma", u'\u03C3', u'\u03A3'},
      {"iota subscript, small", u'\u1F80', u'\u1F88'},
      {"iota subscript, capital", u'\u1F88', u'\u1F88'},
      {"iota subscript and accent", u'\u1FB4', u'\u1FB4'},
      {"ligature", u'\uFB01', u'\uFB01'},
      {"Cyrillic", u'\u0436', u'\u0416'},
      {"Armenian", u'\u0561', u'\u0531'},
      {"Armenian ligature", u'\u0587', u'\u0587'},
      {"Georgian", u'\u10D0', u'\u1C90'},
      {"Cherokee", u'\uAB70', u'\u13A0'},
      {"circled letter", u'\u24D0', u'\u24B6'},
      {"wide letter", u'\uFF41', u'\uFF21'},
      {"ideograph", u'\u4E2D', u'\u4E2D'},
      {"first high surrogate", char16_t{0xD800}, char16_t{0xD800}},
      {"last low surrogate", char16_t{0xDFFF}, char16_t{0xDFFF}},
      {"last code unit", char16_t{0xFFFF}, char16_t{0xFFFF}},
  };
  for (const auto& c : cases) EXPECT_EQ(table[c.unit], c.upper) << c.name;
}

TEST(UpperCase, HasNothingLeftToDoAfterOnce) {
  const char16_t* const table = SimpleUpperCaseTable();
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    ASSERT_EQ(table[table[unit]], table[unit]) << std::hex << unit;
}

TEST(UpperCase, LeavesAllButTheSmallLettersAlone) {
  const char16_t* const table = SimpleUpperCaseTable();
  int ascii = 0;
  int all = 0;
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    if (table[unit] == unit) continue;
    ++all;
    if (unit < 0x80) ++ascii;
  }
  EXPECT_EQ(ascii, 26);
  EXPECT_EQ(all, 1163);  // in Unicode 14
}

TEST(UpperCase, IsTheSameTableForAllThreads) {
  std::vector<const char16_t*> seen(4);
  std::vector<std::thread> threads;
  for (const char16_t*& table : seen)
    threads.emplace_back([&table] { table = SimpleUpperCaseTable(); });
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(seen, std::vector<const char16_t*>(4, SimpleUpperCaseTable()));
}

TEST(ToUpper, KeepsTheLengthOfATextAndItsSurrogates) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  const struct {
    const char* name;
    TextView text;
    TextView upper;
  } cases[] = {
      {"empty", u"", u""},
      {"operator word", u"is not between", u"IS NOT BETWEEN"},
      {"umlauts and sharp s", u"Größe 5 äß", u"GRÖßE 5 Äß"},
      {"pair of surrogates", u"a\U00010428b", u"A\U00010428B"},
      {"unpaired surrogate", TextView(u"a\xD801z", 3), TextView(u"A\xD801Z", 3)},
      {"null within", TextView(u"a\0b", 3), TextView(u"A\0B", 3)},
  };
  for (const auto& c : cases)
    EXPECT_EQ(conversions.ToUpper(c.text).ToUtf8(), Text(c.upper).ToUtf8()) << c.name;
  EXPECT_EQ(conversions.ToUpper(u'\u00FC'), u'\u00DC');
}

TEST(ToUpper, TakesTextsOfAnyLength) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  for (const std::size_t length :
       {std::size_t{127}, std::size_t{128}, std::size_t{129}, std::size_t{100000}})
    EXPECT_EQ(conversions.ToUpper(std::u16string(length, u'\u00E9')),
              std::u16string(length, u'\u00C9'))
        << length;
}

}  // namespace
}  // namespace sifter
