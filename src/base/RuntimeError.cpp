#include "base/RuntimeError.h"

#include <utility>

namespace sifter {

namespace {

Text DescriptionOf(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::kInvalidProcedureCall:
      return u"Invalid procedure call or argument"_text;
    case ErrorNumber::kOverflow:
      return u"Overflow"_text;
    case ErrorNumber::kOutOfMemory:
      return u"Out of memory"_text;
    case ErrorNumber::kSubscriptOutOfRange:
      return u"Subscript out of range"_text;
    case ErrorNumber::kTypeMismatch:
      return u"Type mismatch"_text;
    case ErrorNumber::kObjectNotSet:
      return u"Object variable or With block variable not set"_text;
    case ErrorNumber::kInvalidUseOfNull:
      return u"Invalid use of Null"_text;
    case ErrorNumber::kControlArrayElement:
      return u"Control array element doesn't exist"_text;
    case ErrorNumber::kInvalidPropertyValue:
      return u"Invalid property value"_text;
    case ErrorNumber::kFormAlreadyDisplayed:
      return u"Form already displayed; can't show modally"_text;
    case ErrorNumber::kObjectRequired:
      return u"Object required"_text;
    case ErrorNumber::kMemberNotSupported:
      return u"Object doesn't support this property or method"_text;
    case ErrorNumber::kWrongArguments:
      return u"Wrong number of arguments or invalid property assignment"_text;
    case ErrorNumber::kDuplicateKey:
      return u"This key is already associated with an element of this collection"_text;
  }
  return Text();
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number)
    : RuntimeError(static_cast<std::int32_t>(number), DescriptionOf(number)) {}

RuntimeError::RuntimeError(std::int32_t number, Text description)
    : number_(number),
      description_(std::move(description)),
      what_(std::to_string(number_) + ": " + description_.ToUtf8()) {}

RuntimeError RuntimeError::ControlArrayElement(std::int32_t index) {
  return RuntimeError(
      static_cast<std::int32_t>(ErrorNumber::kControlArrayElement),
      Concat({u"Control array element '", IntegerToText(index).View(), u"' doesn't exist"}));
}

}  // namespace sifter
