#include "filterdialog/CriterionRows.h"

#include "forms/Form.h"
#include "support/ClockFake.h"
#include "support/Errors.h"
#include "support/HeadlessFormHost.h"
#include "support/Printers.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <vector>

namespace sifter {

namespace {

class CriterionRowsTest : public testing::Test {
 protected:
  Recorder recorder;
  ClockFake clock;
  HeadlessFormHost host{recorder};
  Form form{host};
  Frame frame{form, u"Frame1"};
  CriterionRows rows{form, frame, clock};
};

TEST_F(CriterionRowsTest, ARowOfAnUnknownTypeOffersNoOperators) {
  for (const std::int32_t type : {3, -1, 255}) {
    rows.Build(0, u"Name", type);
    EXPECT_EQ(rows.cboOperator[0].Entries(), std::vector<Text>{}) << type;
    EXPECT_EQ(rows.cboOperator[0].Text(), u"All") << type;
    EXPECT_EQ(rows.DataType(0), type);
  }
}

TEST_F(CriterionRowsTest, TheTypeIsKeptAsDecimalText) {
  for (const std::int32_t type : {0, 1, 2}) {
    rows.Build(0, u"Name", type);
    EXPECT_EQ(rows.lblColumnHeaderText[0].Tag(), IntegerToText(type));
    EXPECT_EQ(rows.DataType(0), type);
    rows.RemoveRows();
  }
}

TEST_F(CriterionRowsTest, ATagThatIsNoNumberIsAnError) {
  rows.lblColumnHeaderText[0].SetTag(u"date");
  EXPECT_EQ(ErrorOf([&] { rows.DataType(0); }), "13: Type mismatch");
}

TEST_F(CriterionRowsTest, LoadingRowZeroAddsNothing) {
  rows.Load(0);
  EXPECT_EQ(rows.cboOperator.Count(), 1);
  rows.Load(1);
  EXPECT_EQ(rows.cboOperator.Count(), 2);
  EXPECT_EQ(rows.lblAnd.Count(), 2);
}

TEST_F(CriterionRowsTest, PickersAreSetToTheDayOnWhichTheRowsAreMade) {
  EXPECT_EQ(rows.dtpFrom[0].Value(), clock.Today());
  clock.Set({.year = 2008, .month = 2, .day = 29, .hour = 23});
  rows.Load(1);
  EXPECT_EQ(rows.dtpTo[1].Value(), DateOf({.year = 2008, .month = 2, .day = 29}));
  rows.RemoveRows();
  EXPECT_EQ(rows.dtpTo[0].Value(), DateOf({.year = 2008, .month = 2, .day = 29}));
}

}  // namespace

}  // namespace sifter
