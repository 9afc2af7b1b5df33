#include "controls/Mnemonics.h"

#include "forms/UserControl.h"

#include <gtest/gtest.h>

#include <string>

namespace sifter {
namespace {

class TwoButtons final : public UserControl {
 public:
  CommandButton first{*this, u"first"};
  CommandButton second{*this, u"second"};
};

std::u16string UnitsOf(const TwoButtons& control) {
  std::u16string units;
  for (const Mnemonic& mnemonic : MnemonicsOf(control)) units += mnemonic.unit;
  return units;
}

TEST(MnemonicIn, IsTheLetterBehindTheMark) {
  EXPECT_EQ(MnemonicIn(u"&Apply"), u'A');
  EXPECT_EQ(MnemonicIn(u"Search && &Find"), u'F');
  EXPECT_EQ(MnemonicIn(u"Filter"), 0);
  EXPECT_EQ(MnemonicIn(u"R&&D"), 0);
  EXPECT_EQ(MnemonicIn(u"Filter&"), 0);
  EXPECT_EQ(MnemonicIn(u""), 0);
}

TEST(MnemonicsOf, BelongToButtonsThatCanBePressed) {
  TwoButtons control;
  control.first.SetCaption(u"&Apply");
  control.second.SetCaption(u"&Reset");
  EXPECT_EQ(UnitsOf(control), u"AR");
  EXPECT_EQ(MnemonicsOf(control)[1].button, &control.second);
  control.first.SetVisible(false);
  EXPECT_EQ(UnitsOf(control), u"R");
  control.second.SetEnabled(false);
  EXPECT_EQ(UnitsOf(control), u"");
}

}  // namespace
}  // namespace sifter
