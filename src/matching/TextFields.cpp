#include "matching/TextFields.h"

#include "base/AbsorbErrors.h"
#include "base/Integers.h"

namespace sifter {

Text TrimData(TextView strString, TextView strTrimWhat) {
  if (strTrimWhat.empty()) return Text(strString);
  while (strString.starts_with(strTrimWhat)) strString.remove_prefix(strTrimWhat.size());
  while (strString.ends_with(strTrimWhat)) strString.remove_suffix(strTrimWhat.size());
  return Text(strString);
}

std::int16_t CountOccurrences(TextView text, TextView delimiter) {
  std::int16_t result = 0;
  AbsorbErrors([&] {
    std::int64_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++at)
      if (text.substr(at).starts_with(delimiter)) ++count;
    result = ToInt16(count);
  });
  return result;
}

namespace {

// The place behind `fields` fields, or npos when there are not as many delimiters.
std::size_t BehindFields(TextView text, TextView delimiter, std::int16_t fields) {
  std::size_t at = 0;
  for (; fields > 0; --fields) {
    const std::size_t next = text.find(delimiter, at);
    if (next == TextView::npos) return TextView::npos;
    at = next + delimiter.size();
  }
  return at;
}

}  // namespace

Text GetField(TextView text, TextView delimiter, std::int16_t n) {
  if (n == 0) return u"Cannot return an instance of zero"_text;
  if (n < 0) return Text();
  if (delimiter.empty()) return n == 1 ? Text(text) : u"Instance Too Large"_text;
  const std::size_t begin = BehindFields(text, delimiter, static_cast<std::int16_t>(n - 1));
  if (begin == TextView::npos) return u"Instance Too Large"_text;
  const std::size_t end = text.find(delimiter, begin);
  return Text(text.substr(begin, end == TextView::npos ? end : end - begin));
}

}  // namespace sifter
