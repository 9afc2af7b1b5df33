#include "win32/PlatformConversions.h"

#include "ConversionTexts.h"
#include "DoubtfulTexts.h"
#include "base/Calendar.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

// The portable conversions stand in for the platform's where there is no such platform, so the two
// must give the same answers. What they disagree about is listed here, class by class, with the
// reason why the portable ones stay as they are. Anything else is a failure, and so is a class that
// doesn't come up any more.

namespace sifter {
namespace {

struct Answers {
  bool isNumber = false;
  std::optional<Date> date;
};

Answers Ask(const Conversions& conversions, TextView text) {
  return {conversions.IsNumeric(text), conversions.ToDate(text)};
}

std::string Written(const std::optional<Date>& date) {
  if (!date) return "no date";
  const std::optional<CalendarTime> time = CalendarOf(*date);
  if (!time) return "outside the calendar";
  char written[80];
  std::snprintf(written, sizeof written, "%04d-%02d-%02d %02d:%02d:%02d", time->year, time->month,
                time->day, time->hour, time->minute, time->second);
  return written;
}

std::string Written(const Answers& answers) {
  return (answers.isNumber ? "a number, " : "no number, ") + Written(answers.date);
}

enum class Taken { kByPlatform, kByUs, kByBoth, kNeither };

Taken TakenBy(bool platform, bool ours) {
  if (platform) return ours ? Taken::kByBoth : Taken::kByPlatform;
  return ours ? Taken::kByUs : Taken::kNeither;
}

struct DisagreementClass {
  const char* reason;
  Taken taken;
  const char* pattern;  // what the text holds
};

// Patterns see the text in small letters, as UTF-8.
#define SPACE "(\\s|\xC2\xA0)"
#define GAP "(\\s|\xC2\xA0|,)"
#define MONTH_NAME "(jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec)"
#define MONTH MONTH_NAME "[a-z]*"
#define MONTH_IN_FULL                                                                            \
  "(jan(uary)?|feb(ruary)?|mar(ch)?|apr(il)?|may|june?|july?|aug(ust)?|sep(tember)?|oct(ober)?|" \
  "nov(ember)?|dec(ember)?)"
#define A_OR_P "(a(?!pr|ug)|p)"
#define HALF_DAY "[ap]m?(?![a-z])"

constexpr DisagreementClass kDates[] = {
    {"between a day and a year the day comes first, as everybody writes it", Taken::kByBoth,
     "[0-9]" GAP "*[-/]?" GAP "*" MONTH GAP "*[-/]?" GAP "*[0-9]"},
    {"a day of the week makes it no date, as hosts document", Taken::kByPlatform,
     "(sun|mon|tue|wed|thu|fri|sat)"},
    {"two months are no date", Taken::kByPlatform, MONTH ".*" MONTH},
    {"a month is no part of the time of day", Taken::kByPlatform,
     MONTH GAP "*[.:]|[.:]" GAP "*" MONTH "|" MONTH_IN_FULL GAP "*" A_OR_P},
    {"between two marks there must be something", Taken::kByPlatform, "[-/.:]" GAP "*[-/.:]"},
    {"a comma or a mark must have something on both sides", Taken::kByPlatform,
     "^" SPACE "*,|[-/.:,]" SPACE "+$"},
    {"AM and PM stand right behind the time", Taken::kByPlatform,
     "[-/.:]" GAP "*" HALF_DAY "|(^|[0-9,]|\\s)" HALF_DAY GAP "*[.:]"},
    {"words that run together are no words", Taken::kByPlatform, "[ap]m[a-z]"},
    {"a single a or p with something behind it is another word", Taken::kByPlatform,
     "[-/.:0-9]" GAP "*" A_OR_P "(?!m|$)"},
    {"a digit behind a single a or p counts", Taken::kByBoth, "[0-9]" GAP "*[ap][0-9]"},
    {"a digit behind a single a or p counts, and may complete the date", Taken::kByUs,
     "[0-9]" GAP "*[ap][0-9]"},
    {"years end with 9999 and don't begin again", Taken::kByPlatform, "[1-9][0-9]{4}"},
};

constexpr DisagreementClass kNumbers[] = {
    {"a number has one sign", Taken::kByPlatform, "[-+(].*[-+(]"},
    {"parentheses stand in pairs", Taken::kByPlatform, "^[^)]*\\([^)]*$|\\).*\\)"},
    {"a sign of currency stands once on a side", Taken::kByPlatform, "[0-9.,][^$]*\\$[^$]*\\$"},
    {"an amount of money may have an exponent, as hosts know", Taken::kByUs, "\\$.*e"},
    {"hexadecimal and octal numbers may have 64 bits", Taken::kByUs,
     "&(h0*[1-9a-f][0-9a-f]{7}|o0*[1-7][0-7]{10})"},
    {"hexadecimal and octal numbers have no sign", Taken::kByPlatform, "&.*[-+)]|[-+(].*&"},
    {"a comma stands beside the digits and the point", Taken::kByPlatform,
     "[-+$)e]" SPACE "*,|" SPACE ",|e[0-9]+,"},
    {"the largest double is a number", Taken::kByUs, "e308"},
};

#undef SPACE
#undef GAP
#undef MONTH
#undef MONTH_NAME
#undef MONTH_IN_FULL
#undef A_OR_P
#undef HALF_DAY

// Sorts disagreements into the classes of a table.
class Classifier {
 public:
  template <std::size_t N>
  explicit Classifier(const DisagreementClass (&classes)[N]) {
    for (const DisagreementClass& row : classes) rows_.push_back({&row, std::regex(row.pattern)});
  }

  // False when no class has it.
  bool Sort(TextView text, Taken taken) {
    const std::string searched = Searched(text);
    for (Row& row : rows_) {
      if (row.row->taken != taken || !std::regex_search(searched, row.pattern)) continue;
      ++row.count;
      return true;
    }
    return false;
  }

  std::vector<std::string> Unused() const {
    std::vector<std::string> unused;
    for (const Row& row : rows_)
      if (row.count == 0) unused.push_back(row.row->reason);
    return unused;
  }

 private:
  struct Row {
    const DisagreementClass* row;
    std::regex pattern;
    int count = 0;
  };

  // The sign of an exponent is no sign of the number.
  static std::string Searched(TextView text) {
    std::string searched = Text(text).ToUtf8();
    for (char& c : searched)
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    return std::regex_replace(searched, std::regex("e[-+](?=[0-9])"), "e");
  }

  std::vector<Row> rows_;
};

std::set<std::u16string> TextsToTry() {
  const std::vector<std::u16string> doubtful = DoubtfulTexts();
  std::set<std::u16string> texts(doubtful.begin(), doubtful.end());
  ConversionTexts maker(20240229);
  for (int i = 0; i < 14000; ++i) {
    texts.insert(maker.Number());
    texts.insert(maker.Date());
    texts.insert(maker.NearNumber());
    texts.insert(maker.NearDate());
    texts.insert(maker.Jumble());
  }
  return texts;
}

TEST(PlatformConversions, AgreeWithThePortableOnes) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  const EnUsConversions portable(clock);
  Classifier dates(kDates);
  Classifier numbers(kNumbers);
  const std::set<std::u16string> texts = TextsToTry();
  EXPECT_GE(texts.size(), 50000u);
  int taken = 0;
  int surprises = 0;
  for (const std::u16string& text : texts) {
    const Answers theirs = Ask(platform, text);
    const Answers ours = Ask(portable, text);
    if (theirs.isNumber || theirs.date) ++taken;
    bool expected = true;
    if (theirs.date != ours.date)
      expected = dates.Sort(text, TakenBy(theirs.date.has_value(), ours.date.has_value()));
    if (theirs.isNumber != ours.isNumber)
      expected = numbers.Sort(text, TakenBy(theirs.isNumber, ours.isNumber)) && expected;
    if (expected) continue;
    if (++surprises <= 40)
      ADD_FAILURE() << '"' << Text(text).ToUtf8() << "\"\n  platform: " << Written(theirs)
                    << "\n  portable: " << Written(ours);
  }
  EXPECT_EQ(surprises, 0);
  EXPECT_GE(taken, 10000);
  EXPECT_EQ(dates.Unused(), std::vector<std::string>());
  EXPECT_EQ(numbers.Unused(), std::vector<std::string>());
}

bool IsDigitOfAnotherScript(char16_t unit) {
  const wchar_t wide = static_cast<wchar_t>(unit);
  WORD type = 0;
  GetStringTypeW(CT_CTYPE1, &wide, 1, &type);
  return unit >= 0x80 && (type & C1_DIGIT) != 0;
}

// Where it could be a digit, a space, a sign or a mark.
TEST(PlatformConversions, AgreeWithThePortableOnesAboutEveryCodeUnitPastAscii) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  const EnUsConversions portable(clock);
  int takenDigits = 0;
  for (unsigned code = 0x80; code <= 0xFFFF; ++code) {
    const std::u16string unit(1, static_cast<char16_t>(code));
    for (const std::u16string& text : {u"5" + unit, unit + u"5", u"5" + unit + u"5"})
      ASSERT_EQ(platform.IsNumeric(text), portable.IsNumeric(text)) << std::hex << code;
    for (const std::u16string& text : {u"1" + unit + u"2" + unit + u"2005", u"10" + unit + u"30",
                                       u"10:30" + unit + u"PM", u"5" + unit + u"Jan"}) {
      const std::optional<Date> theirs = platform.ToDate(text);
      const std::optional<Date> ours = portable.ToDate(text);
      // Digits of other scripts make no number, so they make no date.
      const bool expected = theirs && !ours && IsDigitOfAnotherScript(unit[0]);
      if (expected) ++takenDigits;
      ASSERT_TRUE(expected || theirs == ours)
          << std::hex << code << "\n  platform: " << Written(theirs)
          << "\n  portable: " << Written(ours);
    }
  }
  EXPECT_GT(takenDigits, 0);
}

TEST(PlatformConversions, UpperCaseAsThePortableOnesDo) {
  const SystemClock clock;
  const char16_t* const platform = PlatformConversions(clock).UpperCaseTable();
  const char16_t* const portable = EnUsConversions(clock).UpperCaseTable();
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    EXPECT_EQ(platform[unit], portable[unit]) << std::hex << unit;
}

// Whatever else either of them may come to take.
TEST(PlatformConversions, GiveTheAnswersThatHostsRelyOn) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  const struct {
    TextView text;
    bool isNumber;
    const char* date;
  } cases[] = {
      {u"1,234", true, "0234-01-01 00:00:00"},
      {u"1,234.5", true, "no date"},
      {u"$5", true, "no date"},
      {u"(5)", true, "no date"},
      {u"&H10", true, "no date"},
      {u"1e5", true, "no date"},
      {u" 5 ", true, "no date"},
      {u"+5", true, "no date"},
      {u"5-", true, "no date"},
      {u".5", true, "no date"},
      {u"1,2,3", true, "2003-01-02 00:00:00"},
      {u"1.5", true, "1899-12-30 01:05:00"},
      {u"2005", true, "no date"},
      {u"5", true, "no date"},
      {u"", false, "no date"},
      {u"-", false, "no date"},
      {u"1d5", false, "no date"},
      {u"5%", false, "no date"},
      {u"0x10", false, "no date"},
      {u"12abc", false, "no date"},
      {u"10@", false, "no date"},
      {u"@20", false, "no date"},
      {u"1E400", false, "no date"},
      {u"1.2.2005", false, "no date"},
      {u"1/1/2005", false, "2005-01-01 00:00:00"},
      {u" 1/2/2005 ", false, "2005-01-02 00:00:00"},
      {u"31/1/2005", false, "2005-01-31 00:00:00"},
      {u"31/12/2005", false, "2005-12-31 00:00:00"},
      {u"2005-01-31", false, "2005-01-31 00:00:00"},
      {u"1/2/30", false, "2030-01-02 00:00:00"},
      {u"Jan 5, 2005", false, "2005-01-05 00:00:00"},
      {u"12:30", false, "1899-12-30 12:30:00"},
      {u"10:30 PM", false, "1899-12-30 22:30:00"},
      {u"5 January 2005 13:45", false, "2005-01-05 13:45:00"},
      {u"1/1/2005@", false, "no date"},
      {TextView(u"5\0", 2), false, "no date"},
      {TextView(u"1/2/2005\0", 9), false, "no date"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(platform.IsNumeric(c.text), c.isNumber) << Text(c.text).ToUtf8();
    EXPECT_EQ(Written(platform.ToDate(c.text)), c.date) << Text(c.text).ToUtf8();
  }
  EXPECT_TRUE(platform.IsDate(u"Jan 5"));
  EXPECT_TRUE(platform.IsDate(u"1-2"));
}

}  // namespace
}  // namespace sifter
