#include "matching/LeadingNumber.h"

#include "base/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace sifter {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

struct NumberCase {
  const char* name;
  TextView text;
  double number;
};

void CheckAll(std::initializer_list<NumberCase> cases) {
  for (const NumberCase& c : cases)
    EXPECT_EQ(LeadingNumber(c.text), c.number) << c.name << ": \"" << Text(c.text).ToUtf8() << '"';
}

TEST(LeadingNumber, ReadsTheLongestNumberInFront) {
  CheckAll({
      {"number", u"12", 12},
      {"letters behind", u"12abc", 12},
      {"group separator", u"1,234", 1},
      {"sign behind", u"5-", 5},
      {"exponent and a letter", u"1e2x", 100},
      {"point in front", u".5", 0.5},
      {"point behind", u"5.", 5},
      {"two points", u"1.2.3", 1.2},
      {"minus", u"-1.5", -1.5},
      {"plus", u"+7", 7},
      {"zeros in front", u"000012", 12},
      {"date", u"1/2/2005", 1},
      {"percent", u"50%", 50},
      {"exponent with plus", u"1E+2", 100},
      {"exponent with minus", u"25e-1", 2.5},
      {"exponent after the point", u"5.e1", 50},
      {"exponent without digits", u"5e", 5},
      {"exponent with a sign only", u"5e+x", 5},
      {"exponent with a fraction", u"1e1.5", 10},
      {"d is no exponent", u"1d5", 1},
  });
}

TEST(LeadingNumber, IsZeroWhenThereIsNone) {
  CheckAll({
      {"empty", u"", 0},
      {"word", u"abc", 0},
      {"currency", u"$5", 0},
      {"parentheses", u"(5)", 0},
      {"minus", u"-", 0},
      {"two signs", u"--5", 0},
      {"sign apart", u"- 5", 0},
      {"point", u".", 0},
      {"point and exponent", u".e5", 0},
      {"exponent", u"e5", 0},
      {"comma", u",5", 0},
      {"blanks", u"  \t", 0},
      {"infinity", u"inf", 0},
      {"no number", u"nan", 0},
      {"wide digits", u"\uFF11", 0},
      {"null in front", TextView(u"\0005", 2), 0},
  });
}

TEST(LeadingNumber, SkipsBlanksInFrontAndStopsAtBlanksWithin) {
  CheckAll({
      {"blank", u" 7", 7},
      {"tabs and line ends", u"\t\r\n 7", 7},
      {"blank within", u"1 2", 1},
      {"blank before the exponent", u"1 e2", 1},
      {"blank behind", u"7 ", 7},
      {"no-break space", u"\u00A07", 0},
  });
}

// Patterns of 16 and 32 bits are no negative numbers here: a column of such codes sorts and
// compares by what its cells show.
TEST(LeadingNumber, ReadsHexadecimalAndOctalAsMagnitudes) {
  CheckAll({
      {"hexadecimal", u"&H10", 16},
      {"lower case", u"&h1f", 31},
      {"octal", u"&O17", 15},
      {"octal, lower case", u"&o17", 15},
      {"stops at a letter", u"&HFG", 15},
      {"stops at a digit", u"&O178", 15},
      {"stops at a point", u"&H1.8", 1},
      {"blank in front", u" &HF", 15},
      {"15 bits", u"&H7FFF", 32767},
      {"16 bits", u"&H8000", 32768},
      {"16 bits set", u"&HFFFF", 65535},
      {"32 bits set", u"&HFFFFFFFF", 4294967295.0},
      {"64 bits set", u"&HFFFFFFFFFFFFFFFF", 18446744073709551616.0},
      {"68 bits", u"&H10000000000000000", 18446744073709551616.0},
      {"octal, past 64 bits", u"&O10000000000000000000000", 73786976294838206464.0},
      {"rounds halves to even", u"&H20000000000001", 9007199254740992.0},
      {"rounds up past a half", u"&H200000000000010000000000001",
       std::ldexp(9007199254740994.0, 52)},
      {"rounds to even at a half", u"&H200000000000010000000000000",
       std::ldexp(9007199254740992.0, 52)},
      {"prefix alone", u"&H", 0},
      {"ampersand alone", u"&", 0},
      {"no letter", u"&10", 0},
      {"other letter", u"&B1", 0},
      {"sign in front", u"-&H10", 0},
      {"foreign prefix", u"0x10", 0},
  });
  EXPECT_EQ(LeadingNumber(u"&H" + std::u16string(255, u'F')), std::ldexp(1.0, 1020));
  EXPECT_EQ(LeadingNumber(u"&H" + std::u16string(256, u'F')), kLargest);
  EXPECT_EQ(LeadingNumber(u"&H" + std::u16string(100000, u'F')), kLargest);
  EXPECT_EQ(LeadingNumber(u"&O" + std::u16string(100000, u'0') + u"7"), 7);
}

TEST(LeadingNumber, IsTheNearestDouble) {
  CheckAll({
      {"short fraction", u"0.1", 0.1},
      {"17 digits", u"0.30000000000000004", 0.30000000000000004},
      {"more digits than a double has", u"3.14159265358979323846264338327950288",
       3.141592653589793},
      {"largest exact integer", u"9007199254740993", 9007199254740992.0},
      {"half way", u"9007199254740993.0000000000000000000", 9007199254740992.0},
      {"just past half way", u"9007199254740993.0000000000000000001", 9007199254740994.0},
      {"22 places", u"1e22", 1e22},
      {"23 places", u"1e23", 1e23},
      {"22 places back", u"1e-22", 1e-22},
      {"least normal", u"2.2250738585072014e-308", 2.2250738585072014e-308},
      {"least of all", u"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()},
      {"largest", u"1.7976931348623157e308", kLargest},
      {"19 digits", u"9999999999999999999", 1e19},
      {"20 digits", u"18446744073709551616", 18446744073709551616.0},
  });
}

TEST(LeadingNumber, StaysFinite) {
  CheckAll({
      {"too large", u"1e400", kLargest},
      {"too large, negative", u"-1e400", -kLargest},
      {"just too large", u"1.7976931348623159e308", kLargest},
      {"huge exponent", u"1e99999999999999999999999999", kLargest},
      {"too small", u"1e-400", 0},
      {"just too small", u"2e-324", 0},
      {"huge negative exponent", u"1e-99999999999999999999999999", 0},
      {"zero with a huge exponent", u"0e99999999999999999999999999", 0},
      {"zero point zero with a huge exponent", u"0.000e999", 0},
  });
}

TEST(LeadingNumber, TakesTextsOfAnyLength) {
  const std::u16string zeros(100000, u'0');
  const std::u16string nines(100000, u'9');
  EXPECT_EQ(LeadingNumber(zeros + u"12"), 12);
  EXPECT_EQ(LeadingNumber(nines), kLargest);
  EXPECT_EQ(LeadingNumber(u"0." + nines), 1);
  EXPECT_EQ(LeadingNumber(u"." + zeros + u"1"), 0);
  EXPECT_EQ(LeadingNumber(u"." + zeros + u"25e100001"), 2.5);
  EXPECT_EQ(LeadingNumber(u"1" + zeros + u"e-100000"), 1);
  EXPECT_EQ(LeadingNumber(u"1e" + zeros + u"2"), 100);
  EXPECT_EQ(LeadingNumber(std::u16string(100000, u' ') + u"3"), 3);
  // The middle between 1 and the next double is passed by a digit 1000 places back.
  const std::u16string middle = u"1.00000000000000011102230246251565404236316680908203125";
  EXPECT_EQ(LeadingNumber(middle + zeros.substr(0, 1000)), 1);
  EXPECT_EQ(LeadingNumber(middle + zeros.substr(0, 1000) + u"1"), 1 + 0x1p-52);
}

// The same rules the slow way: cut out the characters that belong to the number and let the
// standard library convert them.
class SlowModel {
 public:
  explicit SlowModel(const std::string& text) : text_(text) {
    at_ = text_.find_first_not_of(" \t\n\v\f\r");
    if (at_ == std::string::npos) at_ = text_.size();
  }

  double Number() {
    if (Current() == '&') return BasedNumber();
    std::string taken;
    if (Current() == '+' || Current() == '-') taken += Take();
    const std::string whole = TakeAll("0123456789");
    std::string places;
    if (Current() == '.') {
      Take();
      places = TakeAll("0123456789");
    }
    if (whole.empty() && places.empty()) return 0;
    taken += '0' + whole + '.' + places + '0' + TakeExponent();
    const double number = std::strtod(taken.c_str(), nullptr);
    return std::isinf(number) ? std::copysign(kLargest, number) : number;
  }

 private:
  char Current() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  char Take() { return text_[at_++]; }
  std::string TakeAll(const char* kind) {
    const std::size_t first = at_;
    at_ = std::min(text_.find_first_not_of(kind, at_), text_.size());
    return text_.substr(first, at_ - first);
  }

  std::string TakeExponent() {
    if (Current() != 'e' && Current() != 'E') return "";
    Take();
    std::string sign;
    if (Current() == '+' || Current() == '-') sign = Take();
    const std::string digits = TakeAll("0123456789");
    return digits.empty() ? "" : 'e' + sign + digits;
  }

  double BasedNumber() {
    Take();
    const bool hexadecimal = Current() == 'h' || Current() == 'H';
    if (!hexadecimal && Current() != 'o' && Current() != 'O') return 0;
    Take();
    const std::string digits = TakeAll(hexadecimal ? "0123456789abcdefABCDEF" : "01234567");
    if (digits.empty()) return 0;
    if (hexadecimal) return std::strtod(("0x" + digits).c_str(), nullptr);
    double number = 0;
    for (const char digit : digits) number = number * 8 + (digit - '0');
    return number;
  }

  std::string text_;
  std::size_t at_ = 0;
};

class TextGenerator {
 public:
  // Mostly numbers, some of them with something wrong in the middle.
  std::string Next() {
    std::string text;
    if (OneIn(8)) text += Some(" \t\r\n", 2);
    if (OneIn(12)) {
      text += OneIn(2) ? "&H" : "&o";
      text += Some("0123456701234567abcdefABCDEF89", 17);
    } else {
      if (OneIn(3)) text += Some("+-", 1);
      text += Some("0123456789", OneIn(6) ? 40 : 7);
      if (OneIn(2)) text += '.' + Some("0123456789", OneIn(6) ? 40 : 4);
      if (OneIn(3)) text += OneIn(2) ? 'e' : 'E', text += Some("+-", 1) + Some("0123456789", 3);
    }
    if (OneIn(4)) text += Some("0123456789.,+-eE$ )abx&H", 4);
    if (OneIn(10)) text.insert(Below(text.size() + 1), Some("0123456789.,+-eE$ &Hh", 1));
    return text;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool OneIn(std::size_t n) { return Below(n) == 0; }
  std::string Some(const std::string& characters, std::size_t most) {
    std::string text(Below(most + 1), ' ');
    for (char& c : text) c = characters[Below(characters.size())];
    return text;
  }

  std::mt19937 random_{4711};
};

TEST(LeadingNumber, AgreesWithTheSlowModelOnGeneratedTexts) {
  TextGenerator generator;
  int zeros = 0;
  for (int i = 0; i < 100000; ++i) {
    const std::string text = generator.Next();
    const double expected = SlowModel(text).Number();
    ASSERT_EQ(LeadingNumber(std::u16string(text.begin(), text.end())), expected) << text;
    if (expected == 0) ++zeros;
  }
  EXPECT_LT(zeros, 30000) << "most of the texts should begin with a number";
}

}  // namespace
}  // namespace sifter
