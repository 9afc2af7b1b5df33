#include "win32/NativeListViewTexts.h"

#include "win32/AnsiText.h"
#include "win32/WideText.h"
#include "win32/mListviewMacros_471.h"

#include <algorithm>
#include <type_traits>

namespace sifter {

namespace {

Text ColumnText(const RowData& row, int subItem) {
  const auto column = static_cast<std::size_t>(subItem);
  return subItem >= 0 && column <= row.CellCount() ? row.ColumnText(column) : Text();
}

int PictureNumber(const Value& icon) {
  const bool number = icon.Is<std::int16_t>() || icon.Is<std::int32_t>() || icon.Is<double>();
  return number ? ValueToInt32(icon) : I_IMAGENONE;
}

// As much of the text as there is room for.
template <class Unit>
void Put(const std::basic_string<Unit>& text, Unit* target, int room) {
  if (target == nullptr || room <= 0) return;
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(room) - 1);
  std::copy_n(text.data(), length, target);
  target[length] = 0;
}

}  // namespace

template <class Item>
bool NativeListViewTexts::Fill(Item& item) {
  const std::int32_t position = items_.PositionOf(item.iItem);
  if (position == 0) return false;
  const RowData& row = window_.Rows().At(position);
  if ((item.mask & LVIF_TEXT) != 0) {
    wide_ = Wide(ColumnText(row, item.iSubItem));
    if constexpr (std::is_same_v<Item, LVITEMW>) {
      item.pszText = wide_.data();
    } else {
      narrow_ = AnsiFromWide(wide_);
      item.pszText = narrow_.data();
    }
  }
  if ((item.mask & LVIF_IMAGE) != 0) item.iImage = PictureOf(row, item.iSubItem);
  return true;
}

bool NativeListViewTexts::OnGetDisplayInfo(LVITEMW& item) { return Fill(item); }
bool NativeListViewTexts::OnGetDisplayInfo(LVITEMA& item) { return Fill(item); }

int NativeListViewTexts::PictureOf(const RowData& row, int subItem) const {
  if (subItem > 0) {
    const auto cell = static_cast<std::size_t>(subItem);
    return cell <= row.CellCount() ? PictureNumber(row.Cell(cell).reportIcon) : I_IMAGENONE;
  }
  const bool icons = (listview::Style(window_.handle) & listview::kTypeMask) == listview::kIconView;
  return PictureNumber(icons ? row.Extras().icon : row.Extras().smallIcon);
}

Text NativeListViewTexts::ToolTip(int item) const {
  const std::int32_t position = items_.PositionOf(item);
  if (position == 0) return Text();
  const RowData& row = window_.Rows().At(position);
  LVHITTESTINFO hit{};
  GetCursorPos(&hit.pt);
  ScreenToClient(window_.handle, &hit.pt);
  SendMessageW(window_.handle, listview::kSubItemHitTest, 0, reinterpret_cast<LPARAM>(&hit));
  const auto cell = static_cast<std::size_t>(hit.iSubItem);
  if (hit.iItem == item && hit.iSubItem > 0 && cell <= row.CellCount())
    if (Text tip = row.Cell(cell).toolTipText; !tip.IsEmpty()) return tip;
  return row.Extras().toolTipText;
}

bool NativeListViewTexts::OnGetInfoTip(NMLVGETINFOTIPW& tip) const {
  const Text text = ToolTip(tip.iItem);
  if (!text.IsEmpty()) Put(Wide(text), tip.pszText, tip.cchTextMax);
  return !text.IsEmpty();
}

bool NativeListViewTexts::OnGetInfoTip(NMLVGETINFOTIPA& tip) const {
  const Text text = ToolTip(tip.iItem);
  if (!text.IsEmpty()) Put(AnsiFromWide(Wide(text)), tip.pszText, tip.cchTextMax);
  return !text.IsEmpty();
}

}  // namespace sifter
