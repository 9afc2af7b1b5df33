#pragma once

#include "library/FramePart.h"

#include <objidl.h>

namespace sifter {

// Loading from and saving to a storage: the stream "Contents" in it holds what a stream would.
// The storage is needed during these calls only, so the control keeps none.
class PersistStoragePart final : public FramePart<IPersistStorage> {
 public:
  using FramePart::FramePart;

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
  HRESULT STDMETHODCALLTYPE IsDirty() override;
  HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoaded) override;
  HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
  HRESULT STDMETHODCALLTYPE HandsOffStorage() override { return S_OK; }

 private:
  bool savedInPlace_ = false;  // into the storage that the control was loaded from
};

}  // namespace sifter
