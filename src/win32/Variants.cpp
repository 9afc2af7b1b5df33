#include "win32/Variants.h"

#include "base/RuntimeError.h"
#include "win32/Errors.h"
#include "win32/UniqueBstr.h"

#include <cstdint>
#include <limits>
#include <oleauto.h>
#include <utility>

namespace sifter {

namespace {

template <class Integer>
Value WholeNumber(Integer number) {
  if (std::in_range<std::int32_t>(number)) return static_cast<std::int32_t>(number);
  return static_cast<double>(number);
}

Value ObjectValue(IUnknown* object) {
  if (object == nullptr) return Ref<Object>();
  return Ref<Object>(ComObject::Of(object));
}

double FromCurrency(CY currency) {
  double number = 0;
  ThrowIfFailed(VarR8FromCy(currency, &number));
  return number;
}

double FromDecimal(DECIMAL decimal) {
  double number = 0;
  ThrowIfFailed(VarR8FromDec(&decimal, &number));
  return number;
}

Value ValueOfReference(const VARIANT& variant) {
  if (variant.byref == nullptr) throw RuntimeError(ErrorNumber::kTypeMismatch);
  if (variant.vt == (VT_BYREF | VT_VARIANT)) return ValueFromVariant(*variant.pvarVal);
  VARIANT source = variant;
  UniqueVariant copy;
  ThrowIfFailed(VariantCopyInd(copy.Receive(), &source));
  return ValueFromVariant(copy.Get());
}

VARIANT ObjectVariant(const Ref<Object>& object) {
  VARIANT variant{};
  variant.vt = VT_DISPATCH;
  if (!object) return variant;
  const auto* const host = dynamic_cast<const ComObject*>(object.Get());
  if (host == nullptr) throw RuntimeError(ErrorNumber::kTypeMismatch);
  if (host->Dispatch() != nullptr) {
    variant.pdispVal = ComRef<IDispatch>(host->Dispatch()).Release();
  } else {
    variant.vt = VT_UNKNOWN;
    variant.punkVal = ComRef<IUnknown>(host->Identity()).Release();
  }
  return variant;
}

}  // namespace

Value ValueFromVariant(const VARIANT& variant) {
  if ((variant.vt & VT_ARRAY) != 0) throw RuntimeError(ErrorNumber::kTypeMismatch);
  if ((variant.vt & VT_BYREF) != 0) return ValueOfReference(variant);
  switch (variant.vt) {
    case VT_EMPTY:
      return Value();
    case VT_NULL:
      return Value::Null();
    case VT_ERROR:
      if (variant.scode == DISP_E_PARAMNOTFOUND) return Value();
      break;
    case VT_BOOL:
      return variant.boolVal != VARIANT_FALSE;
    case VT_I1:
      return std::int16_t{static_cast<signed char>(variant.cVal)};
    case VT_UI1:
      return std::int16_t{variant.bVal};
    case VT_I2:
      return std::int16_t{variant.iVal};
    case VT_UI2:
      return std::int32_t{variant.uiVal};
    case VT_I4:
    case VT_INT:
      return WholeNumber(variant.lVal);
    case VT_UI4:
    case VT_UINT:
      return WholeNumber(variant.ulVal);
    case VT_I8:
      return WholeNumber(variant.llVal);
    case VT_UI8:
      return WholeNumber(variant.ullVal);
    case VT_R4:
      return double{variant.fltVal};
    case VT_R8:
      return variant.dblVal;
    case VT_CY:
      return FromCurrency(variant.cyVal);
    case VT_DECIMAL:
      return FromDecimal(variant.decVal);
    case VT_DATE:
      return Date{variant.date};
    case VT_BSTR:
      return Text(BstrView(variant.bstrVal));
    case VT_DISPATCH:
      return ObjectValue(variant.pdispVal);
    case VT_UNKNOWN:
      return ObjectValue(variant.punkVal);
    default:
      break;
  }
  throw RuntimeError(ErrorNumber::kTypeMismatch);
}

UniqueVariant VariantFromValue(const Value& value) {
  VARIANT made{};
  if (value.IsNull()) {
    made.vt = VT_NULL;
  } else if (const bool* const boolean = value.As<bool>()) {
    made.vt = VT_BOOL;
    made.boolVal = *boolean ? VARIANT_TRUE : VARIANT_FALSE;
  } else if (const std::int16_t* const narrow = value.As<std::int16_t>()) {
    made.vt = VT_I2;
    made.iVal = *narrow;
  } else if (const std::int32_t* const whole = value.As<std::int32_t>()) {
    made.vt = VT_I4;
    made.lVal = *whole;
  } else if (const double* const number = value.As<double>()) {
    made.vt = VT_R8;
    made.dblVal = *number;
  } else if (const Date* const date = value.As<Date>()) {
    made.vt = VT_DATE;
    made.date = date->serial;
  } else if (const Text* const text = value.As<Text>()) {
    made.vt = VT_BSTR;
    made.bstrVal = UniqueBstr(text->View()).Release();
  } else if (const Ref<Object>* const object = value.As<Ref<Object>>()) {
    made = ObjectVariant(*object);
  }
  return UniqueVariant(made);
}

}  // namespace sifter
