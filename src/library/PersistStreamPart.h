#pragma once

#include "library/FramePart.h"

#include <ocidl.h>

namespace sifter {

// Loading from and saving to a stream: the same settings as in a property bag, all of them.
class PersistStreamPart final : public FramePart<IPersistStreamInit> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE IsDirty() override;
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;
  HRESULT STDMETHODCALLTYPE InitNew() override;
};

}  // namespace sifter
