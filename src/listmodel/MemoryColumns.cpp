#include "listmodel/MemoryColumns.h"

#include "base/RuntimeError.h"
#include "listmodel/RowMembers.h"

#include <utility>

namespace sifter {

Value MemoryColumn::Index() const {
  return list_ == nullptr ? std::int32_t{0} : list_->PositionOfColumn(this);
}

Value MemoryColumn::Width() const {
  return list_ == nullptr ? width_ : list_->ColumnWidth(this, width_);
}

void MemoryColumn::SetWidth(const Value& width) {
  width_ = ValueToDouble(width);
  if (list_ != nullptr) list_->ColumnResized(this, width_);
}

void MemoryColumn::SetKey(const Value& key) {
  sifter::Text text = ValueToText(key);
  if (text == key_) return;
  if (list_ != nullptr) list_->RequireFreeColumnKey(text);
  key_ = std::move(text);
}

std::int32_t MemoryColumnHeaders::Count() const { return list_->ColumnCount(); }

Ref<ColumnHeader> MemoryColumnHeaders::Item(const Value& positionOrKey) {
  if (const Text* key = positionOrKey.As<Text>()) {
    for (const Ref<MemoryColumn>& column : list_->columns_)
      if (!key->IsEmpty() && column->KeyText() == *key) return column;
    throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
  }
  const std::int32_t position = ValueToInt32(positionOrKey);
  if (position < 1 || position > Count()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return list_->columns_[static_cast<std::size_t>(position) - 1];
}

void MemoryColumnHeaders::Clear() {
  for (std::int32_t position = Count(); position >= 1; --position) {
    if (position > Count()) continue;
    list_->Notify(kDeleteColumn, position - 1);
    // An observer may have cleared the columns meanwhile.
    if (position > Count()) continue;
    if (list_->display_) list_->display_->RemoveColumn(position);
    if (position > Count()) continue;
    const auto column = list_->columns_.begin() + (position - 1);
    (*column)->Detach();
    list_->columns_.erase(column);
  }
}

Ref<ColumnHeader> MemoryColumnHeaders::Add(std::int32_t index, const Value& key, const Value& text,
                                           const Value& width, const Value& alignment,
                                           const Value& icon) {
  const std::int32_t position = index < 1 ? Count() + 1 : index;
  if (position > Count() + 1) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  const Ref<MemoryColumn> column = MakeRef<MemoryColumn>(list_.Get());
  column->SetKey(key);
  column->SetText(text);
  column->SetWidth(width);
  column->SetAlignment(alignment);
  column->SetIcon(icon);
  list_->columns_.insert(list_->columns_.begin() + (position - 1), column);
  list_->GrowRows();
  list_->Notify(kInsertColumn, position - 1);
  list_->ShowColumn(column.Get());
  return column;
}

}  // namespace sifter
