#pragma once

#include "base/Value.h"
#include "win32/ComRef.h"
#include "win32/LateBoundListNames.h"
#include "win32/UniqueExcepInfo.h"
#include "win32/UniqueVariant.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <oaidl.h>
#include <span>
#include <windows.h>

namespace sifter {

// One object of a host's list, called by the names of its members. The object's errors come out as
// run-time errors with its own numbers and texts.
class LateBoundObject {
 public:
  LateBoundObject(Ref<LateBoundClasses> classes, ComRef<IDispatch> object, LateBoundRole role);

  // A property without parameters.
  Value Read(LateBoundMember member) const;

  // A property that leads to an object. Error 91 when there is none, 424 when it is no object.
  ComRef<IDispatch> ReadObject(LateBoundMember member) const;

  // An element: a property or function with one parameter.
  UniqueVariant ReadAt(LateBoundMember member, const Value& index) const;
  ComRef<IDispatch> ReadObjectAt(LateBoundMember member, const Value& index) const;

  // Assigns an object as an object, anything else as a value.
  void Write(LateBoundMember member, const Value& value) const;
  void WriteAt(LateBoundMember member, const Value& index, const Value& value) const;

  // A method. Arguments that are empty are left out of the call; script objects want the places of
  // them all.
  UniqueVariant Call(LateBoundMember member, std::initializer_list<Value> arguments = {}) const;
  ComRef<IDispatch> CallForObject(LateBoundMember member,
                                  std::initializer_list<Value> arguments) const;

  const Ref<LateBoundClasses>& Classes() const { return classes_; }
  IDispatch* Get() const { return object_.Get(); }

 private:
  HRESULT Try(DISPID id, WORD flags, DISPPARAMS& arguments, UniqueVariant& result,
              UniqueExcepInfo& error) const;
  UniqueVariant Invoke(DISPID id, WORD flags, DISPPARAMS& arguments) const;
  UniqueVariant ReadVariant(LateBoundMember member) const;
  void WriteVariants(LateBoundMember member, std::span<VARIANT> valueAndIndex) const;

  Ref<LateBoundClasses> classes_;
  ComRef<IDispatch> object_;
  mutable std::unique_ptr<LateBoundIds> own_;
  LateBoundIds* ids_;
};

}  // namespace sifter
