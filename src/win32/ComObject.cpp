#include "win32/Errors.h"
#include "win32/Variants.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace sifter {

namespace {

using KnownObjects = std::unordered_map<IUnknown*, ComObject*>;

// There only while it has entries: a thread that ends without values leaves nothing behind.
thread_local KnownObjects* knownObjects = nullptr;

void Remember(IUnknown* identity, ComObject* object) {
  if (knownObjects == nullptr) knownObjects = new KnownObjects;
  knownObjects->emplace(identity, object);
}

void Forget(IUnknown* identity) noexcept {
  knownObjects->erase(identity);
  if (!knownObjects->empty()) return;
  delete knownObjects;
  knownObjects = nullptr;
}

ComObject* Known(IUnknown* identity) {
  if (knownObjects == nullptr) return nullptr;
  const auto known = knownObjects->find(identity);
  return known == knownObjects->end() ? nullptr : known->second;
}

}  // namespace

Ref<ComObject> ComObject::Of(IUnknown* object) {
  ComRef<IUnknown> identity = ComRef<IUnknown>(object).As<IUnknown>(IID_IUnknown);
  if (!identity) throw ErrorFromResult(E_NOINTERFACE);
  if (ComObject* const known = Known(identity.Get())) return Ref<ComObject>(known);
  return Ref<ComObject>(new ComObject(std::move(identity)));
}

ComObject::ComObject(ComRef<IUnknown> identity)
    : identity_(std::move(identity)), dispatch_(identity_.As<IDispatch>(IID_IDispatch)) {
  Remember(identity_.Get(), this);
}

ComObject::~ComObject() { Forget(identity_.Get()); }

}  // namespace sifter
