#pragma once

#include "ControlOnAForm.h"
#include "controls/TSRowSifter.h"

namespace sifter {

// The button control. Its events are recorded with what the control says of itself at that moment:
//
//   raise FilterActivated, Active False
class SifterOnAForm : public ControlOnAForm<TSRowSifter> {
 protected:
  SifterOnAForm() {
    RecordEvents(control);
    recorder.Clear();
  }

  void RecordEvents(TSRowSifter& sifter) {
    const auto record = [this, &sifter](const char* event) {
      recorder.Line(std::string("raise ") + event + ", Active " + Shown(Value(sifter.Active())));
    };
    sifter.FilterActivated = [record] { record("FilterActivated"); };
    sifter.FilterDeactivated = [record] { record("FilterDeactivated"); };
    sifter.PropertyChanged = [this](TextView property) {
      recorder.Line("changed " + Quoted(property));
    };
  }

  // A showing in which the user filters, nothing of which is recorded.
  void Filter(const char16_t* contains) {
    UserFilters(contains);
    control.ShowFilter();
    recorder.Clear();
  }

  const TextRows kTrees = {{"Oak", "3"}, {"Ash", "5"}, {"Elm", "7"}, {"Yew", "9"}, {"Larch", "4"}};
  const Ref<MemoryListView> list = MakeList({"Name", "Qty"}, kTrees);
};

}  // namespace sifter
