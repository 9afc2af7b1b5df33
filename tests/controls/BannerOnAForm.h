#pragma once

#include "ControlOnAForm.h"
#include "controls/TSLvwBannerFilter.h"
#include "support/ListObserverRecorder.h"
#include "support/MemoryListWindow.h"

namespace sifter {

// The banner above a list of 40 trees, 12 of which are oaks, in window 101. What changes on the
// banner is recorded, and its events with what it says of itself at that moment:
//
//   lblDisplaying.Caption "Displaying 12 of 40 Items"
//   raise FilterActivated, Active False, Filter ""
class BannerOnAForm : public ControlOnAForm<TSLvwBannerFilter> {
 protected:
  BannerOnAForm() {
    RecordEvents(control);
    recorder.Clear();
  }
  ~BannerOnAForm() override { control.Watch(nullptr); }

  void RecordEvents(TSLvwBannerFilter& banner) {
    const auto record = [this, &banner](const char* event) {
      recorder.Line(std::string("raise ") + event + ", Active " + Shown(Value(banner.Active())) +
                    ", Filter " + Quoted(banner.Filter()));
    };
    banner.FilterActivated = [record] { record("FilterActivated"); };
    banner.FilterDeactivated = [record] { record("FilterDeactivated"); };
    banner.ExtraButtonClicked = [this](Text& parameter) {
      recorder.Line("raise ExtraButtonClicked " + Quoted(parameter));
    };
    banner.PropertyChanged = [this](TextView property) {
      recorder.Line("changed " + Quoted(property));
    };
  }

  // Puts the list under the banner, and a filter in force; nothing of it is recorded.
  void Attach() {
    control.SetListview(list);
    recorder.Clear();
  }
  void Filter(const char16_t* contains) {
    UserFilters(contains);
    control.ShowFilter(true);
    recorder.Clear();
  }
  void AttachAndFilter() {
    Attach();
    Filter(u"Oak");
  }

  // How many lines of the recording start like this.
  std::ptrdiff_t Recorded(const std::string& start) const {
    return std::count_if(recorder.Lines().begin(), recorder.Lines().end(),
                         [&start](const std::string& line) { return line.starts_with(start); });
  }

  // 50 milliseconds pass.
  void Tick() { control.Timer1.Elapse(); }

  Text Caption() const { return control.lblDisplaying.Caption(); }

  // What the user sees: the picture of the filter button, the caption, the tool tip.
  Names Face() const {
    return {control.cmdFilter.Picture()->Key().ToUtf8(), Caption().ToUtf8(),
            control.cmdFilter.ToolTipText().ToUtf8()};
  }

  Names Oaks() const {
    Names oaks;
    for (const std::vector<std::string>& row : kTrees)
      if (row[0].starts_with("Oak")) oaks.push_back(row[0]);
    return oaks;
  }

  // "Oak 1" to "Elm 40" with a number and a date.
  static TextRows Trees() {
    TextRows rows;
    for (int i = 1; i <= 40; ++i) {
      const bool oak = i % 10 == 1 || i % 10 == 4 || i % 10 == 7;
      rows.push_back({(oak ? "Oak " : "Elm ") + std::to_string(i), std::to_string(i * 10),
                      "1/" + std::to_string(i % 28 + 1) + "/2005"});
    }
    return rows;
  }

  const TextRows kTrees = Trees();
  const Ref<MemoryListView> list = MakeList({"Name", "Qty", "Planted"}, kTrees);
  MemoryListWindow window{windows, *list};
  HeadlessWatcher bannerWatcher{control, recorder};
};

}  // namespace sifter
