#include "base/EnUsNumbers.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace sifter {
namespace {

struct NumberCase {
  const char* name;
  TextView text;
  bool isNumber;
};

void CheckAll(std::initializer_list<NumberCase> cases) {
  for (const NumberCase& c : cases)
    EXPECT_EQ(IsEnUsNumber(c.text), c.isNumber) << c.name << ": \"" << Text(c.text).ToUtf8() << '"';
}

TEST(EnUsNumbers, AgreeWithThePlatformWhereItWasAsked) {
  CheckAll({
      {"group separator", u"1,234", true},
      {"separator and point", u"1,234.5", true},
      {"currency", u"$5", true},
      {"parentheses", u"(5)", true},
      {"hexadecimal", u"&H10", true},
      {"exponent", u"1e5", true},
      {"another exponent", u"1e3", true},
      {"blanks around", u" 5 ", true},
      {"more blanks around", u" 7 ", true},
      {"plus", u"+5", true},
      {"minus behind", u"5-", true},
      {"point in front", u".5", true},
      {"separators anywhere", u"1,2,3", true},
      {"year", u"2005", true},
      {"fraction", u"1.5", true},
      {"empty", u"", false},
      {"sign alone", u"-", false},
      {"exponent with d", u"1d5", false},
      {"percent", u"5%", false},
      {"inner blank", u"1 2", false},
      {"foreign hexadecimal", u"0x10", false},
      {"letters behind", u"12abc", false},
      {"at sign behind", u"10@", false},
      {"at sign in front", u"@20", false},
      {"two points", u"1.2.2005", false},
      {"date", u"1/2/2005", false},
      {"date with dashes", u"2005-01-31", false},
      {"two-digit year", u"1/2/30", false},
      {"month name", u"Jan 5, 2005", false},
      {"time", u"10:30 PM", false},
      {"too large", u"1E400", false},
  });
}

TEST(EnUsNumbers, NeedADigit) {
  CheckAll({
      {"blanks", u"  \t ", false},
      {"point", u".", false},
      {"comma", u",", false},
      {"currency", u"$", false},
      {"parentheses", u"()", false},
      {"exponent alone", u"e5", false},
      {"point and exponent", u".e5", false},
      {"ampersand", u"&", false},
      {"hexadecimal prefix", u"&H", false},
      {"octal prefix", u"&O", false},
      {"point at the end", u"5.", true},
      {"zero", u"0", true},
  });
}

TEST(EnUsNumbers, TakeOneSignOnEitherSide) {
  CheckAll({
      {"minus", u"-5", true},
      {"plus behind", u"5+", true},
      {"blank after the sign", u"- 5", true},
      {"blank before the sign behind", u"5 -", true},
      {"both sides", u"-5-", false},
      {"both sides, differing", u"+5-", false},
      {"two in front", u"--5", false},
      {"two in front, differing", u"+-5", false},
      {"two behind", u"5--", false},
      {"in the middle", u"1-2", false},
  });
}

TEST(EnUsNumbers, TakeParenthesesInPlaceOfASign) {
  CheckAll({
      {"with blanks", u" ( 5 ) ", true},
      {"with point", u"(1,234.50)", true},
      {"sign inside", u"(-5)", false},
      {"sign before", u"-(5)", false},
      {"sign behind", u"(5)-", false},
      {"sign inside behind", u"(5-)", false},
      {"not closed", u"(5", false},
      {"not opened", u"5)", false},
      {"doubled", u"((5))", false},
      {"closed twice", u"(5))", false},
      {"number behind", u"(5)6", false},
  });
}

TEST(EnUsNumbers, TakeACurrencySignOnEachSide) {
  CheckAll({
      {"behind", u"5$", true},
      {"blank between", u"$ 5", true},
      {"sign first", u"-$5", true},
      {"sign second", u"$-5", true},
      {"sign behind it", u"5$-", true},
      {"sign before it behind", u"5-$", true},
      {"inside parentheses", u"($5)", true},
      {"inside parentheses behind", u"(5$)", true},
      {"outside parentheses", u"$(5)", true},
      {"behind parentheses", u"(5)$", true},
      {"both sides", u"$5$", true},
      {"two in front", u"$$5", false},
      {"two behind", u"5$$", false},
      {"two behind, parted", u"(5$)$", false},
      {"in the middle", u"5$5", false},
      {"another currency", u"\u20AC5", false},
      {"all at once", u"($1,23,,3.4,,,5,,E67$)", true},
  });
}

TEST(EnUsNumbers, DoNotCheckThePlacesOfCommas) {
  CheckAll({
      {"next to each other", u"1,,2", true},
      {"at the end", u"5,", true},
      {"behind the point, without a digit before", u".,5", true},
      {"behind the point", u"1.2,3", true},
      {"before the exponent", u"1,e5", true},
      {"in front", u",5", false},
      {"in front, behind the sign", u"-,5", false},
      {"within the exponent", u"1e1,0", false},
      {"behind the exponent", u"1e5,", false},
      {"behind a blank", u"5 ,", false},
  });
}

TEST(EnUsNumbers, ReadAnExponentOnlyWithItsDigits) {
  CheckAll({
      {"upper case", u"1E5", true},
      {"plus", u"1e+5", true},
      {"minus", u"1e-5", true},
      {"after a point", u"1.e5", true},
      {"sign behind", u"1e5-", true},
      {"nothing after it", u"1e", false},
      {"sign only", u"1e+", false},
      {"two signs", u"1e+-5", false},
      {"fraction", u"1e5.5", false},
      {"blank before it", u"1 e5", false},
      {"blank within", u"1e 5", false},
      {"twice", u"1e5e5", false},
  });
}

TEST(EnUsNumbers, ReadHexadecimalAndOctalAlone) {
  CheckAll({
      {"lower case", u"&h1f", true},
      {"octal", u"&O17", true},
      {"octal, lower case", u"&o17", true},
      {"blanks around", u" &HFF ", true},
      {"64 bits", u"&HFFFFFFFFFFFFFFFF", true},
      {"leading zeros", u"&H0000000000000000000001", true},
      {"65 bits", u"&H1FFFFFFFFFFFFFFFF", false},
      {"octal, 64 bits", u"&O1777777777777777777777", true},
      {"octal, 65 bits", u"&O2000000000000000000000", false},
      {"no hexadecimal digit", u"&HG", false},
      {"no octal digit", u"&O8", false},
      {"no letter", u"&10", false},
      {"sign", u"-&H10", false},
      {"sign behind", u"&H10-", false},
      {"point", u"&H1.5", false},
      {"blank within", u"&H 10", false},
  });
}

TEST(EnUsNumbers, EndWhereADoubleEnds) {
  const std::u16string zeros(400, u'0');
  const std::u16string nines(309, u'9');
  CheckAll({
      {"largest", u"1.7976931348623157E308", true},
      {"largest, behind the point", u"0.00017976931348623157E312", true},
      {"just past it", u"1.7976931348623159E308", false},
      {"negative", u"-1E309", false},
      {"308 nines", TextView(nines).substr(1), true},
      {"309 nines", nines, false},
      {"too small", u"1E-400", true},
      {"zero with a huge exponent", u"0E99999999999999999999", true},
      {"one with a huge exponent", u"1E99999999999999999999", false},
      {"one with a huge negative exponent", u"1E-99999999999999999999", true},
      {"many zeros", zeros, true},
  });
  CheckAll({
      {"many digits and a negative exponent", u"1" + zeros + u"E-200", true},
      {"still too many", u"1" + zeros + u"E-91", false},
      {"just few enough", u"1" + zeros + u"E-92", true},
      {"many zeros behind the point", u"." + zeros + u"1E700", true},
      {"too few zeros behind the point", u"." + zeros + u"1E710", false},
  });
}

TEST(EnUsNumbers, KnowNoOtherCharacters) {
  CheckAll({
      {"word", u"NaN", false},
      {"other word", u"Infinity", false},
      {"wide digits", u"\uFF11\uFF12", false},
      {"tabs and line ends", u"\t5\r\n", true},
      {"no-break space", u"\u00A05\u00A0", true},
      {"wide space", u"\u3000$\u30005", true},
      {"space between digits", u"5\u00A05", false},
      {"zero-width space", u"5\u200B", false},
      {"null behind", TextView(u"5\0", 2), false},
      {"null in front", TextView(u"\0005", 2), false},
      {"type character", u"5#", false},
      {"two numbers", u"5 5", false},
  });
}

}  // namespace
}  // namespace sifter
