#include "forms/TextBox.h"

namespace sifter {

bool TextBox::Edit(const sifter::Text& text) {
  if (locked_ && !(InputFilter && InputFilter(text))) return false;
  SetText(text);
  return true;
}

}  // namespace sifter
