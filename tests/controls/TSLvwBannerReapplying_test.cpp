#include "BannerOnAForm.h"
#include "listmodel/ListMessages.h"

namespace sifter {

namespace {

// A filter that follows what the host does to its list.
class BannerReapplying : public BannerOnAForm {
 protected:
  BannerReapplying() { AttachAndFilter(); }

  static Names Plus(Names names, const Names& more) {
    names.insert(names.end(), more.begin(), more.end());
    return names;
  }

  Names AllTrees() const {
    Names names;
    for (const std::vector<std::string>& row : kTrees) names.push_back(row[0]);
    return names;
  }

  Names Elms() const {
    Names names;
    for (const std::string& name : AllTrees())
      if (name.starts_with("Elm")) names.push_back(name);
    return names;
  }

  // The three lists: on view, passed, all.
  void ExpectLists(const Names& onView, const Names& all) {
    EXPECT_EQ(FirstTexts(*list), onView);
    EXPECT_EQ(FirstTexts(*dialog.lvwCopyOfFiltered), onView);
    EXPECT_EQ(FirstTexts(*dialog.ListView1), all);
  }

  void Reset() {
    UserResets();
    control.ShowFilter(true);
  }
};

TEST_F(BannerReapplying, APassingRowStaysAndAFailingOneIsHidden) {
  AddRow(*list, {"Oak 41", "7", "1/1/2006"}, "k");
  AddRow(*list, {"Elm 42"});
  Tick();
  ExpectLists(Plus(Oaks(), {"Oak 41"}), Plus(AllTrees(), {"Oak 41", "Elm 42"}));
  EXPECT_EQ(Caption(), u"Displaying 13 of 42 Items");
  EXPECT_EQ(DumpRow(*dialog.ListView1->ListItems()->Item(u"k")),
            DumpRow(*list->ListItems()->Item(u"k")));
  Reset();
  EXPECT_EQ(FirstTexts(*list), Plus(AllTrees(), {"Oak 41", "Elm 42"}));
  EXPECT_EQ(Face(), (Names{"FilterEmpty", "Displaying 42 of 42 Items", "List is not Filtered"}));
}

TEST_F(BannerReapplying, TheNextApplyKnowsTheNewRows) {
  AddRow(*list, {"Elm 41"});
  Tick();
  Filter(u"Elm 4");
  EXPECT_EQ(FirstTexts(*list), (Names{"Elm 40", "Elm 41"}));
  EXPECT_EQ(Caption(), u"Displaying 2 of 41 Items");
}

TEST_F(BannerReapplying, ARefilledListShowsWhatPasses) {
  list->ListItems()->Clear();
  EXPECT_EQ(Caption(), u"Displaying 0 of 40 Items");
  const Names fresh = {"Oak 1", "Oak 100", "Elm 100", "Oak 101", "Elm 2"};
  for (const std::string& name : fresh) AddRow(*list, {name, "new"});
  Tick();
  ExpectLists({"Oak 1", "Oak 100", "Oak 101"}, Plus(Elms(), fresh));
  EXPECT_EQ(Caption(), u"Displaying 3 of 33 Items");
  Reset();
  EXPECT_EQ(FirstTexts(*list), Plus(Elms(), fresh));
}

// Nothing has told the banner of them but the rows themselves.
TEST_F(BannerReapplying, RowsThatWentUnderTheOpenDialogLeaveTheFullCopy) {
  forms.During([this] {
    list->ListItems()->Remove(1);
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 11 of 40 Items");
  AddRow(*list, {"Oak 41"});
  Tick();
  Names oaks = Plus(Oaks(), {"Oak 41"});
  oaks.erase(oaks.begin());
  Names all = Plus(AllTrees(), {"Oak 41"});
  all.erase(all.begin());
  ExpectLists(oaks, all);
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
}

TEST_F(BannerReapplying, TheValueListsOfAllColumnsAreFilledAnew) {
  AddRow(*list, {"Oak 41", "4100", "1/1/2041"});
  AddRow(*list, {"Elm 42", "4200", "1/1/2042"});
  Tick();
  const std::vector<Names> values = {
      {"Oak 41", "Elm 42"}, {"4100", "4200"}, {"1/1/2041", "1/1/2042"}};
  for (std::int32_t column = 0; column < 3; ++column) {
    const std::vector<Text>& entries = dialog.cboCriteria[column].Entries();
    for (const std::string& value : values[static_cast<std::size_t>(column)])
      EXPECT_EQ(std::count(entries.begin(), entries.end(), Text::FromUtf8(value)), 1) << value;
  }
}

TEST_F(BannerReapplying, FiltersAsLastAppliedWhateverTheHiddenDialogSays) {
  forms.During([this] {
    Ask(u"Elm");
    dialog.chkCaseSensitive.SetValue(CheckValue::kChecked);
    dialog.cmdHideFilter.SetValue(true);
  });
  control.ShowFilter(true);
  AddRow(*list, {"oak 41"});
  AddRow(*list, {"Elm 42"});
  Tick();
  EXPECT_EQ(FirstTexts(*list), Plus(Oaks(), {"oak 41"}));
  EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Elm");
}

TEST_F(BannerReapplying, AReferenceIsToTheColumnThatWasCalledSoAtTheApply) {
  Filter(u"[Qty]");
  EXPECT_EQ(Caption(), u"Displaying 0 of 40 Items");
  dialog.lblColumnHeaderText[1].SetCaption(u"other");
  AddRow(*list, {"Oak 77", "7"});
  AddRow(*list, {"Oak 88", "7"});
  Tick();
  EXPECT_EQ(FirstTexts(*list), (Names{"Oak 77"}));
}

TEST_F(BannerReapplying, TheDialogIsLeftAsItIs) {
  const std::string before = DumpDialog(dialog);
  AddRow(*list, {"Elm 41", "", "1/1/2006"});
  Tick();
  EXPECT_EQ(DumpDialog(dialog), before);
  EXPECT_EQ(dialog.UsersListview, nullptr);
  EXPECT_FALSE(dialog.Visible());
}

// There is nothing to filter by: such a control was saved with a filter in force.
TEST_F(BannerReapplying, AFilterThatWasNeverAppliedRemovesNothing) {
  control.SetListview(nullptr);
  control.DeactivateFilter();
  LoadActive();
  control.SetListview(list);
  AddRow(*list, {"Elm 41"});
  Tick();
  EXPECT_EQ(FirstTexts(*list), Plus(Oaks(), {"Elm 41"}));
  EXPECT_EQ(Caption(), u"Displaying 13 of 13 Items");
  UserFilters(u"Elm");
  control.ShowFilter(true);
  EXPECT_EQ(Caption(), u"Displaying 1 of 13 Items");
}

// The full copy is another list's, so what it took out of this one could not be put back.
TEST_F(BannerReapplying, AnotherListIsNotFilteredByTheCriteriaOfTheFirst) {
  const Ref<MemoryListView> other = MakeList({"Name", "Qty", "Planted"}, {{"Fir"}});
  const MemoryListWindow otherWindow(windows, *other);
  control.SetListview(other);
  AddRow(*other, {"Yew"});
  Tick();
  EXPECT_EQ(FirstTexts(*other), (Names{"Fir", "Yew"}));
  EXPECT_TRUE(control.Active());
  control.SetListview(nullptr);
}

TEST_F(BannerReapplying, AnEditedRowIsANewOneAtTheNextInsert) {
  list->ListItems()->Item(1)->SetSubItems(1, u"edited");
  list->ListItems()->Item(2)->SetText(u"Larch");
  EXPECT_TRUE(recorder.Shows({}));
  EXPECT_EQ(FirstTexts(*dialog.ListView1), AllTrees());
  AddRow(*list, {"Oak 41"});
  Tick();
  Names onView = Plus(Oaks(), {"Oak 41"});
  onView.erase(onView.begin() + 1);
  Names all = AllTrees();
  std::erase(all, "Oak 1");
  std::erase(all, "Oak 4");
  ExpectLists(onView, Plus(all, {"Oak 1", "Larch", "Oak 41"}));
}

TEST_F(BannerReapplying, WithoutAnInsertTheNextApplyBringsTheOldTextBack) {
  list->ListItems()->Item(1)->SetSubItems(1, u"edited");
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(list->ListItems()->Item(1)->SubItems(1), Value(u"10"));
}

TEST_F(BannerReapplying, AnExactDuplicateOfAKnownRowGoesWithTheNextApply) {
  AddRow(*list, kTrees[0]);  // of one on view
  AddRow(*list, kTrees[1]);  // of a hidden one
  Tick();
  ExpectLists(Plus(Oaks(), {"Oak 1"}), AllTrees());
  EXPECT_EQ(Caption(), u"Displaying 13 of 40 Items");
  UserApplies();
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*list), Oaks());
  EXPECT_EQ(Caption(), u"Displaying 12 of 40 Items");
}

// The rest of the rows is still in the full copy then.
TEST_F(BannerReapplying, TheKeyOfAHiddenRowUsedAgainEndsTheResetWithABox) {
  Reset();
  list->ListItems()->Item(39)->SetKey(u"k");
  Filter(u"Oak");
  AddRow(*list, {"Oak 41"}, "k");
  Tick();
  EXPECT_EQ(Caption(), u"Displaying 13 of 41 Items");
  Reset();
  EXPECT_EQ(prompts.Boxes(),
            Names{ErrorBox("457, This key is already associated with an element of this "
                           "collection")});
  EXPECT_EQ(FirstTexts(*list), AllTrees());
  EXPECT_EQ(FirstTexts(*dialog.ListView1), Plus(AllTrees(), {"Oak 41"}));
}

TEST_F(BannerReapplying, ClearedRowsThatWereHiddenComeBackOnReset) {
  list->ListItems()->Clear();
  AddRow(*list, {"Oak 100"});
  Tick();
  Reset();
  EXPECT_EQ(FirstTexts(*list), Plus(Elms(), {"Oak 100"}));
}

TEST_F(BannerReapplying, RowsHiddenWhenTheFilterIsDeactivatedAreGone) {
  control.DeactivateFilter();
  EXPECT_EQ(FirstTexts(*list), Oaks());
  AddRow(*list, {"Elm 41"});
  EXPECT_EQ(Caption(), u"Displaying 13 of 13 Items");
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(FirstTexts(*list), Plus(Oaks(), {"Elm 41"}));
}

}  // namespace

}  // namespace sifter
