#pragma once

#include "base/Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>

namespace sifter {

// A text as the platform's functions want it: wide characters with a zero behind. Short ones need
// no memory of their own.
//
// There are two zeros, because a date reader of some systems steps over the first one behind a
// single letter a or p at the end.
class TerminatedText {
 public:
  explicit TerminatedText(TextView text) {
    const std::size_t size = text.size() + kZeros;
    if (size > std::size(short_)) {
      long_ = std::make_unique<wchar_t[]>(size);
      units_ = long_.get();
    }
    wchar_t* const end = std::transform(text.begin(), text.end(), units_,
                                        [](char16_t unit) { return static_cast<wchar_t>(unit); });
    std::fill_n(end, kZeros, L'\0');
  }
  TerminatedText(const TerminatedText&) = delete;
  TerminatedText& operator=(const TerminatedText&) = delete;

  // Not const, because some of the functions are declared to change what they only read.
  wchar_t* Get() noexcept { return units_; }

 private:
  static constexpr std::size_t kZeros = 2;

  wchar_t short_[128];
  std::unique_ptr<wchar_t[]> long_;
  wchar_t* units_ = short_;
};

}  // namespace sifter
