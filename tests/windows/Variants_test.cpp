#include "win32/Variants.h"

#include "AllocationSpy.h"
#include "ComFakes.h"
#include "base/RuntimeError.h"
#include "support/Errors.h"
#include "support/LifeProbe.h"
#include "support/Printers.h"
#include "win32/UniqueBstr.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <thread>
#include <typeinfo>

namespace sifter {
namespace {

constexpr const char* kTypeMismatch = "13: Type mismatch";

// Values of different widths are equal; here the width matters.
std::string Typed(const Value& value) {
  if (value.Is<std::int16_t>()) return "16-bit " + Shown(value);
  if (value.Is<std::int32_t>()) return "32-bit " + Shown(value);
  if (value.Is<double>()) return "double " + Shown(value);
  return Shown(value);
}

VARIANT Made(VARTYPE type, const std::function<void(VARIANT&)>& fill = {}) {
  VARIANT variant{};
  variant.vt = type;
  if (fill) fill(variant);
  return variant;
}

DECIMAL Decimal(double number) {
  DECIMAL decimal{};
  VarDecFromR8(number, &decimal);
  return decimal;
}

TEST(Variants, BecomeValues) {
  const UniqueBstr text(u"text\u00E4");
  const struct {
    const char* name;
    VARIANT variant;
    const char* value;
  } cases[] = {
      {"empty", Made(VT_EMPTY), "Empty"},
      {"null", Made(VT_NULL), "Null"},
      {"left out", Made(VT_ERROR, [](VARIANT& v) { v.scode = DISP_E_PARAMNOTFOUND; }), "Empty"},
      {"true", Made(VT_BOOL, [](VARIANT& v) { v.boolVal = VARIANT_TRUE; }), "True"},
      {"true of other makers", Made(VT_BOOL, [](VARIANT& v) { v.boolVal = 1; }), "True"},
      {"false", Made(VT_BOOL), "False"},
      {"8 bits", Made(VT_I1, [](VARIANT& v) { v.cVal = static_cast<char>(-5); }), "16-bit -5"},
      {"byte", Made(VT_UI1, [](VARIANT& v) { v.bVal = 255; }), "16-bit 255"},
      {"16 bits", Made(VT_I2, [](VARIANT& v) { v.iVal = -32768; }), "16-bit -32768"},
      {"16 bits unsigned", Made(VT_UI2, [](VARIANT& v) { v.uiVal = 65535; }), "32-bit 65535"},
      {"32 bits", Made(VT_I4, [](VARIANT& v) { v.lVal = -70000; }), "32-bit -70000"},
      {"machine integer", Made(VT_INT, [](VARIANT& v) { v.intVal = 7; }), "32-bit 7"},
      {"32 bits unsigned", Made(VT_UI4, [](VARIANT& v) { v.ulVal = 7; }), "32-bit 7"},
      {"too large for 32 bits", Made(VT_UI4, [](VARIANT& v) { v.ulVal = 4294967295u; }),
       "double 4294967295"},
      {"machine integer unsigned", Made(VT_UINT, [](VARIANT& v) { v.uintVal = 3000000000u; }),
       "double 3e+09"},
      {"64 bits", Made(VT_I8, [](VARIANT& v) { v.llVal = -7; }), "32-bit -7"},
      {"64 bits that need them", Made(VT_I8, [](VARIANT& v) { v.llVal = -(1LL << 40); }),
       "double -1099511627776"},
      {"64 bits unsigned", Made(VT_UI8, [](VARIANT& v) { v.ullVal = 1ULL << 63; }),
       "double 9223372036854775808"},
      {"single", Made(VT_R4, [](VARIANT& v) { v.fltVal = 1.5f; }), "double 1.5"},
      {"double", Made(VT_R8, [](VARIANT& v) { v.dblVal = -0.1; }), "double -0.1"},
      {"currency", Made(VT_CY, [](VARIANT& v) { v.cyVal.int64 = 12345; }), "double 1.2345"},
      {"date", Made(VT_DATE, [](VARIANT& v) { v.date = 38357.25; }), "#38357.25#"},
      {"text", Made(VT_BSTR, [&](VARIANT& v) { v.bstrVal = text.Get(); }), "\"text\u00E4\""},
      {"null text", Made(VT_BSTR), "\"\""},
      {"nothing", Made(VT_DISPATCH), "Nothing"},
      {"nothing unknown", Made(VT_UNKNOWN), "Nothing"},
  };
  for (const auto& c : cases) EXPECT_EQ(Typed(ValueFromVariant(c.variant)), c.value) << c.name;

  VARIANT decimal{};
  decimal.decVal = Decimal(-12.75);  // shares its place with the type
  decimal.vt = VT_DECIMAL;
  EXPECT_EQ(Typed(ValueFromVariant(decimal)), "double -12.75");
}

TEST(Variants, AreRefusedWhenTheModelHasNoWordForThem) {
  const struct {
    const char* name;
    VARIANT variant;
  } cases[] = {
      {"error code", Made(VT_ERROR, [](VARIANT& v) { v.scode = E_FAIL; })},
      {"array", Made(VT_ARRAY | VT_VARIANT)},
      {"array by reference", Made(VT_BYREF | VT_ARRAY | VT_I4)},
      {"record", Made(VT_RECORD)},
      {"type of no variant", Made(VT_SAFEARRAY)},
      {"reference to nowhere", Made(VT_BYREF | VT_I4)},
      {"reference to no variant", Made(VT_BYREF | VT_VARIANT)},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ErrorOf([&] { ValueFromVariant(c.variant); }), kTypeMismatch) << c.name;
}

TEST(Variants, AreFollowedWhenTheyAreReferences) {
  LONG whole = 70000;
  VARIANT_BOOL boolean = VARIANT_TRUE;
  double number = 2.5;
  UniqueBstr text(u"referred");
  BSTR place = text.Get();
  ComObjectFake object;
  IDispatch* dispatch = &object;
  DECIMAL decimal = Decimal(7.5);
  VARIANT inner = Made(VT_BYREF | VT_I4, [&](VARIANT& v) { v.plVal = &whole; });
  VARIANT middle = Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { v.pvarVal = &inner; });
  const struct {
    const char* name;
    VARIANT variant;
    const char* value;
  } cases[] = {
      {"32 bits", inner, "32-bit 70000"},
      {"Boolean", Made(VT_BYREF | VT_BOOL, [&](VARIANT& v) { v.pboolVal = &boolean; }), "True"},
      {"double", Made(VT_BYREF | VT_R8, [&](VARIANT& v) { v.pdblVal = &number; }), "double 2.5"},
      {"text", Made(VT_BYREF | VT_BSTR, [&](VARIANT& v) { v.pbstrVal = &place; }), "\"referred\""},
      {"object", Made(VT_BYREF | VT_DISPATCH, [&](VARIANT& v) { v.ppdispVal = &dispatch; }),
       "object"},
      {"decimal", Made(VT_BYREF | VT_DECIMAL, [&](VARIANT& v) { v.pdecVal = &decimal; }),
       "double 7.5"},
      {"variant", middle, "32-bit 70000"},
      {"variant of a variant",
       Made(VT_BYREF | VT_VARIANT, [&](VARIANT& v) { v.pvarVal = &middle; }), "32-bit 70000"},
  };
  for (const auto& c : cases) EXPECT_EQ(Typed(ValueFromVariant(c.variant)), c.value) << c.name;
  EXPECT_EQ(object.References(), 0);
}

TEST(Variants, AreMadeOfValues) {
  const struct {
    const char* name;
    Value value;
    VARTYPE type;
  } cases[] = {
      {"empty", Value(), VT_EMPTY},
      {"null", Value::Null(), VT_NULL},
      {"true", true, VT_BOOL},
      {"false", false, VT_BOOL},
      {"16 bits", std::int16_t{-3}, VT_I2},
      {"32 bits", std::int32_t{70000}, VT_I4},
      {"double", 0.1, VT_R8},
      {"date", Date{38357.25}, VT_DATE},
      {"text", u"text\u00E4", VT_BSTR},
      {"empty text", u"", VT_BSTR},
      {"nothing", Ref<Object>(), VT_DISPATCH},
  };
  for (const auto& c : cases) {
    const UniqueVariant variant = VariantFromValue(c.value);
    EXPECT_EQ(variant.Type(), c.type) << c.name;
    EXPECT_EQ(Typed(ValueFromVariant(variant.Get())), Typed(c.value)) << c.name;
  }
  EXPECT_EQ(VariantFromValue(true).Get().boolVal, VARIANT_TRUE);
  EXPECT_NE(VariantFromValue(u"").Get().bstrVal, nullptr);
}

TEST(Variants, KeepZerosInTexts) {
  const Text text(TextView(u"a\0b", 3));
  EXPECT_EQ(ValueFromVariant(VariantFromValue(text).Get()), Value(text));
}

TEST(Variants, KeepHostsObjectsAliveAsLongAsTheValue) {
  ComObjectFake object;
  const VARIANT variant = Made(VT_DISPATCH, [&](VARIANT& v) { v.pdispVal = &object; });
  {
    const Value value = ValueFromVariant(variant);
    EXPECT_GT(object.References(), 0);
    const UniqueVariant handedBack = VariantFromValue(value);
    EXPECT_EQ(handedBack.Type(), VT_DISPATCH);
    EXPECT_EQ(handedBack.Get().pdispVal, static_cast<IDispatch*>(&object));
  }
  EXPECT_EQ(object.References(), 0);
}

TEST(Variants, HandBackObjectsThatCannotBeCalledLateBound) {
  ComObjectFake object(false);
  const VARIANT variant = Made(VT_UNKNOWN, [&](VARIANT& v) { v.punkVal = object.Identity(); });
  {
    const UniqueVariant handedBack = VariantFromValue(ValueFromVariant(variant));
    EXPECT_EQ(handedBack.Type(), VT_UNKNOWN);
    EXPECT_EQ(handedBack.Get().punkVal, object.Identity());
  }
  EXPECT_EQ(object.References(), 0);
}

TEST(Variants, AreEqualWhenTheyHoldTheSameObject) {
  ComObjectFake object;
  ComObjectFake other;
  const auto dispatch = [](ComObjectFake& fake) {
    return ValueFromVariant(Made(VT_DISPATCH, [&](VARIANT& v) { v.pdispVal = &fake; }));
  };
  const auto unknown = [](ComObjectFake& fake) {
    return ValueFromVariant(Made(VT_UNKNOWN, [&](VARIANT& v) { v.punkVal = fake.Identity(); }));
  };
  EXPECT_EQ(dispatch(object), dispatch(object));
  EXPECT_EQ(dispatch(object), unknown(object));
  EXPECT_FALSE(dispatch(object) == dispatch(other));
  EXPECT_FALSE(dispatch(object) == Value(Ref<Object>()));
  EXPECT_EQ(object.References(), 0);
  EXPECT_EQ(other.References(), 0);
}

// References are not counted across threads.
TEST(Variants, AreApartOnEachThread) {
  ComObjectFake object;
  const Ref<ComObject> here = ComObject::Of(object.Identity());
  const ComObject* there = nullptr;
  std::thread([&] { there = ComObject::Of(object.Identity()).Get(); }).join();
  EXPECT_NE(there, here.Get());
}

TEST(Variants, DoNotHandOutObjectsOfTheSystem) {
  int alive = 0;
  const Value value = Ref<Object>(new LifeProbe(alive));
  EXPECT_EQ(ErrorOf([&] { VariantFromValue(value); }), kTypeMismatch);
}

TEST(Variants, LeaveNoTextsBehind) {
  if (!AllocationSpy::SeesBstrs()) GTEST_SKIP() << "BSTRs can be counted with OANOCACHE=1 only";
  const AllocationSpy spy;
  UniqueBstr text(u"referred");
  BSTR place = text.Get();
  const VARIANT reference = Made(VT_BYREF | VT_BSTR, [&](VARIANT& v) { v.pbstrVal = &place; });
  EXPECT_EQ(ValueFromVariant(reference), Value(u"referred"));
  VariantFromValue(u"made");
  EXPECT_EQ(spy.Alive(), 1);
}

}  // namespace
}  // namespace sifter
