#include "listmodel/MemoryListItem.h"

#include "base/RuntimeError.h"
#include "listmodel/ListMessages.h"

namespace sifter {

// A cell of a row of a MemoryListView.
class MemorySubItem final : public ListSubItem {
 public:
  MemorySubItem(Ref<MemoryListLink> link, RowHandle row, CellMembers cell)
      : link_(std::move(link)), row_(std::move(row)), cell_(std::move(cell)) {}

  Value Key() const override { return cell_.Key(); }
  Value Text() const override { return cell_.Text(); }
  Value Tag() const override { return cell_.Tag(); }
  Value ReportIcon() const override { return cell_.ReportIcon(); }
  Value ToolTipText() const override { return cell_.ToolTipText(); }
  Value ForeColor() const override { return cell_.ForeColor(); }
  Value Bold() const override { return cell_.Bold(); }
  void SetKey(const Value& key) override { cell_.SetKey(key); }
  void SetText(const Value& text) override {
    cell_.SetText(text);
    Changed(RowChange::kText);
  }
  void SetTag(const Value& tag) override { cell_.SetTag(tag); }
  void SetReportIcon(const Value& icon) override {
    cell_.SetReportIcon(icon);
    Changed(RowChange::kCellIcon);
  }
  void SetToolTipText(const Value& text) override {
    cell_.SetToolTipText(text);
    Changed(RowChange::kToolTip);
  }
  void SetForeColor(const Value& color) override {
    cell_.SetForeColor(color);
    Changed(RowChange::kLook);
  }
  void SetBold(const Value& bold) override {
    cell_.SetBold(bold);
    Changed(RowChange::kLook);
  }

 private:
  void Changed(RowChange change) const {
    if (link_->list != nullptr) link_->list->RowChanged(row_, change);
  }

  Ref<MemoryListLink> link_;
  RowHandle row_;
  CellMembers cell_;
};

namespace {

class MemorySubItems final : public ListSubItemCollection {
 public:
  MemorySubItems(Ref<MemoryListLink> link, RowMembers row)
      : link_(std::move(link)), row_(std::move(row)) {}

  std::int32_t Count() const override { return row_.CellCount(); }

  Ref<ListSubItem> Item(const Value& positionOrKey) override {
    return Cell(Position(positionOrKey));
  }

  Ref<ListSubItem> Add(std::int32_t index, const Value& key, const Value& text,
                       const Value& reportIcon, const Value& toolTipText) override {
    const sifter::Text keyText = ValueToText(key);
    const sifter::Text textText = ValueToText(text);
    const sifter::Text toolTip = ValueToText(toolTipText);
    if (!keyText.IsEmpty() && Find(keyText) != 0) throw RuntimeError(ErrorNumber::kDuplicateKey);
    const std::int32_t j = index < 1 ? Count() + 1 : index;
    row_.InsertCell(j, kWindowTextColor);
    const Ref<ListSubItem> cell = Cell(j);
    cell->SetKey(keyText);
    cell->SetText(textText);
    if (!reportIcon.IsEmpty()) cell->SetReportIcon(reportIcon);
    if (!toolTip.IsEmpty()) cell->SetToolTipText(toolTip);
    return cell;
  }

 private:
  Ref<ListSubItem> Cell(std::int32_t j) const {
    return MakeRef<MemorySubItem>(link_, row_.Handle(), CellMembers(row_, j));
  }

  std::int32_t Find(const sifter::Text& key) const {
    for (std::int32_t j = 1; j <= row_.CellCount(); ++j)
      if (CellMembers(row_, j).Key() == key) return j;
    return 0;
  }

  std::int32_t Position(const Value& positionOrKey) const {
    const sifter::Text* key = positionOrKey.As<sifter::Text>();
    if (key == nullptr) return ValueToInt32(positionOrKey);
    const std::int32_t j = key->IsEmpty() ? 0 : Find(*key);
    if (j == 0) throw RuntimeError(ErrorNumber::kInvalidProcedureCall);
    return j;
  }

  Ref<MemoryListLink> link_;
  RowMembers row_;
};

}  // namespace

std::int32_t MemoryListItem::CheckedColumn(std::int32_t j) const {
  if (j >= list_->ColumnCount()) throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  return j;
}

Ref<ListSubItemCollection> MemoryListItem::ListSubItems() {
  return MakeRef<MemorySubItems>(list_->link_, row_);
}

}  // namespace sifter
