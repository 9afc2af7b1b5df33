#include "BannerOnAForm.h"
#include "TalkativeList.h"

namespace sifter {

namespace {

// A host that takes the filter away, or the rows, while the dialog is open or at work.
class BannerAtWork : public BannerOnAForm {
 protected:
  // The user goes on to press a button of the dialog that has just been hidden under the mouse.
  void Press(CommandButton& button) {
    EXPECT_FALSE(dialog.Visible());
    button.SetValue(true);
  }

  // The first rows, whole.
  TextRows First(std::size_t count) const {
    return TextRows(kTrees.begin(), kTrees.begin() + static_cast<std::ptrdiff_t>(count));
  }

  TextRows OakRows() const {
    TextRows oaks;
    for (const std::vector<std::string>& row : kTrees)
      if (row[0].starts_with("Oak")) oaks.push_back(row);
    return oaks;
  }

  // The same rows in a list with a column more.
  static TextRows Widened(TextRows rows) {
    for (std::vector<std::string>& row : rows) row.emplace_back();
    return rows;
  }
};

TEST_F(BannerAtWork, AColumnInsertedUnderTheOpenDialogEndsTheFilterAndTheShowing) {
  AttachAndFilter();
  WatchDialog();
  forms.During([this] {
    recorder.Clear();
    AddColumn(*list, "Height");
    EXPECT_FALSE(control.Active());
    EXPECT_FALSE(dialog.blnFilterActive);
    recorder.Line("column inserted");
  });
  control.ShowFilter(true);
  Names lines;
  for (const std::string& line : recorder.Lines())
    if (!line.starts_with("cboOperator") && !line.starts_with("cboCriteria") &&
        !line.starts_with("lblAnd") && !line.starts_with("txt") && !line.starts_with("dtp"))
      lines.push_back(line);
  EXPECT_EQ(lines, (Names{
                       "focus cmdReset",
                       "hide",
                       "cmdFilter.Picture \"FilterEmpty\"",
                       "lblDisplaying.Caption \"Displaying all Items\"",
                       "cmdFilter.ToolTipText \"List is not Filtered\"",
                       "raise FilterDeactivated, Active False, Filter \"\"",
                       "column inserted",
                       "modal showing ends",
                       "lblDisplaying.Caption \"Displaying 12 of 0 Items\"",
                       "raise FilterDeactivated, Active False, Filter \"\"",
                       "focus to 101",
                   }));
  EXPECT_EQ(Texts(*list), Widened(OakRows()));
}

TEST_F(BannerAtWork, ALaterApplyOrResetLosesNoRow) {
  for (CommandButton* button : {&dialog.cmdApply, &dialog.cmdReset, &dialog.cmdHideFilter}) {
    const Ref<MemoryListView> trees = MakeList({"Name", "Qty", "Planted"}, kTrees);
    const MemoryListWindow treesWindow(windows, *trees);
    control.SetListview(trees);
    Filter(u"Oak");
    forms.During([&] {
      AddColumn(*trees, "Height");
      Press(*button);
    });
    control.ShowFilter(true);
    EXPECT_EQ(Texts(*trees), Widened(OakRows()));
    EXPECT_EQ(control.Active(), button == &dialog.cmdApply);  // with "All" for every column
    control.SetListview(nullptr);
  }
}

TEST_F(BannerAtWork, NorDoesADeactivationByTheHostsTimer) {
  for (CommandButton* button : {&dialog.cmdApply, &dialog.cmdReset}) {
    const Ref<MemoryListView> trees = MakeList({"Name", "Qty", "Planted"}, kTrees);
    const MemoryListWindow treesWindow(windows, *trees);
    control.SetListview(trees);
    Filter(u"Oak");
    forms.During([&] {
      control.DeactivateFilter();
      Press(*button);
    });
    control.ShowFilter(true);
    EXPECT_EQ(Texts(*trees), OakRows());
    control.SetListview(nullptr);
  }
}

TEST_F(BannerAtWork, NorDoesItUnderAModelessDialog) {
  AttachAndFilter();
  control.ShowFilter(false);
  AddColumn(*list, "Height");
  Press(dialog.cmdReset);
  EXPECT_EQ(Texts(*list), Widened(OakRows()));
  EXPECT_FALSE(control.Active());
}

TEST_F(BannerAtWork, AHiddenDialogKeepsItsCriteriaWhenTheFilterIsDeactivated) {
  AttachAndFilter();
  control.DeactivateFilter();
  EXPECT_EQ(dialog.cboOperator[0].Text(), u"contains");
  EXPECT_EQ(dialog.cboCriteria[0].Text(), u"Oak");
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(dialog.AppliedCriteria().size(), 0u);
}

// The rows that are on their way into the list arrive.
TEST_F(BannerAtWork, ADeactivationInTheMiddleOfARefillLosesNoRow) {
  for (const char* notice : {"DeleteAllItems 0, 12 rows", "InsertItem 0, 1 rows",
                             "InsertItem 0, 20 rows", "InsertItem 0, 40 rows"}) {
    SCOPED_TRACE(notice);
    const Ref<MemoryListView> trees = MakeList({"Name", "Qty", "Planted"}, kTrees);
    const MemoryListWindow treesWindow(windows, *trees);
    control.SetListview(trees);
    Filter(u"Oak");
    ListObserverRecorder host(*trees, recorder);
    bool done = false;
    host.During([&](ListMessage, std::intptr_t) {
      if (recorder.Lines().back() != notice) return;
      control.DeactivateFilter();
      done = true;
    });
    UserApplies();
    control.ShowFilter(true);
    EXPECT_TRUE(done);
    EXPECT_EQ(Texts(*trees), kTrees);
    EXPECT_FALSE(control.Active());
    EXPECT_FALSE(dialog.blnFilterActive);
    host.During(nullptr);
    UserFilters(u"Oak");
    control.ShowFilter(true);
    EXPECT_EQ(Texts(*trees), OakRows());
    UserResets();
    control.ShowFilter(true);
    EXPECT_EQ(Texts(*trees), kTrees);
    control.SetListview(nullptr);
  }
}

TEST_F(BannerAtWork, AColumnInsertedInTheMiddleOfAResetLosesNoRow) {
  AttachAndFilter();
  ListObserverRecorder host(*list, recorder);
  host.During([this](ListMessage, std::intptr_t) {
    if (recorder.Lines().back() == "InsertItem 0, 20 rows") AddColumn(*list, "Height");
  });
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), Widened(kTrees));
  EXPECT_FALSE(control.Active());
}

// Rows that are taken out by a host that deactivates meanwhile could never come back.
TEST_F(BannerAtWork, ADeactivationWhileRowsAreTakenOutEndsWithoutACrash) {
  Attach();
  ListObserverRecorder host(*list, recorder);
  host.During([this](ListMessage message, std::intptr_t) {
    if (message == kDeleteItem && dialog.ListView1->ListItems()->Count() != 0)
      control.DeactivateFilter();
  });
  UserFilters(u"Oak");
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
  EXPECT_FALSE(dialog.blnFilterActive);
  EXPECT_EQ(prompts.Boxes(), Names());
}

TEST_F(BannerAtWork, AListClearedWhileItIsReadEndsThatCopyWithoutACrash) {
  const auto talkative = MakeRef<TalkativeList>(list);
  control.SetListview(talkative);
  int asked = 0;
  talkative->OnRows = [&] {
    if (++asked == 3) list->ListItems()->Clear();
  };
  UserHides();
  control.ShowFilter(true);
  EXPECT_GE(asked, 3);
  EXPECT_EQ(list->ListItems()->Count(), 0);
  talkative->OnRows = nullptr;
  for (const std::vector<std::string>& row : First(3)) AddRow(*list, row);
  UserResets();
  control.ShowFilter(true);
  EXPECT_EQ(Texts(*list), First(3));
}

TEST_F(BannerAtWork, AListClearedWhileItIsFilledEndsThatCopyWithoutACrash) {
  AttachAndFilter();
  ListObserverRecorder host(*list, recorder);
  bool done = false;
  host.During([&](ListMessage, std::intptr_t) {
    if (!done && recorder.Lines().back() == "InsertItem 0, 20 rows") {
      done = true;
      list->ListItems()->Clear();
    }
  });
  UserResets();
  control.ShowFilter(true);
  EXPECT_FALSE(control.Active());
  EXPECT_EQ(Texts(*list), TextRows(kTrees.begin() + 20, kTrees.end()));
}

}  // namespace

}  // namespace sifter
