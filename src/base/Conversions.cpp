#include "base/Conversions.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace sifter {

Text Conversions::ToUpper(TextView text) const {
  const char16_t* const table = UpperCaseTable();
  const auto upper = [table](char16_t unit) { return table[unit]; };

  // Captions, operator words and cells are short: they need no second block of memory.
  char16_t shortText[128];
  if (text.size() <= std::size(shortText)) {
    std::transform(text.begin(), text.end(), shortText, upper);
    return Text(TextView(shortText, text.size()));
  }
  std::u16string longText(text.size(), u'\0');
  std::transform(text.begin(), text.end(), longText.begin(), upper);
  return Text(longText);
}

}  // namespace sifter
