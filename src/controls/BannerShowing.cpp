#include "base/AbsorbErrors.h"
#include "base/FlagScope.h"
#include "base/Integers.h"
#include "base/RuntimeError.h"
#include "controls/BannerTexts.h"
#include "controls/Raise.h"
#include "controls/TSLvwBannerFilter.h"
#include "matching/ColumnDataType.h"

#include <exception>
#include <optional>
#include <utility>

// How the banner shows its dialog, and fills it in from a filter given as text.

namespace sifter {

void TSLvwBannerFilter::ShowFilter(bool ShowModal) {
  const Ref<HostListView> list = mListview;
  if (!list || terminated_) return;
  if (shownModally_ || AtWork()) {
    if (ShowModal) throw RuntimeError(ErrorNumber::kFormAlreadyDisplayed);
    return;  // it stays as it is
  }
  if (list->ListItems()->Count() == 0 && !InForce()) return;
  if (mListview != list) return;
  const bool busyBefore = std::exchange(mDialogBusy, true);
  const int endings = endings_;
  try {
    if (!PrepareDialog(list)) return LeaveUnshown(busyBefore);
    // Busy from now on: a host that shows it so has chosen to be left alone until it shows it
    // modally.
    if (!ShowModal) return mfrmForm.Show(ShowMode::kModeless);
    ShowModally();
  } catch (...) {
    LeaveUnshown(busyBefore);
    throw;
  }
  if (endings != endings_) return ForgetShowing();
  WindUp();
  TakeTexts();
}

void TSLvwBannerFilter::LeaveUnshown(bool busyBefore) {
  mDialogBusy = busyBefore;
  if (!mfrmForm.Visible()) mfrmForm.UsersListview = nullptr;
}

// The host has taken the control down under the dialog; nobody is told of its outcome.
void TSLvwBannerFilter::ForgetShowing() {
  mDialogBusy = false;
  mfrmForm.UsersListview = nullptr;
}

void TSLvwBannerFilter::ShowModally() {
  mfrmForm.Hide();  // a modeless showing ends here
  const FlagScope shown(shownModally_);
  mfrmForm.Show(ShowMode::kModal);
}

// False when the host took the filter or the list away while that was being read: there is nothing
// to show.
bool TSLvwBannerFilter::PrepareDialog(const Ref<HostListView>& list) {
  const FlagScope preparing(preparing_);
  mfrmForm.lblCaption.SetCaption(mFilterMessage);
  mfrmForm.SetCaption(mFilterCaption);
  mfrmForm.cmdReport.SetVisible(mExtraButtonVisible);
  mfrmForm.cmdReport.SetCaption(mExtraButtonCaption);
  mfrmForm.UsersListview = list;
  if (!InForce() || !HasFullCopy(list)) return StartAfresh(list);
  // The flag stays for the next tick: the host may be in the middle of adding rows.
  if (mRowsInsertedWhileActive) FollowHost(Filtering::kAgain);
  return HasFullCopy(list) && !terminated_;
}

// Active alone doesn't say that the dialog knows the list: it may have been loaded or set, or
// another list attached since. Applying without a full copy of this very list would empty it.
bool TSLvwBannerFilter::HasFullCopy(const Ref<HostListView>& list) const {
  return copiedList_ == list->Identity() && copiedWindow_ == LVHook.hWnd();
}

// Until the dialog is made ready for the list that is attached now, its copies are kept as they
// are: the list that they were made of may be attached again.
bool TSLvwBannerFilter::HasCopyOfAnother(const Ref<HostListView>& list) const {
  return copiedList_ != nullptr && !HasFullCopy(list);
}

bool TSLvwBannerFilter::StartAfresh(const Ref<HostListView>& list) {
  const Ref<ListViewDump> full = mfrmForm.ListView1;
  copiedList_ = nullptr;
  mfrmForm.ClearCriteria();
  full->ColumnHeaders()->Clear();
  mfrmForm.CopyListview(full, mfrmForm.lvwCopyOfFiltered);
  mfrmForm.lvwCopyOfFiltered->ListItems()->Clear();
  hostChanged_ = false;
  refill_ = Refill::kNone;
  mfrmForm.SetUpForm();
  if (mfrmForm.ListView1 != full || mListview != list) return false;
  copiedList_ = list->Identity();
  copiedWindow_ = LVHook.hWnd();
  return true;
}

// A showing has ended. Handlers of the event see Active, Filter and the list view as they were
// before it, as hosts have come to expect: what they read then is what has just ended. They may
// detach the list and show the dialog again; one that is up then keeps what it needs.
void TSLvwBannerFilter::WindUp() {
  if (terminated_) return ForgetShowing();
  struct Ending {
    explicit Ending(TSLvwBannerFilter& banner) : banner_(banner) {}
    ~Ending() {
      if (!banner_.mfrmForm.Visible()) banner_.ForgetShowing();
    }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;
    TSLvwBannerFilter& banner_;
  };
  const Ending ending(*this);
  try {
    ShowOutcome(mfrmForm.blnFilterActive);
  } catch (...) {
    // The next showing would take the rows that are left for all there are.
    SetInForce(mfrmForm.blnFilterActive);
    throw;
  }
  SetInForce(mfrmForm.blnFilterActive);
  if (!mfrmForm.Visible()) mDialogBusy = false;
  GiveListFocus();
}

void TSLvwBannerFilter::ShowOutcome(bool filtered) {
  const FlagScope windingUp(windingUp_);
  ShowPicture(filtered ? u"FilterFull" : u"FilterEmpty");
  if (mListview) ShowCounts();
  cmdFilter.SetToolTipText(filtered ? kFilteredToolTip : kUnfilteredToolTip);
  // Also when nothing was filtered before: hosts take either event for the end of the showing.
  Raise(filtered ? FilterActivated : FilterDeactivated);
}

// Lists needn't have the member; the window has the focus all the same then.
void TSLvwBannerFilter::GiveListFocus() {
  const Ref<HostListView> list = mListview;
  if (!list) return;
  try {
    list->SetFocus();
  } catch (const RuntimeError& error) {
    if (error.Number() != static_cast<std::int32_t>(ErrorNumber::kMemberNotSupported)) throw;
    services_.windows.SetFocus(LVHook.hWnd());
  }
}

void TSLvwBannerFilter::TakeTexts() {
  mFilter = mfrmForm.FilterString;
  mFilterInPlainEnglish = mfrmForm.FilterPlainEnglish;
}

void TSLvwBannerFilter::ApplyFilter(const Text& Filter) {
  if (Filter.IsEmpty() || terminated_) return;
  // In the middle of the dialog's own work its rows are half made, and so are its copies.
  if (AtWork()) return ResetFilter();
  try {
    const Ref<HostListView> list = mListview;
    if (!list || (ListCount() == 0 && !InForce()) || mListview != list) throw BadFilterText();
    ShowFilter(false);
    // A modal showing that is ending: its copies may be gone already.
    if (!mfrmForm.Visible()) throw BadFilterText();
    for (const TextCriterion& criterion : ParseFilterText(Filter)) FillRow(criterion);
    mfrmForm.cmdApply.SetValue(true);
    WindUp();
    TakeTexts();
  } catch (const std::exception&) {
    GiveUpApplying();
  }
}

std::int32_t TSLvwBannerFilter::RowOf(const Text& column) const {
  for (std::int32_t i = 0; i < mfrmForm.ColumnCount(); ++i)
    if (mfrmForm.lblColumnHeaderText[i].Caption() == column) return i;
  throw BadFilterText();
}

namespace {

bool HasType(const Label& heading, ColumnDataType type) {
  return ValueToInt32(heading.Tag()) == static_cast<std::int32_t>(type);
}

// A list can be without a choice, which is its position -1; a criterion can't.
std::int16_t OperatorPosition(const Text& number) {
  const std::int16_t position = ValueToInt16(number);
  if (position < 0) throw RuntimeError(ErrorNumber::kInvalidPropertyValue);
  return position;
}

}  // namespace

// Choosing an operator empties the row's fields, so they are filled after it.
void TSLvwBannerFilter::FillRow(const TextCriterion& criterion) {
  const std::int32_t i = RowOf(criterion.column);
  mfrmForm.cboOperator[i].SetListIndex(OperatorPosition(criterion.operatorNumber));
  const Label& heading = mfrmForm.lblColumnHeaderText[i];
  const auto setDate = [&](DatePicker& picker, const Text& text) {
    if (text.IsEmpty()) return;
    const std::optional<Date> date = services_.dialog.conversions.ToDate(text);
    if (!date) throw RuntimeError(ErrorNumber::kTypeMismatch);
    picker.SetValue(*date);
  };
  if (HasType(heading, ColumnDataType::kDate)) {
    setDate(mfrmForm.dtpFrom[i], criterion.first);
    setDate(mfrmForm.dtpTo[i], criterion.second);
  } else if (HasType(heading, ColumnDataType::kText)) {
    mfrmForm.cboCriteria[i].SetText(criterion.first);
  }
  // The fields of a number row stay as they are. Hosts that filter by numbers this way rely on
  // what the user last left in them; filling them in would change what their texts mean.
}

// Nothing of this reaches the host, not even what goes wrong here.
void TSLvwBannerFilter::GiveUpApplying() {
  AbsorbErrors([this] { ResetFilter(); });
  AbsorbErrors([this] { mfrmForm.cmdHideFilter.SetValue(true); });
  AbsorbErrors([this] { WindUp(); });
}

}  // namespace sifter
