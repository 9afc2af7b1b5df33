#include "base/Calendar.h"
#include "base/Conversions.h"
#include "base/EnUsDates.h"
#include "support/ClockFake.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace sifter {
namespace {

struct TextCase {
  const char* name;
  Date date;
  const char* text;
};

void CheckAll(std::initializer_list<TextCase> cases) {
  const ClockFake clock;
  const EnUsConversions conversions(clock);
  for (const TextCase& c : cases)
    EXPECT_EQ(conversions.DateToText(c.date).ToUtf8(), c.text) << c.name;
}

TEST(DateToText, WritesTheShortDateAndTheTimeUnlessItIsMidnight) {
  CheckAll({
      {"day", DateOf({.year = 2005, .month = 1, .day = 31}), "1/31/2005"},
      {"two digits", DateOf({.year = 2005, .month = 12, .day = 1}), "12/1/2005"},
      {"morning", DateOf({2005, 1, 5, 9, 5, 7}), "1/5/2005 9:05:07 AM"},
      {"afternoon", DateOf({2005, 1, 5, 13, 45, 0}), "1/5/2005 1:45:00 PM"},
      {"noon", DateOf({2005, 1, 5, 12, 0, 0}), "1/5/2005 12:00:00 PM"},
      {"after midnight", DateOf({2005, 1, 5, 0, 0, 1}), "1/5/2005 12:00:01 AM"},
      {"last second", DateOf({2005, 1, 5, 23, 59, 59}), "1/5/2005 11:59:59 PM"},
      {"early year", DateOf({.year = 100, .month = 1, .day = 1}), "1/1/0100"},
      {"last day", DateOf({9999, 12, 31, 23, 59, 59}), "12/31/9999 11:59:59 PM"},
      {"before day 0", Date{-1.25}, "12/29/1899 6:00:00 AM"},
      {"day after day 0", Date{1}, "12/31/1899"},
  });
}

// A time without a date is kept on day 0, and hosts expect to see the time that they put there.
TEST(DateToText, WritesOnlyTheTimeOnDayZero) {
  CheckAll({
      {"evening", Date{22.5 / 24}, "10:30:00 PM"},
      {"negative zero days", Date{-0.25}, "6:00:00 AM"},
      {"midnight", Date{0}, "12:00:00 AM"},
      {"second after midnight", Date{1.0 / 86400}, "12:00:01 AM"},
  });
}

TEST(DateToText, RoundsToTheNearestSecond) {
  constexpr double kSecond = 1.0 / 86400;
  CheckAll({
      {"down", Date{38357 + 10.4 * kSecond}, "1/5/2005 12:00:10 AM"},
      {"up", Date{38357 + 10.6 * kSecond}, "1/5/2005 12:00:11 AM"},
      {"down to midnight", Date{38357 + 0.4 * kSecond}, "1/5/2005"},
      {"up to the next day", Date{38358 - 0.4 * kSecond}, "1/6/2005"},
      {"up to the next year", Date{38718 - 0.4 * kSecond}, "1/1/2006"},
      {"up from day 0", Date{1 - 0.4 * kSecond}, "12/31/1899"},
      {"up to day 0", Date{-2 + 0.4 * kSecond}, "12:00:00 AM"},
  });
}

TEST(DateToText, IsEmptyForWhatIsNoDate) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  CheckAll({
      {"no number", Date{std::numeric_limits<double>::quiet_NaN()}, ""},
      {"infinity", Date{kInfinity}, ""},
      {"minus infinity", Date{-kInfinity}, ""},
      {"largest", Date{std::numeric_limits<double>::max()}, ""},
      {"past the last day", Date{2958466}, ""},
      {"rounded past the last day", Date{2958466 - 0.4 / 86400}, ""},
      {"before the first day", Date{-657435}, ""},
      {"evening of the first day", Date{-657434.75}, "1/1/0100 6:00:00 PM"},
  });
}

TEST(DateToText, IsReadBackAsTheSameMoment) {
  const ClockFake clock;
  std::mt19937 random(20070615);
  std::uniform_int_distribution<int> days(-657434, 2958465);
  std::uniform_int_distribution<int> seconds(0, kSecondsPerDay - 1);
  for (int i = 0; i < 20000; ++i) {
    // Every fourth is a midnight, as most dates in lists are.
    const Date date = DateAt(days(random), i % 4 == 0 ? 0 : seconds(random));
    const Text text = EnUsDateText(date);
    ASSERT_EQ(ParseEnUsDate(text, clock), date) << text.ToUtf8();
  }
}

TEST(DateToText, IsReadBackForEverySecondOfDayZero) {
  const ClockFake clock;
  for (int second = 0; second < kSecondsPerDay; ++second) {
    const Text text = EnUsDateText(DateAt(0, second));
    ASSERT_EQ(ParseEnUsDate(text, clock), DateAt(0, second)) << text.ToUtf8();
  }
}

}  // namespace
}  // namespace sifter
