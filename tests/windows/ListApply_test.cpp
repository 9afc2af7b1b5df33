#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "listmodel/MemoryListView.h"
#include "support/HeadlessDialog.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/LateBoundList.h"
#include "win32/NativeListView.h"
#include "win32/NativeListViewObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

// The dialog at work on a list view on the screen, in each of the ways in which it can be reached.
// What it does to a list in memory is the model.

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

struct ListWay {
  const char* name;
  Ref<HostListView> (*open)(const Ref<HostListView>& native);
};

void PrintTo(const ListWay& way, std::ostream* out) { *out << way.name; }

const ListWay kListWays[] = {
    {"Native", [](const Ref<HostListView>& native) { return native; }},
    {"ByMembers",
     [](const Ref<HostListView>& native) -> Ref<HostListView> {
       return MakeRef<LateBoundList>(ListViewObject(native), LateBoundList::Transfer::kNever);
     }},
    {"ByTransfer",
     [](const Ref<HostListView>& native) -> Ref<HostListView> {
       return MakeRef<LateBoundList>(ListViewObject(native));
     }},
};

// A text, a number and a date column; the rows carry everything that rows and cells can carry.
void FillAdorned(HostListView& list) {
  Fill(list, {"Name", "Qty", "Due"},
       {{"Oak", "3", "1/2/2005"},
        {"Ash", "12", "1/3/2005"},
        {"oak table", "7", "2/1/2005"},
        {"Elm", "5", "1/2/2005"},
        {"Oak chair", "40", "5/1/2005"},
        {"\xC3\x84hre \xE4\xB8\xAD", "9", "1/4/2005"}});
  const Ref<ListItemCollection> rows = list.ListItems();
  for (std::int32_t i = 1; i <= rows->Count(); ++i) {
    const Ref<ListItem> row = rows->Item(i);
    row->SetKey(Text::FromUtf8("k" + std::to_string(i)));
    row->SetTag(Text::FromUtf8("tag " + std::to_string(i)));
    row->SetToolTipText(i % 2 == 0 ? Text(u"tip") : Text());
    row->SetIcon(i % 3 == 0 ? Value() : Value(i));
    row->SetSmallIcon(i % 3 == 1 ? Value(u"pic") : Value());
    row->SetChecked(i % 2 == 1);
    row->SetBold(i % 3 == 2);
    row->SetGhosted(i > 3);
    row->SetForeColor(i * 16);
    const Ref<ListSubItem> cell = row->ListSubItems()->Item(1 + i % 2);
    cell->SetKey(u"ck");
    cell->SetTag(u"ct");
    cell->SetReportIcon(i);
    cell->SetToolTipText(u"cell tip");
    cell->SetForeColor(255);
    cell->SetBold(true);
  }
}

// Check marks and ghosted rows as the window has them.
Strings MarksOnScreen(HWND window) {
  Strings marks;
  for (int item = 0; item < listview::ItemCount(window); ++item) {
    const UINT state = listview::ItemState(window, item, ~0u);
    const bool checked = (state & listview::kStateImageMask) == listview::kCheckedImage;
    marks.push_back(std::string(checked ? "checked" : "") +
                    ((state & listview::kCut) != 0 ? " ghosted" : ""));
  }
  return marks;
}

Strings MarksIn(HostListView& list) {
  Strings marks;
  const Ref<ListItemCollection> rows = list.ListItems();
  for (std::int32_t i = 1; i <= rows->Count(); ++i)
    marks.push_back(std::string(rows->Item(i)->Checked() == Value(true) ? "checked" : "") +
                    (rows->Item(i)->Ghosted() == Value(true) ? " ghosted" : ""));
  return marks;
}

class ListApply : public DialogFixture, public testing::WithParamInterface<ListWay> {
 protected:
  ListApply() { FillAdorned(*native); }

  void ExpectShown() {
    EXPECT_EQ(form.ShownTexts(), Texts(*native));
    EXPECT_EQ(MarksOnScreen(form.List()), MarksIn(*native));
    EXPECT_EQ(listview::ItemCount(form.List()), native->ListItems()->Count());
  }

  // The oak ones of which there are more than four.
  void PickOak() {
    PickText(0, u"contains", u"oak");
    PickNumber(1, u"is greater than", u"4");
  }

  ListViewOnAForm form;
  Ref<HostListView> native = NativeListView(form.List());
};

TEST_P(ListApply, KeepsTheRowsThatPassAndResetBringsAllBackWithEveryAttribute) {
  const std::string before = Dump(*native);
  const Ref<HostListView> list = GetParam().open(native);
  Prepare(list);
  PickOak();
  Apply();
  EXPECT_EQ(FirstTexts(*native), (Strings{"oak table", "Oak chair"}));
  EXPECT_TRUE(dialog.blnFilterActive);
  EXPECT_TRUE(frmFilter::ListviewsAreEqual(list, dialog.lvwCopyOfFiltered));
  ExpectShown();
  Reset();
  EXPECT_EQ(Dump(*native), before);
  EXPECT_FALSE(dialog.blnFilterActive);
  ExpectShown();
  EXPECT_EQ(Boxes(), Strings());
}

TEST_P(ListApply, LeavesWhatItLeavesInMemoryAndSendsTheSameNotices) {
  const auto session = [&](const Ref<HostListView>& list) {
    std::string states;
    Prepare(list);
    PickOak();
    Apply();
    states += Dump(*list) + DumpDialog(dialog);
    Pick(0, u"All");
    PickDate(2, u"is before", Day(2005, 1, 4));
    Apply();
    states += Dump(*list) + DumpDialog(dialog);
    Pick(1, u"All");
    Pick(2, u"is empty");
    Apply();
    states += Dump(*list) + DumpRows(*dialog.lvwCopyOfFiltered);
    Reset();
    return states + Dump(*list) + DumpDialog(dialog);
  };
  Recorder expectedNotices;
  const Ref<MemoryListView> memory = MakeRef<MemoryListView>();
  FillAdorned(*memory);
  const ListObserverRecorder observer(*memory, expectedNotices);
  const std::string expected = session(memory);
  Recorder notices;
  const Ref<HostListView> list = GetParam().open(native);
  {
    const ListWatcher watcher(form.List(), native, notices);
    dialog.ClearCriteria();
    EXPECT_EQ(session(list), expected);
  }
  EXPECT_TRUE(notices.Shows(expectedNotices.Lines()));
  ExpectShown();
}

// In the middle of an apply nothing is drawn, and everything is afterwards.
TEST_P(ListApply, DrawsOnceForEachPass) {
  const Ref<HostListView> list = GetParam().open(native);
  Prepare(list);
  PickOak();
  Recorder notices;
  ListWatcher watcher(form.List(), native, notices);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  Apply();
  int off = 0;
  bool drawing = true;
  for (const std::string& line : notices.Lines()) {
    if (line == "SetRedraw 0") ++off;
    if (line.starts_with("SetRedraw"))
      drawing = line == "SetRedraw 1";
    else
      EXPECT_FALSE(drawing) << line;
  }
  EXPECT_TRUE(drawing);
  EXPECT_LE(off, 2);
  EXPECT_TRUE(GetUpdateRect(form.List(), nullptr, FALSE));
}

TEST_P(ListApply, AHiddenListIsFilteredAndStaysHidden) {
  ShowWindow(form.List(), SW_HIDE);
  const Ref<HostListView> list = GetParam().open(native);
  Prepare(list);
  PickOak();
  Apply();
  EXPECT_EQ(FirstTexts(*native), (Strings{"oak table", "Oak chair"}));
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWL_STYLE) & WS_VISIBLE, 0);
  Reset();
  EXPECT_EQ(GetWindowLongPtrW(form.List(), GWL_STYLE) & WS_VISIBLE, 0);
  ShowWindow(form.List(), SW_SHOW);
  ExpectShown();
}

// Drawing comes back on the way out through an error box as well.
TEST_P(ListApply, AnErrorOnTheWayLeavesTheListDrawing) {
  const Ref<HostListView> list = GetParam().open(native);
  Prepare(list);
  Recorder notices;
  ListWatcher watcher(form.List(), native, notices);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  // The host takes the key of a row that is on its way back.
  watcher.DuringTheNext(
      [&] { watcher.DuringTheNext([&] { AddRow(*native, {"of the host"}, "k4"); }); });
  Apply();
  EXPECT_EQ(Boxes(),
            (Strings{ErrorBox(
                "457, This key is already associated with an element of this collection")}));
  EXPECT_EQ(notices.Lines().back(), "SetRedraw 1");
  ExpectShown();
}

INSTANTIATE_TEST_SUITE_P(, ListApply, testing::ValuesIn(kListWays),
                         [](const testing::TestParamInfo<ListWay>& way) { return way.param.name; });

}  // namespace

}  // namespace sifter
