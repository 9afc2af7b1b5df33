#include "ChangedSetting.h"
#include "HostedBanner.h"

#include <commctrl.h>

namespace sifter {

namespace {

// Numbers and dates are what the user's own settings say.
class FilteringByDate : public HostedControl {
 protected:
  using HostedControl::HostedControl;

  void FillWith(const std::string& column, const Strings& texts) {
    rows->ListItems()->Clear();
    rows->ColumnHeaders()->Clear();
    AddColumn(*rows, column);
    for (const std::string& text : texts) AddRow(*rows, {text});
  }

  // The first date field of the first row.
  void SetsDate(WORD year, WORD month, WORD day) {
    SYSTEMTIME date{};
    date.wYear = year;
    date.wMonth = month;
    date.wDay = day;
    const HWND picker = dialog.Value(0);
    SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&date));
    NMDATETIMECHANGE change{};
    change.nmhdr.hwndFrom = picker;
    change.nmhdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(picker));
    change.nmhdr.code = static_cast<UINT>(DTN_DATETIMECHANGE);
    change.st = date;
    SendMessageW(GetParent(picker), WM_NOTIFY, change.nmhdr.idFrom,
                 reinterpret_cast<LPARAM>(&change));
  }

  // One showing in which the user asks for what lies before the fifteenth of February 2005.
  void FilterByDate() {
    Show([&] {
      dialog.Picks(0, "is before");
      SetsDate(2005, 2, 15);
      dialog.PressesByMessage("&Apply Criteria");
    });
  }
};

class LocaleOfTheUser : public FilteringByDate {
 protected:
  LocaleOfTheUser() : FilteringByDate(kSifter) {}
};

const char* const kTextOperators =
    "All|contains|does not contain|does not equal|ends with|equals|starts with";
const char* const kNumberOperators =
    "All|does not equal|equals|is between|is greater than|is less than|is not between";
const char* const kDateOperators =
    "All|does not equal|equals|is after|is before|is between|is not between|is empty";

TEST_F(LocaleOfTheUser, SaysWhatIsADate) {
  FillWith("Shipped", {"1/25/2005", "3/1/2005"});
  Show([&] { EXPECT_EQ(dialog.Operators(0), kDateOperators); });
  FillWith("Shipped", {"25.1.2005", "1.3.2005"});
  Show([&] { EXPECT_EQ(dialog.Operators(0), kTextOperators); });
  const ChangedSetting order(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
  const ChangedSetting separator(LOCALE_SDATE, L".");
  FillWith("Shipped", {"25.1.2005", "2.3.2005"});
  Show([&] { EXPECT_EQ(dialog.Operators(0), kDateOperators); });
}

TEST_F(LocaleOfTheUser, SaysWhatIsANumber) {
  FillWith("Price", {"$5", "$1,000.50"});
  Show([&] { EXPECT_EQ(dialog.Operators(0), kNumberOperators); });
  const ChangedSetting currency(LOCALE_SCURRENCY, L"\u20AC");
  FillWith("Price", {"$5", "$1,000.51"});
  Show([&] { EXPECT_EQ(dialog.Operators(0), kTextOperators); });
}

TEST_F(LocaleOfTheUser, SaysWhichDayComesFirst) {
  const auto before = [&] {
    FilterByDate();
    return Names();
  };
  FillWith("Shipped", {"1/3/2005", "3/1/2005"});
  EXPECT_EQ(before(), (Strings{"1/3/2005"})) << "the third of January";
  const ChangedSetting order(LOCALE_SSHORTDATE, L"dd/MM/yyyy");
  FillWith("Shipped", {"1/3/2005", "3/1/2005"});
  EXPECT_EQ(before(), (Strings{"3/1/2005"})) << "the third of January";
}

class LocaleInTexts : public FilteringByDate {
 protected:
  LocaleInTexts() : FilteringByDate(kBanner) {}

  Strings Texts() const {
    return {Shown(Get(control, L"Filter")), Shown(Get(control, L"FilterInPlainEnglish"))};
  }
};

TEST_F(LocaleInTexts, SaysHowADateIsWritten) {
  FillWith("Shipped", {"1/3/2005", "3/1/2005"});
  FilterByDate();
  EXPECT_EQ(Texts(), (Strings{"\"(Shipped < #2/15/2005#)\"", "\"Shipped is before 2/15/2005\""}));
  const ChangedSetting order(LOCALE_SSHORTDATE, L"dd.MM.yyyy");
  const ChangedSetting separator(LOCALE_SDATE, L".");
  FillWith("Shipped", {"25.1.2005", "1.3.2005"});
  FilterByDate();
  EXPECT_EQ(Texts(), (Strings{"\"(Shipped < #15.02.2005#)\"", "\"Shipped is before 15.02.2005\""}));
  EXPECT_EQ(Names(), (Strings{"25.1.2005"}));
}

}  // namespace

}  // namespace sifter
