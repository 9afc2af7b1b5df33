#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace sifter {

namespace {

// A list whose `occurrence`-th call of a member during the apply goes wrong.
struct ApplyErrorCase {
  const char* name;
  const char* member;
  int occurrence;
  RuntimeError error;
  std::vector<std::string> boxes;
  TextRows left;      // in the host's list
  TextRows recorded;  // as the rows that passed
};

void PrintTo(const ApplyErrorCase& c, std::ostream* out) { *out << c.name; }

class ApplyErrors : public testing::WithParamInterface<ApplyErrorCase>, public DialogFixture {
 protected:
  ApplyErrors() {
    list->RecordNothing();
    Prepare(list);
    PickNumber(1, u"is greater than", u"4");
    dialog.Show(ShowMode::kModeless);
    recorder.Clear();
  }

  void ExpectTheLaterStepsDone() const {
    EXPECT_TRUE(dialog.blnFilterActive);
    EXPECT_EQ(dialog.FilterString, u"(Qty > 4)");
    EXPECT_EQ(dialog.FilterPlainEnglish, u"Qty is greater than 4");
    EXPECT_FALSE(dialog.Visible());
  }

  const TextRows kAll = {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}};
  const TextRows kPassing = {{"Ash", "7"}, {"Elm", "5"}};
  const Ref<MemoryListView> memory = MakeList({"Name", "Qty"}, kAll);
  const Ref<RecordingListView> list = MakeRef<RecordingListView>(memory, recorder);
};

TEST_P(ApplyErrors, EndTheirStepAndTheLaterStepsAreDone) {
  const ApplyErrorCase& c = GetParam();
  list->FailOn(c.member, c.occurrence, c.error);
  Apply();
  EXPECT_EQ(Boxes(), c.boxes);
  EXPECT_EQ(Texts(*memory), c.left);
  EXPECT_EQ(Texts(*dialog.lvwCopyOfFiltered), c.recorded);
  ExpectTheLaterStepsDone();
}

// The full copy is untouched, so that the next apply makes everything good.
TEST_P(ApplyErrors, AreGoneWithTheNextApply) {
  const ApplyErrorCase& c = GetParam();
  list->FailOn(c.member, c.occurrence, c.error);
  Apply();
  EXPECT_EQ(Texts(*dialog.ListView1), kAll);
  prompts.Forget();
  dialog.lvwCopyOfFiltered->ColumnHeaders()->Clear();
  Apply();
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
  EXPECT_EQ(Texts(*memory), kPassing);
  EXPECT_EQ(Texts(*dialog.lvwCopyOfFiltered), kPassing);
  ExpectTheLaterStepsDone();
}

const RuntimeError kHosts(35602, u"Key is not unique in collection");
const RuntimeError kMissing(ErrorNumber::kMemberNotSupported);
const std::vector<std::string> kHostsBox = {ErrorBox("35602, Key is not unique in collection")};
const std::vector<std::string> kMissingBox = {
    ErrorBox("438, Object doesn't support this property or method")};
const std::vector<std::string> kNoBox = {};

INSTANTIATE_TEST_SUITE_P(
    InTheRefill, ApplyErrors,
    testing::Values(
        ApplyErrorCase{"rows can't be reached",
                       "ListView.ListItems",
                       1,
                       kHosts,
                       kHostsBox,
                       {{"Ash", "7"}, {"Elm", "5"}},
                       {{"Ash", "7"}, {"Elm", "5"}}},
        ApplyErrorCase{"rows can't be cleared",
                       "ListItems.Clear",
                       1,
                       kHosts,
                       kHostsBox,
                       {{"Ash", "7"}, {"Elm", "5"}},
                       {{"Ash", "7"}, {"Elm", "5"}}},
        ApplyErrorCase{
            "columns can't be counted", "ColumnHeaders.Count", 1, kHosts, kHostsBox, {}, {}},
        ApplyErrorCase{"first row is refused", "ListItems.Add", 1, kHosts, kHostsBox, {}, {}},
        ApplyErrorCase{"third row is refused",
                       "ListItems.Add",
                       3,
                       kHosts,
                       kHostsBox,
                       {{"Ash", "7"}},
                       {{"Ash", "7"}}},
        ApplyErrorCase{"no bold rows", "ListItem.SetBold", 1, kMissing, kMissingBox, {}, {}},
        ApplyErrorCase{"third row's cell is refused",
                       "ListItem.SetSubItems",
                       3,
                       kHosts,
                       kHostsBox,
                       {{"Ash", "7"}},
                       {{"Ash", "7"}}},
        ApplyErrorCase{"second row has no cells to look at",
                       "ListItem.ListSubItems",
                       2,
                       kMissing,
                       kMissingBox,
                       {{"Ash", "7"}},
                       {{"Ash", "7"}}},
        ApplyErrorCase{"second row's cell takes no tag",
                       "ListSubItem.SetTag",
                       2,
                       kMissing,
                       kMissingBox,
                       {{"Ash", "7"}},
                       {{"Ash", "7"}}}));

// The engine keeps its errors to itself: the criterion removes nothing.
INSTANTIATE_TEST_SUITE_P(InTheEngine, ApplyErrors,
                         testing::Values(ApplyErrorCase{"a cell can't be read",
                                                        "ListItem.SubItems",
                                                        2,
                                                        kHosts,
                                                        kNoBox,
                                                        {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}},
                                                        {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}}},
                                         ApplyErrorCase{"a row can't be reached",
                                                        "ListItems.Item",
                                                        3,
                                                        kHosts,
                                                        kNoBox,
                                                        {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}},
                                                        {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}}},
                                         ApplyErrorCase{
                                             "a row can't be removed",
                                             "ListItems.Remove",
                                             1,
                                             kHosts,
                                             kNoBox,
                                             {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}},
                                             {{"Oak", "3"}, {"Ash", "7"}, {"Elm", "5"}}}));

INSTANTIATE_TEST_SUITE_P(InTheRecording, ApplyErrors,
                         testing::Values(ApplyErrorCase{"columns have no width",
                                                        "ColumnHeader.Width",
                                                        1,
                                                        kMissing,
                                                        kMissingBox,
                                                        {{"Ash", "7"}, {"Elm", "5"}},
                                                        {}},
                                         ApplyErrorCase{"second row can't be reached",
                                                        "ListItems.Item",
                                                        5,
                                                        kHosts,
                                                        kHostsBox,
                                                        {{"Ash", "7"}, {"Elm", "5"}},
                                                        {{"Ash", "7"}}},
                                         ApplyErrorCase{"second row has no tag",
                                                        "ListItem.Tag",
                                                        2,
                                                        kMissing,
                                                        kMissingBox,
                                                        {{"Ash", "7"}, {"Elm", "5"}},
                                                        {{"Ash", "7"}, {"Elm", ""}}},
                                         ApplyErrorCase{"first row's cell has no icon",
                                                        "ListSubItem.ReportIcon",
                                                        1,
                                                        kHosts,
                                                        kHostsBox,
                                                        {{"Ash", "7"}, {"Elm", "5"}},
                                                        {{"Ash", "7"}}}));

using ApplyMore = ApplyErrors;

TEST_F(ApplyMore, AMemberThatIsMissingThroughoutIsReportedByEachCopyThatNeedsIt) {
  list->Lack("ListItem.ToolTipText");
  dialog.lblColumnHeaderText[1].SetTag(u"9");  // so that all rows stay
  Apply();
  EXPECT_EQ(Boxes(), (std::vector<std::string>{kMissingBox[0], kMissingBox[0]}));
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", ""}}));
  EXPECT_TRUE(dialog.blnFilterActive);
}

TEST_F(ApplyMore, ARefusedFocusIsReportedAndLeavesTheDialogOpen) {
  host.RefuseFocus(RuntimeError(ErrorNumber::kInvalidProcedureCall));
  Apply();
  EXPECT_TRUE(recorder.Shows({
      "focus cmdReset",
      "box \"Error\" ! \"Error number is 5, Invalid procedure call or argument\"",
  }));
  EXPECT_TRUE(dialog.Visible());
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_EQ(dialog.FilterString, u"(Qty > 4)");
}

TEST_F(ApplyMore, WithoutAListEveryCopyReportsItAndTheTextsAreWritten) {
  Apply();
  prompts.Forget();
  dialog.UsersListview = nullptr;
  dialog.Show(ShowMode::kModeless);
  Apply();
  const std::string box = ErrorBox("91, Object variable or With block variable not set");
  EXPECT_EQ(Boxes(), (std::vector<std::string>{box, box}));
  EXPECT_EQ(Texts(*dialog.ListView1), kAll);
  EXPECT_EQ(Texts(*dialog.lvwCopyOfFiltered), TextRows{});
  EXPECT_EQ(Texts(*memory), kPassing);
  ExpectTheLaterStepsDone();
}

TEST_F(ApplyMore, OnADialogThatWasNeverSetUpMakesEmptySnapshots) {
  frmFilter fresh({host, prompts, conversions, clock});
  fresh.cmdApply.SetValue(true);
  EXPECT_TRUE(fresh.blnFilterActive);
  EXPECT_EQ(fresh.FilterString, u"");
  ASSERT_TRUE(fresh.ListView1);
  ASSERT_TRUE(fresh.lvwCopyOfFiltered);
  EXPECT_EQ(fresh.ListView1->ListItems()->Count(), 0);
  EXPECT_EQ(fresh.lvwCopyOfFiltered->ListItems()->Count(), 0);
}

// An incomplete copy is what the next apply starts from; the box is all that warns of it.
TEST_F(ApplyMore, ACopyThatFailedHalfWayIsWhatTheListIsRefilledFrom) {
  list->FailOn("ListItem.Checked", 2, kHosts);
  dialog.SetUpForm();
  EXPECT_EQ(Boxes(), kHostsBox);
  Apply();
  EXPECT_EQ(Texts(*memory), (TextRows{{"Oak", "3"}, {"Ash", ""}}));
}

}  // namespace

}  // namespace sifter
