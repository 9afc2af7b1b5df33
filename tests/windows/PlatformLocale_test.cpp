#include "base/Calendar.h"
#include "support/ClockFake.h"
#include "win32/PlatformConversions.h"

#include <gtest/gtest.h>

#include <string>
#include <windows.h>

namespace sifter {
namespace {

// One of the user's own settings, changed for the length of a test.
class ChangedSetting {
 public:
  ChangedSetting(LCTYPE setting, const wchar_t* value) : setting_(setting) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_, kLongest);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, value);
  }
  ChangedSetting(const ChangedSetting&) = delete;
  ChangedSetting& operator=(const ChangedSetting&) = delete;
  ~ChangedSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_); }

 private:
  static constexpr int kLongest = 80;  // of any setting, with the zero behind it

  LCTYPE setting_;
  wchar_t before_[kLongest] = {};
};

const Date kJanuaryFifth = DateOf({.year = 2005, .month = 1, .day = 5});
const Date kMayFirst = DateOf({.year = 2005, .month = 5, .day = 1});

TEST(PlatformLocale, IsTheUsersOwn) {
  const ClockFake clock;
  const PlatformConversions conversions(clock);
  EXPECT_EQ(conversions.ToDate(u"1/5/2005"), kJanuaryFifth);
  EXPECT_FALSE(conversions.IsNumeric(u"\u20AC5"));
  {
    const ChangedSetting order(LOCALE_SSHORTDATE, L"dd/MM/yyyy");
    const ChangedSetting currency(LOCALE_SCURRENCY, L"\u20AC");
    EXPECT_EQ(conversions.ToDate(u"1/5/2005"), kMayFirst);
    EXPECT_EQ(conversions.DateToText(kJanuaryFifth), u"05/01/2005");
    EXPECT_TRUE(conversions.IsNumeric(u"\u20AC5"));
    EXPECT_FALSE(conversions.IsNumeric(u"$5"));
  }
  EXPECT_EQ(conversions.DateToText(kJanuaryFifth), u"1/5/2005");
}

TEST(PlatformLocale, ChangesGenerationWithTheUsersSettings) {
  const ClockFake clock;
  const PlatformConversions conversions(clock);
  const std::uint32_t first = conversions.Generation();
  EXPECT_EQ(conversions.Generation(), first);
  std::uint32_t second = 0;
  {
    const ChangedSetting order(LOCALE_SSHORTDATE, L"dd/MM/yyyy");
    second = conversions.Generation();
    EXPECT_NE(second, first);
    EXPECT_EQ(conversions.Generation(), second);
  }
  EXPECT_NE(conversions.Generation(), second);
}

TEST(PlatformLocale, ChangesGenerationWithTheYear) {
  ClockFake clock(CalendarTime{.year = 2007, .month = 12, .day = 31, .hour = 23});
  const PlatformConversions conversions(clock);
  const std::uint32_t before = conversions.Generation();
  clock.Set({.year = 2007, .month = 12, .day = 31, .hour = 23, .minute = 59});
  EXPECT_EQ(conversions.Generation(), before);
  clock.Set({.year = 2008, .month = 1, .day = 1});
  EXPECT_NE(conversions.Generation(), before);
}

}  // namespace
}  // namespace sifter
