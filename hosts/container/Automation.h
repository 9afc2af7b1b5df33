#pragma once

#include "container/Variant.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace hosts {

// An object whose members are reached by name, as a script reaches them. Errors come as Failure
// with the object's own description.
class Automation {
 public:
  Automation() = default;
  explicit Automation(ComRef<IDispatch> object) : object_(std::move(object)) {}

  // A new object of a registered class.
  static Automation Create(const std::wstring& progId);

  IDispatch* Object() const noexcept { return object_.Get(); }

  Variant Get(std::wstring_view member, std::initializer_list<Variant> arguments = {}) const;
  Automation GetObject(std::wstring_view member,
                       std::initializer_list<Variant> arguments = {}) const;
  void Put(std::wstring_view member, const Variant& value) const;
  void PutAt(std::wstring_view member, int index, const Variant& value) const;
  void PutReference(std::wstring_view member, IDispatch* value) const;
  Variant Call(std::wstring_view member, std::initializer_list<Variant> arguments = {}) const;

  // The same for arguments that come from elsewhere.
  Variant Call(std::wstring_view member, std::span<const Variant> arguments) const;
  // Whether there is a member of that name.
  bool Has(std::wstring_view member) const noexcept;

 private:
  DISPID Find(std::wstring_view member) const;
  Variant Invoke(std::wstring_view member, WORD kind, std::span<const Variant> arguments) const;

  ComRef<IDispatch> object_;
};

}  // namespace hosts
