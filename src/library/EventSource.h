#pragma once

#include "library/ConnectionPoint.h"
#include "library/ControlSite.h"

#include <oaidl.h>
#include <vector>
#include <windows.h>

namespace sifter {

// Raises a control's events at the sinks of a connection point. What a sink returns is its own
// affair.
//
// While the host has frozen the events they are kept, and raised in their order when the last
// freeze ends: none is lost, and none comes twice.
class EventSource {
 public:
  EventSource(ConnectionPoint& point, const ControlSite& site) : point_(point), site_(site) {}

  // An event without arguments.
  void Raise(DISPID event);

  void Freeze() { ++freezes_; }
  // One freeze less; nothing when there is none.
  void Thaw();

  // From now on nothing is raised until Open: nobody listens behind a closed control.
  void Close();
  void Open() { closed_ = false; }

 private:
  void Tell(DISPID event) const;

  ConnectionPoint& point_;
  const ControlSite& site_;  // tells the locale
  int freezes_ = 0;
  bool closed_ = false;
  std::vector<DISPID> kept_;
};

}  // namespace sifter
