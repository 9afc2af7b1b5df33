#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "controls/ColumnSort.h"
#include "controls/Container.h"
#include "controls/ControlServices.h"
#include "controls/FilterText.h"
#include "controls/PropertyTable.h"
#include "forms/Label.h"
#include "forms/Picture.h"
#include "forms/PictureButton.h"
#include "forms/Timer.h"
#include "forms/UserControl.h"
#include "listmodel/HostListView.h"
#include "subclass/HookClass.h"

#include <functional>
#include <vector>

namespace sifter {

// A strip above a host's list view: a button that opens the filter dialog, a caption that counts
// the rows, and a button for a command of the host's. It watches the list's window, so that the
// caption and the filter stay right while the host adds and removes rows.
//
// Errors of the list and of the dialog come out of the public members with their own number and
// description, but for ApplyFilter, which deals with them itself. Handlers of events may call any
// member, detach the list and change its rows; the control must be kept alive until they return.
class TSLvwBannerFilter final : public UserControl {
 public:
  explicit TSLvwBannerFilter(const ControlServices& services);
  ~TSLvwBannerFilter() override;

  PictureButton cmdFilter;
  PictureButton cmdExtraButton;
  Label lblDisplaying;
  Label lblFrame;
  Timer Timer1;
  ImageList ImageList1;
  HookClass LVHook;

  using UserControl::Enabled;
  void SetEnabled(bool enabled);

  // Lets go of the list without unhooking its window.
  void ReleaseListview();

  // The host's list; null when none is attached. Attaching null detaches. Attaching the list that
  // is attached does nothing.
  const Ref<HostListView>& Listview() const { return mListview; }
  void SetListview(Ref<HostListView> listview);

  // Shows the dialog. Modal: returns when the user has left it, with one of the events raised.
  // Modeless: returns at once; Active, Filter and the caption don't follow what the user does
  // then, and the control ignores what happens to the rows until a modal showing has ended.
  // Nothing happens without a list, or on an empty one as long as no filter is in force. Error 400
  // while the dialog is shown modally, is being made ready or is at work on the list; a modeless
  // showing is left out then.
  void ShowFilter(bool ShowModal);

  // Forgets the filter; the rows that it took out don't come back.
  void DeactivateFilter() { Deactivate(); }

  // Filters by criteria in text form, see FilterText.h, without the user. A text that can't be
  // read and any other error end in a reset instead of an error.
  void ApplyFilter(const Text& Filter);

  // These two work on the application's default dialog and change nothing on this control.
  void ResetFilter();
  void TurnOffFilter();

  bool Active() const { return mActive; }
  void SetActive(bool active);

  // A comma and the tag of every row, in the list's order.
  Text ListOfTags() const;

  const Text& Filter() const { return mFilter; }
  const Text& FilterInPlainEnglish() const { return mFilterInPlainEnglish; }
  const Text& InitialSettings() const { return mInitialSettings; }  // always ""

  // The next caption has the new word.
  const Text& ItemDescription() const { return mItemDescription; }
  void SetItemDescription(Text word) { mItemDescription = std::move(word); }

  // These reach the dialog with its next showing.
  const Text& FilterMessage() const { return mFilterMessage; }
  void SetFilterMessage(Text message) { mFilterMessage = std::move(message); }
  const Text& FilterCaption() const { return mFilterCaption; }
  void SetFilterCaption(Text caption) { mFilterCaption = std::move(caption); }
  bool ExtraButtonVisible() const { return mExtraButtonVisible; }
  void SetExtraButtonVisible(bool visible);
  const Text& ExtraButtonCaption() const { return mExtraButtonCaption; }
  void SetExtraButtonCaption(Text caption) { mExtraButtonCaption = std::move(caption); }

  const Text& ColumnsToExclude() const { return mColumnsToExclude; }  // doesn't reach the dialog
  void SetColumnsToExclude(Text columns) { mColumnsToExclude = std::move(columns); }

  bool BannerButtonVisible() const { return mBannerButtonVisible; }
  void SetBannerButtonVisible(bool visible);
  const Ref<Picture>& BannerButtonPicture() const { return mBannerButtonPicture; }
  void SetBannerButtonPicture(Ref<Picture> picture);

  std::function<void()> FilterActivated;
  std::function<void()> FilterDeactivated;
  std::function<void(Text& Parameter)> ExtraButtonClicked;

  // A setting has been changed in a way that is told to the container.
  std::function<void(TextView property)> PropertyChanged;

  // A saved setting has changed by itself: Active, by what the user or the host did.
  std::function<void()> SettingChanged;

  // The life of the control on a host's form: first placement, saving, loading.
  void InitProperties(const Container& container);
  void WriteProperties(PropertyBag& bag, Saving saving) const;
  void ReadProperties(PropertyBag& bag, const Container& container);
  static PropertyTable<TSLvwBannerFilter> Properties();

  // The header of a column of the list was clicked.
  void ColumnClicked(const Value& index);

  // Runs what the list's window and the list tell by themselves, not through a member. The events
  // that come of it may end the control: whoever owns it can keep it alive until `work` is over.
  std::function<void(const std::function<void()>& work)> RunNotice;

  // The host is taking the control down. A dialog on the screen is hidden, and whoever waits for
  // it goes on without raising events. No list is attached then, and no dialog shown any more.
  void Terminate();

  // The host has placed the control anew after it had taken it down.
  void Revive() { terminated_ = false; }

  frmFilter& Dialog() { return mfrmForm; }

 private:
  friend struct TSLvwBannerFilterProperties;

  void Wire();
  void Notice(const std::function<void()>& work) const;
  void WireDialog();
  void Hook(const Ref<HostListView>& listview);
  void LayOut();
  void Report(TextView property) const;
  void ShowPicture(const char16_t* key);
  void ShowCounts();
  std::int32_t ListCount() const;

  void SetInForce(bool active);

  void OnMessage(std::uint32_t message, std::int32_t wParam);
  void Overhear(std::uint32_t message);
  void RowInserted();
  void RowDeleted(std::int32_t row0);
  void ListCleared();
  void ColumnsChanged();
  void Tick();

  enum class Filtering { kNo, kAgain };
  void FollowHost(Filtering filtering);
  void TakeOverChanges();
  void TakeOverAdditions();
  void AddUnknown(const Ref<HostListView>& list);
  void Deactivate();
  void ClearCopies();

  bool AtWork() const { return preparing_ || following_ || mfrmForm.InWork(); }
  bool HasFullCopy(const Ref<HostListView>& list) const;
  bool InForce() const { return mActive || (windingUp_ && mfrmForm.blnFilterActive); }
  bool HasCopyOfAnother(const Ref<HostListView>& list) const;
  bool PrepareDialog(const Ref<HostListView>& list);
  bool StartAfresh(const Ref<HostListView>& list);
  void ShowModally();
  void LeaveUnshown(bool busyBefore);
  void ForgetShowing();
  void WindUp();
  void TakeTexts();
  void ShowOutcome(bool filtered);
  void GiveListFocus();

  void FillRow(const TextCriterion& criterion);
  std::int32_t RowOf(const Text& column) const;
  void GiveUpApplying();

  ControlServices services_;
  Ref<HostListView> mListview;
  Text mFilterCaption;
  Text mColumnsToExclude;
  Text mFilterMessage;
  Text mFilter;
  Text mFilterInPlainEnglish;
  bool mActive = false;
  bool mExtraButtonVisible = false;
  Text mExtraButtonCaption;
  Text mInitialSettings;
  bool mBannerButtonVisible = false;
  Ref<Picture> mBannerButtonPicture;
  Text mItemDescription;
  bool mDialogBusy = false;
  bool mRowsInsertedWhileActive = false;
  ColumnSort mSortState;

  Ref<Object> columnClicks_;  // as long as it lives, the list tells of clicks on its headers
  bool preparing_ = false;    // the dialog is being made ready
  bool shownModally_ = false;
  bool windingUp_ = false;  // Active doesn't tell of the filter as yet
  bool following_ = false;  // the list is being filtered again
  // How far the dialog is with putting all rows back: the list still has its own before the first.
  enum class Refill { kNone, kBegun, kPutting };
  Refill refill_ = Refill::kNone;
  bool hostChanged_ = false;        // rows came or went, or may have, while nobody looked
  std::int32_t rowsOverheard_ = 0;  // put into the list while notices were ignored
  bool terminated_ = false;
  int endings_ = 0;  // how many times the host has taken the control down
  // The list that the dialog's full copy was made of: its identity and its window.
  const void* copiedList_ = nullptr;
  std::int32_t copiedWindow_ = 0;
  frmFilter mfrmForm;
};

}  // namespace sifter
