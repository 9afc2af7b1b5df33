#include "listmodel/MemoryListView.h"

#include "base/RuntimeError.h"
#include "listmodel/MemoryColumns.h"
#include "listmodel/MemoryListItem.h"
#include "listmodel/RowMembers.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace sifter {

class MemoryListItems final : public ListItemCollection {
 public:
  explicit MemoryListItems(MemoryListView* list) : list_(list) {}

  std::int32_t Count() const override { return list_->rows_.Count(); }

  Ref<ListItem> Item(const Value& positionOrKey) override {
    return MakeRef<MemoryListItem>(list_.Get(), list_->rows_.HandleAt(Position(positionOrKey)));
  }

  void Clear() override { list_->ClearRows(); }

  Ref<ListItem> Add(std::int32_t index, const Value& key, const Value& text, const Value& icon,
                    const Value& smallIcon) override {
    const std::int32_t position = index < 1 ? Count() + 1 : index;
    return MakeRef<MemoryListItem>(
        list_.Get(), list_->InsertRow(position, list_->NewRow(key, text, icon, smallIcon)));
  }

  void Remove(const Value& positionOrKey) override { list_->RemoveRow(Position(positionOrKey)); }

 private:
  std::int32_t Position(const Value& positionOrKey) const {
    const Text* key = positionOrKey.As<Text>();
    return key != nullptr ? list_->rows_.PositionOfKey(*key) : ValueToInt32(positionOrKey);
  }

  Ref<MemoryListView> list_;
};

MemoryListView::MemoryListView() : link_(MakeRef<MemoryListLink>()) { link_->list = this; }

MemoryListView::~MemoryListView() {
  link_->list = nullptr;
  for (const Ref<MemoryColumn>& column : columns_) column->Detach();
}

Ref<ColumnHeaderCollection> MemoryListView::ColumnHeaders() {
  return MakeRef<MemoryColumnHeaders>(this);
}

Ref<ListItemCollection> MemoryListView::ListItems() { return MakeRef<MemoryListItems>(this); }

void MemoryListView::RemoveObserver(ListObserver* observer) {
  // A notice may be on its way round; its walk passes over the place left empty.
  std::replace(observers_.begin(), observers_.end(), observer, static_cast<ListObserver*>(nullptr));
  if (notifying_ == 0) std::erase(observers_, nullptr);
}

void MemoryListView::Notify(ListMessage message, std::int32_t index) {
  if (observers_.empty()) return;
  // Keeps the list alive, and ends the round when an observer's error does.
  struct Round {
    Ref<MemoryListView> list;
    ~Round() {
      if (--list->notifying_ == 0) std::erase(list->observers_, nullptr);
    }
  };
  ++notifying_;
  const Round round{Ref<MemoryListView>(this)};
  const std::size_t count = observers_.size();
  for (std::size_t i = 0; i < count; ++i)
    if (observers_[i] != nullptr) observers_[i]->OnListMessage(message, index, 0);
}

RowPtr MemoryListView::NewRow(const Value& key, const Value& text, const Value& icon,
                              const Value& smallIcon) const {
  const std::int32_t cells = std::max(0, ColumnCount() - 1);
  RowPtr row = RowData::Make(static_cast<std::size_t>(cells), kWindowTextColor);
  RowData& data = row.Edit();
  data.SetColumnText(0, ValueToText(text));
  Text keyText = ValueToText(key);
  if (!keyText.IsEmpty()) data.EditExtras().key = std::move(keyText);
  if (!icon.IsEmpty()) data.EditExtras().icon = icon;
  if (!smallIcon.IsEmpty()) data.EditExtras().smallIcon = smallIcon;
  return row;
}

RowHandle MemoryListView::InsertRow(std::int32_t position, RowPtr row) {
  if (sorted_) position = SortedPosition(*row);
  rows_.Insert(position, std::move(row));
  RowHandle inserted = rows_.HandleAt(position);
  Notify(kInsertItem, 0);
  if (display_) ShowRow(inserted);
  return inserted;
}

void MemoryListView::AppendShared(const RowData& row) {
  rows_.AppendShared(row);
  if (!display_) {
    Notify(kInsertItem, 0);
    return;
  }
  const RowHandle appended = rows_.HandleAt(rows_.Count());
  Notify(kInsertItem, 0);
  ShowRow(appended);
}

// A row that can't be shown isn't in the list either.
void MemoryListView::ShowRow(const RowHandle& row) {
  const Ref<MemoryListView> alive(this);
  try {
    display_->InsertRow(row);
  } catch (...) {
    if (const std::int32_t position = row.Position(); position != 0) rows_.Remove(position);
    throw;
  }
}

void MemoryListView::RowChanged(const RowHandle& row, RowChange change) {
  if (!display_ || row.Position() == 0) return;
  const Ref<MemoryListView> alive(this);
  display_->RowChanged(row, change);
}

// The row that was announced is the one that goes, wherever it stands after the notice.
void MemoryListView::RemoveRow(std::int32_t position) {
  if (observers_.empty() && !display_) {
    rows_.Remove(position);
    return;
  }
  const Ref<MemoryListView> alive(this);
  const RowHandle row = rows_.HandleAt(position);
  Notify(kDeleteItem, position - 1);
  if (display_ && row.Position() != 0) display_->RemoveRow(row);
  if (const std::int32_t now = row.Position(); now != 0) rows_.Remove(now);
}

void MemoryListView::RemoveRows(const std::vector<std::int32_t>& positions) {
  if (observers_.empty() && !display_) {
    rows_.RemoveAscending(positions);
    return;
  }
  const UpdateScope update(this);
  for (auto position = positions.rbegin(); position != positions.rend(); ++position)
    RemoveRow(*position);
}

void MemoryListView::ClearRows() {
  const Ref<MemoryListView> alive(this);
  Notify(kDeleteAllItems, 0);
  if (display_) display_->RemoveAllRows();
  rows_.Clear();
}

// What nothing shows can't have the focus.
void MemoryListView::SetFocus() {
  if (!display_) throw RuntimeError(ErrorNumber::kMemberNotSupported);
  display_->SetFocus();
}

void MemoryListView::BeginUpdate() noexcept {
  if (display_) display_->BeginUpdate();
}

void MemoryListView::EndUpdate() noexcept {
  if (display_) display_->EndUpdate();
}

// A column that can't be shown isn't in the list either; the rows keep the cell that they got.
void MemoryListView::ShowColumn(const MemoryColumn* column) {
  const std::int32_t position = display_ ? PositionOfColumn(column) : 0;
  if (position == 0) return;
  try {
    display_->InsertColumn(position, column->GivenWidth());
  } catch (...) {
    if (const std::int32_t now = PositionOfColumn(column); now != 0) {
      columns_[static_cast<std::size_t>(now) - 1]->Detach();
      columns_.erase(columns_.begin() + (now - 1));
    }
    throw;
  }
}

void MemoryListView::ColumnChanged(const MemoryColumn* column) {
  const std::int32_t position = display_ ? PositionOfColumn(column) : 0;
  if (position == 0) return;
  const Ref<MemoryListView> alive(this);
  display_->ColumnChanged(position);
}

void MemoryListView::ColumnResized(const MemoryColumn* column, double width) {
  const std::int32_t position = display_ ? PositionOfColumn(column) : 0;
  if (position == 0) return;
  const Ref<MemoryListView> alive(this);
  display_->ColumnResized(position, width);
}

double MemoryListView::ColumnWidth(const MemoryColumn* column, double given) const {
  const std::int32_t position = display_ ? PositionOfColumn(column) : 0;
  return position == 0 ? given : display_->ColumnWidth(position, given);
}

std::int32_t MemoryListView::ColumnCount() const {
  return static_cast<std::int32_t>(columns_.size());
}

std::int32_t MemoryListView::PositionOfColumn(const MemoryColumn* column) const {
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (columns_[i].Get() == column) return static_cast<std::int32_t>(i) + 1;
  return 0;
}

void MemoryListView::RequireFreeColumnKey(const Text& key) const {
  for (const Ref<MemoryColumn>& column : columns_)
    if (!key.IsEmpty() && column->KeyText() == key) throw RuntimeError(ErrorNumber::kDuplicateKey);
}

// Every row gets a cell for a new column at its end. The first column is the rows' own text, and
// cells that outlived their column are taken into use again.
void MemoryListView::GrowRows() {
  for (std::int32_t position = 1; position <= rows_.Count(); ++position) {
    const RowMembers row(rows_.HandleAt(position));
    if (row.CellCount() < ColumnCount() - 1) row.InsertCell(row.CellCount() + 1, kWindowTextColor);
  }
}

void MemoryListView::SetSorted(const Value& sorted) {
  sorted_ = ValueToBoolean(sorted);
  if (sorted_) Sort();
}

void MemoryListView::SetSortKey(const Value& column) {
  sortKey_ = ValueToInt32(column);
  if (sorted_) Sort();
}

void MemoryListView::SetSortOrder(const Value& order) {
  const std::int32_t converted = ValueToInt32(order);
  if (converted != 0 && converted != 1) throw RuntimeError(ErrorNumber::kInvalidPropertyValue);
  sortOrder_ = converted;
  if (sorted_) Sort();
}

// A column that the row doesn't have sorts as an empty text.
const Text& MemoryListView::SortText(const RowData& row) const {
  static const Text none;
  const auto column = static_cast<std::size_t>(sortKey_);
  return sortKey_ >= 0 && column <= row.CellCount() ? row.ColumnText(column) : none;
}

bool MemoryListView::StandsBefore(const RowData& a, const RowData& b) const {
  return sortOrder_ == 0 ? SortText(a) < SortText(b) : SortText(b) < SortText(a);
}

// Behind all rows that don't have to stand behind the new one.
std::int32_t MemoryListView::SortedPosition(const RowData& row) const {
  std::int32_t first = 1;
  std::int32_t last = rows_.Count() + 1;
  while (first < last) {
    const std::int32_t middle = first + (last - first) / 2;
    if (StandsBefore(row, rows_.At(middle)))
      last = middle;
    else
      first = middle + 1;
  }
  return first;
}

void MemoryListView::Sort() {
  std::vector<std::int32_t> order(static_cast<std::size_t>(rows_.Count()));
  std::iota(order.begin(), order.end(), 1);
  std::stable_sort(order.begin(), order.end(), [this](std::int32_t a, std::int32_t b) {
    return StandsBefore(rows_.At(a), rows_.At(b));
  });
  rows_.Reorder(order);
  if (display_) display_->RowsReordered(order);
}

}  // namespace sifter
