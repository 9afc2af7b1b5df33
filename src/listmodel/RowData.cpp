#include "listmodel/RowData.h"

#include <memory>
#include <new>

namespace sifter {

static_assert(alignof(Text) <= alignof(RowData) && sizeof(RowData) % alignof(Text) == 0,
              "the texts follow the row without a gap");

const RowExtras& RowData::NoExtras() {
  static const RowExtras none;
  return none;
}

RowPtr RowData::Make(std::size_t cells, std::int32_t foreColor) {
  void* memory = ::operator new(sizeof(RowData) + (cells + 1) * sizeof(Text));
  auto* row = new (memory) RowData(cells, foreColor);
  std::uninitialized_default_construct_n(row->Texts(), cells + 1);
  return RowPtr::Adopt(row);
}

void RowData::Destroy(RowData* row) noexcept {
  std::destroy_n(row->Texts(), row->cells_ + 1);
  row->~RowData();
  ::operator delete(row);
}

RowExtras& RowData::EditExtras() {
  if (!extras_) extras_ = std::make_unique<RowExtras>();
  return *extras_;
}

CellExtras& RowData::EditCell(std::size_t j) {
  if (!cellExtras_) {
    cellExtras_ = std::make_unique<CellExtras[]>(cells_);
    for (std::size_t i = 0; i < cells_; ++i) cellExtras_[i].foreColor = cellForeColor_;
  }
  return cellExtras_[j - 1];
}

template <class Source>
RowPtr RowPtr::Rearranged(std::size_t cells, std::int32_t newForeColor, Source source) const {
  const RowData& from = *row_;
  RowPtr copy = RowData::Make(cells, from.foreColor_);
  RowData& to = *copy.row_;
  to.cellForeColor_ = from.cellForeColor_;
  to.bold_ = from.bold_;
  to.checked_ = from.checked_;
  to.ghosted_ = from.ghosted_;
  if (from.extras_) to.extras_ = std::make_unique<RowExtras>(*from.extras_);
  to.SetColumnText(0, from.ColumnText(0));
  for (std::size_t j = 1; j <= cells; ++j) {
    const std::size_t old = source(j);
    CellExtras extras;
    extras.foreColor = newForeColor;
    if (old != 0) {
      to.SetColumnText(j, from.ColumnText(old));
      extras = from.Cell(old);
    }
    if (!(extras == to.Cell(j))) to.EditCell(j) = std::move(extras);
  }
  return copy;
}

RowData& RowPtr::Edit() {
  if (row_->references_ > 1)
    *this = Rearranged(row_->CellCount(), 0, [](std::size_t j) { return j; });
  return *row_;
}

RowPtr RowPtr::WithNewCell(std::size_t j, std::int32_t foreColor) const {
  return Rearranged(row_->CellCount() + 1, foreColor, [j](std::size_t i) {
    return i < j ? i : i == j ? 0 : i - 1;
  });
}

RowPtr RowPtr::WithoutCell(std::size_t j) const {
  return Rearranged(row_->CellCount() - 1, 0, [j](std::size_t i) { return i < j ? i : i + 1; });
}

}  // namespace sifter
