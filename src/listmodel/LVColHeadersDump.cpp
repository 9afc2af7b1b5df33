#include "listmodel/LVColHeadersDump.h"

#include "base/Integers.h"
#include "base/RuntimeError.h"
#include "listmodel/LVItemsDump.h"

#include <cmath>

namespace sifter {

namespace {

std::int16_t TruncatedToInt16(const Value& value) {
  const double number = std::trunc(ValueToDouble(value));
  if (!(std::abs(number) < 1e9)) throw RuntimeError(ErrorNumber::kOverflow);
  return ToInt16(static_cast<std::int64_t>(number));
}

// A header's picture may be named by a key, which a 16-bit field can't hold. Refusing it would
// end the very first copy of the host's list, and the next apply would clear that list.
std::int16_t IconNumber(const Value& icon) {
  try {
    return ValueToInt16(icon);
  } catch (const RuntimeError& error) {
    if (error.Number() == static_cast<std::int32_t>(ErrorNumber::kOverflow)) throw;
    return 0;
  }
}

}  // namespace

const Ref<LVColHeaderDump>* LVColHeadersDump::Find(const Text& key) const {
  for (const Ref<LVColHeaderDump>& column : columns_)
    if (!key.IsEmpty() && column->key == key) return &column;
  return nullptr;
}

std::size_t LVColHeadersDump::IndexOf(const Value& positionOrKey) const {
  if (const Text* key = positionOrKey.As<Text>()) {
    const Ref<LVColHeaderDump>* column = Find(*key);
    if (column == nullptr) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
    return static_cast<std::size_t>(column - columns_.data());
  }
  const std::int32_t position = ValueToInt32(positionOrKey);
  if (position < 1 || position > Count()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return static_cast<std::size_t>(position) - 1;
}

Ref<LVColHeaderDump> LVColHeadersDump::Item(const Value& positionOrKey) const {
  return columns_[IndexOf(positionOrKey)];
}

void LVColHeadersDump::Remove(const Value& positionOrKey) {
  columns_.erase(columns_.begin() + static_cast<std::ptrdiff_t>(IndexOf(positionOrKey)));
}

void LVColHeadersDump::Clear() { columns_.clear(); }

Ref<LVColHeaderDump> LVColHeadersDump::Add(std::int32_t index, const Value& key, const Value& text,
                                           const Value& width, const Value& alignment,
                                           const Value& icon) {
  const Ref<LVColHeaderDump> column = MakeRef<LVColHeaderDump>();
  column->alignment = ValueToInt16(alignment);
  column->icon = IconNumber(icon);
  column->text = ValueToText(text);
  column->width = TruncatedToInt16(width);
  if (index >= 1) {
    if (index > Count()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
    columns_.insert(columns_.begin() + index, column);
  } else {
    column->key = ValueToText(key);
    if (Find(column->key) != nullptr) throw RuntimeError(ErrorNumber::kDuplicateKey);
    columns_.push_back(column);
  }
  if (mpLVItems != nullptr) mpLVItems->SetItemSubItemNum(Count() - 1);
  return column;
}

}  // namespace sifter
