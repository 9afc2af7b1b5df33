#include "filterdialog/frmFilter.h"
#include "support/HeadlessControls.h"
#include "support/HeadlessDialog.h"
#include "support/ListObserverRecorder.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

// What arrives while the lists are half copied has to wait; InWork tells when.
class AtWork : public DialogFixture {
 protected:
  AtWork() {
    Prepare(list);
    observer.During([this](ListMessage, std::intptr_t) { Note(); });
    prompts.WhileUp([this] { Note(); });
    recorder.Clear();
  }

  void Note() { recorder.Line(dialog.InWork() ? "  in work" : "  idle"); }

  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, {{"Oak", "3"}, {"Ash", "5"}});
  ListObserverRecorder observer{*list, recorder};
};

TEST_F(AtWork, NoticesDuringAnApplyFindTheDialogInWork) {
  PickText(0, u"equals", u"Oak");
  EXPECT_FALSE(dialog.InWork());
  Apply();
  EXPECT_FALSE(dialog.InWork());
  EXPECT_TRUE(recorder.Shows({
      "DeleteAllItems 0, 2 rows",
      "  in work",
      "InsertItem 0, 1 rows",
      "  in work",
      "InsertItem 0, 2 rows",
      "  in work",
      "DeleteItem 1, 2 rows",
      "  in work",
  }));
}

TEST_F(AtWork, SoDoMessagesAboutParameters) {
  PickNumber(1, u"equals", u"x");
  recorder.Clear();
  observer.During(nullptr);
  Apply();
  EXPECT_EQ(recorder.Lines().back(), "  in work");
}

TEST_F(AtWork, HidingIsTheLastStepOfAnApplyAndStillPartOfIt) {
  dialog.Show(ShowMode::kModeless);
  host.OnFocus([this] { Note(); });
  recorder.Clear();
  observer.During(nullptr);
  Apply();
  EXPECT_TRUE(recorder.Shows({"DeleteAllItems 0, 2 rows", "InsertItem 0, 1 rows",
                              "InsertItem 0, 2 rows", "focus cmdReset", "  in work", "hide"}));
}

TEST_F(AtWork, NoticesDuringAResetFindTheDialogInWork) {
  PickText(0, u"equals", u"Oak");
  Apply();
  recorder.Clear();
  Reset();
  EXPECT_FALSE(dialog.InWork());
  EXPECT_TRUE(recorder.Shows({
      "DeleteAllItems 0, 1 rows",
      "  in work",
      "InsertItem 0, 1 rows",
      "  in work",
      "InsertItem 0, 2 rows",
      "  in work",
  }));
}

TEST_F(AtWork, NoticesOfACopyFindTheDialogInWork) {
  dialog.CopyListview(MakeDump({"a", "b"}, {{"1", "2"}}), Ref<HostListView>(list));
  EXPECT_TRUE(recorder.Shows(
      {"DeleteAllItems 0, 2 rows", "  in work", "InsertItem 0, 1 rows", "  in work"}));
}

TEST_F(AtWork, TheErrorBoxOfACopyFindsTheDialogInWork) {
  dialog.CopyListview(Ref<ListViewDump>(), Ref<HostListView>(list));
  EXPECT_TRUE(recorder.Shows({
      "DeleteAllItems 0, 2 rows",
      "  in work",
      "box \"Error\" ! \"Error number is 91, Object variable or With block variable not set\"",
      "  in work",
  }));
  EXPECT_FALSE(dialog.InWork());
}

TEST_F(AtWork, TheErrorBoxOfASetUpFindsTheDialogInWork) {
  dialog.UsersListview = nullptr;
  dialog.SetUpForm();
  const std::string box =
      "box \"Error\" ! \"Error number is 91, Object variable or With block variable not set\"";
  EXPECT_TRUE(recorder.Shows({box, "  in work", box, "  in work"}));
  EXPECT_FALSE(dialog.InWork());
}

TEST_F(AtWork, TheUserAloneIsNoWork) {
  host.During([this] {
    Note();
    PickText(0, u"equals", u"Oak");
    dialog.cmdReport.SetValue(true);
    Note();
    dialog.cmdHideFilter.SetValue(true);
    Note();
  });
  dialog.ExtraButtonClicked = [this](Text&) { Note(); };
  host.OnFocus([this] { Note(); });
  dialog.Show(ShowMode::kModal);
  for (const std::string& line : recorder.Lines()) EXPECT_NE(line, "  in work");
}

// Rows that a host takes out or puts in on a notice are its own affair; the dialog's copies stay
// whole and the next apply starts from them.
TEST_F(AtWork, AHostThatMeddlesDuringAnApplyDoesNotReachTheFullCopy) {
  bool busy = false;
  observer.During([&](ListMessage message, std::intptr_t) {
    if (busy) return;
    busy = true;
    if (message == kInsertItem) AddRow(*list, {"mine", "9"});
    if (message == kDeleteItem) list->ListItems()->Remove(1);
    busy = false;
  });
  PickText(0, u"equals", u"Oak");
  Apply();
  observer.During(nullptr);
  EXPECT_EQ(Texts(*dialog.ListView1), (TextRows{{"Oak", "3"}, {"Ash", "5"}}));
  Apply();
  EXPECT_EQ(Texts(*list), (TextRows{{"Oak", "3"}}));
  EXPECT_EQ(Boxes(), std::vector<std::string>{});
}

// The host drives the dialog from a notice of a removed row: another list, more columns, another
// apply. The run that was under way must end in order.
TEST_F(AtWork, AnApplyInsideAnApplyEndsInOrder) {
  const Ref<MemoryListView> other =
      MakeList({"a", "b", "c", "d", "e", "f"},
               {{"1", "2", "3", "4", "5", "6"}, {"7", "8", "9", "", "", ""}});
  bool done = false;
  observer.During([&](ListMessage message, std::intptr_t) {
    if (message != kDeleteItem || done) return;
    done = true;
    Prepare(other);
    PickNumber(0, u"equals", u"7");
    Apply();
  });
  PickText(0, u"equals", u"Oak");
  PickNumber(1, u"is less than", u"4");
  Apply();
  EXPECT_TRUE(done);
  EXPECT_FALSE(dialog.InWork());
  EXPECT_EQ(Texts(*list), (TextRows{{"Oak", "3"}}));
  EXPECT_EQ(FirstTexts(*other), std::vector<std::string>{"7"});
  EXPECT_EQ(FirstTexts(*dialog.lvwCopyOfFiltered), std::vector<std::string>{"7"});
}

}  // namespace

}  // namespace sifter
