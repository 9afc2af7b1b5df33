#pragma once

#include <windows.h>

namespace sifter {

// One of the user's own settings for numbers and dates, changed for as long as the object lives.
class ChangedSetting {
 public:
  ChangedSetting(LCTYPE setting, const wchar_t* value) : setting_(setting) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_, kLongest);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, value);
  }
  ~ChangedSetting() { SetLocaleInfoW(LOCALE_USER_DEFAULT, setting_, before_); }
  ChangedSetting(const ChangedSetting&) = delete;
  ChangedSetting& operator=(const ChangedSetting&) = delete;

 private:
  static constexpr int kLongest = 80;  // of any setting, with the zero behind it

  LCTYPE setting_;
  wchar_t before_[kLongest] = {};
};

}  // namespace sifter
