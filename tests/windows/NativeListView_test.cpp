#include "win32/NativeListView.h"

#include "ListViewOnAForm.h"
#include "ListWatcher.h"
#include "listmodel/MemoryListView.h"
#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

class NativeListViewTest : public testing::Test {
 protected:
  HWND Window() const { return form.List(); }
  Ref<ListItem> Row(std::int32_t position) { return list->ListItems()->Item(position); }

  // What the window shows and what the list says are the same.
  void ExpectShown() {
    EXPECT_EQ(form.ShownTexts(), Texts(*list));
    EXPECT_EQ(listview::ItemCount(Window()), list->ListItems()->Count());
  }

  ListViewOnAForm form;
  Ref<HostListView> list = NativeListView(form.List());
  Recorder recorder;
};

// Everything that a host may do to rows and columns, told by what happens meanwhile.
template <class List>
void LiveALife(List& list) {
  AddColumn(list, "a");
  AddColumn(list, "b");
  AddRow(list, {"1", "x"}, "k");
  AddRow(list, {"2", "y"});
  list.ListItems()->Add(1, u"", u"0", Value(), Value());
  AddRow(list, {"3"});
  list.ListItems()->Remove(2);
  ErrorOf([&] { list.ListItems()->Remove(9); });
  ErrorOf([&] { list.ListItems()->Add(9, u"", u"x", Value(), Value()); });
  AddColumn(list, "c");
  list.ListItems()->Clear();
  list.ListItems()->Clear();
  AddRow(list, {"4"});
  list.ColumnHeaders()->Clear();
}

TEST_F(NativeListViewTest, ShowsWhatIsInTheList) {
  Fill(*list, {"a", "b", "c"}, {{"1", "x", "long"}, {"2"}, {"\xC3\xA4\xE4\xB8\xAD", "", "z"}});
  ExpectShown();
  Row(2)->SetText(u"two");
  Row(2)->SetSubItems(2, u"new");
  list->ListItems()->Remove(1);
  list->ListItems()->Add(1, u"", u"first", Value(), Value());
  EXPECT_EQ(form.ShownTexts(),
            (TextRows{{"first", "", ""}, {"two", "", "new"}, {"\xC3\xA4\xE4\xB8\xAD", "", "z"}}));
  list->ListItems()->Clear();
  ExpectShown();
}

TEST_F(NativeListViewTest, ShowsTextsOfAnyLength) {
  const std::string text(5000, 'x');
  Fill(*list, {"a", "b"}, {{text, text}});
  ExpectShown();
}

TEST_F(NativeListViewTest, NoticesComeAsThoseOfAListInMemory) {
  const Ref<MemoryListView> memory = MakeRef<MemoryListView>();
  Recorder expected;
  const ListObserverRecorder observer(*memory, expected);
  LiveALife(*memory);
  const ListWatcher watcher(Window(), list, recorder);
  LiveALife(*list);
  EXPECT_TRUE(recorder.Shows(expected.Lines()));
}

TEST_F(NativeListViewTest, ANewRowIsCountedAndARowThatGoesIsStillThere) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  const ListWatcher watcher(Window(), list, recorder);
  AddRow(*list, {"3"});
  list->ListItems()->Remove(1);
  list->ListItems()->Clear();
  EXPECT_TRUE(
      recorder.Shows({"InsertItem 0, 3 rows", "DeleteItem 0, 3 rows", "DeleteAllItems 0, 2 rows"}));
}

TEST_F(NativeListViewTest, AWatcherMayTakeTheNewRowOutAgain) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Remove(3); });
  const Ref<ListItem> row = AddRow(*list, {"3"});
  EXPECT_EQ(row->Index(), Value(0));
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, AWatcherMayAddRowsInFrontOfAndBehindTheNewOne) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    list->ListItems()->Add(1, u"", u"front", Value(), Value());
    AddRow(*list, {"behind"});
  });
  list->ListItems()->Add(2, u"", u"new", Value(), Value());
  EXPECT_EQ(FirstTexts(*list), (Strings{"front", "1", "new", "2", "behind"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, AWatcherMayClearTheListWhileARowIsAdded) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Clear(); });
  AddRow(*list, {"3"});
  ExpectShown();
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(NativeListViewTest, TheAnnouncedRowGoesThoughOthersMoveMeanwhile) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}, {"4"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    list->ListItems()->Remove(1);
    list->ListItems()->Add(1, u"", u"x", Value(), Value());
    list->ListItems()->Add(1, u"", u"y", Value(), Value());
  });
  list->ListItems()->Remove(3);
  EXPECT_EQ(FirstTexts(*list), (Strings{"y", "x", "2", "4"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, ARowThatAWatcherTookOutItselfIsGoneAndThatIsAll) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->ListItems()->Remove(2); });
  list->ListItems()->Remove(2);
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "3"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, ColumnsHaveTheirWidthsInTwips) {
  AddColumn(*list, "a");
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(1);
  EXPECT_EQ(listview::ColumnWidth(Window(), 0), 96);
  column->SetWidth(720);
  EXPECT_EQ(listview::ColumnWidth(Window(), 0), 48);
  EXPECT_EQ(column->Width(), Value(720));
}

TEST_F(NativeListViewTest, AColumnIsAsWideAsTheUserHasMadeIt) {
  AddColumn(*list, "a");
  SendMessageW(Window(), LVM_SETCOLUMNWIDTH, 0, 100);
  const Ref<ColumnHeader> column = list->ColumnHeaders()->Item(1);
  EXPECT_EQ(column->Width(), Value(1500));
  column->SetText(u"b");
  EXPECT_EQ(listview::ColumnWidth(Window(), 0), 100);
}

TEST_F(NativeListViewTest, ColumnsShowTheirCaptionsAndAlignments) {
  list->ColumnHeaders()->Add(0, u"", u"first", 1440, 0, Value());
  list->ColumnHeaders()->Add(0, u"", u"\u4E2D", 1440, 1, Value());
  list->ColumnHeaders()->Add(0, u"", u"third", 1440, 0, Value());
  list->ColumnHeaders()->Item(3)->SetAlignment(2);
  list->ColumnHeaders()->Item(3)->SetText(u"3rd");
  Strings shown;
  for (int place = 0; place < 3; ++place) {
    wchar_t text[32];
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 32;
    listview::GetColumn(Window(), place, column);
    shown.push_back(FromWide(text).ToUtf8() + ' ' +
                    std::to_string(column.fmt & LVCFMT_JUSTIFYMASK));
  }
  EXPECT_EQ(shown, (Strings{"first 0", "\xE4\xB8\xAD 1", "3rd 2"}));
}

TEST_F(NativeListViewTest, BoxesComeWithTheFirstCheckMark) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  Row(1)->SetChecked(false);
  EXPECT_EQ(listview::ExtendedStyle(Window()) & listview::kCheckBoxes, 0u);
  Row(2)->SetChecked(true);
  AddRow(*list, {"3"});
  Strings images;
  for (int item = 0; item < 3; ++item)
    images.push_back(
        std::to_string(listview::ItemState(Window(), item, listview::kStateImageMask) >> 12));
  EXPECT_EQ(images, (Strings{"1", "2", "1"}));
  EXPECT_EQ(Row(1)->Checked(), Value(false));
  EXPECT_EQ(Row(2)->Checked(), Value(true));
}

TEST_F(NativeListViewTest, WhatTheUserChecksIsChecked) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  Row(1)->SetChecked(true);
  listview::SetItemState(Window(), 0, listview::kUncheckedImage, listview::kStateImageMask);
  listview::SetItemState(Window(), 1, listview::kCheckedImage, listview::kStateImageMask);
  EXPECT_EQ(Row(1)->Checked(), Value(false));
  EXPECT_EQ(Row(2)->Checked(), Value(true));
}

TEST_F(NativeListViewTest, GhostedRowsAreCutItems) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  Row(2)->SetGhosted(true);
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kCut), listview::kCut);
  listview::SetItemState(Window(), 0, listview::kCut, listview::kCut);
  listview::SetItemState(Window(), 1, 0, listview::kCut);
  EXPECT_EQ(Row(1)->Ghosted(), Value(true));
  EXPECT_EQ(Row(2)->Ghosted(), Value(false));
}

TEST_F(NativeListViewTest, RowsThatComeWholeComeWithTheirMarks) {
  const Ref<MemoryListView> source = MakeList({"a", "b"}, {{"1", "x"}, {"2", "y"}});
  source->ListItems()->Item(1)->SetChecked(true);
  source->ListItems()->Item(2)->SetGhosted(true);
  source->ListItems()->Item(2)->ListSubItems()->Item(1)->SetReportIcon(3);
  source->ListItems()->Item(2)->ListSubItems()->Item(1)->SetToolTipText(u"tip");
  Fill(*list, {"a", "b"}, {});
  for (std::int32_t i = 1; i <= 2; ++i)
    list->Shared()->AppendShared(source->Shared()->Rows().At(i));
  EXPECT_EQ(DumpRows(*list), DumpRows(*source));
  ExpectShown();
  EXPECT_EQ(listview::ItemState(Window(), 0, listview::kStateImageMask), listview::kCheckedImage);
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kCut), listview::kCut);
  constexpr DWORD kUsed = listview::kCheckBoxes | listview::kInfoTip | listview::kSubItemImages;
  EXPECT_EQ(listview::ExtendedStyle(Window()) & kUsed, kUsed);
}

TEST_F(NativeListViewTest, SortingMovesTheRowsWithTheirMarks) {
  Fill(*list, {"a", "b"}, {{"x", "2"}, {"y", "3"}, {"z", "1"}});
  Row(2)->SetChecked(true);
  Row(3)->SetGhosted(true);
  listview::SetItemState(Window(), 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  list->SetSortKey(1);
  list->SetSorted(true);
  EXPECT_EQ(FirstTexts(*list), (Strings{"z", "x", "y"}));
  ExpectShown();
  EXPECT_EQ(listview::ItemState(Window(), 0, listview::kCut), listview::kCut);
  EXPECT_EQ(listview::ItemState(Window(), 1, LVIS_SELECTED | LVIS_FOCUSED),
            static_cast<UINT>(LVIS_SELECTED | LVIS_FOCUSED));
  EXPECT_EQ(listview::ItemState(Window(), 2, listview::kStateImageMask), listview::kCheckedImage);
  EXPECT_EQ(SendMessageW(Window(), LVM_GETSELECTEDCOUNT, 0, 0), 1);
  EXPECT_EQ(Row(3)->Checked(), Value(true));
  EXPECT_EQ(Row(1)->Ghosted(), Value(true));
  AddRow(*list, {"new", "0"});
  ExpectShown();
}

TEST_F(NativeListViewTest, PicturesAreNumbersInTheImageList) {
  Fill(*list, {"a", "b"}, {{"1", "x"}});
  Row(1)->SetSmallIcon(3);
  Row(1)->SetIcon(7);
  Row(1)->ListSubItems()->Item(1)->SetReportIcon(5);
  const auto picture = [&](int subItem) {
    LVITEMW item{};
    item.mask = LVIF_IMAGE;
    item.iSubItem = subItem;
    listview::GetItem(Window(), item);
    return item.iImage;
  };
  EXPECT_EQ(picture(0), 3);
  EXPECT_EQ(picture(1), 5);
  Row(1)->SetSmallIcon(u"key");
  EXPECT_EQ(picture(0), I_IMAGENONE);
  EXPECT_EQ(Row(1)->SmallIcon(), Value(u"key"));
}

TEST_F(NativeListViewTest, TheTipOfARowIsThere) {
  Fill(*list, {"a", "b"}, {{"1", "x"}, {"2", "y"}});
  EXPECT_EQ(listview::ExtendedStyle(Window()) & listview::kInfoTip, 0u);
  Row(2)->SetToolTipText(u"a long tip");
  EXPECT_EQ(listview::ExtendedStyle(Window()) & listview::kInfoTip, listview::kInfoTip);
  wchar_t text[7];
  NMLVGETINFOTIPW tip{};
  tip.hdr = {Window(), 1, LVN_GETINFOTIPW};
  tip.iItem = 1;
  tip.pszText = text;
  tip.cchTextMax = 7;
  SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&tip));
  EXPECT_EQ(FromWide(text), u"a long");
  char ansi[32];
  NMLVGETINFOTIPA ansiTip{};
  ansiTip.hdr = {Window(), 1, LVN_GETINFOTIPA};
  ansiTip.iItem = 1;
  ansiTip.pszText = ansi;
  ansiTip.cchTextMax = 32;
  SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&ansiTip));
  EXPECT_STREQ(ansi, "a long tip");
}

TEST_F(NativeListViewTest, ALabelThatTheParentAcceptsIsTheRowsText) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  const auto edit = [&](LRESULT parentsAnswer) {
    form.OnNotice([&](NMHDR&) { return parentsAnswer; });
    wchar_t text[] = L"edited";
    NMLVDISPINFOW end{};
    end.hdr = {Window(), 1, LVN_ENDLABELEDITW};
    end.item.iItem = 1;
    end.item.mask = LVIF_TEXT;
    end.item.pszText = text;
    return SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&end));
  };
  EXPECT_EQ(edit(FALSE), FALSE);
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2"}));
  EXPECT_EQ(edit(TRUE), FALSE);
  form.OnNotice({});
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "edited"}));
  ExpectShown();
}

TEST_F(NativeListViewTest, ClicksOnHeadersAreToldBehindTheParent) {
  Fill(*list, {"a", "b"}, {});
  form.OnNotice([&](NMHDR& notice) {
    if (notice.code == LVN_COLUMNCLICK) recorder.Line("parent");
    return LRESULT{0};
  });
  Ref<Object> watching = list->WatchColumnClicks(
      [&](std::int32_t column) { recorder.Line("column " + std::to_string(column)); });
  NMLISTVIEW click{};
  click.hdr = {Window(), 1, LVN_COLUMNCLICK};
  click.iItem = -1;
  click.iSubItem = 1;
  SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&click));
  watching = nullptr;
  SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&click));
  form.OnNotice({});
  EXPECT_TRUE(recorder.Shows({"parent", "column 2", "parent"}));
}

TEST_F(NativeListViewTest, ALongChangeIsDrawnOnce) {
  Fill(*list, {"a"}, {{"1"}, {"2"}, {"3"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  {
    const UpdateScope outer(list.Get());
    const UpdateScope inner(list.Get());
    list->Shared()->RemoveRows({1, 3});
  }
  EXPECT_TRUE(recorder.Shows(
      {"SetRedraw 0", "DeleteItem 2, 3 rows", "DeleteItem 0, 2 rows", "SetRedraw 1"}));
  EXPECT_TRUE(GetUpdateRect(Window(), nullptr, FALSE));
}

TEST_F(NativeListViewTest, DrawingComesBackAfterAnError) {
  ListWatcher watcher(Window(), list, recorder);
  watcher.RecordToo(WM_SETREDRAW, "SetRedraw");
  ErrorOf([&] {
    const UpdateScope update(list.Get());
    throw RuntimeError(ErrorNumber::kOverflow);
  });
  EXPECT_TRUE(recorder.Shows({"SetRedraw 0", "SetRedraw 1"}));
}

TEST_F(NativeListViewTest, AHiddenListStaysHidden) {
  ShowWindow(Window(), SW_HIDE);
  {
    const UpdateScope update(list.Get());
    Fill(*list, {"a"}, {{"1"}});
    EXPECT_FALSE(IsWindowVisible(Window()));
  }
  EXPECT_EQ(GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VISIBLE, 0);
  {
    const UpdateScope update(list.Get());
    ShowWindow(Window(), SW_SHOW);
  }
  EXPECT_TRUE(IsWindowVisible(Window()));
}

TEST_F(NativeListViewTest, AListThatIsHiddenMeanwhileStaysHidden) {
  {
    const UpdateScope update(list.Get());
    ShowWindow(Window(), SW_HIDE);
    Fill(*list, {"a"}, {{"1"}});
  }
  EXPECT_EQ(GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VISIBLE, 0);
}

// Its item is being put in already when the watcher sees the message.
TEST_F(NativeListViewTest, AWatcherMayMarkTheNewRow) {
  Fill(*list, {"a"}, {{"1"}});
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] {
    Row(2)->SetGhosted(true);
    Row(2)->SetChecked(true);
  });
  AddRow(*list, {"2"});
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kCut), listview::kCut);
  EXPECT_EQ(listview::ItemState(Window(), 1, listview::kStateImageMask), listview::kCheckedImage);
}

TEST_F(NativeListViewTest, AWatcherMaySortWhileARowIsAdded) {
  Fill(*list, {"a"}, {{"3"}, {"1"}});
  Row(1)->SetGhosted(true);
  Row(2)->SetChecked(true);
  ListWatcher watcher(Window(), list, recorder);
  watcher.DuringTheNext([&] { list->SetSorted(true); });
  AddRow(*list, {"2"});
  EXPECT_EQ(form.ShownTexts(), (TextRows{{"1"}, {"2"}, {"3"}}));
  std::vector<UINT> marks;
  for (int item = 0; item < 3; ++item)
    marks.push_back(
        listview::ItemState(Window(), item, listview::kCut | listview::kStateImageMask));
  EXPECT_EQ(marks, (std::vector<UINT>{listview::kCheckedImage, listview::kUncheckedImage,
                                      listview::kUncheckedImage | listview::kCut}));
}

TEST_F(NativeListViewTest, ItIsTheSameListAsLongAsTheWindowLives) {
  EXPECT_EQ(NativeListView(Window()), list);
  AddColumn(*list, "a");
  AddRow(*list, {"1"}, "k")->SetTag(u"kept");
  list = nullptr;
  list = NativeListView(Window());
  EXPECT_EQ(list->ListItems()->Item(u"k")->Tag(), Value(u"kept"));
  EXPECT_EQ(list->hWnd(), static_cast<std::int32_t>(reinterpret_cast<INT_PTR>(Window())));
}

TEST_F(NativeListViewTest, GoesOnWithoutItsWindow) {
  Fill(*list, {"a", "b"}, {{"1", "x"}, {"2", "y"}});
  const Ref<ListItem> row = Row(1);
  form.Destroy();
  EXPECT_EQ(list->hWnd(), 0);
  row->SetText(u"one");
  row->SetChecked(true);
  row->ListSubItems()->Item(1)->SetForeColor(255);
  AddRow(*list, {"3"});
  list->ListItems()->Remove(2);
  list->SetSorted(true);
  list->ColumnHeaders()->Item(1)->SetWidth(10);
  EXPECT_EQ(list->ColumnHeaders()->Item(1)->Width(), Value(10));
  AddColumn(*list, "c");
  { const UpdateScope update(list.Get()); }
  EXPECT_EQ(Texts(*list), (TextRows{{"3", "", ""}, {"one", "x", ""}}));
  list->ListItems()->Clear();
  list->ColumnHeaders()->Clear();
  EXPECT_EQ(list->ListItems()->Count(), 0);
}

TEST_F(NativeListViewTest, TheWindowMayGoWhileARowIsAnnounced) {
  Fill(*list, {"a"}, {{"1"}, {"2"}});
  {
    ListWatcher watcher(Window(), list, recorder);
    watcher.DuringTheNext([&] { DestroyWindow(Window()); });
    AddRow(*list, {"3"});
  }
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "2", "3"}));
  EXPECT_EQ(list->hWnd(), 0);
}

TEST(NativeListView, TheWindowHoldsTheListAndLetsItGo) {
  int alive = 0;
  {
    ListViewOnAForm form;
    const Ref<HostListView> list = NativeListView(form.List());
    AddColumn(*list, "a");
    AddRow(*list, {"1"})->SetIcon(Ref<Object>(MakeRef<LifeProbe>(alive)));
  }
  EXPECT_EQ(alive, 0);
  {
    ListViewOnAForm form;
    Ref<HostListView> list = NativeListView(form.List());
    AddColumn(*list, "a");
    AddRow(*list, {"1"})->SetIcon(Ref<Object>(MakeRef<LifeProbe>(alive)));
    list = nullptr;
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

TEST(NativeListView, ARowThatIsRemovedIsNotKept) {
  int alive = 0;
  ListViewOnAForm form;
  const Ref<HostListView> list = NativeListView(form.List());
  AddColumn(*list, "a");
  AddRow(*list, {"1"})->SetIcon(Ref<Object>(MakeRef<LifeProbe>(alive)));
  list->ListItems()->Remove(1);
  EXPECT_EQ(alive, 0);
}

TEST(NativeListView, TheWindowsAreAsTheyWereAfterwards) {
  ListViewOnAForm form;
  const LONG_PTR before = GetWindowLongPtrW(form.Parent(), GWLP_WNDPROC);
  const Ref<HostListView> list = NativeListView(form.List());
  EXPECT_NE(GetWindowLongPtrW(form.Parent(), GWLP_WNDPROC), before);
  DestroyWindow(form.List());
  EXPECT_EQ(GetWindowLongPtrW(form.Parent(), GWLP_WNDPROC), before);
}

TEST(NativeListView, TwoListsMayStandOnOneForm) {
  ListViewOnAForm form;
  const HWND second =
      CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 100, 100,
                      form.Parent(), nullptr, GetModuleHandleW(nullptr), nullptr);
  const Ref<HostListView> one = NativeListView(form.List());
  const Ref<HostListView> two = NativeListView(second);
  Fill(*one, {"a"}, {{"1"}});
  Fill(*two, {"a"}, {{"2"}, {"3"}});
  EXPECT_EQ(listview::ItemText(second, 1, 0), u"3");
  DestroyWindow(second);
  EXPECT_EQ(form.ShownTexts(), (TextRows{{"1"}}));
  EXPECT_EQ(FirstTexts(*two), (Strings{"2", "3"}));
}

TEST(NativeListView, WindowsThatAreNoUsableListViewAreRefused) {
  ListViewOnAForm form;
  const HWND label = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 10, 10, form.Parent(),
                                     nullptr, GetModuleHandleW(nullptr), nullptr);
  const HWND ownerData =
      CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_REPORT | LVS_OWNERDATA, 0, 0, 10, 10,
                      form.Parent(), nullptr, GetModuleHandleW(nullptr), nullptr);
  const UniqueWindow withoutParent(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_POPUP | LVS_REPORT, 0,
                                                   0, 10, 10, nullptr, nullptr,
                                                   GetModuleHandleW(nullptr), nullptr));
  const std::string refused = "5: Invalid procedure call or argument";
  EXPECT_EQ(ErrorOf([] { NativeListView(nullptr); }), refused);
  EXPECT_EQ(ErrorOf([&] { NativeListView(label); }), refused);
  EXPECT_EQ(ErrorOf([&] { NativeListView(ownerData); }), refused);
  EXPECT_EQ(ErrorOf([&] { NativeListView(withoutParent.Get()); }), refused);
  EXPECT_EQ(ErrorOf([&] { NativeListView(GetDesktopWindow()); }), refused);
}

}  // namespace

}  // namespace sifter
