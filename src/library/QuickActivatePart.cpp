#include "library/QuickActivatePart.h"

#include "library/ControlFrame.h"

#include <olectl.h>

namespace sifter {

namespace {

DWORD Connect(ConnectionPoint& point, IUnknown* sink) {
  DWORD cookie = 0;
  if (sink != nullptr) point.Advise(sink, &cookie);
  return cookie;
}

}  // namespace

HRESULT QuickActivatePart::QuickActivate(QACONTAINER* container, QACONTROL* control) {
  if (container == nullptr || control == nullptr) return E_POINTER;
  if (container->cbSize < sizeof *container || control->cbSize < sizeof *control)
    return E_INVALIDARG;
  return Answer([&] {
    const ULONG size = control->cbSize;
    *control = {};
    control->cbSize = size;
    Frame().SetSite(container->pClientSite);
    if (container->pAdviseSink != nullptr)
      Frame().Notices().SetView(DVASPECT_CONTENT, 0, container->pAdviseSink);
    ConnectionPointsPart& connections = Frame().Connections();
    control->dwPropNotifyCookie =
        Connect(connections.PropertyNotices(), container->pPropertyNotifySink);
    control->dwEventCookie = Connect(connections.Events(), container->pUnkEventSink);
    control->dwMiscStatus = Frame().Class().miscStatus;
    return S_OK;
  });
}

HRESULT QuickActivatePart::SetContentExtent(LPSIZEL size) {
  return Frame().OleObject().SetExtent(DVASPECT_CONTENT, size);
}

HRESULT QuickActivatePart::GetContentExtent(LPSIZEL size) {
  return Frame().OleObject().GetExtent(DVASPECT_CONTENT, size);
}

}  // namespace sifter
