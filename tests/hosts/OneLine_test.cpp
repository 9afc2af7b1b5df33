#include "sift/OneLine.h"

#include "support/Printers.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

struct OneLineCase {
  const char* name;
  TextView text;
  const char* shown;
};

TEST(OnOneLine, ShowsWhatWouldSteerTheTerminalAsSigns) {
  const OneLineCase cases[] = {
      {"plain", u"plain é漢", "plain é漢"},
      {"line ends", u"a\r\nb", "a␍␊b"},
      {"tab", u"a\tb", "a␉b"},
      {"escape", u"\x1B[31m", "␛[31m"},
      {"NUL", TextView(u"a\0b", 3), "a␀b"},
      {"last control character", u"\x1F ", "␟ "},
      {"delete", u"\x7F", "␡"},
      {"control characters behind ASCII", u"\x80\x9F\xA0", "\uFFFD\uFFFD\u00A0"},
      {"line and paragraph separator", u"a\u2028b\u2029", "a␤b␤"},
      {"pair", u"𝄞", "𝄞"},
      {"half a pair", u"\xD834", "\uFFFD"},
  };
  for (const OneLineCase& c : cases) EXPECT_EQ(OnOneLine(c.text), c.shown) << c.name;
}

TEST(InQuotes, AddsQuotesAndEscapesNothing) {
  EXPECT_EQ(InQuotes(TextView(u"say \"oak\"")), "\"say \"oak\"\"");
  EXPECT_EQ(InQuotes(std::string_view("a\nb")), "\"a␊b\"");
}

TEST(ListInQuotes, PutsCommasBetween) {
  EXPECT_EQ(ListInQuotes({}), "");
  EXPECT_EQ(ListInQuotes({u"a"}), "\"a\"");
  EXPECT_EQ(ListInQuotes({u"a", u"", u"b"}), "\"a\", \"\", \"b\"");
}

}  // namespace
}  // namespace sifter
