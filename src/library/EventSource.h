#pragma once

#include "base/Text.h"
#include "library/ControlSite.h"
#include "win32/ConnectionPoint.h"

#include <oaidl.h>
#include <optional>
#include <vector>
#include <windows.h>

namespace sifter {

// Raises a control's events at the sinks of a connection point. What a sink returns is its own
// affair.
//
// While the host has frozen the events they are kept, with their arguments, and raised in their
// order when the last freeze ends: none is lost, and none comes twice.
class EventSource {
 public:
  EventSource(ConnectionPoint& point, const ControlSite& site) : point_(point), site_(site) {}

  // An event without arguments.
  void Raise(DISPID event);

  // An event with a text that the sinks may change, each for those behind it and all for whoever
  // raised it. While events are frozen nobody changes it.
  void Raise(DISPID event, Text& argument);

  void Freeze() { ++freezes_; }
  // One freeze less; nothing when there is none.
  void Thaw();

  // From now on nothing is raised until Open: nobody listens behind a closed control.
  void Close();
  void Open() { closed_ = false; }

 private:
  struct Kept {
    DISPID event;
    std::optional<Text> argument;
  };

  void Tell(DISPID event, DISPPARAMS& arguments) const;
  void Tell(DISPID event, Text& argument) const;

  ConnectionPoint& point_;
  const ControlSite& site_;  // tells the locale
  int freezes_ = 0;
  bool closed_ = false;
  std::vector<Kept> kept_;
};

}  // namespace sifter
