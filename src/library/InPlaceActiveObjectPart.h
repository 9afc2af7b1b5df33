#pragma once

#include "library/FramePart.h"

#include <oleidl.h>

namespace sifter {

// The control while it has the focus: the host's frame passes the keyboard on to it.
class InPlaceActiveObjectPart final : public FramePart<IOleInPlaceActiveObject> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
  HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL active) override;
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override {
    return S_OK;  // it has no tools around the host's window
  }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }
};

}  // namespace sifter
