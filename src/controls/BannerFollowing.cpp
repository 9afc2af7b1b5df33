#include "base/AbsorbErrors.h"
#include "base/FlagScope.h"
#include "controls/BannerTexts.h"
#include "controls/FollowList.h"
#include "controls/Raise.h"
#include "controls/TSLvwBannerFilter.h"
#include "listmodel/ListMessages.h"

#include <limits>
#include <utility>

// What the banner does while the host changes its list.

namespace sifter {

void TSLvwBannerFilter::OnMessage(std::uint32_t message, std::int32_t wParam) {
  if (!mListview) return;
  if (message == kInsertColumn || message == kDeleteColumn) return ColumnsChanged();
  if (mDialogBusy || following_) return Overhear(message);
  if (message == kInsertItem) RowInserted();
  if (message == kDeleteItem) RowDeleted(wParam);
  if (message == kDeleteAllItems) ListCleared();
}

// These notices come from the dialog's and the banner's own work on the list, or from a host that
// goes on with its list meanwhile. While all rows are put back the two can't be told apart;
// otherwise that work only takes rows out. When rows are going the list still has them: those that
// the host has put in since the list was read are saved then.
void TSLvwBannerFilter::Overhear(std::uint32_t message) {
  if (message == kInsertItem) ++rowsOverheard_;
  if (AtWork() && refill_ == Refill::kPutting) return;
  if (message == kInsertItem || !AtWork()) {
    hostChanged_ = true;
    return;
  }
  if (std::exchange(rowsOverheard_, 0) > 0 && (following_ || mfrmForm.InWork()))
    AddUnknown(following_ ? mListview : mfrmForm.UsersListview);
  if (message == kDeleteAllItems && refill_ == Refill::kBegun) refill_ = Refill::kPutting;
}

void TSLvwBannerFilter::AddUnknown(const Ref<HostListView>& list) {
  const Ref<ListViewDump> full = mfrmForm.ListView1;
  if (list) AbsorbErrors([&] { AddUnknownRows(*list, *full); });
}

void TSLvwBannerFilter::RowInserted() {
  if (mActive) {
    mRowsInsertedWhileActive = true;
    Timer1.SetEnabled(true);
    return;
  }
  const std::int32_t count = ListCount();
  lblDisplaying.SetCaption(CountCaption(count, count, mItemDescription));
}

// The row, told by its position from 0, is still in the list.
void TSLvwBannerFilter::RowDeleted(std::int32_t row0) {
  if (!mActive) {
    const std::int32_t count = ListCount() - 1;
    lblDisplaying.SetCaption(CountCaption(count, count, mItemDescription));
    return;
  }
  const Ref<HostListView> list = mListview;
  if (row0 == std::numeric_limits<std::int32_t>::max()) return;  // anybody can send messages
  const Ref<ListItem> row = list->ListItems()->Item(row0 + 1);
  const Ref<ListViewDump> full = mfrmForm.ListView1;
  const Ref<ListViewDump> passed = mfrmForm.lvwCopyOfFiltered;
  if (!HasCopyOfAnother(list)) ForgetRow(*row, *passed, *full);
  lblDisplaying.SetCaption(
      CountCaption(passed->ListItems()->Count(), full->ListItems()->Count(), mItemDescription));
}

// The rows are still in the list, which is in the middle of clearing itself: nothing may be taken
// out of it now.
void TSLvwBannerFilter::ListCleared() {
  std::int32_t full = 0;
  if (mActive) {
    FollowHost(Filtering::kNo);
    full = mfrmForm.ListView1->ListItems()->Count();
  }
  lblDisplaying.SetCaption(CountCaption(0, full, mItemDescription));
}

// Also while the dialog is open or at work, unlike the notices of rows: the criteria and both
// copies are made for the columns that were.
void TSLvwBannerFilter::ColumnsChanged() {
  if (!mActive) return;
  Deactivate();
  Raise(FilterDeactivated);
}

// Takes the host's changes over into the dialog's copies and, unless the list mustn't be touched,
// filters it again by the criteria of the last apply. Without a full copy of this list there is
// nothing to filter by: the rows that it would take out could never come back.
void TSLvwBannerFilter::FollowHost(Filtering filtering) {
  const Ref<HostListView> list = mListview;
  if (!list || HasCopyOfAnother(list)) return;
  const FlagScope following(following_);
  refill_ = Refill::kNone;
  rowsOverheard_ = 0;
  // A host that is asked for its rows may have the copies replaced.
  const Ref<ListViewDump> full = mfrmForm.ListView1;
  const Ref<ListViewDump> passed = mfrmForm.lvwCopyOfFiltered;
  const bool doubtful = std::exchange(hostChanged_, false);
  try {
    // Without hidden rows there is no doubt about what the full copy ought to hold.
    if (HasFullCopy(list) && !mfrmForm.blnFilterActive)
      TakeRows(*list, *full);
    else
      FollowList(*list, *passed, *full, doubtful ? Copies::kDoubtful : Copies::kInStep);
  } catch (...) {
    if (doubtful) hostChanged_ = true;
    throw;
  }
  if (filtering == Filtering::kAgain && HasFullCopy(list)) mfrmForm.ReapplyCriteria(list);
  if (mfrmForm.ListView1 != full) return;  // given up by a host that was told of a row
  mfrmForm.CopyListview(list, mfrmForm.lvwCopyOfFiltered);
  const std::int32_t columns = full->ColumnHeaders()->Count();
  for (std::int32_t i = 0; i < columns; ++i)
    mfrmForm.PopulateCriteriaComboBox(static_cast<std::int16_t>(i));
}

// The dialog is about to replace the list's rows by those of its full copy. Rows that the host has
// added since that copy was made would be gone for good, and removed ones would be back.
void TSLvwBannerFilter::TakeOverChanges() {
  refill_ = Refill::kBegun;
  rowsOverheard_ = 0;
  const Ref<HostListView> list = mfrmForm.UsersListview;
  if (!list) return;
  const bool taken = AbsorbErrors([&] {
    const Ref<ListViewDump> full = mfrmForm.ListView1;
    if (mfrmForm.blnFilterActive) {
      // Rows can have been added without a notice, when the window wasn't watched.
      const Ref<ListViewDump> passed = mfrmForm.lvwCopyOfFiltered;
      if (hostChanged_ || list->ListItems()->Count() > passed->ListItems()->Count())
        FollowList(*list, *passed, *full, Copies::kDoubtful);
    } else if (hostChanged_ || list->ListItems()->Count() != full->ListItems()->Count()) {
      TakeRows(*list, *full);
    }
  });
  if (taken) hostChanged_ = false;
}

// Rows that the host has added on being told of ours. The filter may be about to take them out.
void TSLvwBannerFilter::TakeOverAdditions() {
  refill_ = Refill::kNone;
  const std::int32_t overheard = std::exchange(rowsOverheard_, 0);
  const Ref<HostListView> list = mfrmForm.UsersListview;
  if (!list) return;
  AbsorbErrors([&] {
    const std::int32_t full = mfrmForm.ListView1->ListItems()->Count();
    if (overheard > full || list->ListItems()->Count() != full) AddUnknown(list);
  });
}

// Each step is tried, whatever became of the one before. Without a row to look at the timer goes
// on: only what ends the filter or the watching stops it, and hosts see the ticks end with that.
void TSLvwBannerFilter::Tick() {
  // A half-copied list would be taken for the host's doing; the next tick comes soon.
  if (!mRowsInsertedWhileActive || AtWork()) return;
  if (mActive && mListview) {
    AbsorbErrors([this] { FollowHost(Filtering::kAgain); });
    AbsorbErrors([this] {
      if (mActive && mListview) ShowCounts();
    });
  }
  Timer1.SetEnabled(false);
  mRowsInsertedWhileActive = false;
  // Rows that the host has added on being told of those that went are left for the next tick.
  const Ref<HostListView> list = mListview;
  if (mActive && list && hostChanged_ && !HasCopyOfAnother(list)) RowInserted();
}

// The copies of a dialog on the screen must not be emptied under it: its buttons would put the
// emptiness into the host's list.
void TSLvwBannerFilter::Deactivate() {
  if (mfrmForm.Visible()) mfrmForm.ClearCriteria();
  ShowPicture(u"FilterEmpty");
  lblDisplaying.SetCaption(AllCaption(mItemDescription));
  cmdFilter.SetToolTipText(kUnfilteredToolTip);
  ClearCopies();
  copiedList_ = nullptr;
  mfrmForm.ForgetCriteria();
  mFilter = Text();
  mFilterInPlainEnglish = Text();
  Timer1.SetEnabled(false);
  SetInForce(false);
}

// A copy that is on its way into the list is left to it, or only half of the rows would arrive.
void TSLvwBannerFilter::ClearCopies() {
  for (Ref<ListViewDump>* copy : {&mfrmForm.ListView1, &mfrmForm.lvwCopyOfFiltered}) {
    if (AtWork()) *copy = MakeRef<ListViewDump>();
    (*copy)->ColumnHeaders()->Clear();
    (*copy)->ListItems()->Clear();
  }
}

}  // namespace sifter
