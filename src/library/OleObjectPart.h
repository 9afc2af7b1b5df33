#pragma once

#include "library/FramePart.h"

#include <oleidl.h>
#include <string>

namespace sifter {

// The control as an embedded object: its site, its size, what it can be told to do.
class OleObjectPart final : public FramePart<IOleObject> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR application, LPCOLESTR document) override;
  HRESULT STDMETHODCALLTYPE Close(DWORD saving) override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD which, IMoniker* moniker) override;
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* data, BOOL creation, DWORD reserved) override;
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index,
                                   HWND parent, LPCRECT box) override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
  HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* type) override;
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** sinks) override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* palette) override;

 private:
  HRESULT Show(IOleClientSite* site, bool forUser);
  HRESULT SaveIfDirty(DWORD saving);
};

}  // namespace sifter
