#include "ListViewOnAForm.h"
#include "listmodel/MemoryListView.h"
#include "support/ListObserverRecorder.h"
#include "support/Lists.h"
#include "support/Recorder.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

// Programs that go on speaking to their list view with plain messages.

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

void InsertColumn(HWND window, int place, const wchar_t* text, int width = 50) {
  std::wstring copy = text;
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
  column.fmt = place > 0 ? LVCFMT_RIGHT : LVCFMT_LEFT;
  column.pszText = copy.data();
  column.cx = width;
  SendMessageW(window, LVM_INSERTCOLUMNW, static_cast<WPARAM>(place),
               reinterpret_cast<LPARAM>(&column));
}

LRESULT InsertItem(HWND window, int place, const wchar_t* text, LPARAM data = 0) {
  std::wstring copy = text;
  LVITEMW item{};
  item.mask = LVIF_TEXT | LVIF_PARAM;
  item.iItem = place;
  item.pszText = copy.data();
  item.lParam = data;
  return SendMessageW(window, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

LRESULT InsertItemA(HWND window, int place, const char* text) {
  std::string copy = text;
  LVITEMA item{};
  item.mask = LVIF_TEXT;
  item.iItem = place;
  item.pszText = copy.data();
  return SendMessageA(window, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
}

void SetText(HWND window, int item, int subItem, const wchar_t* text) {
  std::wstring copy = text;
  listview::SetItemText(window, item, subItem, copy.data());
}

LPARAM DataOf(HWND window, int item) {
  LVITEMW read{};
  read.mask = LVIF_PARAM;
  read.iItem = item;
  listview::GetItem(window, read);
  return read.lParam;
}

void FillByMessages(HWND window) {
  InsertColumn(window, 0, L"Name");
  InsertColumn(window, 1, L"Qty", 100);
  InsertItem(window, 0, L"Oak", 11);
  SetText(window, 0, 1, L"3");
  InsertItem(window, 1, L"\u4E2D", 22);
}

TEST(NativeListViewTakeover, BringsColumnsAndRowsIntoTheList) {
  ListViewOnAForm form;
  FillByMessages(form.List());
  const Ref<HostListView> list = NativeListView(form.List());
  EXPECT_EQ(DumpColumns(*list),
            R"(column 1: Key="" Text="Name" Width=750 Alignment=0 Icon=Empty Tag=""
column 2: Key="" Text="Qty" Width=1500 Alignment=1 Icon=Empty Tag=""
)");
  EXPECT_EQ(Texts(*list), (TextRows{{"Oak", "3"}, {"\xE4\xB8\xAD", ""}}));
  EXPECT_EQ(form.ShownTexts(), Texts(*list));
  list->ListItems()->Item(1)->SetSubItems(1, u"4");
  list->ListItems()->Item(2)->SetText(u"Ash");
  EXPECT_EQ(form.ShownTexts(), (TextRows{{"Oak", "4"}, {"Ash", ""}}));
  EXPECT_EQ(DataOf(form.List(), 0), 11);
  EXPECT_EQ(DataOf(form.List(), 1), 22);
}

TEST(NativeListViewTakeover, BringsMarksAlong) {
  ListViewOnAForm form;
  FillByMessages(form.List());
  listview::AddExtendedStyle(form.List(), listview::kCheckBoxes);
  listview::SetItemState(form.List(), 1, listview::kCheckedImage, listview::kStateImageMask);
  listview::SetItemState(form.List(), 0, listview::kCut, listview::kCut);
  const Ref<HostListView> list = NativeListView(form.List());
  const Ref<ListItem> oak = list->ListItems()->Item(1);
  const Ref<ListItem> other = list->ListItems()->Item(2);
  const std::vector<Value> read = {oak->Checked(), oak->Ghosted(), other->Checked(),
                                   other->Ghosted()};
  EXPECT_EQ(read, (std::vector<Value>{false, true, true, false}));
}

TEST(NativeListViewTakeover, AsksTheHostForItsOwnCallbackTexts) {
  ListViewOnAForm form;
  std::wstring answer;
  form.OnNotice([&](NMHDR& notice) {
    if (notice.code == LVN_GETDISPINFOW) {
      LVITEMW& item = reinterpret_cast<NMLVDISPINFOW&>(notice).item;
      answer = L"host's " + std::to_wstring(item.iItem) + L"," + std::to_wstring(item.iSubItem);
      if ((item.mask & LVIF_TEXT) != 0) item.pszText = answer.data();
    }
    return LRESULT{0};
  });
  InsertColumn(form.List(), 0, L"a");
  InsertColumn(form.List(), 1, L"b");
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.pszText = LPSTR_TEXTCALLBACKW;
  SendMessageW(form.List(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  const Ref<HostListView> list = NativeListView(form.List());
  item.iItem = 1;
  SendMessageW(form.List(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
  form.OnNotice({});
  EXPECT_EQ(Texts(*list), (TextRows{{"host's 0,0", "host's 0,1"}, {"host's 1,0", "host's 1,1"}}));
  EXPECT_EQ(form.ShownTexts(), Texts(*list));
}

TEST(NativeListViewTakeover, MakesTheWindowsSortingTheLists) {
  ListViewOnAForm form({.style = LVS_SORTDESCENDING});
  FillByMessages(form.List());
  const Ref<HostListView> list = NativeListView(form.List());
  EXPECT_EQ(list->Sorted(), Value(true));
  EXPECT_EQ(list->SortOrder(), Value(1));
  AddRow(*list, {"Zz"});
  EXPECT_EQ(FirstTexts(*list), (Strings{"\xE4\xB8\xAD", "Zz", "Oak"}));
  EXPECT_EQ(form.ShownTexts(), Texts(*list));
}

class NativeListViewFollowing : public testing::Test {
 protected:
  NativeListViewFollowing() { Fill(*list, {"a", "b"}, {{"1", "x"}, {"2", "y"}}); }

  HWND Window() const { return form.List(); }
  void ExpectShown() {
    EXPECT_EQ(form.ShownTexts(), Texts(*list));
    EXPECT_EQ(listview::ItemCount(Window()), list->ListItems()->Count());
  }

  ListViewOnAForm form;
  Ref<HostListView> list = NativeListView(form.List());
};

TEST_F(NativeListViewFollowing, ItemsThatAreInserted) {
  EXPECT_EQ(InsertItem(Window(), 1, L"new", 7), 1);
  SetText(Window(), 1, 1, L"cell");
  EXPECT_EQ(InsertItemA(Window(), 99, "last"), 3);
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "x"}, {"new", "cell"}, {"2", "y"}, {"last", ""}}));
  EXPECT_EQ(DataOf(Window(), 1), 7);
  ExpectShown();
}

TEST_F(NativeListViewFollowing, ItemsThatAreInsertedIntoASortedList) {
  list->SetSorted(true);
  EXPECT_EQ(InsertItem(Window(), 0, L"15", 7), 1);
  EXPECT_EQ(FirstTexts(*list), (Strings{"1", "15", "2"}));
  EXPECT_EQ(DataOf(Window(), 1), 7);
  ExpectShown();
}

TEST_F(NativeListViewFollowing, TextsThatAreChanged) {
  SetText(Window(), 0, 0, L"one");
  SetText(Window(), 1, 1, L"\u4E2D");
  LVITEMA item{};
  char text[] = "two";
  item.mask = LVIF_TEXT;
  item.iItem = 1;
  item.pszText = text;
  SendMessageA(Window(), LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
  EXPECT_EQ(Texts(*list), (TextRows{{"one", "x"}, {"two", "\xE4\xB8\xAD"}}));
  ExpectShown();
  list->ListItems()->Item(1)->SetText(u"1");
  ExpectShown();
}

TEST_F(NativeListViewFollowing, ItemsThatAreDeleted) {
  Recorder recorder;
  const ListObserverRecorder observer(static_cast<MemoryListView&>(*list), recorder);
  EXPECT_TRUE(listview::DeleteItem(Window(), 0));
  EXPECT_FALSE(listview::DeleteItem(Window(), 5));
  EXPECT_EQ(FirstTexts(*list), (Strings{"2"}));
  ExpectShown();
  listview::DeleteAllItems(Window());
  EXPECT_EQ(list->ListItems()->Count(), 0);
  EXPECT_TRUE(recorder.Shows({"DeleteItem 0, 2 rows", "DeleteAllItems 0, 1 rows"}));
  AddRow(*list, {"3", "z"});
  ExpectShown();
}

TEST_F(NativeListViewFollowing, ColumnsThatComeChangeAndGo) {
  InsertColumn(Window(), 2, L"c", 20);
  EXPECT_EQ(Texts(*list), (TextRows{{"1", "x", ""}, {"2", "y", ""}}));
  list->ColumnHeaders()->Item(1)->SetKey(u"k");
  std::wstring text = L"C";
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = text.data();
  listview::SetColumn(Window(), 2, column);
  listview::DeleteColumn(Window(), 1);
  EXPECT_EQ(DumpColumns(*list),
            R"(column 1: Key="k" Text="a" Width=1440 Alignment=0 Icon=Empty Tag=""
column 2: Key="" Text="C" Width=300 Alignment=1 Icon=Empty Tag=""
)");
}

TEST_F(NativeListViewFollowing, TheWindowDoesNotSort) {
  EXPECT_FALSE(SendMessageW(Window(), LVM_SORTITEMS, 0, 0));
  ExpectShown();
}

TEST_F(NativeListViewFollowing, TheFilterPutsRowsBackWithoutTheirItemData) {
  InsertItem(Window(), 2, L"3", 7);
  const Ref<ListViewDump> dump = MakeDump({"a", "b"});
  dump->AddItemToDump(*list->ListItems()->Item(3));
  list->ListItems()->Remove(3);
  list->Shared()->AppendShared(dump->Shared()->Rows().At(1));
  EXPECT_EQ(DataOf(Window(), 2), 0);
  ExpectShown();
}

}  // namespace

}  // namespace sifter
