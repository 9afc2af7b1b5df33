#include "base/Calendar.h"
#include "win32/PlatformConversions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace sifter {
namespace {

// Where the platform writes a date otherwise than the portable conversions, why these stay as they
// are, and how one knows such a date.
struct DisagreementClass {
  const char* reason;
  bool (*has)(Date date, TextView platform, TextView ours);
};

bool HasTime(TextView text) { return text.find(u':') != TextView::npos; }

double Seconds(Date date) { return std::abs(date.serial - std::trunc(date.serial)) * 86400; }

constexpr DisagreementClass kClasses[] = {
    {"a year has four digits, as its format says",
     [](Date date, TextView, TextView) {
       const std::optional<CalendarTime> time = CalendarOf(date);
       return time && time->year < 1000;
     }},
    {"what rounds to a midnight is one, and is written like one",
     [](Date date, TextView platform, TextView ours) {
       return HasTime(platform) && Seconds(date) > 0 &&
              (!HasTime(ours) || ours == u"12:00:00 AM") &&
              platform.find(u"12:00:00 AM") != TextView::npos;
     }},
    {"half a second to within the precision of a serial rounds either way",
     [](Date date, TextView, TextView) {
       const double seconds = Seconds(date);
       return std::abs(seconds - std::floor(seconds) - 0.5) < 1e-4;
     }},
};

class Serials {
 public:
  // A day of the calendar with this part of it gone by.
  double On(double fractionOfDay) {
    const int day = static_cast<int>(random_() % 3615900u) - 657434;
    return day < 0 ? day - fractionOfDay : day + fractionOfDay;
  }
  double Fraction() { return random_() / 4294967296.0; }
  double WholeSecond() { return static_cast<double>(random_() % 86400u) / 86400; }
  double TenthOfSecond() { return static_cast<double>(random_() % 864000u) / 864000; }

 private:
  std::mt19937 random_{20240229};
};

std::vector<double> SerialsToTry() {
  constexpr double kSecond = 1.0 / 86400;
  std::vector<double> serials = {0,
                                 -0.0,
                                 1,
                                 -1,
                                 0.25,
                                 -0.25,
                                 -1.25,
                                 0.5 * kSecond,
                                 1 - 0.4 * kSecond,
                                 -1 + 0.4 * kSecond,
                                 -1 - 0.4 * kSecond,
                                 -2 + 0.4 * kSecond,
                                 38357 + 0.4 * kSecond,
                                 38357 + 0.5 * kSecond,
                                 38358 - 0.4 * kSecond,
                                 -657434,
                                 -657434.75,
                                 2958465,
                                 2958465.5,
                                 2958466 - 0.6 * kSecond};
  Serials random;
  for (int i = 0; i < 4000; ++i) {
    serials.push_back(random.On(0));
    serials.push_back(random.On(random.WholeSecond()));
    serials.push_back(random.On(random.TenthOfSecond()));
    serials.push_back(random.On(random.Fraction()));
  }
  return serials;
}

TEST(PlatformDateToText, AgreesWithThePortableOne) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  const EnUsConversions portable(clock);
  int counts[std::size(kClasses)] = {};
  for (const double serial : SerialsToTry()) {
    const Text theirs = platform.DateToText(Date{serial});
    const Text ours = portable.DateToText(Date{serial});
    if (theirs == ours) continue;
    bool expected = false;
    for (std::size_t i = 0; i < std::size(kClasses) && !expected; ++i) {
      expected = kClasses[i].has(Date{serial}, theirs, ours);
      if (expected) ++counts[i];
    }
    EXPECT_TRUE(expected) << serial << "\n  platform: " << theirs.ToUtf8()
                          << "\n  portable: " << ours.ToUtf8();
  }
  for (std::size_t i = 0; i < std::size(kClasses); ++i)
    EXPECT_GT(counts[i], 0) << kClasses[i].reason;
}

TEST(PlatformDateToText, WritesTheShortDateAndTheTimeUnlessItIsMidnight) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  const struct {
    Date date;
    const char* text;
  } cases[] = {
      {DateOf({.year = 2005, .month = 1, .day = 31}), "1/31/2005"},
      {DateOf({2005, 1, 5, 9, 5, 7}), "1/5/2005 9:05:07 AM"},
      {DateOf({2005, 1, 5, 13, 45, 0}), "1/5/2005 1:45:00 PM"},
      {DateOf({9999, 12, 31, 23, 59, 59}), "12/31/9999 11:59:59 PM"},
      {Date{-1.25}, "12/29/1899 6:00:00 AM"},
      {Date{22.5 / 24}, "10:30:00 PM"},
      {Date{0}, "12:00:00 AM"},
  };
  for (const auto& c : cases) EXPECT_EQ(platform.DateToText(c.date).ToUtf8(), c.text);
}

TEST(PlatformDateToText, IsEmptyForWhatIsNoDate) {
  const SystemClock clock;
  const PlatformConversions platform(clock);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double serial :
       {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity,
        std::numeric_limits<double>::max(), 2958466.0, 2958466 - 0.4 / 86400, -657435.0, -657436.5})
    EXPECT_EQ(platform.DateToText(Date{serial}), Text()) << serial;
}

}  // namespace
}  // namespace sifter
