#pragma once

#include "base/Text.h"
#include "win32/ComRef.h"

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

namespace sifter {

// An event of an object, where its sinks are connected.
struct FoundEvent {
  ComRef<IConnectionPoint> point;  // null when the object has no such event
  IID interfaceId;
  DISPID id;
};

// An event by its name, whatever the case of its letters. The object's default source is asked
// first, then the others in their order. Only sources that speak to their sinks late-bound count,
// and only what the object's own type information tells of them.
FoundEvent FindEvent(IDispatch* object, TextView name);

}  // namespace sifter
