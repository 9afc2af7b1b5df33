#pragma once

#include "library/FramePart.h"
#include "win32/ConnectionPoint.h"

#include <ocidl.h>

namespace sifter {

// The control's outgoing interfaces: its events, and notices of changed settings.
class ConnectionPointsPart final : public FramePart<IConnectionPointContainer> {
 public:
  ConnectionPointsPart(ControlFrame& frame, IUnknown& whole);

  ConnectionPoint& Events() noexcept { return events_; }
  ConnectionPoint& PropertyNotices() noexcept { return propertyNotices_; }

  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override;

 private:
  ConnectionPoint events_;
  ConnectionPoint propertyNotices_;
};

}  // namespace sifter
