#pragma once

#include <cassert>
#include <oleauto.h>
#include <windows.h>

namespace sifter {

// Sole ownership of a VARIANT and of what it holds; VT_EMPTY at first. Look at its type before its
// value. Variants.h turns it into a Value and back.
class UniqueVariant {
 public:
  UniqueVariant() noexcept { VariantInit(&variant_); }
  // Takes over `variant`; the caller's copy must not be cleared any more.
  explicit UniqueVariant(const VARIANT& variant) noexcept : variant_(variant) {}
  UniqueVariant(UniqueVariant&& other) noexcept : variant_(other.Release()) {}
  UniqueVariant& operator=(UniqueVariant&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~UniqueVariant() { VariantClear(&variant_); }

  // The argument that stands for one that the caller left out.
  static UniqueVariant Omitted() noexcept {
    UniqueVariant omitted;
    omitted.variant_.vt = VT_ERROR;
    omitted.variant_.scode = DISP_E_PARAMNOTFOUND;
    return omitted;
  }

  VARTYPE Type() const noexcept { return variant_.vt; }
  const VARIANT& Get() const noexcept { return variant_; }

  // To be passed where a callee reads it or changes it in place.
  VARIANT* Address() noexcept { return &variant_; }

  // Where a function puts a VARIANT for us, without clearing what is there. Nothing may be held at
  // that time.
  VARIANT* Receive() noexcept {
    assert(variant_.vt == VT_EMPTY);
    return &variant_;
  }

  // Gives up the ownership of what it holds.
  [[nodiscard]] VARIANT Release() noexcept {
    const VARIANT released = variant_;
    VariantInit(&variant_);
    return released;
  }

  void Reset() noexcept { Reset(VARIANT{}); }
  // Clears what is held and takes over `variant`. Clearing may run foreign code, which finds the
  // new one here already.
  void Reset(const VARIANT& variant) noexcept {
    VARIANT old = variant_;
    variant_ = variant;
    VariantClear(&old);
  }

 private:
  VARIANT variant_;
};

}  // namespace sifter
