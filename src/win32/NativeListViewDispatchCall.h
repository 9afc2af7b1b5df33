#pragma once

#include "base/Text.h"
#include "base/Value.h"

#include <cstddef>
#include <cstdint>
#include <oaidl.h>
#include <optional>
#include <span>
#include <windows.h>

namespace sifter {

// The arguments of one late-bound call in the order of the member's parameters, whether the caller
// gave them by position or by name. Those that were left out are empty.
class DispatchCall {
 public:
  // `parameters` is how many the member has. A call that doesn't fit them has a failed Result().
  DispatchCall(const DISPPARAMS& given, std::size_t parameters, bool isWrite);

  HRESULT Result() const { return result_; }

  // Whether the caller gave more than the first `count` parameters ask for.
  bool Has(std::size_t parameter) const { return slots_[parameter] != nullptr; }

  Value operator[](std::size_t parameter) const;

  // An Index: 0 when it was left out.
  std::int32_t Index(std::size_t parameter) const { return ValueToInt32((*this)[parameter]); }

  // What a property is to be set to.
  Value NewValue() const;

  static constexpr std::size_t kMostParameters = 6;

 private:
  HRESULT Place(const DISPPARAMS& given, std::size_t parameters, bool isWrite);

  const VARIANT* slots_[kMostParameters] = {};  // the caller's; null where left out
  const VARIANT* newValue_ = nullptr;
  HRESULT result_;
};

// A member of an object that is offered late-bound.
struct DispatchMember {
  TextView name;
  DISPID id;
  std::span<const TextView> parameters;
  std::size_t required = 0;  // so many of the parameters can't be left out

  // Calls the method or reads the property, into a result that is empty; null when it can only be
  // written.
  void (*read)(Object& part, const DispatchCall& call, VARIANT* result) = nullptr;

  // Null when it can't be written.
  void (*write)(Object& part, const DispatchCall& call) = nullptr;

  // Arguments given to a property without parameters that leads to a collection are meant for the
  // collection: `list.ListItems(3)`.
  bool isCollection = false;
};

}  // namespace sifter
