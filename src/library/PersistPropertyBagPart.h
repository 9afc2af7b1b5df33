#pragma once

#include "library/FramePart.h"

#include <ocidl.h>

namespace sifter {

// Loading from and saving to the container's property bag.
class PersistPropertyBagPart final : public FramePart<IPersistPropertyBag> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE InitNew() override;
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* errors) override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL saveAll) override;
};

}  // namespace sifter
