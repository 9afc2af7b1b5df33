#include "listmodel/LVItemsDump.h"

#include "base/RuntimeError.h"
#include "listmodel/LVColHeadersDump.h"

#include <algorithm>
#include <utility>

namespace sifter {

std::int32_t LVItemsDump::Position(const Value& positionOrKey) {
  const Text* key = positionOrKey.As<Text>();
  return key != nullptr ? rows_.PositionOfKey(*key) : ValueToInt32(positionOrKey);
}

Ref<LVItemDump> LVItemsDump::Item(const Value& positionOrKey) {
  return MakeRef<LVItemDump>(rows_.HandleAt(Position(positionOrKey)));
}

void LVItemsDump::Remove(const Value& positionOrKey) { rows_.Remove(Position(positionOrKey)); }

void LVItemsDump::Clear() { rows_.Clear(); }

Ref<LVItemDump> LVItemsDump::Add(std::int32_t index, const Value& key, const Value& text,
                                 const Value& icon, const Value& smallIcon) {
  if (mpColHeaders == nullptr) throw RuntimeError(ErrorNumber::kObjectNotSet);
  const std::int32_t cells = std::max(0, mpColHeaders->Count() - 1);
  RowPtr row = RowData::Make(static_cast<std::size_t>(cells), 0);
  RowData& data = row.Edit();
  if (!icon.IsEmpty()) data.EditExtras().icon = icon;
  if (!smallIcon.IsEmpty()) data.EditExtras().smallIcon = smallIcon;
  data.SetColumnText(0, ValueToText(text));
  Text keyText = ValueToText(key);
  const bool append = !keyText.IsEmpty() || index < 1;
  if (!keyText.IsEmpty()) data.EditExtras().key = std::move(keyText);
  const std::int32_t position = append ? Count() + 1 : index;
  rows_.Insert(position, std::move(row));
  return MakeRef<LVItemDump>(rows_.HandleAt(position));
}

void LVItemsDump::SetItemSubItemNum(std::int32_t num) {
  for (std::int32_t position = 1; position <= Count(); ++position)
    LVItemDump::SetSubItemNum(RowMembers(rows_.HandleAt(position)), num);
}

}  // namespace sifter
