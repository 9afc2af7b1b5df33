#include "controls/Mnemonics.h"

namespace sifter {

char16_t MnemonicIn(TextView caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != u'&') continue;
    if (caption[i + 1] != u'&') return caption[i + 1];
    ++i;
  }
  return 0;
}

std::vector<Mnemonic> MnemonicsOf(const ControlParent& parent) {
  std::vector<Mnemonic> mnemonics;
  for (Control* const control : parent.Controls()) {
    if (control->Kind() != ControlKind::kCommandButton) continue;
    if (!control->Visible() || !control->Enabled()) continue;
    auto* const button = static_cast<CommandButton*>(control);
    if (const char16_t unit = MnemonicIn(button->Caption())) mnemonics.push_back({unit, button});
  }
  return mnemonics;
}

}  // namespace sifter
