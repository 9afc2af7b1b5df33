#include "listmodel/ListViewDump.h"

#include "base/AbsorbErrors.h"
#include "base/RuntimeError.h"
#include "listmodel/LiveValues.h"

namespace sifter {

ListViewDump::ListViewDump()
    : columnHeaders_(MakeRef<LVColHeadersDump>()), listItems_(MakeRef<LVItemsDump>()) {
  columnHeaders_->mpLVItems = listItems_.Get();
  listItems_->mpColHeaders = columnHeaders_.Get();
}

// Either collection may outlive the other in somebody's hands.
ListViewDump::~ListViewDump() {
  columnHeaders_->mpLVItems = nullptr;
  listItems_->mpColHeaders = nullptr;
}

namespace {

// Reads one member after the other: a host's list sees its members read in this order.
Ref<LVItemDump> AddRow(LVItemsDump& rows, const Value& key, ListItem& item) {
  const Value text = item.Text();
  const Value icon = item.Icon();
  const Value smallIcon = item.SmallIcon();
  return rows.Add(0, key, text, icon, smallIcon);
}

Ref<LVItemDump> AddRow(LVItemsDump& rows, ListItem& item) {
  Ref<LVItemDump> row;
  AbsorbErrors([&] { row = AddRow(rows, item.Key(), item); });
  return row ? row : AddRow(rows, Text(), item);
}

void CopyRow(ListItem& from, const LVItemDump& to) {
  to.SetBold(from.Bold());
  to.SetChecked(from.Checked());
  to.SetForeColor(from.ForeColor());
  to.SetGhosted(from.Ghosted());
  to.SetKey(from.Key());
  to.SetTag(from.Tag());
  to.SetToolTipText(from.ToolTipText());
}

void CopyCell(ListSubItem& from, const LVSubItemDump& to) {
  to.SetTag(from.Tag());
  to.SetText(from.Text());
  to.SetReportIcon(from.ReportIcon());
  to.SetKey(from.Key());
  to.SetToolTipText(from.ToolTipText());
  to.SetForeColor(from.ForeColor());
  to.SetBold(from.Bold());
}

// What tells one row from another when a live row is looked for among the stored ones.
struct CellIdentity {
  Value key, text, reportIcon, tag;

  explicit CellIdentity(ListSubItem& cell)
      : key(TextForComparing(cell.Key())),
        text(TextForComparing(cell.Text())),
        reportIcon(cell.ReportIcon()),
        tag(TextForComparing(cell.Tag())) {}

  bool Matches(const CellExtras& extras, const Text& cellText) const {
    return key == Value(extras.key) && text == Value(cellText) && reportIcon == extras.reportIcon &&
           tag == Value(extras.tag);
  }
};

// The cells are read when they are first compared, so that a list which is looked through in vain
// is asked for nothing more.
class RowIdentity {
 public:
  explicit RowIdentity(ListItem& item)
      : item_(item),
        key_(TextForComparing(item.Key())),
        text_(TextForComparing(item.Text())),
        toolTipText_(TextForComparing(item.ToolTipText())),
        icon_(item.Icon()),
        smallIcon_(item.SmallIcon()),
        tag_(TextForComparing(item.Tag())) {}

  bool Matches(const RowData& row) {
    const RowExtras& extras = row.Extras();
    if (!(key_ == Value(extras.key) && text_ == Value(row.ColumnText(0)) &&
          toolTipText_ == Value(extras.toolTipText) && icon_ == extras.icon &&
          smallIcon_ == extras.smallIcon && tag_ == Value(extras.tag)))
      return false;
    for (std::size_t j = 1; j <= row.CellCount(); ++j)
      if (!Cell(j).Matches(row.Cell(j), row.ColumnText(j))) return false;
    return true;
  }

 private:
  const CellIdentity& Cell(std::size_t j) {
    if (!subItems_) subItems_ = item_.ListSubItems();
    while (cells_.size() < j)
      cells_.emplace_back(*subItems_->Item(static_cast<std::int32_t>(cells_.size()) + 1));
    return cells_[j - 1];
  }

  ListItem& item_;
  Value key_, text_, toolTipText_, icon_, smallIcon_, tag_;
  Ref<ListSubItemCollection> subItems_;
  std::vector<CellIdentity> cells_;
};

}  // namespace

void ListViewDump::AddItemToDump(ListItem& item) {
  AbsorbErrors([&] {
    const Ref<LVItemDump> row = AddRow(*listItems_, item);
    CopyRow(item, *row);
    for (std::int32_t i = 1; i <= row->ListSubItems()->Count(); ++i)
      CopyCell(*item.ListSubItems()->Item(i), *row->ListSubItems()->Item(i));
  });
}

void ListViewDump::AddRowToDump(const RowData& row) {
  const std::int32_t columns = columnHeaders_->Count();
  const auto cells = static_cast<std::size_t>(columns > 0 ? columns - 1 : 0);
  RowPtr added = RowPtr::Share(&row);
  while (added->CellCount() > cells) added = added.WithoutCell(added->CellCount());
  while (added->CellCount() < cells) added = added.WithNewCell(added->CellCount() + 1, 0);
  RowStore& rows = listItems_->rows_;
  try {
    rows.Append(added);
  } catch (const RuntimeError&) {  // the key is taken
    const Text key = row.Extras().key;
    added.Edit().EditExtras().key = Text();
    rows.Append(std::move(added));
    rows.HandleAt(rows.Count()).SetKey(key, false);
  }
}

void ListViewDump::RemoveItemFromDump(ListItem& item) {
  AbsorbErrors([&] {
    if (item.ListSubItems()->Count() != columnHeaders_->Count() - 1) return;
    const RowStore& rows = listItems_->rows_;
    if (rows.Count() == 0) return;
    RowIdentity wanted(item);
    for (std::int32_t position = 1; position <= rows.Count(); ++position)
      if (wanted.Matches(rows.At(position))) {
        listItems_->rows_.Remove(position);
        return;
      }
  });
}

}  // namespace sifter
