#pragma once

#include "win32/ComRef.h"
#include "win32/ComResult.h"

#include <unknwn.h>
#include <utility>
#include <windows.h>

namespace sifter {

// One interface of an object that has many. What IUnknown is asked it passes on to the object.
template <class Interface>
class ComPart : public Interface {
 public:
  // `whole` is the object's identity and outlives the part.
  explicit ComPart(IUnknown& whole) noexcept : whole_(whole) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    return whole_.QueryInterface(id, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return whole_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return whole_.Release(); }

 protected:
  // The body of a method, which returns its result code. The host may drop its last reference
  // while it runs; the object lives until it is over.
  template <class Work>
  HRESULT Answer(Work&& work) noexcept {
    const ComRef<IUnknown> alive(&whole_);
    HRESULT result = S_OK;
    const HRESULT failure = ComResult([&] { result = work(); });
    return FAILED(failure) ? failure : result;
  }

 private:
  IUnknown& whole_;
};

}  // namespace sifter
