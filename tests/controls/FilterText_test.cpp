#include "controls/FilterText.h"

#include "support/Errors.h"
#include "support/Printers.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace sifter {

void PrintTo(const TextCriterion& criterion, std::ostream* out) {
  *out << Quoted(criterion.column) << ' ' << Quoted(criterion.operatorNumber) << ' '
       << Quoted(criterion.first) << ' ' << Quoted(criterion.second);
}

namespace {

struct WellFormed {
  const char* what;
  TextView text;
  std::vector<TextCriterion> criteria;
};

TEST(FilterText, IsTakenApart) {
  const WellFormed cases[] = {
      {"one criterion", u"Name..11==abc2==def*?", {{u"Name", u"1", u"abc", u"def"}}},
      {"in order",
       u"Name..11==abc2==*?Qty..21==2==*?",
       {{u"Name", u"1", u"abc", u""}, {u"Qty", u"2", u"", u""}}},
      {"no second parameter", u"Name..11==abc*?", {{u"Name", u"1", u"abc", u""}}},
      {"nothing but marks", u"..1==2==*?", {{u"", u"", u"", u""}}},
      {"the first two dots count", u"a..b..11==x2==*?", {{u"a", u"b..1", u"x", u""}}},
      {"three dots", u"a...11==x*?", {{u"a", u".1", u"x", u""}}},
      {"the first 1== counts", u"a..11==1==1==x*?", {{u"a", u"1", u"1==1==x", u""}}},
      {"an operator of 11", u"a..111==x*?", {{u"a", u"11", u"x", u""}}},
      {"the first 2== counts", u"a..11==x2==y2==z*?", {{u"a", u"1", u"x", u"y2==z"}}},
      {"a 2== before the 1==", u"a..2==1==x*?", {{u"a", u"2==", u"x", u""}}},
      {"dots in a parameter", u"a..11==1..2*?", {{u"a", u"1", u"1..2", u""}}},
      {"a 1== before the dots", u"1==..11==x*?", {{u"1==", u"1", u"x", u""}}},
      {"blanks stay", u" a .. 1 1== x 2== y *?", {{u" a ", u" 1 ", u" x ", u" y "}}},
      {"quotes and lines stay", u"a..11==\"x\"\r\ny*?", {{u"a", u"1", u"\"x\"\r\ny", u""}}},
      {"a star alone", u"a..11==x*y?z*?", {{u"a", u"1", u"x*y?z", u""}}},
      {"a mark inside a parameter ends there, the rest is one character",
       u"a..11==x*?y",
       {{u"a", u"1", u"x", u""}}},
      {"one character behind the end", u"a..11==x*?*", {{u"a", u"1", u"x", u""}}},
      {"empty", u"", {}},
      {"one character", u"x", {}},
  };
  for (const WellFormed& each : cases)
    EXPECT_EQ(ParseFilterText(each.text), each.criteria) << each.what;
}

struct Malformed {
  const char* what;
  TextView text;
};

TEST(FilterText, ThatCantBeReadIsAnErrorWithoutADescription) {
  const Malformed cases[] = {
      {"no end", u"Name..11==abc2=="},
      {"a blank between the marks of the end", u"Name..11==abc2==* ?"},
      {"no dots", u"Name11==abc2==*?"},
      {"one dot", u"Name.11==abc2==*?"},
      {"no operator", u"Name..abc2==*?"},
      {"one equals sign", u"Name..11=abc2==*?"},
      {"the operator's mark before the dots only", u"11==Name..abc*?"},
      {"the end alone", u"*?"},
      {"two characters", u"ab"},
      {"two characters behind the end", u"a..11==x*?yz"},
      {"two ends", u"a..11==x*?*?"},
      {"a mark inside a parameter ends there, and the rest is no criterion", u"a..11==x*?y2==z*?"},
      {"the second of two", u"a..11==x*?b..x*?"},
  };
  for (const Malformed& each : cases) {
    try {
      ParseFilterText(each.text);
      ADD_FAILURE() << each.what << " was read";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), -2147221503) << each.what;
      EXPECT_EQ(error.Description(), u"") << each.what;
    }
  }
}

// A text is read in one pass over it.
TEST(FilterText, MayBeLong) {
  std::u16string text;
  for (int i = 0; i < 20000; ++i) text += u"Name..11==abc2==def*?";
  const std::vector<TextCriterion> criteria = ParseFilterText(text);
  ASSERT_EQ(criteria.size(), 20000u);
  EXPECT_EQ(criteria.back(), (TextCriterion{u"Name", u"1", u"abc", u"def"}));
}

}  // namespace

}  // namespace sifter
