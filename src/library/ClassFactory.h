#pragma once

#include "library/ControlClass.h"
#include "library/Module.h"

#include <unknwn.h>

namespace sifter {

// Makes controls of one class.
class ClassFactory final : public IClassFactory {
 public:
  // With one reference for the caller.
  static IClassFactory* Make(const ControlClass& made) { return new ClassFactory(made); }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  explicit ClassFactory(const ControlClass& made) noexcept : made_(made) {}
  ~ClassFactory() = default;

  ModuleUse use_;
  const ControlClass& made_;
  ULONG references_ = 1;
};

}  // namespace sifter
