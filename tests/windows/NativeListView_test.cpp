#include "NativeListViewFixture.h"
#include "support/Errors.h"
#include "support/LifeProbe.h"

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

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
