#include "BannerOnAForm.h"
#include "controls/TSRowSifter.h"

namespace sifter {

namespace {

// Two controls on one list: each watches the window, and takes what the other does for the host's
// doing.
class BannerTwoControls : public BannerOnAForm {
 protected:
  BannerTwoControls() {
    Attach();
    second.SetListview(list);
    button.SetListview(list);
  }
  ~BannerTwoControls() override {
    second.SetListview(nullptr);
    button.SetListview(nullptr);
  }

  void FilterWith(frmFilter& form, const char16_t* contains) {
    forms.During([&form, contains] {
      form.cboOperator[0].SetListIndex(1);
      form.cboCriteria[0].SetText(contains);
      form.cmdApply.SetValue(true);
    });
  }
  void FilterSecond(const char16_t* contains) {
    FilterWith(second.Dialog(), contains);
    second.ShowFilter(true);
  }
  void ResetSecond() {
    forms.During([this] { second.Dialog().cmdReset.SetValue(true); });
    second.ShowFilter(true);
  }
  void Reset() {
    UserResets();
    control.ShowFilter(true);
  }

  Names Captions() const { return {Caption().ToUtf8(), second.lblDisplaying.Caption().ToUtf8()}; }

  Names OaksWith(const std::string& part) const {
    Names names;
    for (const std::string& oak : Oaks())
      if (oak.find(part) != std::string::npos) names.push_back(oak);
    return names;
  }

  TSLvwBannerFilter second{Services()};
  TSRowSifter button{Services()};
};

TEST_F(BannerTwoControls, BothCountTheHostsRows) {
  AddRow(*list, {"Oak 41"});
  EXPECT_EQ(Captions(), (Names{"Displaying 41 of 41 Items", "Displaying 41 of 41 Items"}));
  list->ListItems()->Remove(1);
  EXPECT_EQ(Captions(), (Names{"Displaying 40 of 40 Items", "Displaying 40 of 40 Items"}));
  list->ListItems()->Clear();
  EXPECT_EQ(Captions(), (Names{"Displaying 0 of 0 Items", "Displaying 0 of 0 Items"}));
}

TEST_F(BannerTwoControls, AnInactiveBannerCountsWhatTheOtherLeaves) {
  FilterSecond(u"Oak");
  EXPECT_EQ(Captions(), (Names{"Displaying 12 of 12 Items", "Displaying 12 of 40 Items"}));
  EXPECT_FALSE(control.Active());
  ResetSecond();
  EXPECT_EQ(Captions(), (Names{"Displaying 40 of 40 Items", "Displaying 40 of 40 Items"}));
}

TEST_F(BannerTwoControls, AnInactiveBannerCountsWhatAFilterButtonLeaves) {
  FilterWith(button.Dialog(), u"Oak");
  button.ShowFilter();
  EXPECT_EQ(Caption(), u"Displaying 12 of 12 Items");
}

// The second banner refills the list by the rows that it knows: those that the first has left. To
// the first the list was cleared and filled anew; the rows that it hides stay with it.
TEST_F(BannerTwoControls, EachFiltersWhatTheOtherHasLeft) {
  Filter(u"Oak");
  FilterSecond(u"1");
  EXPECT_EQ(FirstTexts(*list), OaksWith("1"));
  EXPECT_EQ(second.lblDisplaying.Caption(), u"Displaying 6 of 12 Items");
  EXPECT_TRUE(control.Active());
  EXPECT_TRUE(control.Timer1.Enabled());
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 6 of 34 Items");
  ResetSecond();
  EXPECT_EQ(FirstTexts(*list), Oaks());
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  Reset();
  Names all = FirstTexts(*list);
  EXPECT_EQ(all.size(), 40u);
  std::sort(all.begin(), all.end());
  Names trees;
  for (const std::vector<std::string>& row : kTrees) trees.push_back(row[0]);
  std::sort(trees.begin(), trees.end());
  EXPECT_EQ(all, trees);
  EXPECT_EQ(second.lblDisplaying.Caption(), u"Displaying 40 of 40 Items");
}

// What the filter of one takes out, the other takes for deleted by the host: seven of thirteen
// rows. What it puts back, the other takes for rows of the host's, and hides what fails.
TEST_F(BannerTwoControls, AResetOfOneIsFilteredByTheOther) {
  FilterSecond(u"1");
  Filter(u"Oak");
  EXPECT_EQ(FirstTexts(*list), OaksWith("1"));
  ResetSecond();
  EXPECT_EQ(list->ListItems()->Count(), 33);
  Tick();
  EXPECT_EQ(list->ListItems()->Count(), 12);
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
  Reset();
  EXPECT_EQ(list->ListItems()->Count(), 40);
}

TEST_F(BannerTwoControls, TheTimerOfOneIsTheHostToTheOther) {
  Filter(u"Oak");
  FilterSecond(u"1");
  Tick();
  second.Timer1.Elapse();
  const Names before = Captions();
  AddRow(*list, {"Elm 111"});
  Tick();
  EXPECT_EQ(FirstTexts(*list), OaksWith("1"));
  second.Timer1.Elapse();
  EXPECT_EQ(before, (Names{"Displaying 6 of 34 Items", "Displaying 6 of 12 Items"}));
  EXPECT_EQ(Captions(), (Names{"Displaying 6 of 35 Items", "Displaying 6 of 12 Items"}));
}

TEST_F(BannerTwoControls, AColumnEndsTheFiltersOfBoth) {
  Filter(u"Oak");
  FilterSecond(u"1");
  AddColumn(*list, "Height");
  EXPECT_FALSE(control.Active());
  EXPECT_FALSE(second.Active());
  EXPECT_EQ(Captions(), (Names{"Displaying all Items", "Displaying all Items"}));
}

TEST_F(BannerTwoControls, OneGoesOnWhenTheOtherHasLetGo) {
  Filter(u"Oak");
  second.SetListview(nullptr);
  list->ListItems()->Remove(1);
  EXPECT_EQ(Caption(), u"Displaying 11 of 39 Items");
  control.SetListview(nullptr);
  second.SetListview(list);
  list->ListItems()->Remove(1);
  EXPECT_EQ(Captions(), (Names{"Displaying 11 of 39 Items", "Displaying 10 of 10 Items"}));
}

}  // namespace

}  // namespace sifter
