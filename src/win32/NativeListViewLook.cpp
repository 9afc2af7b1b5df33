#include "win32/NativeListViewLook.h"

#include "listmodel/ListMessages.h"
#include "win32/mListviewMacros_471.h"

namespace sifter {

namespace {

struct Look {
  std::int32_t color;
  bool bold;
};

Look LookOf(const RowData& row, int subItem) {
  const auto cell = static_cast<std::size_t>(subItem);
  if (subItem <= 0 || cell > row.CellCount()) return {row.ForeColor(), row.Bold()};
  const CellExtras extras = row.Cell(cell);
  return {extras.foreColor, extras.bold};
}

bool HasLook(const Look& look) { return look.bold || look.color != kWindowTextColor; }

// A colour is red, green and blue in its lower bytes or, with the highest bit set, the number of
// one of the system's colours.
COLORREF ColorOf(std::int32_t color) {
  const auto bits = static_cast<std::uint32_t>(color);
  constexpr std::uint32_t kSystemColor = 0x80000000;
  return (bits & kSystemColor) != 0 ? GetSysColor(static_cast<int>(bits & 0xFF)) : bits & 0xFFFFFF;
}

}  // namespace

LRESULT NativeListViewLook::OnCustomDraw(NMLVCUSTOMDRAW& stage, LRESULT parentsAnswer) {
  if ((parentsAnswer & CDRF_SKIPDEFAULT) != 0) return parentsAnswer;
  switch (stage.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return parentsAnswer | CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT: {
      const RowData* row = RowOf(stage);
      return row == nullptr ? parentsAnswer : OnItem(*row, parentsAnswer);
    }
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM: {
      const RowData* row = RowOf(stage);
      return row == nullptr ? parentsAnswer : OnCell(stage, *row, parentsAnswer);
    }
    default:
      return parentsAnswer;
  }
}

LRESULT NativeListViewLook::OnItem(const RowData& row, LRESULT parentsAnswer) const {
  bool any = HasLook(LookOf(row, 0));
  for (std::size_t j = 1; !any && row.HasCellExtras() && j <= row.CellCount(); ++j)
    any = HasLook(LookOf(row, static_cast<int>(j)));
  return any ? parentsAnswer | CDRF_NOTIFYSUBITEMDRAW : parentsAnswer;
}

// What one cell was given stays in force for the next one, so each gets its own, plain or not.
LRESULT NativeListViewLook::OnCell(NMLVCUSTOMDRAW& stage, const RowData& row,
                                   LRESULT parentsAnswer) {
  const Look look = LookOf(row, stage.iSubItem);
  stage.clrText = look.color != kWindowTextColor ? ColorOf(look.color) : PlainColor();
  SelectObject(stage.nmcd.hdc, look.bold ? BoldFont() : PlainFont());
  return parentsAnswer | CDRF_NEWFONT;
}

const RowData* NativeListViewLook::RowOf(const NMLVCUSTOMDRAW& stage) const {
  const std::int32_t position = items_.PositionOf(static_cast<int>(stage.nmcd.dwItemSpec));
  return position == 0 ? nullptr : &window_.Rows().At(position);
}

// A window that was never given a colour may say so instead of naming one.
COLORREF NativeListViewLook::PlainColor() const {
  const auto color =
      static_cast<COLORREF>(SendMessageW(window_.handle, listview::kGetTextColor, 0, 0));
  return color == CLR_DEFAULT ? GetSysColor(COLOR_WINDOWTEXT) : color;
}

HFONT NativeListViewLook::PlainFont() const {
  const auto font = reinterpret_cast<HFONT>(SendMessageW(window_.handle, WM_GETFONT, 0, 0));
  return font != nullptr ? font : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

HFONT NativeListViewLook::BoldFont() {
  if (!bold_) {
    LOGFONTW description{};
    GetObjectW(PlainFont(), sizeof description, &description);
    description.lfWeight = FW_BOLD;
    bold_.Reset(CreateFontIndirectW(&description));
  }
  return bold_.Get();
}

}  // namespace sifter
