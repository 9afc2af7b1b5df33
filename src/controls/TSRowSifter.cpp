#include "controls/TSRowSifter.h"

#include "base/FlagScope.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Raise.h"
#include "filterdialog/ReportErrors.h"
#include "listmodel/ListMessages.h"

#include <utility>

namespace sifter {

TSRowSifter::TSRowSifter(const ControlServices& services)
    : cmdFilter(*this, u"cmdFilter"),
      LVHook(services.winProc, services.about),
      services_(services),
      dialog_(services.dialog) {
  SetDefaults(Properties(), *this);
  cmdFilter.SetCaption(u"Filter");
  cmdFilter.Click = [this] {
    if (UserMode()) ReportErrors(services_.dialog.prompts, [this] { ShowFilter(); });
  };
  UserModeChanged = [this] {
    const Ref<HostListView> listview = listview_;
    if (UserMode() && listview) Hook(listview);
  };
  Resize = [this] {
    cmdFilter.SetWidth(Width());
    cmdFilter.SetHeight(Height());
  };
}

TSRowSifter::~TSRowSifter() = default;

// A host's list may run code of the host's when it is read, which may attach another one:
// `listview` is what keeps this one alive.
void TSRowSifter::SetListview(Ref<HostListView> listview) {
  if (!listview || listview == listview_) return;
  listview_ = listview;
  if (UserMode()) Hook(listview);
}

void TSRowSifter::Hook(const Ref<HostListView>& listview) {
  const std::int32_t window = listview->hWnd();
  if (listview_ != listview) return;
  LVHook.SethWnd(window);
  LVHook.SetMessages(kInsertItem, true);
  LVHook.SetMessages(kDeleteAllItems, true);
  LVHook.SetMessages(kDeleteItem, true);
}

void TSRowSifter::ShowFilter() {
  const Ref<HostListView> listview = listview_;
  if (!listview) return;
  if (showing_) throw RuntimeError(ErrorNumber::kFormAlreadyDisplayed);
  if (listview->ListItems()->Count() == 0 && !active_) return;
  ShowDialog(listview);
  const bool active = dialog_.blnFilterActive;
  Raise(active ? FilterActivated : FilterDeactivated);
  if (std::exchange(active_, active) != active) Raise(SettingChanged);
}

// Boxes and the host's own code run inside it, also while the dialog isn't on the screen yet or not
// any more but still moving rows. Another showing would take the half-copied list for the full one.
void TSRowSifter::ShowDialog(const Ref<HostListView>& listview) {
  const FlagScope showing(showing_);
  dialog_.lblCaption.SetCaption(filterMessage_);
  dialog_.SetCaption(filterCaption_);
  // The copies belong to the list that the dialog was prepared for; another one that happens to
  // show the same must not be filtered with them.
  if (dialog_.UsersListview != listview ||
      !frmFilter::ListviewsAreEqual(listview, dialog_.lvwCopyOfFiltered))
    Prepare(listview);
  dialog_.Show(ShowMode::kModal);
}

void TSRowSifter::Prepare(const Ref<HostListView>& listview) {
  dialog_.ClearCriteria();
  dialog_.UsersListview = listview;
  if (!dialog_.ListView1) dialog_.ListView1 = MakeRef<ListViewDump>();
  dialog_.ListView1->ColumnHeaders()->Clear();
  dialog_.CopyListview(listview, dialog_.ListView1);
  if (!dialog_.lvwCopyOfFiltered) dialog_.lvwCopyOfFiltered = MakeRef<ListViewDump>();
  dialog_.lvwCopyOfFiltered->ListItems()->Clear();
  dialog_.SetUpForm();
}

void TSRowSifter::ApplyFilter(const Text&) {}

// The default dialog never has a list, so neither of these changes anything that a host can see.
// Hosts have come to call them without losing the filter; aimed at the control's own dialog they
// would take it away.
void TSRowSifter::ResetFilter() { services_.defaultDialog.Get().cmdReset.SetValue(true); }

void TSRowSifter::TurnOffFilter() { services_.defaultDialog.Get().ClearCriteria(); }

void TSRowSifter::SetActive(bool active) {
  if (active == active_) return;
  if (active)
    ShowFilter();
  else
    ResetFilter();
}

void TSRowSifter::Assign(Text& field, Text value, TextView property) {
  if (field == value) return;
  field = std::move(value);
  Raise(PropertyChanged, property);
}

struct TSRowSifterProperties {
  template <Text TSRowSifter::*field>
  static Value Get(const TSRowSifter& control) {
    return control.*field;
  }
  template <Text TSRowSifter::*field>
  static void Set(TSRowSifter& control, const Value& value) {
    control.*field = ValueToText(value);
  }

  static Value GetActive(const TSRowSifter& control) { return control.active_; }
  static void SetActive(TSRowSifter& control, const Value& value) {
    control.active_ = ValueToBoolean(value);
  }

  static constexpr auto columns = &TSRowSifter::columnsToExclude_;
  static constexpr auto filter = &TSRowSifter::filter_;
  static constexpr auto caption = &TSRowSifter::filterCaption_;
  static constexpr auto message = &TSRowSifter::filterMessage_;

  static PropertyTable<TSRowSifter> Table() {
    // Shared by every thread of the process, so its texts have to be immortal ones.
    static const PropertyRow<TSRowSifter> table[] = {
        {u"Active", u"Active", Saved::kUnlikeDefault, false, GetActive, SetActive},
        // Read under a misspelt key on purpose. Forms saved by existing hosts load with this list
        // empty and set it at run time; the right spelling would make their old values come alive.
        {u"ColumnsToExclude", u"ColumnsToExlude", Saved::kUnlikeDefault, Text(), Get<columns>,
         Set<columns>},
        {u"Filter", u"Filter", Saved::kUnlikeDefault, Text(), Get<filter>, Set<filter>},
        {u"FilterCaption", u"FilterCaption", Saved::kUnlikeDefault,
         u"Tarvenn Software Row Sifter"_text, Get<caption>, Set<caption>},
        {u"FilterMessage", u"FilterMessage", Saved::kUnlikeDefault,
         u"Please enter criteria to apply to your listview"_text, Get<message>, Set<message>},
    };
    return table;
  }
};

PropertyTable<TSRowSifter> TSRowSifter::Properties() { return TSRowSifterProperties::Table(); }

void TSRowSifter::InitProperties(const Container& container) {
  SetDefaults(Properties(), *this);
  reserved_ = Text();
  TakeBackColor(container);
}

void TSRowSifter::WriteProperties(PropertyBag& bag, Saving saving) const {
  sifter::WriteProperties(Properties(), *this, bag, saving);
}

void TSRowSifter::ReadProperties(PropertyBag& bag, const Container& container) {
  sifter::ReadProperties(Properties(), *this, bag);
  TakeBackColor(container);
}

void TSRowSifter::TakeBackColor(const Container& container) {
  SetBackColor(container.AmbientBackColor().value_or(kButtonFace));
}

}  // namespace sifter
