#pragma once

#include "library/FramePart.h"
#include "win32/UniqueHandle.h"

#include <ocidl.h>

namespace sifter {

struct AcceleratorTableKind {
  using Handle = HACCEL;
  static void Close(HACCEL table) noexcept { DestroyAcceleratorTable(table); }
};

// The control on a form: its mnemonics, the form's properties, and when events have to wait.
class OleControlPart final : public FramePart<IOleControl> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* information) override;
  HRESULT STDMETHODCALLTYPE OnMnemonic(LPMSG message) override;
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

 private:
  UniqueHandle<AcceleratorTableKind> keys_;  // lent to the host until it asks again
};

}  // namespace sifter
