#include "library/ConnectionPointsPart.h"

#include "library/ControlFrame.h"
#include "win32/ComEnum.h"

#include <olectl.h>

namespace sifter {

ConnectionPointsPart::ConnectionPointsPart(ControlFrame& frame, IUnknown& whole)
    : FramePart(frame, whole),
      events_(whole, *this, *frame.Class().eventsId, true),
      propertyNotices_(whole, *this, IID_IPropertyNotifySink, false) {}

HRESULT ConnectionPointsPart::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return Answer([&] {
    using Points =
        ComEnum<IEnumConnectionPoints, IConnectionPoint*, ReferenceItems<IConnectionPoint>>;
    *points = Points::Make(
        {ComRef<IConnectionPoint>(&events_), ComRef<IConnectionPoint>(&propertyNotices_)});
    return S_OK;
  });
}

HRESULT ConnectionPointsPart::FindConnectionPoint(REFIID id, IConnectionPoint** point) {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  for (ConnectionPoint* const each : {&events_, &propertyNotices_})
    if (each->Id() == id) {
      *point = ComRef<IConnectionPoint>(each).Release();
      return S_OK;
    }
  return CONNECT_E_NOCONNECTION;
}

}  // namespace sifter
