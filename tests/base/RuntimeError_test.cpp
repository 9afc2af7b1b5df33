#include "base/RuntimeError.h"

#include "base/AbsorbErrors.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace sifter {
namespace {

TEST(RuntimeError, CarriesTheDescriptionThatBelongsToItsNumber) {
  const struct {
    ErrorNumber number;
    const char* what;
  } cases[] = {
      {ErrorNumber::kInvalidProcedureCall, "5: Invalid procedure call or argument"},
      {ErrorNumber::kOverflow, "6: Overflow"},
      {ErrorNumber::kOutOfMemory, "7: Out of memory"},
      {ErrorNumber::kSubscriptOutOfRange, "9: Subscript out of range"},
      {ErrorNumber::kTypeMismatch, "13: Type mismatch"},
      {ErrorNumber::kObjectNotSet, "91: Object variable or With block variable not set"},
      {ErrorNumber::kInvalidUseOfNull, "94: Invalid use of Null"},
      {ErrorNumber::kControlArrayElement, "340: Control array element doesn't exist"},
      {ErrorNumber::kInvalidPropertyValue, "380: Invalid property value"},
      {ErrorNumber::kFormAlreadyDisplayed, "400: Form already displayed; can't show modally"},
      {ErrorNumber::kObjectRequired, "424: Object required"},
      {ErrorNumber::kMemberNotSupported, "438: Object doesn't support this property or method"},
      {ErrorNumber::kWrongArguments,
       "450: Wrong number of arguments or invalid property assignment"},
      {ErrorNumber::kDuplicateKey,
       "457: This key is already associated with an element of this collection"},
  };
  for (const auto& c : cases) EXPECT_STREQ(RuntimeError(c.number).what(), c.what);
}

TEST(RuntimeError, KeepsNumberAndDescriptionOfAHostsOwnError) {
  const RuntimeError error(35600, u"Index out of bounds");
  EXPECT_EQ(error.Number(), 35600);
  EXPECT_EQ(error.Description(), u"Index out of bounds");
  EXPECT_STREQ(error.what(), "35600: Index out of bounds");
}

TEST(RuntimeError, NamesTheMissingElementOfAControlArray) {
  EXPECT_STREQ(RuntimeError::ControlArrayElement(4).what(),
               "340: Control array element '4' doesn't exist");
  EXPECT_STREQ(RuntimeError::ControlArrayElement(-1).what(),
               "340: Control array element '-1' doesn't exist");
}

TEST(AbsorbErrors, SaysWhetherTheWorkRanToItsEnd) {
  EXPECT_TRUE(AbsorbErrors([] {}));
  EXPECT_FALSE(AbsorbErrors([] { throw RuntimeError(ErrorNumber::kTypeMismatch); }));
  EXPECT_FALSE(AbsorbErrors([] { throw std::bad_alloc(); }));
}

TEST(AbsorbErrors, LeavesWhatWasChangedBeforeTheError) {
  int steps = 0;
  AbsorbErrors([&] {
    ++steps;
    throw RuntimeError(ErrorNumber::kOverflow);
  });
  EXPECT_EQ(steps, 1);
}

TEST(AbsorbErrors, LetsMistakesOfOurOwnThrough) {
  EXPECT_THROW(AbsorbErrors([] { throw std::logic_error("ours"); }), std::logic_error);
}

}  // namespace
}  // namespace sifter
