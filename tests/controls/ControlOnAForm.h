#pragma once

#include "base/Conversions.h"
#include "controls/ControlServices.h"
#include "support/ClockFake.h"
#include "support/ContainerFake.h"
#include "support/Errors.h"
#include "support/HeadlessDialog.h"
#include "support/HeadlessFormHost.h"
#include "support/HeadlessPrompts.h"
#include "support/HeadlessWatcher.h"
#include "support/Lists.h"
#include "support/Printers.h"
#include "support/PropertyBagFake.h"
#include "support/Recorder.h"
#include "support/RecordingListView.h"
#include "support/RecordingWindows.h"
#include "support/VersionInfoFake.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace sifter {

using Names = std::vector<std::string>;

// A filter control with all it needs: a user who is a script, boxes that are answered at once,
// windows in memory, and one recorder for all that happens.
template <class Filter>
class ControlOnAForm : public testing::Test {
 protected:
  ControlServices Services() {
    return {{forms, prompts, conversions, clock},
            {forms, version},
            windows.Watched(),
            windows,
            defaultDialog};
  }

  // Records what happens to the dialog from now on, its title as `title "..."` whenever the title
  // or the size change.
  void WatchDialog() {
    watcher.emplace(dialog, recorder);
    dialog.Changed = [this] { recorder.Line("title " + Quoted(dialog.Caption())); };
  }

  // What the user does in the next showing.
  void UserHides() {
    forms.During([this] { dialog.cmdHideFilter.SetValue(true); });
  }
  void UserApplies() {
    forms.During([this] { dialog.cmdApply.SetValue(true); });
  }
  void UserResets() {
    forms.During([this] { dialog.cmdReset.SetValue(true); });
  }
  void UserFilters(const char16_t* contains) {
    forms.During([this, contains] {
      Ask(contains);
      dialog.cmdApply.SetValue(true);
    });
  }

  // Sets the first row of the dialog to "contains" this text.
  void Ask(const char16_t* contains) {
    ComboBox& box = dialog.cboOperator[0];
    const std::vector<Text>& words = box.Entries();
    const auto found = std::find(words.begin(), words.end(), TextView(u"contains"));
    ASSERT_NE(found, words.end());
    box.SetListIndex(static_cast<std::int32_t>(found - words.begin()));
    dialog.cboCriteria[0].SetText(contains);
  }

  // Records when the reset button of a dialog is pressed, and lets it do its work.
  void RecordReset(frmFilter& of, const std::string& name) {
    of.cmdReset.Click = [this, name, pressed = of.cmdReset.Click] {
      recorder.Line("reset of " + name);
      pressed();
    };
  }

  // A list of a foreign make around `list`.
  Ref<RecordingListView> Foreign(const Ref<HostListView>& behind) {
    return MakeRef<RecordingListView>(behind, recorder);
  }

  // Loads the control as it is saved with a filter in force.
  void LoadActive() {
    PropertyBagFake bag(recorder);
    bag.entries[u"Active"] = true;
    control.ReadProperties(bag, container);
    recorder.Clear();
  }

  Recorder recorder;
  ClockFake clock;
  EnUsConversions conversions{clock};
  HeadlessFormHost forms{recorder};
  HeadlessPrompts prompts{recorder};
  VersionInfoFake version;
  RecordingWindows windows{recorder};
  ContainerFake container{recorder};
  DefaultDialog defaultDialog{{forms, prompts, conversions, clock}};
  std::optional<HeadlessWatcher> watcher;
  Filter control{Services()};
  frmFilter& dialog = control.Dialog();
};

}  // namespace sifter
