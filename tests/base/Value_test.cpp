#include "base/Value.h"

#include "base/RuntimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace sifter {
namespace {

class Thing : public Object {
 public:
  explicit Thing(bool* ended = nullptr) : ended_(ended) {}
  ~Thing() override {
    if (ended_ != nullptr) *ended_ = true;
  }

 private:
  bool* ended_;
};

Value Int16(int number) { return Value(static_cast<std::int16_t>(number)); }
Value Int32(int number) { return Value(std::int32_t{number}); }

// What a conversion gives, or the error that comes out of it: "5", "13: Type mismatch".
template <class Convert>
std::string Outcome(Convert convert, const Value& value) {
  try {
    const auto result = convert(value);
    if constexpr (std::is_same_v<decltype(result), const Text>) {
      return result.ToUtf8();
    } else if constexpr (std::is_same_v<decltype(result), const bool>) {
      return result ? "yes" : "no";
    } else {
      return ValueToText(Value(result)).ToUtf8();
    }
  } catch (const RuntimeError& error) {
    return error.what();
  }
}

constexpr const char* kMismatch = "13: Type mismatch";
constexpr const char* kOverflow = "6: Overflow";
constexpr const char* kNull = "94: Invalid use of Null";

struct ConversionCase {
  const char* name;
  Value value;
  std::string outcome;
};

TEST(Value, IsEmptyUntilItIsSet) {
  const Value value;
  EXPECT_TRUE(value.IsEmpty());
  EXPECT_FALSE(value.IsNull());
  EXPECT_FALSE(Value(u"").IsEmpty()) << "an empty text is something";
  const Value null{Value::Null()};
  EXPECT_TRUE(null.IsNull());
  EXPECT_FALSE(null.IsEmpty());
}

TEST(Value, HoldsWhatItWasGiven) {
  EXPECT_EQ(*Value(true).As<bool>(), true);
  EXPECT_EQ(*Int16(-5).As<std::int16_t>(), -5);
  EXPECT_EQ(*Int32(70000).As<std::int32_t>(), 70000);
  EXPECT_EQ(*Value(1.5).As<double>(), 1.5);
  EXPECT_EQ(*Value(Date{2.5}).As<Date>(), Date{2.5});
  EXPECT_EQ(*Value(u"text").As<Text>(), u"text");
  EXPECT_EQ(Value(1.5).As<Text>(), nullptr);
  EXPECT_FALSE(Value(1.5).Is<Date>());
}

TEST(Value, SharesTheTextThatItHolds) {
  const Text text(u"shared");
  const Value value(text);
  EXPECT_TRUE(value.As<Text>()->SharesWith(text));
  const Value copy(value);
  EXPECT_TRUE(copy.As<Text>()->SharesWith(text));
}

TEST(Value, KeepsAnObjectAliveUntilItsLastHolderEnds) {
  bool ended = false;
  {
    Value outer;
    {
      const Value inner(MakeRef<Thing>(&ended));
      outer = inner;
    }
    EXPECT_FALSE(ended);
    const Value moved(std::move(outer));
    EXPECT_FALSE(ended);
  }
  EXPECT_TRUE(ended);
}

TEST(Value, EqualsByTheRulesOfVariants) {
  const Ref<Thing> thing = MakeRef<Thing>();
  const Ref<Thing> other = MakeRef<Thing>();
  const struct {
    const char* name;
    Value a;
    Value b;
    bool equal;
  } cases[] = {
      {"numbers of differing width", Int16(5), Int32(5), true},
      {"whole number and double", Int16(5), Value(5.0), true},
      {"fraction", Int16(5), Value(5.5), false},
      {"true is minus one", Value(true), Int16(-1), true},
      {"true is not one", Value(true), Int16(1), false},
      {"false is zero", Value(false), Value(0.0), true},
      {"date and number", Value(Date{38357}), Int32(38357), true},
      {"date and date", Value(Date{1.5}), Value(Date{1.5}), true},
      {"texts", Value(u"abc"), Value(Text(u"abc")), true},
      {"texts in differing case", Value(u"abc"), Value(u"ABC"), false},
      {"number and its text", Int16(5), Value(u"5"), false},
      {"empty and empty", Value(), Value(), true},
      {"empty and zero", Value(), Int16(0), false},
      {"empty and false", Value(), Value(false), false},
      {"empty and empty text", Value(), Value(u""), false},
      {"empty and null", Value(), Value(Value::Null()), false},
      {"null and null", Value(Value::Null()), Value(Value::Null()), true},
      {"same object", Value(thing), Value(thing), true},
      {"other object", Value(thing), Value(other), false},
      {"object and number", Value(thing), Int16(0), false},
      {"no number", Value(std::nan("")), Value(std::nan("")), false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(c.a == c.b, c.equal) << c.name;
    EXPECT_EQ(c.b == c.a, c.equal) << c.name << ", the other way round";
  }
}

TEST(ValueToText, WritesNumbersAndTexts) {
  const ConversionCase cases[] = {
      {"empty", Value(), ""},
      {"text", Value(u"abc"), "abc"},
      {"true", Value(true), "True"},
      {"false", Value(false), "False"},
      {"whole number", Int16(-5), "-5"},
      {"larger whole number", Int32(2000000000), "2000000000"},
      {"fraction", Value(1.5), "1.5"},
      {"whole double", Value(100000.0), "100000"},
      {"15 digits", Value(0.1 + 0.2), "0.3"},
      {"null", Value(Value::Null()), kNull},
      {"object", Value(MakeRef<Thing>()), kMismatch},
  };
  for (const ConversionCase& c : cases)
    EXPECT_EQ(Outcome(ValueToText, c.value), c.outcome) << c.name;
}

TEST(ValueToBoolean, TakesNumbersAndTheirTextsAndTheTwoWords) {
  const ConversionCase cases[] = {
      {"empty", Value(), "no"},
      {"true", Value(true), "yes"},
      {"zero", Int16(0), "no"},
      {"one", Int16(1), "yes"},
      {"fraction", Value(0.25), "yes"},
      {"word", Value(u"True"), "yes"},
      {"word in capitals", Value(u"FALSE"), "no"},
      {"text of a number", Value(u"-1"), "yes"},
      {"text of zero", Value(u"0"), "no"},
      {"another word", Value(u"yes"), kMismatch},
      {"empty text", Value(u""), kMismatch},
      {"null", Value(Value::Null()), kNull},
      {"object", Value(MakeRef<Thing>()), kMismatch},
  };
  for (const ConversionCase& c : cases)
    EXPECT_EQ(Outcome(ValueToBoolean, c.value), c.outcome) << c.name;
}

TEST(ValueToInt16, RoundsHalvesToTheEvenNumber) {
  const ConversionCase cases[] = {
      {"half", Value(0.5), "0"},
      {"one and a half", Value(1.5), "2"},
      {"two and a half", Value(2.5), "2"},
      {"minus one and a half", Value(-1.5), "-2"},
      {"just above half", Value(0.500001), "1"},
      {"largest", Value(32767.4), "32767"},
      {"half past the largest", Value(32767.5), kOverflow},
      {"least", Value(-32768.5), "-32768"},
      {"below the least", Value(-32768.6), kOverflow},
      {"empty", Value(), "0"},
      {"true", Value(true), "-1"},
      {"text", Value(u" 12 "), "12"},
      {"text with plus", Value(u"+12"), "12"},
      {"text with a fraction", Value(u"12.5"), "12"},
      {"text of a large number", Value(u"40000"), kOverflow},
      {"word", Value(u"pic"), kMismatch},
      {"number and more", Value(u"12a"), kMismatch},
      {"blanks", Value(u"  "), kMismatch},
      {"null", Value(Value::Null()), kNull},
      {"object", Value(MakeRef<Thing>()), kMismatch},
      {"no number", Value(std::nan("")), kOverflow},
      {"infinity", Value(std::numeric_limits<double>::infinity()), kOverflow},
  };
  for (const ConversionCase& c : cases)
    EXPECT_EQ(Outcome(ValueToInt16, c.value), c.outcome) << c.name;
}

TEST(ValueToInt32, EndsAt32Bits) {
  const ConversionCase cases[] = {
      {"past 16 bits", Int32(70000), "70000"},
      {"largest", Value(2147483647.0), "2147483647"},
      {"past the largest", Value(2147483648.0), kOverflow},
      {"least", Value(-2147483648.0), "-2147483648"},
      {"far below", Value(-1e300), kOverflow},
      {"date", Value(Date{38357.25}), "38357"},
  };
  for (const ConversionCase& c : cases)
    EXPECT_EQ(Outcome(ValueToInt32, c.value), c.outcome) << c.name;
}

TEST(ValueToDouble, RoundsNothing) {
  const ConversionCase cases[] = {
      {"fraction", Value(0.5), "0.5"},         {"text", Value(u"-1.5e2"), "-150"},
      {"date", Value(Date{1.25}), "1.25"},     {"infinity as text", Value(u"inf"), kMismatch},
      {"two signs", Value(u"+-5"), kMismatch},
  };
  for (const ConversionCase& c : cases)
    EXPECT_EQ(Outcome(ValueToDouble, c.value), c.outcome) << c.name;
}

}  // namespace
}  // namespace sifter
