#pragma once

#include "container/Variant.h"

#include <functional>
#include <memory>
#include <oaidl.h>
#include <ocidl.h>
#include <string>
#include <vector>

namespace hosts {

// An event of a control: its name and its arguments, in order. Arguments by reference are there to
// be written to.
using EventHandler =
    std::function<void(const std::wstring& name, const std::vector<VARIANT*>& arguments)>;

// The receiving end of a control's events, known by the names that its type library gives them.
// Events count as handled whatever the handler throws: a control can do nothing about it.
class EventSink {
 public:
  // Nothing arrives any more once the sink has gone.
  EventSink(IUnknown* control, EventHandler handler);
  EventSink(const EventSink&) = delete;
  EventSink& operator=(const EventSink&) = delete;
  ~EventSink();

 private:
  std::shared_ptr<EventHandler> handler_;
  ComRef<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace hosts
