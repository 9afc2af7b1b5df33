#pragma once

#include "base/Ref.h"
#include "base/Text.h"
#include "controls/Container.h"
#include "controls/ControlServices.h"
#include "controls/PropertyTable.h"
#include "forms/CommandButton.h"
#include "forms/UserControl.h"
#include "listmodel/HostListView.h"
#include "subclass/HookClass.h"

#include <functional>

namespace sifter {

// A button beside a host's list view that opens the filter dialog for it.
//
// Errors of the list and of the dialog come out of the public members with their own number and
// description. Handlers of the events see Active as it was before the showing; they may show
// messages and change the list, but the control must be kept alive until they have returned.
class TSRowSifter final : public UserControl {
 public:
  explicit TSRowSifter(const ControlServices& services);
  ~TSRowSifter() override;

  CommandButton cmdFilter;  // fills the control; pressing it shows the dialog
  HookClass LVHook;         // watches the list's window

  // The host's list; null until one is attached. Attaching null, or the list that is attached,
  // does nothing. A list without a window handle is error 438 and stays attached.
  const Ref<HostListView>& Listview() const { return listview_; }
  void SetListview(Ref<HostListView> listview);

  // Shows the dialog modally and raises one of the events after it. Does nothing without a list,
  // and on an empty list as long as no filter is in force. Error 400 while a showing is under way,
  // from preparing the dialog to its end.
  void ShowFilter();

  // Does nothing; the text is neither kept nor applied.
  void ApplyFilter(const Text& Filter);

  // These two work on the application's default dialog, not on the one that ShowFilter shows:
  // the list and Active stay as they are, and no event is raised.
  void ResetFilter();
  void TurnOffFilter();

  // Whether the last showing left a filter in force. Writing True shows the dialog, whose outcome
  // decides; writing False calls ResetFilter and leaves it True.
  bool Active() const { return active_; }
  void SetActive(bool active);

  const Text& Filter() const { return filter_; }  // as it was loaded; filtering doesn't change it
  const Text& FilterMessage() const { return filterMessage_; }
  void SetFilterMessage(Text message) {
    Assign(filterMessage_, std::move(message), u"FilterMessage");
  }
  const Text& FilterCaption() const { return filterCaption_; }
  void SetFilterCaption(Text caption) {
    Assign(filterCaption_, std::move(caption), u"FilterCaption");
  }
  const Text& ColumnsToExclude() const { return columnsToExclude_; }  // doesn't reach the dialog
  void SetColumnsToExclude(Text columns) {
    Assign(columnsToExclude_, std::move(columns), u"ColumnsToExclude");
  }

  std::function<void()> FilterActivated;
  std::function<void()> FilterDeactivated;

  // A saved setting has changed by itself: Active, after a showing.
  std::function<void()> SettingChanged;

  // A saved setting has been changed from outside.
  std::function<void(TextView property)> PropertyChanged;

  // The life of the control on a host's form: its first placement, saving and loading. Neither
  // shows the dialog nor raises an event.
  void InitProperties(const Container& container);
  void WriteProperties(PropertyBag& bag, Saving saving) const;
  void ReadProperties(PropertyBag& bag, const Container& container);
  static PropertyTable<TSRowSifter> Properties();

  frmFilter& Dialog() { return dialog_; }

 private:
  friend struct TSRowSifterProperties;

  void Assign(Text& field, Text value, TextView property);
  void ShowDialog(const Ref<HostListView>& listview);
  void Hook(const Ref<HostListView>& listview);
  void Prepare(const Ref<HostListView>& listview);
  void TakeBackColor(const Container& container);

  ControlServices services_;
  Ref<HostListView> listview_;
  Text filterCaption_;
  Text columnsToExclude_;
  Text filterMessage_;
  Text filter_;
  Text reserved_;  // belongs to the control's state; nothing reads it
  bool active_ = false;
  bool showing_ = false;
  frmFilter dialog_;
};

}  // namespace sifter
