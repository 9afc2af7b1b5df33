#include "forms/ComboBox.h"

#include "forms/Form.h"
#include "support/Errors.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessWatcher.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <vector>

namespace sifter {

namespace {

class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    for (ComboBox* box : {&list, &edit}) {
      box->SetEntries({u"All", u"contains", u"equals"});
      box->Click = [this, box] {
        recorder.Line("click of " + NameOf(*box) + " at " + std::to_string(box->ListIndex()) + " " +
                      Quoted(box->Text()));
      };
    }
  }

  Recorder recorder;
  HeadlessFormHost host{recorder};
  Form form{host};
  ComboBox list{form, ComboStyle::kDropDownList, u"list"};
  ComboBox edit{form, ComboStyle::kDropDown, u"edit"};
};

TEST_F(ComboBoxTest, EntriesKeepTheirOrderAndAreNumberedFromZero) {
  list.AddItem(u"contains");
  EXPECT_EQ(list.ListCount(), 4);
  EXPECT_EQ(list.Entries(), (std::vector<Text>{u"All", u"contains", u"equals", u"contains"}));
  EXPECT_EQ(list.List(0), u"All");
  EXPECT_EQ(list.List(3), u"contains");
}

TEST_F(ComboBoxTest, AnEntryThatDoesNotExistReadsAsEmpty) {
  EXPECT_EQ(list.List(-1), u"");
  EXPECT_EQ(list.List(3), u"");
}

TEST_F(ComboBoxTest, SelectingAnEntryTakesItsTextAndRaisesClick) {
  list.SetListIndex(2);
  EXPECT_EQ(list.Text(), u"equals");
  EXPECT_TRUE(recorder.Shows({"click of list at 2 \"equals\""}));
}

TEST_F(ComboBoxTest, SelectingTheSelectedEntryAgainIsNoChange) {
  list.SetListIndex(2);
  recorder.Clear();
  list.SetListIndex(2);
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ComboBoxTest, SelectingNothingLeavesNoText) {
  list.SetListIndex(1);
  recorder.Clear();
  list.SetListIndex(-1);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_TRUE(recorder.Shows({"click of list at -1 \"\""}));
}

TEST_F(ComboBoxTest, SelectingBeyondTheListIsAnErrorAndChangesNothing) {
  list.SetListIndex(1);
  recorder.Clear();
  EXPECT_EQ(ErrorOf([&] { list.SetListIndex(3); }), "380: Invalid property value");
  EXPECT_EQ(ErrorOf([&] { list.SetListIndex(-2); }), "380: Invalid property value");
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(list.Text(), u"contains");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ComboBoxTest, WritingTheTextSelectsTheEntryThatEqualsItWithoutAClick) {
  list.SetText(u"equals");
  EXPECT_EQ(list.ListIndex(), 2);
  edit.SetText(u"Equals");
  EXPECT_EQ(edit.ListIndex(), -1);
  EXPECT_EQ(edit.Text(), u"Equals");
  EXPECT_TRUE(recorder.Shows({}));
}

TEST_F(ComboBoxTest, ClearKeepsATextThatCanBeEdited) {
  edit.SetListIndex(1);
  edit.Clear();
  EXPECT_EQ(edit.ListCount(), 0);
  EXPECT_EQ(edit.ListIndex(), -1);
  EXPECT_EQ(edit.Text(), u"contains");
}

TEST_F(ComboBoxTest, ClearEmptiesABoxWhoseTextIsItsSelectedEntry) {
  list.SetListIndex(1);
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), u"");
}

TEST_F(ComboBoxTest, NewEntriesSelectNoneAndKeepTheText) {
  edit.SetListIndex(1);
  edit.SetEntries({u"contains"});
  EXPECT_EQ(edit.ListIndex(), -1);
  EXPECT_EQ(edit.Text(), u"contains");
}

TEST_F(ComboBoxTest, TheWatcherIsToldOfListTextAndSelection) {
  HeadlessWatcher watcher(form, recorder);
  edit.SetEntries({u"a"});
  edit.AddItem(u"b");
  edit.SetText(u"typed");
  edit.SetListIndex(1);
  form.Watch(nullptr);
  EXPECT_TRUE(recorder.Shows({
      "edit.List [\"a\"]",
      "edit.List [\"a\", \"b\"]",
      "edit.Text \"typed\"",
      "edit.ListIndex 1",
      "click of edit at 1 \"b\"",
  }));
}

}  // namespace

}  // namespace sifter
