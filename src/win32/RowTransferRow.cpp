#include "win32/RowTransferRow.h"

#include "listmodel/ListMessages.h"
#include "win32/Variants.h"

namespace sifter {

namespace {

TransferText Packed(const Text& text) {
  return {text.View().data(), static_cast<ULONG>(text.Length())};
}

Text Unpacked(const TransferText& text) { return Text(TextView(text.units, text.length)); }

bool HasAny(const TransferRow& row) {
  return row.key.length != 0 || row.tag.length != 0 || row.toolTipText.length != 0 ||
         row.icon.vt != VT_EMPTY || row.smallIcon.vt != VT_EMPTY;
}

void UnpackExtras(const TransferRow& row, RowData& data) {
  RowExtras& extras = data.EditExtras();
  extras.key = Unpacked(row.key);
  extras.tag = Unpacked(row.tag);
  extras.toolTipText = Unpacked(row.toolTipText);
  extras.icon = ValueFromVariant(row.icon);
  extras.smallIcon = ValueFromVariant(row.smallIcon);
}

void UnpackCell(const TransferCell& cell, CellExtras& extras) {
  extras.key = Unpacked(cell.key);
  extras.tag = Unpacked(cell.tag);
  extras.toolTipText = Unpacked(cell.toolTipText);
  extras.reportIcon = ValueFromVariant(cell.reportIcon);
  extras.foreColor = cell.foreColor;
  extras.bold = cell.bold != FALSE;
}

}  // namespace

// Icons are mostly unset or numbers, which own nothing.
VARIANT RowPacker::Icon(const Value& icon) {
  UniqueVariant variant = VariantFromValue(icon);
  if (variant.Type() != VT_BSTR && variant.Type() != VT_DISPATCH && variant.Type() != VT_UNKNOWN)
    return variant.Release();
  icons_.push_back(std::move(variant));
  return icons_.back().Get();
}

const TransferRow& RowPacker::Pack(const RowData& row) {
  icons_.clear();
  texts_.resize(row.CellCount() + 1);
  for (std::size_t column = 0; column <= row.CellCount(); ++column)
    texts_[column] = Packed(row.ColumnText(column));
  cells_.clear();
  for (std::size_t j = 1; row.HasCellExtras() && j <= row.CellCount(); ++j) {
    const CellExtras cell = row.Cell(j);
    cells_.push_back({Packed(cell.key), Packed(cell.tag), Packed(cell.toolTipText),
                      Icon(cell.reportIcon), cell.foreColor, cell.bold});
  }
  const RowExtras& extras = row.Extras();
  packed_ = {
      .cells = static_cast<ULONG>(row.CellCount()),
      .texts = texts_.data(),
      .key = Packed(extras.key),
      .tag = Packed(extras.tag),
      .toolTipText = Packed(extras.toolTipText),
      .icon = Icon(extras.icon),
      .smallIcon = Icon(extras.smallIcon),
      .foreColor = row.ForeColor(),
      .bold = row.Bold(),
      .checked = row.Checked(),
      .ghosted = row.Ghosted(),
      .extras = cells_.empty() ? nullptr : cells_.data(),
      .cellForeColor = row.CellCount() > 0 ? row.Cell(1).foreColor : kWindowTextColor,
  };
  return packed_;
}

RowPtr UnpackRow(const TransferRow& row) {
  RowPtr unpacked = RowData::Make(row.cells, row.cellForeColor);
  RowData& data = unpacked.Edit();
  for (std::size_t column = 0; column <= row.cells; ++column)
    data.SetColumnText(column, Unpacked(row.texts[column]));
  if (HasAny(row)) UnpackExtras(row, data);
  for (std::size_t j = 1; row.extras != nullptr && j <= row.cells; ++j)
    UnpackCell(row.extras[j - 1], data.EditCell(j));
  data.SetForeColor(row.foreColor);
  data.SetBold(row.bold != FALSE);
  data.SetChecked(row.checked != FALSE);
  data.SetGhosted(row.ghosted != FALSE);
  return unpacked;
}

}  // namespace sifter
