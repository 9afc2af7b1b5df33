#pragma once

#include "container/ComRef.h"

#include <oaidl.h>
#include <string>
#include <string_view>

namespace hosts {

// A VARIANT that is owned.
class Variant {
 public:
  Variant() noexcept { VariantInit(&variant_); }
  explicit Variant(bool value) noexcept;
  explicit Variant(int value) noexcept;
  explicit Variant(std::wstring_view text);
  explicit Variant(const wchar_t* text) : Variant(std::wstring_view(text)) {}
  explicit Variant(IDispatch* object) noexcept;  // with a reference of its own
  // A copy, with references (VT_BYREF) followed.
  explicit Variant(const VARIANT& other);
  Variant(const Variant& other) : Variant(other.variant_) {}
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant other) noexcept;
  ~Variant();

  // What a call takes for an argument that is left out.
  static Variant Missing() noexcept;

  const VARIANT& Get() const noexcept { return variant_; }
  bool IsMissing() const noexcept;

  // Where a function puts a value for us.
  VARIANT* Receive() noexcept;
  // Gives the value away, into a VARIANT that holds none.
  void MoveTo(VARIANT* target) noexcept;

  // Converted as automation does it; throws Failure where it can't be.
  std::wstring Text() const;
  int Number() const;
  bool Truth() const;
  ComRef<IDispatch> Object() const;

 private:
  Variant Converted(VARTYPE type) const;

  VARIANT variant_;
};

}  // namespace hosts
