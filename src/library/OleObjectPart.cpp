#include "library/OleObjectPart.h"

#include "library/ControlFrame.h"
#include "library/TaskText.h"

#include <iterator>
#include <ole2.h>

namespace sifter {

HRESULT OleObjectPart::SetClientSite(IOleClientSite* site) {
  return Answer([&] {
    Frame().SetSite(site);
    return S_OK;
  });
}

HRESULT OleObjectPart::GetClientSite(IOleClientSite** site) {
  if (site == nullptr) return E_POINTER;
  *site = ComRef<IOleClientSite>(Frame().Site().Client()).Release();
  return S_OK;
}

// Names for the title of a window that the control never opens.
HRESULT OleObjectPart::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

HRESULT OleObjectPart::SaveIfDirty(DWORD saving) {
  const ComRef<IOleClientSite> client(Frame().Site().Client());
  if (saving == OLECLOSE_NOSAVE || !Frame().IsDirty() || !client) return S_OK;
  const HRESULT saved = client->SaveObject();
  // A container that saves into a storage has the notice sent from there.
  if (SUCCEEDED(saved) && Frame().IsDirty()) Frame().Notices().Saved();
  return saved;
}

HRESULT OleObjectPart::Close(DWORD saving) {
  if (saving > OLECLOSE_PROMPTSAVE) return E_INVALIDARG;
  return Answer([&] {
    const HRESULT saved = SaveIfDirty(saving);
    Frame().Close();
    return saved;
  });
}

// Links into the control make no sense, so it keeps no names.
HRESULT OleObjectPart::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

HRESULT OleObjectPart::GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  const ComRef<IOleClientSite> client(Frame().Site().Client());
  if (!client) return E_UNEXPECTED;
  return client->GetMoniker(assign, which, moniker);
}

HRESULT OleObjectPart::InitFromData(IDataObject*, BOOL, DWORD) { return S_FALSE; }

HRESULT OleObjectPart::GetClipboardData(DWORD, IDataObject** data) {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObjectPart::Show(IOleClientSite* site, bool forUser) {
  const ComRef<IOleClientSite> own(Frame().Site().Client());
  IOleClientSite* const client = own ? own.Get() : site;
  if (client == nullptr) return OLEOBJ_S_CANNOT_DOVERB_NOW;
  const HRESULT active =
      forUser ? Frame().InPlace().UiActivate(client) : Frame().InPlace().Activate(client);
  if (active != S_OK) return active;
  Frame().InPlace().Show(true);
  client->ShowObject();
  return S_OK;
}

HRESULT OleObjectPart::DoVerb(LONG verb, LPMSG, IOleClientSite* site, LONG, HWND, LPCRECT) {
  return Answer([&]() -> HRESULT {
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE:
        return Show(site, true);
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE:
        return Show(site, false);
      case OLEIVERB_HIDE:
        Frame().InPlace().UiDeactivate();
        Frame().InPlace().Show(false);
        return S_OK;
      case OLEIVERB_DISCARDUNDOSTATE:
        return S_OK;
      case OLEIVERB_OPEN:
        return E_NOTIMPL;  // it has no window but the one in the form
      default:
        if (verb < 0) return E_NOTIMPL;
        // One that it doesn't know stands for the primary one.
        const HRESULT shown = Show(site, true);
        return shown == S_OK ? OLEOBJ_S_INVALIDVERB : shown;
    }
  });
}

// None for a menu.
HRESULT OleObjectPart::EnumVerbs(IEnumOLEVERB** verbs) {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;
}

HRESULT OleObjectPart::GetUserClassID(CLSID* id) {
  if (id == nullptr) return E_POINTER;
  *id = *Frame().Class().classId;
  return S_OK;
}

HRESULT OleObjectPart::GetUserType(DWORD form, LPOLESTR* type) {
  if (type == nullptr) return E_POINTER;
  *type = nullptr;
  return Answer([&] {
    const std::wstring name = Frame().Class().name;
    *type = TaskText(form == USERCLASSTYPE_APPNAME ? L"RowSifter" : name);
    return S_OK;
  });
}

HRESULT OleObjectPart::SetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (size->cx < 0 || size->cy < 0) return E_INVALIDARG;
  return Answer([&] {
    Frame().SetExtent(*size);
    return S_OK;
  });
}

HRESULT OleObjectPart::GetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *size = Frame().Extent();
  return S_OK;
}

HRESULT OleObjectPart::Advise(IAdviseSink* sink, DWORD* connection) {
  if (connection == nullptr) return E_POINTER;
  *connection = 0;
  if (sink == nullptr) return E_POINTER;
  return Answer([&] { return Frame().Notices().Object().Advise(sink, connection); });
}

HRESULT OleObjectPart::Unadvise(DWORD connection) {
  return Answer([&] { return Frame().Notices().Object().Unadvise(connection); });
}

HRESULT OleObjectPart::EnumAdvise(IEnumSTATDATA** sinks) {
  if (sinks == nullptr) return E_POINTER;
  *sinks = nullptr;
  return Answer([&] { return Frame().Notices().Object().EnumAdvise(sinks); });
}

HRESULT OleObjectPart::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? Frame().Class().miscStatus : 0;
  return S_OK;
}

// The user's own colours are good enough.
HRESULT OleObjectPart::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

}  // namespace sifter
