#include "BannerOnAForm.h"

namespace sifter {

namespace {

// Clicks on the headers of the list's columns.
class BannerSorting : public BannerOnAForm {
 protected:
  // How the list is sorted.
  Names Order() const {
    return {Shown(list->Sorted()), Shown(list->SortKey()), Shown(list->SortOrder())};
  }
};

TEST_F(BannerSorting, AClickOnAHeaderOfTheListSortsIt) {
  Attach();
  list->ClickColumn(3);
  EXPECT_EQ(Order(), (Names{"True", "2", "0"}));
  EXPECT_EQ(Texts(*list)[0], kTrees[27]);  // 1/1/2005
  EXPECT_EQ(Texts(*list)[1], kTrees[8]);   // 1/10/2005
}

TEST_F(BannerSorting, FourClicksTurnTheColumnFromTheOrderLastUsedUpDownAndUp) {
  list->SetSortOrder(1);
  Attach();
  std::vector<Names> orders;
  for (int i = 0; i < 4; ++i) {
    list->ClickColumn(3);
    orders.push_back(Order());
  }
  EXPECT_EQ(orders, (std::vector<Names>{
                        {"True", "2", "1"},
                        {"True", "2", "0"},
                        {"True", "2", "1"},
                        {"True", "2", "0"},
                    }));
}

TEST_F(BannerSorting, TheFirstClickOnTheFirstColumnCountsAsARepeat) {
  list->SetSortOrder(1);
  Attach();
  list->ClickColumn(1);
  EXPECT_EQ(Order(), (Names{"True", "0", "0"}));
}

TEST_F(BannerSorting, AClickThatIsToldByTheHostCountsLikeOneThatIsHeard) {
  Attach();
  list->ClickColumn(2);
  control.ColumnClicked(2);
  EXPECT_EQ(Order(), (Names{"True", "1", "0"}));
  control.ColumnClicked(u"2");
  EXPECT_EQ(Order(), (Names{"True", "1", "1"}));
}

TEST_F(BannerSorting, SortingShowsNothingOnTheBanner) {
  AttachAndFilter();
  list->ClickColumn(3);
  EXPECT_TRUE(recorder.Shows({}));
}

// The column is remembered by the control, not by the list.
TEST_F(BannerSorting, AnotherListGoesOnInTheSamePhase) {
  Attach();
  list->ClickColumn(1);
  const Ref<MemoryListView> other = MakeList({"Name"}, {{"Ash"}, {"Oak"}});
  control.SetListview(other);
  other->ClickColumn(1);
  EXPECT_EQ(FirstTexts(*other), (Names{"Oak", "Ash"}));
  control.SetListview(nullptr);
}

TEST_F(BannerSorting, AListThatIsNotAttachedAnyMoreIsNotSorted) {
  Attach();
  const Names before = Order();
  const auto click = [this] {
    list->ClickColumn(2);
    control.ColumnClicked(2);
    return Order();
  };
  control.ReleaseListview();
  EXPECT_EQ(click(), before);
  control.SetListview(list);
  control.SetListview(nullptr);
  EXPECT_EQ(click(), before);
  control.SetListview(list);
  control.SetListview(MakeList({"Name"}));
  list->ClickColumn(2);
  EXPECT_EQ(Order(), before);
  control.SetListview(nullptr);
}

TEST_F(BannerSorting, ATerminatedControlSortsNothing) {
  Attach();
  const Names before = Order();
  control.Terminate();
  list->ClickColumn(2);
  EXPECT_EQ(Order(), before);
}

// Both banners hear the click, and each keeps the phase for itself.
TEST_F(BannerSorting, TwoControlsOnOneListBothTurnIt) {
  TSLvwBannerFilter second(Services());
  Attach();
  second.SetListview(list);
  list->ClickColumn(1);
  EXPECT_EQ(Order(), (Names{"True", "0", "0"}));
  second.SetListview(nullptr);
  list->ClickColumn(1);
  EXPECT_EQ(Order(), (Names{"True", "0", "1"}));
}

TEST_F(BannerSorting, AnErrorOfTheListGoesNowhere) {
  const auto foreign = Foreign(list);
  foreign->RecordNothing();
  foreign->Lack("ListView.SortKey");
  control.SetListview(foreign);
  EXPECT_EQ(ErrorOf([this] { control.ColumnClicked(2); }), "nothing");
  EXPECT_EQ(Order(), (Names{"True", "0", "0"}));
}

// New rows go to their place, and rows that went back are found all the same.
TEST_F(BannerSorting, ASortedListIsFilteredAndFollowed) {
  AttachAndFilter();
  list->ClickColumn(1);
  AddRow(*list, {"Oak 05"});
  AddRow(*list, {"Elm 41"});
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 13 of 42 Items");
  EXPECT_EQ(FirstTexts(*list)[0], "Oak 05");
  list->ListItems()->Remove(1);
  EXPECT_EQ(Caption(), u"Displaying 12 of 41 Items");
  UserResets();
  control.ShowFilter(true);
  Names names;
  for (const std::vector<std::string>& row : kTrees) names.push_back(row[0]);
  names.push_back("Elm 41");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(FirstTexts(*list), names);
}

}  // namespace

}  // namespace sifter
