#include "sift/JsonWriter.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

struct StringCase {
  const char* name;
  TextView text;
  const char* json;
};

TEST(AppendJsonString, EscapesWhatJsonDemands) {
  const StringCase cases[] = {
      {"nothing", u"", R"("")"},
      {"plain", u"Oak 'n' /elm/", R"("Oak 'n' /elm/")"},
      {"quotes and backslashes", u"\"\\", R"("\"\\")"},
      {"short escapes", u"\b\f\n\r\t", R"("\b\f\n\r\t")"},
      {"other control characters", TextView(u"\0\x01\x1B\x1F", 4), R"("\u0000\u0001\u001b\u001f")"},
      {"delete", u"\x7F", "\"\x7F\""},
      {"beyond ASCII", u"é漢\u2028", "\"é漢\u2028\""},
      {"pair", u"𝄞", "\"𝄞\""},
      {"first half alone", u"a\xD834", R"("a\ud834")"},
      {"second half alone", u"\xDD1Ez", R"("\udd1ez")"},
      {"halves the wrong way round", u"\xDD1E\xD834", R"("\udd1e\ud834")"},
      {"half before a pair", u"\xD834\xD834\xDD1E", "\"\\ud834𝄞\""},
  };
  for (const StringCase& c : cases) {
    std::string json;
    AppendJsonString(json, c.text);
    EXPECT_EQ(json, c.json) << c.name;
  }
}

TEST(JsonOf, HasEveryFieldInItsPlace) {
  const FilterResult result{
      .columns = {{u"Name", ColumnDataType::kText},
                  {u"Qty", ColumnDataType::kNumber},
                  {u"Due", ColumnDataType::kDate}},
      .total = 12,
      .kept = {2, 3, 11},
      .filter = u"(Name = 'a\"b')",
      .english = u"Name equals a\"b",
      .messages = {{u"RowSifter", u"one\ntwo"}, {u"Error", u"Error number is 13, Type mismatch"}},
      .notes = {"not in it"},
  };
  EXPECT_EQ(JsonOf(result),
            "{\"columns\":[{\"name\":\"Name\",\"type\":0},{\"name\":\"Qty\",\"type\":1},"
            "{\"name\":\"Due\",\"type\":2}],\"total\":12,\"kept\":[2,3,11],"
            "\"filter\":\"(Name = 'a\\\"b')\",\"english\":\"Name equals a\\\"b\","
            "\"messages\":[{\"title\":\"RowSifter\",\"text\":\"one\\ntwo\"},"
            "{\"title\":\"Error\",\"text\":\"Error number is 13, Type mismatch\"}]}\n");
}

TEST(JsonOf, KeepsEmptyFields) {
  EXPECT_EQ(JsonOf({.columns = {{Text(), ColumnDataType::kText}}}),
            R"({"columns":[{"name":"","type":0}],"total":0,"kept":[],"filter":"","english":"",)"
            R"("messages":[]})"
            "\n");
}

}  // namespace
}  // namespace sifter
