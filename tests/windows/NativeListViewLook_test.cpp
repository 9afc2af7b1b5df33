#include "ListViewOnAForm.h"
#include "support/Lists.h"
#include "win32/NativeListView.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace sifter {

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);

class NativeListViewLook : public testing::Test {
 protected:
  NativeListViewLook() { Fill(*list, {"a", "b"}, {{"1", "x"}, {"2", "y"}}); }

  Ref<ListItem> Row(std::int32_t position) { return list->ListItems()->Item(position); }

  LRESULT Stage(DWORD stage, int item, int subItem, NMLVCUSTOMDRAW& draw) {
    draw.nmcd.hdr = {form.List(), 1, NM_CUSTOMDRAW};
    draw.nmcd.dwDrawStage = stage;
    draw.nmcd.hdc = context;
    draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(item);
    draw.iSubItem = subItem;
    return SendMessageW(form.Parent(), WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&draw));
  }

  // "color weight" of one cell as it would be drawn.
  std::string LookOf(int item, int subItem) {
    NMLVCUSTOMDRAW draw{};
    EXPECT_EQ(Stage(CDDS_ITEMPREPAINT | CDDS_SUBITEM, item, subItem, draw), CDRF_NEWFONT);
    LOGFONTW font{};
    GetObjectW(GetCurrentObject(context, OBJ_FONT), sizeof font, &font);
    SelectObject(context, GetStockObject(SYSTEM_FONT));
    return std::to_string(draw.clrText) + (font.lfWeight >= FW_BOLD ? " bold" : " plain");
  }

  // Whether the window, when it draws, draws red somewhere in the row.
  bool IsRedOnScreen(int item) {
    InvalidateRect(form.List(), nullptr, TRUE);
    UpdateWindow(form.List());
    RECT row{LVIR_BOUNDS, 0, 0, 0};
    SendMessageW(form.List(), LVM_GETITEMRECT, static_cast<WPARAM>(item),
                 reinterpret_cast<LPARAM>(&row));
    const HDC screen = GetDC(form.List());
    bool red = false;
    for (LONG y = row.top; y < row.bottom; ++y)
      for (LONG x = row.left; x < row.right; ++x) red = red || GetPixel(screen, x, y) == kRed;
    ReleaseDC(form.List(), screen);
    return red;
  }

  ListViewOnAForm form;
  Ref<HostListView> list = NativeListView(form.List());
  HDC context = CreateCompatibleDC(nullptr);
  const std::string usual = std::to_string(GetSysColor(COLOR_WINDOWTEXT));

  ~NativeListViewLook() override { DeleteDC(context); }
};

TEST_F(NativeListViewLook, PlainRowsAreLeftToTheWindow) {
  NMLVCUSTOMDRAW draw{};
  EXPECT_EQ(Stage(CDDS_PREPAINT, 0, 0, draw), CDRF_NOTIFYITEMDRAW);
  EXPECT_EQ(Stage(CDDS_ITEMPREPAINT, 0, 0, draw), CDRF_DODEFAULT);
  EXPECT_EQ(Stage(CDDS_ITEMPREPAINT, 9, 0, draw), CDRF_DODEFAULT);
}

TEST_F(NativeListViewLook, EachCellHasItsOwn) {
  Row(1)->SetForeColor(255);
  Row(1)->ListSubItems()->Item(1)->SetBold(true);
  Row(2)->SetBold(true);
  Row(2)->ListSubItems()->Item(1)->SetForeColor(
      static_cast<std::int32_t>(0x80000000u + COLOR_HIGHLIGHT));
  NMLVCUSTOMDRAW draw{};
  EXPECT_EQ(Stage(CDDS_ITEMPREPAINT, 0, 0, draw), CDRF_NOTIFYSUBITEMDRAW);
  EXPECT_EQ(LookOf(0, 0), "255 plain");
  EXPECT_EQ(LookOf(0, 1), usual + " bold");
  EXPECT_EQ(LookOf(1, 0), usual + " bold");
  EXPECT_EQ(LookOf(1, 1), std::to_string(GetSysColor(COLOR_HIGHLIGHT)) + " plain");
}

TEST_F(NativeListViewLook, BoldGoesByTheFontOfTheWindow) {
  Row(1)->SetBold(true);
  LookOf(0, 0);
  const HFONT large = CreateFontW(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial");
  SendMessageW(form.List(), WM_SETFONT, reinterpret_cast<WPARAM>(large), FALSE);
  NMLVCUSTOMDRAW draw{};
  Stage(CDDS_ITEMPREPAINT | CDDS_SUBITEM, 0, 0, draw);
  LOGFONTW font{};
  GetObjectW(GetCurrentObject(context, OBJ_FONT), sizeof font, &font);
  EXPECT_EQ(font.lfHeight, -40);
  EXPECT_EQ(font.lfWeight, FW_BOLD);
  SelectObject(context, GetStockObject(SYSTEM_FONT));
  SendMessageW(form.List(), WM_SETFONT, 0, FALSE);
  DeleteObject(large);
}

TEST_F(NativeListViewLook, TheParentsAnswersStayInForce) {
  Row(1)->SetForeColor(255);
  form.OnNotice([](NMHDR& notice) -> LRESULT {
    if (notice.code != static_cast<UINT>(NM_CUSTOMDRAW)) return 0;
    const auto& draw = reinterpret_cast<NMLVCUSTOMDRAW&>(notice);
    return draw.nmcd.dwItemSpec == 0 ? CDRF_NOTIFYPOSTPAINT : CDRF_SKIPDEFAULT;
  });
  NMLVCUSTOMDRAW draw{};
  EXPECT_EQ(Stage(CDDS_ITEMPREPAINT, 0, 0, draw), CDRF_NOTIFYPOSTPAINT | CDRF_NOTIFYSUBITEMDRAW);
  EXPECT_EQ(Stage(CDDS_ITEMPREPAINT, 1, 0, draw), CDRF_SKIPDEFAULT);
  form.OnNotice({});
}

TEST_F(NativeListViewLook, ShowsOnTheScreen) {
  EXPECT_FALSE(IsRedOnScreen(0));
  Row(1)->SetText(u"MMMM");
  Row(1)->SetForeColor(static_cast<std::int32_t>(kRed));
  EXPECT_TRUE(IsRedOnScreen(0));
  EXPECT_FALSE(IsRedOnScreen(1));
  Row(2)->ListSubItems()->Item(1)->SetForeColor(static_cast<std::int32_t>(kRed));
  Row(2)->SetSubItems(1, u"MMMM");
  EXPECT_TRUE(IsRedOnScreen(1));
}

}  // namespace

}  // namespace sifter
