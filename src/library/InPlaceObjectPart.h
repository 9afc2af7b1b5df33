#pragma once

#include "library/FramePart.h"

#include <oleidl.h>

namespace sifter {

// The control's window, as the host's form places and ends it.
class InPlaceObjectPart final : public FramePart<IOleInPlaceObject> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;
  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() override;
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT box, LPCRECT visible) override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }
};

}  // namespace sifter
