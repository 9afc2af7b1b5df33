#pragma once

#include "library/FramePart.h"

#include <oaidl.h>

namespace sifter {

// Tells which of the control's interfaces leave descriptions of their errors.
class SupportErrorInfoPart final : public FramePart<ISupportErrorInfo> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override;
};

}  // namespace sifter
