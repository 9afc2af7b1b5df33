#pragma once

#include "base/Text.h"
#include "forms/CommandButton.h"
#include "forms/ControlParent.h"

#include <vector>

namespace sifter {

// The letters that press buttons together with Alt: a button's caption has "&" in front of its.
// Those of buttons that can't be pressed, hidden or disabled, don't count.

struct Mnemonic {
  char16_t unit;  // as it stands in the caption
  CommandButton* button;
};

// 0 for a caption without one; "&&" stands for a plain "&".
char16_t MnemonicIn(TextView caption);

// In the order of the buttons.
std::vector<Mnemonic> MnemonicsOf(const ControlParent& parent);

}  // namespace sifter
