#include "controls/TSLvwBannerFilter.h"

#include "base/AbsorbErrors.h"
#include "base/FlagScope.h"
#include "base/Integers.h"
#include "base/RuntimeError.h"
#include "controls/BannerTexts.h"
#include "controls/Raise.h"
#include "filterdialog/ReportErrors.h"
#include "listmodel/ListMessages.h"

#include <utility>

namespace sifter {

namespace {

// As designed. The widths of the buttons and the left edges of frame and caption stay so.
constexpr double kButtonWidth = 360, kButtonTop = 15;
constexpr double kFrameLeft = 0, kCaptionLeft = 90;
constexpr double kCaptionPoints = 8.25;
constexpr double kLeastHeight = 360, kLeastWidth = 3000;

constexpr std::int32_t kMilliseconds = 50;

}  // namespace

TSLvwBannerFilter::TSLvwBannerFilter(const ControlServices& services)
    : cmdFilter(*this, u"cmdFilter"),
      cmdExtraButton(*this, u"cmdExtraButton"),
      lblDisplaying(*this, u"lblDisplaying"),
      lblFrame(*this, u"lblFrame"),
      Timer1(*this, u"Timer1"),
      ImageList1{u"FilterEmpty", u"FilterFull", u"print"},
      LVHook(services.winProc, services.about),
      services_(services),
      mFilterCaption(u"Tarvenn Software Row Sifter"),
      mFilterMessage(u"Please enter criteria to apply to your listview"),
      mItemDescription(u"Items"),
      mfrmForm(services.dialog) {
  lblDisplaying.SetCaption(kDesignedCaption);
  lblDisplaying.SetLeft(kCaptionLeft);
  lblDisplaying.SetFont(u"Arial", kCaptionPoints);
  lblFrame.SetLeft(kFrameLeft);
  lblFrame.SetBorderStyle(BorderStyle::kSingle);
  cmdFilter.SetAccessibleName(u"Filter");
  cmdExtraButton.SetAccessibleName(u"Banner button");
  for (PictureButton* button : {&cmdFilter, &cmdExtraButton}) {
    button->SetWidth(kButtonWidth);
    button->SetTop(kButtonTop);
  }
  ShowPicture(u"FilterEmpty");
  cmdExtraButton.SetPicture(ImageList1.Item(u"print"));
  cmdExtraButton.SetVisible(false);
  mfrmForm.ListView1 = MakeRef<ListViewDump>();
  mfrmForm.lvwCopyOfFiltered = MakeRef<ListViewDump>();
  Timer1.SetInterval(kMilliseconds);
  Timer1.SetEnabled(false);
  Wire();
  WireDialog();
  lblDisplaying.SetCaption(kCreatedCaption);
}

TSLvwBannerFilter::~TSLvwBannerFilter() { Terminate(); }

void TSLvwBannerFilter::Wire() {
  // A click has no caller who could deal with an error.
  cmdFilter.Click = [this] {
    if (UserMode()) ReportErrors(services_.dialog.prompts, [this] { ShowFilter(true); });
  };
  cmdExtraButton.Click = [this] {
    Text parameter;
    if (UserMode() && mListview) Raise(ExtraButtonClicked, parameter);
  };
  LVHook.WndProc = [this](std::uint32_t message, std::int32_t wParam, std::int32_t, std::int32_t&) {
    Notice([&] { OnMessage(message, wParam); });
  };
  Timer1.Tick = [this] { Tick(); };
  Resize = [this] { LayOut(); };
  UserModeChanged = [this] {
    const Ref<HostListView> listview = mListview;
    if (UserMode() && listview) Hook(listview);
  };
}

// A notice has no caller for errors either.
void TSLvwBannerFilter::Notice(const std::function<void()>& work) const {
  const auto run = RunNotice;
  const auto absorbing = [&work] { AbsorbErrors(work); };
  if (run)
    run(absorbing);
  else
    absorbing();
}

void TSLvwBannerFilter::WireDialog() {
  mfrmForm.ExtraButtonClicked = [this](Text& parameter) { Raise(ExtraButtonClicked, parameter); };
  mfrmForm.BeforeRefill = [this] { TakeOverChanges(); };
  mfrmForm.BeforeFiltering = [this] { TakeOverAdditions(); };
}

void TSLvwBannerFilter::Terminate() {
  if (std::exchange(terminated_, true)) return;
  ++endings_;
  mfrmForm.Hide();
  if (!AtWork()) ForgetShowing();
  ReleaseListview();
  LVHook.SethWnd(0);
}

void TSLvwBannerFilter::Report(TextView property) const { Raise(PropertyChanged, property); }

void TSLvwBannerFilter::SetEnabled(bool enabled) {
  UserControl::SetEnabled(enabled);
  Report(u"Enabled");
}

void TSLvwBannerFilter::SetExtraButtonVisible(bool visible) {
  mExtraButtonVisible = visible;
  Report(u"ExtraButtonVisible");
}

void TSLvwBannerFilter::SetBannerButtonVisible(bool visible) {
  mBannerButtonVisible = visible;
  Report(u"BannerButtonVisible");
  cmdExtraButton.SetVisible(visible);
  LayOut();
}

void TSLvwBannerFilter::SetBannerButtonPicture(Ref<Picture> picture) {
  mBannerButtonPicture = std::move(picture);
  Report(u"BannerButtonPicture");
  cmdExtraButton.SetPicture(mBannerButtonPicture);
}

// The window stays watched, and the caption as it is: hosts let go of a list so that it can end,
// and attach it or another one later.
void TSLvwBannerFilter::ReleaseListview() {
  hostChanged_ = true;
  mListview = nullptr;
  columnClicks_ = nullptr;
  Timer1.SetEnabled(false);
}

// Active and the tool tip stay as they are. Hosts take a list off and put it on again, to have it
// watched anew, and find the filter where they left it.
void TSLvwBannerFilter::SetListview(Ref<HostListView> listview) {
  if (!listview) {
    ReleaseListview();
    LVHook.SethWnd(0);
    return;
  }
  if (mListview && mListview->Identity() == listview->Identity()) return;
  columnClicks_ = nullptr;
  hostChanged_ = true;
  mListview = listview;
  lblDisplaying.SetCaption(AllCaption(mItemDescription));
  ShowPicture(u"FilterEmpty");
  if (UserMode()) Hook(listview);
}

// A host's list may run code of the host's when it is asked, which may attach another one.
void TSLvwBannerFilter::Hook(const Ref<HostListView>& listview) {
  std::int32_t window = 0;
  {
    // Without its window the list can't be told from one that the dialog doesn't know.
    const FlagScope preparing(preparing_);
    window = listview->hWnd();
  }
  if (mListview != listview) return;
  LVHook.SethWnd(window);
  for (const std::uint32_t message :
       {kInsertItem, kDeleteAllItems, kDeleteItem, kDeleteColumn, kInsertColumn})
    LVHook.SetMessages(message, true);
  const Ref<Object> clicks = listview->WatchColumnClicks(
      [this](std::int32_t column) { Notice([&] { ColumnClicked(column); }); });
  if (mListview == listview) columnClicks_ = clicks;
}

// The value is kept whatever the user has decided in the dialog. Hosts read back what they have
// written; the event tells them how it ended.
void TSLvwBannerFilter::SetActive(bool active) {
  if (active != mActive) {
    if (active) {
      ShowFilter(true);
    } else {
      ResetFilter();
      Deactivate();
    }
  }
  SetInForce(active);
}

void TSLvwBannerFilter::SetInForce(bool active) {
  if (std::exchange(mActive, active) != active) Raise(SettingChanged);
}

Text TSLvwBannerFilter::ListOfTags() const {
  std::u16string tags;
  if (const Ref<HostListView> list = mListview) {
    const Ref<ListItemCollection> items = list->ListItems();
    const std::int32_t count = items->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
      tags += u',';
      tags += ValueToText(items->Item(i)->Tag()).View();
    }
  }
  return Text(tags);
}

// The default dialog never has a list, so neither of these changes anything that a host can see.
// Hosts have come to call them without losing the filter; aimed at the control's own dialog they
// would take it away.
void TSLvwBannerFilter::ResetFilter() { services_.defaultDialog.Get().cmdReset.SetValue(true); }

void TSLvwBannerFilter::TurnOffFilter() { services_.defaultDialog.Get().ClearCriteria(); }

void TSLvwBannerFilter::ColumnClicked(const Value& index) {
  if (const Ref<HostListView> list = mListview) mSortState.Click(*list, index);
}

void TSLvwBannerFilter::ShowPicture(const char16_t* key) {
  cmdFilter.SetPicture(ImageList1.Item(key));
}

std::int32_t TSLvwBannerFilter::ListCount() const {
  const Ref<HostListView> list = mListview;
  return list ? list->ListItems()->Count() : 0;
}

// The full count is a 16-bit one.
void TSLvwBannerFilter::ShowCounts() {
  const std::int32_t shown = ListCount();
  const std::int16_t full = ToInt16(mfrmForm.ListView1->ListItems()->Count());
  lblDisplaying.SetCaption(CountCaption(shown, full, mItemDescription));
}

// Where the banner button stands is reckoned from the width of the filter button, twice. Hosts
// that lay their forms out beside it count on the place.
void TSLvwBannerFilter::LayOut() {
  if (Height() < kLeastHeight) return Grow(Width(), kLeastHeight);
  if (Width() < kLeastWidth) return Grow(kLeastWidth, Height());
  const double extra = mBannerButtonVisible ? cmdExtraButton.Width() + 30 : 0;
  lblFrame.SetWidth(Width() - extra - cmdFilter.Width() - 30);
  lblFrame.SetHeight(Height());
  lblDisplaying.SetHeight(220);
  lblDisplaying.SetTop(lblFrame.Height() / 2 - 100);
  lblDisplaying.SetWidth(lblFrame.Width() - 150);
  cmdExtraButton.SetLeft(Width() - 2 * cmdFilter.Width() - 60);
  cmdExtraButton.SetHeight(Height() - 30);
  cmdFilter.SetLeft(Width() - cmdFilter.Width() - 30);
  cmdFilter.SetHeight(Height() - 30);
}

}  // namespace sifter
