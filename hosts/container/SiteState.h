#pragma once

#include "container/ComRef.h"

#include <functional>
#include <oleidl.h>
#include <windows.h>

namespace hosts {

// What the parts of a control's site know together. A control may keep its site longer than it is
// shown; what stands here is emptied when the container lets go of it.
struct SiteState {
  HWND window = nullptr;  // the container's, in which the control lies
  RECT place{};           // where, in pixels
  ComRef<IOleInPlaceFrame> frame;
  ComRef<IOleInPlaceObject> control;  // while it is active
  // A key that the control has no use for; whether the container has.
  std::function<bool(const MSG& key)> onKey;
};

}  // namespace hosts
