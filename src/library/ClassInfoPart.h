#pragma once

#include "library/FramePart.h"

#include <ocidl.h>

namespace sifter {

// Tells hosts the control's class in the type library, and which interface its events go through.
class ClassInfoPart final : public FramePart<IProvideClassInfo2> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** information) override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* id) override;
};

}  // namespace sifter
