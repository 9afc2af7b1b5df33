#pragma once

#include "base/Conversions.h"
#include "base/Text.h"

#include <string>

namespace sifter {

// Folds texts to upper case before a comparison, one code unit to one, or leaves them alone when
// case counts. Accents and widths are never folded.
class CaseFolding {
 public:
  // `conversions` must outlive this object.
  CaseFolding(bool caseSensitive, const Conversions& conversions)
      : table_(caseSensitive ? nullptr : conversions.UpperCaseTable()) {}

  bool CaseSensitive() const { return table_ == nullptr; }

  // The text for comparing. It is good until `buffer` is used again.
  TextView Fold(TextView text, std::u16string& buffer) const {
    if (table_ == nullptr) return text;
    buffer.resize(text.size());
    FoldInto(buffer.data(), text);
    return buffer;
  }

  void Append(std::u16string& units, TextView text) const {
    if (table_ == nullptr) {
      units += text;
      return;
    }
    const std::size_t begin = units.size();
    units.resize(begin + text.size());
    FoldInto(units.data() + begin, text);
  }

 private:
  void FoldInto(char16_t* units, TextView text) const {
    for (const char16_t unit : text) *units++ = table_[unit];
  }

  const char16_t* table_;
};

}  // namespace sifter
