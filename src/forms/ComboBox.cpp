#include "forms/ComboBox.h"

#include "base/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace sifter {

sifter::Text ComboBox::List(std::int32_t i) const {
  return i >= 0 && i < ListCount() ? list_[static_cast<std::size_t>(i)] : sifter::Text();
}

void ComboBox::AddItem(sifter::Text entry) {
  list_.push_back(std::move(entry));
  Changed(ControlProperty::kList);
}

void ComboBox::SetEntries(std::vector<sifter::Text> entries) {
  list_ = std::move(entries);
  listIndex_ = -1;
  Changed(ControlProperty::kList);
}

void ComboBox::Clear() {
  SetEntries({});
  if (style_ == ComboStyle::kDropDownList) SetText(sifter::Text());
}

void ComboBox::SetListIndex(std::int32_t index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(ErrorNumber::kInvalidPropertyValue);
  if (index == listIndex_) return;
  listIndex_ = index;
  text_ = List(index);
  Changed(ControlProperty::kListIndex);
  RaiseClick();
}

std::int32_t ComboBox::IndexOf(const sifter::Text& entry) const {
  const auto found = std::find(list_.begin(), list_.end(), entry);
  return found == list_.end() ? -1 : static_cast<std::int32_t>(found - list_.begin());
}

void ComboBox::SetText(sifter::Text text) {
  listIndex_ = IndexOf(text);
  Assign(text_, std::move(text), ControlProperty::kText);
}

}  // namespace sifter
