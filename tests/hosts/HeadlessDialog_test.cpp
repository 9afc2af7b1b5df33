#include "sift/HeadlessDialog.h"

#include "support/ClockFake.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

namespace sifter {

void PrintTo(const Message& message, std::ostream* out) {
  *out << Quoted(message.title) << ": " << Quoted(message.text);
}

namespace {

class HeadlessDialogTest : public testing::Test {
 protected:
  ClockFake clock_;
  EnUsConversions conversions_{clock_};
  HeadlessDialog dialog_{conversions_, clock_};
};

TEST_F(HeadlessDialogTest, ShowsTheDialogToTheUserAndHidesItAfterwards) {
  std::string seen;
  dialog_.ShowModal([&] { seen = dialog_.Form().Visible() ? "visible" : "hidden"; });
  EXPECT_EQ(seen, "visible");
  EXPECT_FALSE(dialog_.Form().Visible());
}

TEST_F(HeadlessDialogTest, CanBeShownAgain) {
  int showings = 0;
  for (int i = 0; i < 2; ++i) dialog_.ShowModal([&] { ++showings; });
  EXPECT_EQ(showings, 2);
}

TEST_F(HeadlessDialogTest, KeepsTheBoxesOfTheDialogInOrder) {
  dialog_.Form().UsersListview = MakeList({"Qty", "Due"}, {{"1", "1/5/2020"}});
  dialog_.Form().SetUpForm();
  dialog_.ShowModal([&] {
    frmFilter& form = dialog_.Form();
    form.cboOperator[0].SetText(u"equals");
    form.txtFrom[0].Edit(u"many");
    form.cboOperator[1].SetListIndex(5);
    form.cmdApply.SetValue(true);
  });
  EXPECT_EQ(dialog_.Messages(),
            (std::vector<Message>{
                {u"RowSifter", u"data type is number but parameter equals many"},
                {u"Error", u"Error number is 13, Type mismatch"},
            }));
}

}  // namespace
}  // namespace sifter
