#pragma once

#include "base/Value.h"
#include "win32/ComRef.h"
#include "win32/UniqueVariant.h"

#include <oaidl.h>
#include <windows.h>

namespace sifter {

// What a host hands over, as a value of the object model. `variant` stays the host's.
//   - An argument that was left out (DISP_E_PARAMNOTFOUND) is empty.
//   - Whole numbers that fit become 16-bit or 32-bit ones, others doubles; currency and decimals
//     become doubles.
//   - An object becomes a ComObject, or no object at all when it is Nothing.
//   - What is passed by reference is followed, through any number of steps.
// Error 13 for arrays, records, error codes and whatever else the object model has no word for.
Value ValueFromVariant(const VARIANT& variant);

// The same value for a host. Texts are never null, not even empty ones. Error 13 for an object that
// no host gave us.
UniqueVariant VariantFromValue(const Value& value);

// A host's object, kept alive for as long as a value holds it. On each thread there is one
// ComObject for one COM object, so that values that hold the same object are equal, whatever
// interfaces it came through.
class ComObject final : public Object {
 public:
  // `object` must not be null.
  static Ref<ComObject> Of(IUnknown* object);

  // Its own IUnknown, by which COM tells objects apart.
  IUnknown* Identity() const { return identity_.Get(); }

  // Null for an object that can't be called late-bound.
  IDispatch* Dispatch() const { return dispatch_.Get(); }

 private:
  explicit ComObject(ComRef<IUnknown> identity);
  ~ComObject() override;

  ComRef<IUnknown> identity_;
  ComRef<IDispatch> dispatch_;
};

}  // namespace sifter
