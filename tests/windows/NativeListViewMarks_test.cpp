#include "NativeListViewFixture.h"

#include <string>
#include <vector>

namespace sifter {

namespace {

using Strings = std::vector<std::string>;

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

}  // namespace

}  // namespace sifter
