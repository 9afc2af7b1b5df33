#include "filterdialog/frmFilter.h"
#include "support/HeadlessControls.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

using Names = std::vector<std::string>;

// Whole uses of a dialog by the controls: prepare, show, apply or reset or hide, and again.
class Session : public DialogFixture {
 protected:
  void UserHides() {
    host.During([this] { dialog.cmdHideFilter.SetValue(true); });
  }
  void UserFilters(const char16_t* contains) {
    host.During([this, contains] {
      PickText(0, u"contains", contains);
      Apply();
    });
  }
  void UserApplies() {
    host.During([this] { Apply(); });
  }
  void UserResets() {
    host.During([this] { Reset(); });
  }

  const TextRows kAll = {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}, {"Yew", "9"}, {"Larch", "4"}};
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, kAll);
};

TEST_F(Session, AnUnchangedListFindsTheCriteriaAsTheyWere) {
  UserFilters(u"a");
  EXPECT_TRUE(ShowLikeButton(dialog, list));
  const std::string before = DumpDialog(dialog);
  UserHides();
  EXPECT_TRUE(ShowLikeButton(dialog, list));
  EXPECT_EQ(DumpDialog(dialog), before);
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, AfterAnApplyTheListEqualsTheRowsThatPassed) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  EXPECT_TRUE(dialog.ListviewsAreEqual(list, dialog.lvwCopyOfFiltered));
  EXPECT_EQ(DumpRows(*dialog.lvwCopyOfFiltered), DumpRows(*list));
}

TEST_F(Session, ASecondFilterStartsFromTheFullList) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  UserFilters(u"e");
  ShowLikeButton(dialog, list);
  EXPECT_EQ(FirstTexts(*list), (Names{"Elm", "Yew"}));
  EXPECT_EQ(dialog.FilterString, u"(Name like '*e*')");
}

TEST_F(Session, ApplyResetReopenAgainAndAgainLosesNothing) {
  for (const char16_t* contains : {u"a", u"e", u"zz"}) {
    UserFilters(contains);
    EXPECT_TRUE(ShowLikeButton(dialog, list));
    EXPECT_EQ(Texts(*dialog.ListView1), kAll);
    UserResets();
    EXPECT_FALSE(ShowLikeButton(dialog, list));
    EXPECT_EQ(Texts(*list), kAll);
    EXPECT_EQ(Texts(*dialog.ListView1), kAll);
  }
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, TheSameThroughABanner) {
  bool active = false;
  for (const char16_t* contains : {u"a", u"e", u"zz"}) {
    UserFilters(contains);
    active = ShowLikeBanner(dialog, list, active);
    EXPECT_TRUE(active);
    EXPECT_EQ(Texts(*dialog.ListView1), kAll);
    UserHides();
    active = ShowLikeBanner(dialog, list, active);
    EXPECT_TRUE(active);
    UserResets();
    active = ShowLikeBanner(dialog, list, active);
    EXPECT_FALSE(active);
    EXPECT_EQ(Texts(*list), kAll);
  }
  EXPECT_EQ(Boxes(), Names{});
}

// The banner copies a full copy without columns before it builds the rows anew.
TEST_F(Session, ABannerThatWasHiddenWithoutAFilterOpensAgainWithoutABox) {
  for (int showing = 0; showing < 3; ++showing) {
    UserHides();
    EXPECT_FALSE(ShowLikeBanner(dialog, list, false));
    EXPECT_EQ(Boxes(), Names{}) << "showing " << showing;
    EXPECT_EQ(dialog.ColumnCount(), 2);
    EXPECT_EQ(Texts(*dialog.ListView1), kAll);
    EXPECT_EQ(dialog.ListView1->ColumnHeaders()->Count(), 2);
    EXPECT_EQ(dialog.lvwCopyOfFiltered->ListItems()->Count(), 0);
  }
}

TEST_F(Session, AForeignListGoesThroughTheSameShowings) {
  const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(list, recorder);
  foreign->RecordNothing();
  UserHides();
  ShowLikeBanner(dialog, foreign, false);
  UserHides();
  ShowLikeBanner(dialog, foreign, false);
  UserFilters(u"a");
  EXPECT_TRUE(ShowLikeBanner(dialog, foreign, false));
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  UserResets();
  EXPECT_FALSE(ShowLikeBanner(dialog, foreign, true));
  EXPECT_EQ(Texts(*list), kAll);
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, AColumnThatTheHostAddsBetweenTwoShowingsIsRecordedWhole) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  UserResets();
  ShowLikeButton(dialog, list);
  AddColumn(*list, "Note");
  list->ListItems()->Item(1)->SetSubItems(2, u"tall");
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  EXPECT_EQ(Boxes(), Names{});
  EXPECT_EQ(Texts(*dialog.lvwCopyOfFiltered),
            (TextRows{{"Oak", "3", "tall"}, {"Ash", "5", ""}, {"Larch", "4", ""}}));
  EXPECT_TRUE(dialog.ListviewsAreEqual(list, dialog.lvwCopyOfFiltered));
  EXPECT_EQ(dialog.ColumnCount(), 3);
}

TEST_F(Session, TheSameColumnThroughABanner) {
  UserFilters(u"a");
  ShowLikeBanner(dialog, list, false);
  UserResets();
  ShowLikeBanner(dialog, list, true);
  AddColumn(*list, "Note");
  UserFilters(u"a");
  ShowLikeBanner(dialog, list, false);
  EXPECT_EQ(Boxes(), Names{});
  EXPECT_EQ(Texts(*dialog.lvwCopyOfFiltered),
            (TextRows{{"Oak", "3", ""}, {"Ash", "5", ""}, {"Larch", "4", ""}}));
}

TEST_F(Session, AColumnAddedWhileAFilterIsInForceIsNoneOfTheDialogsUntilTheNextShowing) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  AddColumn(*list, "Note");
  UserFilters(u"s");
  ShowLikeButton(dialog, list);
  EXPECT_EQ(Boxes(), Names{});
  EXPECT_EQ(Texts(*dialog.ListView1),
            (TextRows{{"Oak", "3", ""}, {"Ash", "5", ""}, {"Larch", "4", ""}}));
  EXPECT_EQ(FirstTexts(*list), Names{"Ash"});
}

TEST_F(Session, ARowThatTheHostChangesMakesANewFullCopyOfWhatIsShown) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  list->ListItems()->Item(1)->SetBold(true);
  UserHides();
  EXPECT_FALSE(ShowLikeButton(dialog, list));
  EXPECT_EQ(FirstTexts(*dialog.ListView1), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"All");
}

TEST_F(Session, HeadersThatChangeAloneKeepTheOldRows) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  list->ColumnHeaders()->Item(1)->SetText(u"Tree");
  UserApplies();
  ShowLikeButton(dialog, list);
  EXPECT_EQ(dialog.FilterString, u"(Name like '*a*')");
}

TEST_F(Session, AnotherListIsPreparedAnew) {
  UserFilters(u"a");
  ShowLikeButton(dialog, list);
  const Ref<MemoryListView> other = MakeList({"Qty", "Name"}, {{"3", "Oak"}, {"5", "Ash"}});
  host.During([&] {
    PickNumber(0, u"is greater than", u"4");
    Apply();
  });
  EXPECT_TRUE(ShowLikeButton(dialog, other));
  EXPECT_EQ(FirstTexts(*other), Names{"5"});
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, AnEmptyListCanBeShownAndApplied) {
  const Ref<MemoryListView> empty = MakeList({"Name", "Qty"});
  UserFilters(u"a");
  EXPECT_TRUE(ShowLikeButton(dialog, empty));
  EXPECT_EQ(dialog.lblColumnHeaderText[1].Tag(), u"0");
  EXPECT_EQ(empty->ListItems()->Count(), 0);
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, AListWithoutColumnsCanBeShownAndApplied) {
  const Ref<MemoryListView> bare = MakeRef<MemoryListView>();
  AddRow(*bare, {"Oak"});
  UserApplies();
  EXPECT_TRUE(ShowLikeButton(dialog, bare));
  EXPECT_EQ(FirstTexts(*bare), Names{"Oak"});
  UserResets();
  EXPECT_FALSE(ShowLikeButton(dialog, bare));
  EXPECT_EQ(FirstTexts(*bare), Names{"Oak"});
  EXPECT_EQ(Boxes(), Names{});
}

TEST_F(Session, AHostThatClearsItsColumnsMeanwhileGetsThemBackWithTheirKeys) {
  const Ref<MemoryListView> keyed = MakeRef<MemoryListView>();
  keyed->ColumnHeaders()->Add(0, u"n", u"Name", 1440, 0, 3);
  keyed->ColumnHeaders()->Add(0, u"q", u"Qty", 720, 1, 0);
  AddRow(*keyed, {"Oak", "3"}, "oak");
  const std::string before = Dump(*keyed);
  host.During([&] {
    keyed->ColumnHeaders()->Clear();
    Apply();
  });
  ShowLikeButton(dialog, keyed);
  EXPECT_EQ(Boxes(), Names{});
  EXPECT_EQ(Dump(*keyed), before);
}

TEST_F(Session, TypedTextsSurviveANewListOfValues) {
  UserFilters(u"a");
  ShowLikeBanner(dialog, list, false);
  dialog.PopulateCriteriaComboBox(0);
  dialog.PopulateCriteriaComboBox(1);
  UserApplies();
  ShowLikeBanner(dialog, list, true);
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak", "Ash", "Larch"}));
  EXPECT_EQ(dialog.FilterString, u"(Name like '*a*')");
}

}  // namespace

}  // namespace sifter
