#include "container/Variant.h"

#include "container/Bstr.h"
#include "container/Failure.h"

#include <utility>

namespace hosts {

Variant::Variant(bool value) noexcept : Variant() {
  variant_.vt = VT_BOOL;
  variant_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(int value) noexcept : Variant() {
  variant_.vt = VT_I4;
  variant_.lVal = value;
}

Variant::Variant(std::wstring_view text) : Variant() {
  variant_.bstrVal = Bstr(text).Release();
  variant_.vt = VT_BSTR;
}

Variant::Variant(IDispatch* object) noexcept : Variant() {
  variant_.vt = VT_DISPATCH;
  variant_.pdispVal = ComRef<IDispatch>(object).Release();
}

Variant::Variant(const VARIANT& other) : Variant() {
  // The function reads its source only, but doesn't say so everywhere.
  Check(VariantCopyInd(&variant_, const_cast<VARIANT*>(&other)), L"Copying a value");
}

Variant::Variant(Variant&& other) noexcept : Variant() { std::swap(variant_, other.variant_); }

Variant& Variant::operator=(Variant other) noexcept {
  std::swap(variant_, other.variant_);
  return *this;
}

Variant::~Variant() { VariantClear(&variant_); }

Variant Variant::Missing() noexcept {
  Variant missing;
  missing.variant_.vt = VT_ERROR;
  missing.variant_.scode = DISP_E_PARAMNOTFOUND;
  return missing;
}

bool Variant::IsMissing() const noexcept {
  return variant_.vt == VT_ERROR && variant_.scode == DISP_E_PARAMNOTFOUND;
}

VARIANT* Variant::Receive() noexcept {
  VariantClear(&variant_);
  return &variant_;
}

void Variant::MoveTo(VARIANT* target) noexcept {
  *target = variant_;
  VariantInit(&variant_);
}

Variant Variant::Converted(VARTYPE type) const {
  Variant converted;
  Check(VariantChangeTypeEx(&converted.variant_, const_cast<VARIANT*>(&variant_),
                            LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL, type),
        L"Converting a value");
  return converted;
}

std::wstring Variant::Text() const {
  const Variant text = Converted(VT_BSTR);
  return {text.variant_.bstrVal, SysStringLen(text.variant_.bstrVal)};
}

int Variant::Number() const { return Converted(VT_I4).variant_.lVal; }

bool Variant::Truth() const { return Converted(VT_BOOL).variant_.boolVal != VARIANT_FALSE; }

ComRef<IDispatch> Variant::Object() const {
  return ComRef<IDispatch>(Converted(VT_DISPATCH).variant_.pdispVal);
}

}  // namespace hosts
