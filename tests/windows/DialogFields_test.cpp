#include "DialogOnScreen.h"
#include "WindowFacts.h"

#include <utility>

namespace sifter {

namespace {

using Names = std::vector<std::string>;

class DialogFields : public DialogOnScreen {
 protected:
  void PrepareTypes() { Prepare({"Name", "Quantity", "Due"}, {{"Oak", "3", "1/5/2007"}}); }

  // The parameter fields of a row that are on the screen.
  Names ShownWindows(std::int32_t i) const {
    Names names;
    for (const auto& [control, name] : std::initializer_list<std::pair<Control*, const char*>>{
             {&dialog.cboCriteria[i], "cboCriteria"},
             {&dialog.txtFrom[i], "txtFrom"},
             {&dialog.txtTo[i], "txtTo"},
             {&dialog.lblAnd[i], "lblAnd"},
             {&dialog.dtpFrom[i], "dtpFrom"},
             {&dialog.dtpTo[i], "dtpTo"}})
      if (IsWindowVisible(WindowOf(*control))) names.emplace_back(name);
    return names;
  }

  void Take(std::int32_t i, TextView word) {
    ComboBox& box = dialog.cboOperator[i];
    const auto found = std::find(box.Entries().begin(), box.Entries().end(), word);
    ASSERT_NE(found, box.Entries().end()) << Text(word).ToUtf8();
    box.SetListIndex(static_cast<std::int32_t>(found - box.Entries().begin()));
  }

  // The row shows these by its own flags, and the overlays of a date row with their pickers.
  void ExpectShown(std::int32_t i, const Names& flags, const Names& windows,
                   const std::string& when) const {
    EXPECT_EQ(ShownParameters(dialog, i), flags) << when;
    EXPECT_EQ(ShownWindows(i), windows) << when;
  }
};

TEST_F(DialogFields, ComeWithEveryOperatorAndGoWithAll) {
  struct Case {
    std::int32_t row;
    const char16_t* word;
    Names flags;
    Names windows;
  };
  const Names text = {"cboCriteria"};
  const Names number = {"txtFrom"};
  const Names numbers = {"txtFrom", "txtTo", "lblAnd"};
  const Names date = {"dtpFrom"};
  const Names dates = {"lblAnd", "dtpFrom", "dtpTo"};
  const Names dateShown = {"txtFrom", "dtpFrom"};
  const Names datesShown = {"txtFrom", "txtTo", "lblAnd", "dtpFrom", "dtpTo"};
  const std::vector<Case> cases = {
      {0, u"contains", text, text},
      {0, u"does not contain", text, text},
      {0, u"does not equal", text, text},
      {0, u"ends with", text, text},
      {0, u"equals", text, text},
      {0, u"starts with", text, text},
      {1, u"does not equal", number, number},
      {1, u"equals", number, number},
      {1, u"is between", numbers, numbers},
      {1, u"is greater than", number, number},
      {1, u"is less than", number, number},
      {1, u"is not between", numbers, numbers},
      {2, u"does not equal", date, dateShown},
      {2, u"equals", date, dateShown},
      {2, u"is after", date, dateShown},
      {2, u"is before", date, dateShown},
      {2, u"is between", dates, datesShown},
      {2, u"is not between", dates, datesShown},
      {2, u"is empty", {}, {}},
  };
  PrepareTypes();
  Show([&] {
    for (const Case& c : cases) {
      const std::string name = Text(TextView(c.word)).ToUtf8() + " in row " + std::to_string(c.row);
      Take(c.row, c.word);
      ExpectShown(c.row, c.flags, c.windows, name);
      Take(c.row, u"All");
      ExpectShown(c.row, {}, {}, "All after " + name);
    }
  });
}

TEST_F(DialogFields, StayWhenTheNextOperatorNeedsFewer) {
  const Names numbers = {"txtFrom", "txtTo", "lblAnd"};
  const Names dates = {"lblAnd", "dtpFrom", "dtpTo"};
  const Names datesShown = {"txtFrom", "txtTo", "lblAnd", "dtpFrom", "dtpTo"};
  PrepareTypes();
  Show([&] {
    Take(1, u"is between");
    Take(1, u"equals");
    ExpectShown(1, numbers, numbers, "a single number after a range");
    Take(2, u"is between");
    Take(2, u"is before");
    ExpectShown(2, dates, datesShown, "a single date after a range");
    Take(2, u"is empty");
    ExpectShown(2, dates, datesShown, "no date after a range");
    Take(2, u"equals");
    Take(2, u"All");
    ExpectShown(2, {}, {}, "All");
  });
  Show([&] { ExpectShown(1, numbers, numbers, "the next showing"); });
}

TEST_F(DialogFields, InsideAPickerComeAndGoWithItWhateverTheirOwnFlagSays) {
  PrepareTypes();
  Show([&] {
    Take(2, u"equals");
    dialog.txtFrom[2].SetVisible(true);
    EXPECT_EQ(ShownWindows(2), (Names{"txtFrom", "dtpFrom"}));
    dialog.txtFrom[2].SetVisible(false);
    EXPECT_EQ(ShownWindows(2), (Names{"txtFrom", "dtpFrom"}));
    dialog.txtFrom[2].SetVisible(true);
    dialog.dtpFrom[2].SetVisible(false);
    EXPECT_EQ(ShownWindows(2), Names{});
    dialog.txtTo[2].SetVisible(true);
    EXPECT_EQ(ShownWindows(2), Names{});
  });
}

TEST_F(DialogFields, OfTheFirstRowAreMadeAnewForAnotherTypeOfColumn) {
  const auto typeFive = [&] {
    SetFocus(WindowOf(dialog.txtFrom[0]));
    user.Types(u"5");
    return dialog.txtFrom[0].Text();
  };
  const auto hasBorder = [&] {
    return (GetWindowLongPtrW(WindowOf(dialog.txtFrom[0]), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) != 0;
  };
  Prepare({"Due"}, {{"1/5/2007"}});
  Show([&] {
    Take(0, u"equals");
    EXPECT_EQ(GetParent(WindowOf(dialog.txtFrom[0])), WindowOf(dialog.dtpFrom[0]));
    EXPECT_FALSE(hasBorder());
    SetFocus(WindowOf(dialog.txtFrom[0]));
    user.Types(u"[Due]");
    EXPECT_EQ(TextOf(WindowOf(dialog.txtFrom[0])), "[Due]");
  });
  Prepare({"Quantity"}, {{"3"}});
  Show([&] {
    EXPECT_EQ(ShownWindows(0), Names{});
    Take(0, u"is between");
    EXPECT_EQ(ShownWindows(0), (Names{"txtFrom", "txtTo", "lblAnd"}));
    for (const TextBox* box : {&dialog.txtFrom[0], &dialog.txtTo[0]}) {
      EXPECT_EQ(GetParent(WindowOf(*box)), Window()) << NameOf(*box);
      EXPECT_EQ(TextOf(WindowOf(*box)), "") << NameOf(*box);
    }
    EXPECT_TRUE(hasBorder());
    EXPECT_FALSE(dialog.txtFrom[0].Locked());
    EXPECT_EQ(typeFive(), u"5");
  });
  Prepare({"Shipped"}, {{"1/5/2007"}});
  Show([&] {
    Take(0, u"equals");
    EXPECT_EQ(ShownWindows(0), (Names{"txtFrom", "dtpFrom"}));
    EXPECT_EQ(GetParent(WindowOf(dialog.txtFrom[0])), WindowOf(dialog.dtpFrom[0]));
    EXPECT_FALSE(hasBorder());
    EXPECT_EQ(typeFive(), u"");
  });
}

}  // namespace

}  // namespace sifter
