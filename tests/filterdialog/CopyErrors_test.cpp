#include "filterdialog/frmFilter.h"
#include "support/HeadlessDialog.h"
#include "support/RecordingListView.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sifter {

namespace {

// The copy as the dialog's own procedure.
class CopyErrors : public DialogFixture {
 protected:
  using Strings = std::vector<std::string>;

  Ref<RecordingListView> Foreign(const Ref<MemoryListView>& list) {
    const Ref<RecordingListView> foreign = MakeRef<RecordingListView>(list, recorder);
    foreign->RecordNothing();
    return foreign;
  }
};

TEST_F(CopyErrors, AKeyThatTheTargetHasAlreadyEndsTheCopy) {
  const Ref<ListViewDump> source = MakeDump({"Name"}, {{"Oak"}, {"Ash"}, {"Elm"}});
  source->ListItems()->Item(1)->SetKey(u"k");
  source->ListItems()->Item(3)->SetKey(u"k");
  for (const bool live : {false, true}) {
    const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
    const Ref<MemoryListView> list = MakeRef<MemoryListView>();
    prompts.Forget();
    if (live)
      dialog.CopyListview(source, Ref<HostListView>(list));
    else
      dialog.CopyListview(source, dump);
    EXPECT_EQ(Boxes(),
              Strings{ErrorBox("457, This key is already associated with an element of this "
                               "collection")});
    EXPECT_EQ(live ? FirstTexts(*list) : FirstTexts(*dump), (Strings{"Oak", "Ash"}));
  }
}

// What a row is found under may differ from its Key once it was taken into a snapshot beside a
// row of the same key. Its copy shows that.
TEST_F(CopyErrors, ARowTakenInBesideOneOfItsKeyEndsTheCopyOfTheSnapshot) {
  const Ref<MemoryListView> first = MakeList({"Name"});
  AddRow(*first, {"Oak"}, "k");
  const Ref<ListViewDump> source = MakeDump({"Name"}, {{"Ash"}});
  source->AddItemToDump(*first->ListItems()->Item(1));
  source->AddItemToDump(*first->ListItems()->Item(1));
  ASSERT_EQ(FirstTexts(*source), (Strings{"Ash", "Oak", "Oak"}));
  const Ref<MemoryListView> target = MakeList({"Name"});
  dialog.CopyListview(source, Ref<HostListView>(target));
  EXPECT_EQ(Boxes(), Strings{ErrorBox("457, This key is already associated with an element of this "
                                      "collection")});
  EXPECT_EQ(FirstTexts(*target), (Strings{"Ash", "Oak"}));
}

TEST_F(CopyErrors, ATargetWithTooFewColumnsEndsTheCopyAtTheFirstCellItLacks) {
  const Ref<ListViewDump> source = MakeDump({"a", "b", "c"}, {{"1", "2", "3"}, {"4", "5", "6"}});
  const Ref<ListViewDump> dump = MakeDump({"x", "y"});
  dialog.CopyListview(source, dump);
  EXPECT_EQ(Boxes(), Strings{ErrorBox("9, Subscript out of range")});
  EXPECT_EQ(Texts(*dump), (TextRows{{"1", "2"}}));
}

TEST_F(CopyErrors, AForeignTargetSaysItInItsOwnWords) {
  const Ref<MemoryListView> memory = MakeList({"x", "y"});
  const Ref<RecordingListView> target = Foreign(memory);
  target->FailOn("ListItem.SetSubItems", 2, RuntimeError(35600, u"Index out of bounds"));
  dialog.CopyListview(MakeDump({"a", "b", "c"}, {{"1", "2", "3"}}), Ref<HostListView>(target));
  EXPECT_EQ(Boxes(), Strings{ErrorBox("35600, Index out of bounds")});
  EXPECT_EQ(Texts(*memory), (TextRows{{"1", "2"}}));
}

TEST_F(CopyErrors, AMemberThatEitherSideLacksEndsTheCopy) {
  struct Case {
    const char* member;
    TextRows copied;  // into a snapshot, from a list that lacks the member
    TextRows put;     // from a snapshot, into one that lacks it
  };
  const Case cases[] = {
      {"ListItem.Text", {}, {{"1", "2"}, {"3", "4"}}},
      {"ListItem.Bold", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.Tag", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.Checked", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.ForeColor", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.Ghosted", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.ToolTipText", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.SubItems", {{"1", ""}}, {{"1", ""}}},
      {"ListItem.ListSubItems", {{"1", "2"}}, {{"1", "2"}}},
      {"ListSubItem.Bold", {{"1", "2"}}, {{"1", "2"}}},
      {"ListSubItem.ToolTipText", {{"1", "2"}}, {{"1", "2"}}},
      {"ListItems.Add", {{"1", "2"}, {"3", "4"}}, {}},
      {"ListItems.Clear", {{"1", "2"}, {"3", "4"}}, {}},
      {"ListItems.Count", {}, {{"1", "2"}, {"3", "4"}}},
  };
  const TextRows rows = {{"1", "2"}, {"3", "4"}};
  for (const Case& c : cases) {
    const Ref<RecordingListView> source = Foreign(MakeList({"a", "b"}, rows));
    source->Lack(c.member);
    const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
    prompts.Forget();
    dialog.CopyListview(Ref<HostListView>(source), dump);
    EXPECT_EQ(Texts(*dump), c.copied) << "from a list without " << c.member;
    const Ref<MemoryListView> memory = MakeList({"a", "b"});
    const Ref<RecordingListView> target = Foreign(memory);
    target->Lack(c.member);
    dialog.CopyListview(MakeDump({"a", "b"}, rows), Ref<HostListView>(target));
    EXPECT_EQ(Texts(*memory), c.put) << "into a list without " << c.member;
    const std::size_t failures = (c.copied == rows ? 0u : 1u) + (c.put == rows ? 0u : 1u);
    EXPECT_EQ(Boxes(), Strings(failures, ErrorBox("438, Object doesn't support this property "
                                                  "or method")))
        << c.member;
  }
}

TEST_F(CopyErrors, AMissingListIsReportedOnEitherSide) {
  const Ref<ListViewDump> dump = MakeDump({"Name"}, {{"Oak"}});
  dialog.CopyListview(dump, Ref<HostListView>());
  dialog.CopyListview(Ref<HostListView>(), dump);
  const std::string box = ErrorBox("91, Object variable or With block variable not set");
  EXPECT_EQ(Boxes(), (Strings{box, box}));
  EXPECT_EQ(dump->ListItems()->Count(), 0);
}

TEST_F(CopyErrors, TheArgumentsAreNeverReplaced) {
  const Ref<HostListView> list = MakeList({"Name"}, {{"Oak"}});
  const Ref<ListViewDump> dump = MakeRef<ListViewDump>();
  const HostListView* const listBefore = list.Get();
  const ListViewDump* const dumpBefore = dump.Get();
  dialog.CopyListview(list, dump);
  dialog.CopyListview(dump, list);
  EXPECT_EQ(list.Get(), listBefore);
  EXPECT_EQ(dump.Get(), dumpBefore);
}

// A notice may lead the host to take its list away; the copy ends on the list that it began on.
TEST_F(CopyErrors, ListsThatAreLetGoOfMeanwhileLiveUntilTheCopyIsDone) {
  class LettingGo final : public ListObserver {
   public:
    LettingGo(frmFilter& dialog, TextRows& seen) : dialog_(dialog), seen_(seen) {}
    void OnListMessage(ListMessage message, std::intptr_t, std::intptr_t) override {
      if (message != kInsertItem) return;
      if (dialog_.UsersListview) seen_ = Texts(*dialog_.ListView1);
      dialog_.ListView1 = nullptr;
      dialog_.UsersListview = nullptr;
    }

   private:
    frmFilter& dialog_;
    TextRows& seen_;
  };
  TextRows seen;
  LettingGo lettingGo(dialog, seen);
  Ref<MemoryListView> list = MakeList({"Name"}, {{"Oak"}, {"Ash"}});
  Prepare(list);
  list->AddObserver(&lettingGo);
  Apply();
  EXPECT_EQ(seen, (TextRows{{"Oak"}, {"Ash"}}));
  EXPECT_EQ(Texts(*list), (TextRows{{"Oak"}, {"Ash"}}));
  list->RemoveObserver(&lettingGo);
}

}  // namespace

}  // namespace sifter
