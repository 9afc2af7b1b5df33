#pragma once

#include "forms/Control.h"

#include <vector>

namespace sifter {

enum class ComboStyle {
  kDropDown,      // the text can be edited
  kDropDownList,  // the text is always the selected entry
};

// A text with a list of entries to drop down. Entries are numbered from 0 and stand in the order
// in which they were added; ListIndex -1 is no entry.
class ComboBox final : public Control {
 public:
  ComboBox(ControlParent& parent, ComboStyle style, sifter::Text name,
           std::int16_t index = kNoIndex)
      : Control(parent, ControlKind::kComboBox, std::move(name), index), style_(style) {}

  ComboStyle Style() const { return style_; }

  std::int32_t ListCount() const { return static_cast<std::int32_t>(list_.size()); }
  // Entry `i`, or "" when there is no such entry.
  sifter::Text List(std::int32_t i) const;
  const std::vector<sifter::Text>& Entries() const { return list_; }

  void AddItem(sifter::Text entry);
  void SetEntries(std::vector<sifter::Text> entries);

  // Takes all entries away and selects none. The text of a kDropDown box stays, so that filling
  // its list again doesn't lose what the user has typed; that of a kDropDownList goes.
  void Clear();

  std::int32_t ListIndex() const { return listIndex_; }

  // Selects an entry, whose text becomes the box's, and raises Click; -1 selects none and leaves
  // "". Selecting what is selected already does nothing. An index outside the list is error 380.
  // The same for code and for the user.
  void SetListIndex(std::int32_t index);

  const sifter::Text& Text() const { return text_; }

  // Writes the text without raising Click. The entry that equals it, if any, is selected.
  void SetText(sifter::Text text);

 private:
  std::int32_t IndexOf(const sifter::Text& entry) const;

  const ComboStyle style_;
  std::vector<sifter::Text> list_;
  std::int32_t listIndex_ = -1;
  sifter::Text text_;
};

}  // namespace sifter
