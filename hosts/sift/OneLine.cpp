#include "sift/OneLine.h"

#include <algorithm>
#include <cstddef>

namespace sifter {

namespace {

constexpr char16_t kLineSeparator = 0x2028, kParagraphSeparator = 0x2029;
constexpr char16_t kReplacement = 0xFFFD;

// The sign for a character that steers the terminal; any other character as it is.
char16_t Sign(char16_t unit) {
  constexpr char16_t kControlPictures = 0x2400, kDeletePicture = 0x2421, kNewlinePicture = 0x2424;
  if (unit < 0x20) return static_cast<char16_t>(kControlPictures + unit);
  if (unit == 0x7F) return kDeletePicture;
  if (unit >= 0x80 && unit < 0xA0) return kReplacement;
  if (unit == kLineSeparator || unit == kParagraphSeparator) return kNewlinePicture;
  return unit;
}

}  // namespace

std::string OnOneLine(TextView text) {
  std::u16string signs(text);
  std::transform(signs.begin(), signs.end(), signs.begin(), Sign);
  return Text(signs).ToUtf8();
}

std::string InQuotes(TextView text) { return '"' + OnOneLine(text) + '"'; }

std::string InQuotes(std::string_view utf8) { return InQuotes(Text::FromUtf8(utf8).View()); }

std::string ListInQuotes(const std::vector<Text>& texts) {
  std::string list;
  for (std::size_t i = 0; i < texts.size(); ++i)
    list += (i > 0 ? ", " : "") + InQuotes(texts[i].View());
  return list;
}

}  // namespace sifter
