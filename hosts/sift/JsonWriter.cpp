#include "sift/JsonWriter.h"

#include <cstddef>
#include <cstdint>

namespace sifter {

namespace {

bool IsHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

void AppendHexEscape(std::string& out, char16_t unit) {
  constexpr char kDigits[] = "0123456789abcdef";
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[(unit >> shift) & 0xF];
}

// A unit that is no half of a pair.
void AppendUnit(std::string& out, char16_t unit) {
  switch (unit) {
    case u'"':
      out += "\\\"";
      break;
    case u'\\':
      out += "\\\\";
      break;
    case u'\b':
      out += "\\b";
      break;
    case u'\f':
      out += "\\f";
      break;
    case u'\n':
      out += "\\n";
      break;
    case u'\r':
      out += "\\r";
      break;
    case u'\t':
      out += "\\t";
      break;
    default:
      if (unit < 0x20 || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
        AppendHexEscape(out, unit);
      } else if (unit < 0x80) {
        out += static_cast<char>(unit);
      } else {
        out += Text(TextView(&unit, 1)).ToUtf8();
      }
      break;
  }
}

template <class Items, class AppendItem>
void AppendArray(std::string& out, const Items& items, AppendItem appendItem) {
  out += '[';
  bool first = true;
  for (const auto& item : items) {
    if (!first) out += ',';
    first = false;
    appendItem(item);
  }
  out += ']';
}

}  // namespace

void AppendJsonString(std::string& out, TextView text) {
  out += '"';
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      out += Text(text.substr(i, 2)).ToUtf8();
      ++i;
    } else {
      AppendUnit(out, text[i]);
    }
  }
  out += '"';
}

std::string JsonOf(const FilterResult& result) {
  std::string out = "{\"columns\":";
  AppendArray(out, result.columns, [&](const FilteredColumn& column) {
    out += "{\"name\":";
    AppendJsonString(out, column.name);
    out += ",\"type\":" + std::to_string(static_cast<int>(column.type)) + '}';
  });
  out += ",\"total\":" + std::to_string(result.total) + ",\"kept\":";
  AppendArray(out, result.kept, [&](std::int32_t record) { out += std::to_string(record); });
  out += ",\"filter\":";
  AppendJsonString(out, result.filter);
  out += ",\"english\":";
  AppendJsonString(out, result.english);
  out += ",\"messages\":";
  AppendArray(out, result.messages, [&](const Message& message) {
    out += "{\"title\":";
    AppendJsonString(out, message.title);
    out += ",\"text\":";
    AppendJsonString(out, message.text);
    out += '}';
  });
  return out + "}\n";
}

}  // namespace sifter
