#pragma once

#include "library/Module.h"

#include <unknwn.h>
#include <vector>
#include <windows.h>

namespace sifter {

// A COM object that is put together from parts, one for each interface (ComPart). It ends with its
// last reference, and may be part of another object itself: then the parts answer questions about
// interfaces, and count references, as that one does.
class ComWhole {
 public:
  ComWhole(const ComWhole&) = delete;
  ComWhole& operator=(const ComWhole&) = delete;

  // Who speaks for the object: the outer one, or its own IUnknown.
  IUnknown& Identity() noexcept { return outer_ != nullptr ? *outer_ : own_; }

  // Its own IUnknown, which knows the parts whoever the object belongs to.
  IUnknown* Own() noexcept { return &own_; }

 protected:
  // `outer` is null or outlives the object; it is not counted.
  explicit ComWhole(IUnknown* outer) noexcept : outer_(outer) {}
  virtual ~ComWhole() = default;

  // `part` is borrowed and answers under this identifier from now on.
  void Offer(REFIID id, IUnknown& part) { offered_.push_back({&id, &part}); }

 private:
  class OwnUnknown final : public IUnknown {
   public:
    explicit OwnUnknown(ComWhole& whole) noexcept : whole_(whole) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;

   private:
    ComWhole& whole_;
    ULONG references_ = 1;  // the maker's
  };

  struct Offered {
    const IID* id;
    IUnknown* part;
  };

  ModuleUse use_;
  IUnknown* outer_;
  OwnUnknown own_{*this};
  std::vector<Offered> offered_;
};

}  // namespace sifter
