#pragma once

#include "library/FramePart.h"

#include <ocidl.h>

namespace sifter {

// Everything that a container would ask and tell one by one when it loads a control, in one call.
class QuickActivatePart final : public FramePart<IQuickActivate> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
  HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL size) override;
  HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL size) override;
};

}  // namespace sifter
