#include "win32/NativeListViewItems.h"

#include "base/RuntimeError.h"
#include "win32/WindowEntry.h"
#include "win32/mListviewMacros_471.h"

#include <algorithm>

namespace sifter {

class NativeListViewItems::StepScope {
 public:
  StepScope(NativeListViewItems& items, Step& step) : items_(items), step_(step) {
    step_.outer = items_.step_;
    items_.step_ = &step_;
  }
  ~StepScope() { items_.step_ = step_.outer; }
  StepScope(const StepScope&) = delete;
  StepScope& operator=(const StepScope&) = delete;

 private:
  NativeListViewItems& items_;
  Step& step_;
};

// A row waits for its item.
class NativeListViewItems::AwaitingScope {
 public:
  AwaitingScope(NativeListViewItems& items, const RowHandle& row) : items_(items), row_(row) {
    items_.awaiting_.push_back(row_);
  }
  ~AwaitingScope() { items_.HasItem(row_); }
  AwaitingScope(const AwaitingScope&) = delete;
  AwaitingScope& operator=(const AwaitingScope&) = delete;

 private:
  NativeListViewItems& items_;
  const RowHandle& row_;
};

namespace {

UINT StateOf(const RowData& row) { return row.Ghosted() ? listview::kCut : 0; }

// Texts and pictures are asked for when they are drawn: an item costs the same however many
// columns the list has.
LVITEMA NewItem(const RowData& row) {
  LVITEMA item{};
  item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
  item.pszText = LPSTR_TEXTCALLBACKA;
  item.iImage = I_IMAGECALLBACK;
  item.stateMask = listview::kCut;
  item.state = StateOf(row);
  return item;
}

}  // namespace

void NativeListViewItems::Insert(const RowHandle& row) {
  LVITEMA item = NewItem(row.Row());
  item.iItem = PlaceOf(row);
  const AwaitingScope awaiting(*this, row);
  Step step{kInsertItem, &row, &item};
  const StepScope scope(*this, step);
  const int place = CallingWindows([&] { return listview::InsertItem(window_.handle, item); });
  if (place < 0 && window_.handle != nullptr && row.Position() != 0)
    throw RuntimeError(ErrorNumber::kOutOfMemory);
}

void NativeListViewItems::Remove(const RowHandle& row) {
  Step step{kDeleteItem, &row, nullptr};
  const StepScope scope(*this, step);
  CallingWindows([&] { return listview::DeleteItem(window_.handle, PlaceOf(row)); });
}

void NativeListViewItems::RemoveAll() {
  Step step{kDeleteAllItems, nullptr, nullptr};
  const StepScope scope(*this, step);
  CallingWindows([&] { return listview::DeleteAllItems(window_.handle); });
}

std::optional<LRESULT> NativeListViewItems::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (step_ == nullptr || step_->arrived || step_->message != message) return std::nullopt;
  if (step_->item != nullptr && reinterpret_cast<LPARAM>(step_->item) != lParam)
    return std::nullopt;
  step_->arrived = true;
  if (message == kInsertItem) return InsertNow(*step_);
  if (message == kDeleteItem) return RemoveNow(*step_);
  return window_.Do(message, wParam, lParam);
}

LRESULT NativeListViewItems::InsertNow(const Step& step) {
  if (step.row->Position() == 0) return -1;
  step.item->iItem = PlaceOf(*step.row);
  step.item->state = StateOf(step.row->Row());
  const LRESULT place = window_.Do(kInsertItem, 0, reinterpret_cast<LPARAM>(step.item));
  if (place >= 0) HasItem(*step.row);
  return place;
}

LRESULT NativeListViewItems::RemoveNow(const Step& step) {
  const int item = ItemOf(*step.row);
  if (item < 0) return FALSE;
  const LRESULT removed = window_.Do(kDeleteItem, static_cast<WPARAM>(item), 0);
  if (removed != 0) gone_ = {step.row->Position(), window_.Rows().Version()};
  return removed;
}

LRESULT NativeListViewItems::InsertForeign(const RowHandle& row, LVITEMW item) {
  const AwaitingScope awaiting(*this, row);
  item.iItem = PlaceOf(row);
  return window_.Do(listview::kInsertItemW, 0, reinterpret_cast<LPARAM>(&item));
}

LRESULT NativeListViewItems::RemoveForeign(int item) {
  const std::int32_t position = PositionOf(item);
  const LRESULT removed = window_.Do(kDeleteItem, static_cast<WPARAM>(item), 0);
  if (removed != 0) gone_ = {position, window_.Rows().Version()};
  return removed;
}

void NativeListViewItems::OnInserted() {
  if (step_ != nullptr && step_->arrived && step_->message == kInsertItem) HasItem(*step_->row);
}

void NativeListViewItems::HasItem(const RowHandle& row) { std::erase(awaiting_, row); }

std::int32_t NativeListViewItems::GonePosition() const {
  return gone_.position != 0 && gone_.version == window_.Rows().Version() ? gone_.position : 0;
}

// How many items stand in front of the row's own one.
int NativeListViewItems::PlaceOf(const RowHandle& row) const {
  const std::int32_t position = row.Position();
  int place = position - 1;
  const auto leaveOut = [&](std::int32_t missing) {
    if (missing != 0 && missing < position) --place;
  };
  for (const RowHandle& awaiting : awaiting_) leaveOut(awaiting.Position());
  leaveOut(GonePosition());
  return place;
}

int NativeListViewItems::ItemOf(const RowHandle& row) const {
  const std::int32_t position = row.Position();
  if (position == 0 || position == GonePosition()) return -1;
  if (std::find(awaiting_.begin(), awaiting_.end(), row) != awaiting_.end()) return -1;
  return PlaceOf(row);
}

std::vector<std::int32_t> NativeListViewItems::PositionsWithoutItem() const {
  std::vector<std::int32_t> positions;
  for (const RowHandle& row : awaiting_)
    if (const std::int32_t position = row.Position(); position != 0) positions.push_back(position);
  if (const std::int32_t gone = GonePosition(); gone != 0) positions.push_back(gone);
  std::sort(positions.begin(), positions.end());
  return positions;
}

std::int32_t NativeListViewItems::PositionOf(int item) const {
  std::int32_t position = item + 1;
  if (!awaiting_.empty() || GonePosition() != 0)
    for (const std::int32_t missing : PositionsWithoutItem())
      if (missing <= position) ++position;
  return item >= 0 && position <= window_.Rows().Count() ? position : 0;
}

}  // namespace sifter
