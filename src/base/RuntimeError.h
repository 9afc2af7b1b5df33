#pragma once

#include "base/Text.h"

#include <cstdint>
#include <exception>
#include <string>

namespace sifter {

// The numbers under which automation hosts know the run-time errors that the system raises itself.
// An error that comes from a host's list keeps the host's own number, whatever it is.
enum class ErrorNumber : std::int32_t {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kTypeMismatch = 13,
  kObjectNotSet = 91,
  kInvalidUseOfNull = 94,
  kControlArrayElement = 340,
  kInvalidPropertyValue = 380,
  kFormAlreadyDisplayed = 400,
  kObjectRequired = 424,
  kMemberNotSupported = 438,
  kWrongArguments = 450,
  kDuplicateKey = 457,
};

// A run-time error as hosts see it: a number and a description. It is thrown inside the library
// and turned into the platform's form of an error at the outer edge.
class RuntimeError : public std::exception {
 public:
  // With the description that belongs to the number.
  explicit RuntimeError(ErrorNumber number);
  RuntimeError(std::int32_t number, Text description);

  std::int32_t Number() const noexcept { return number_; }
  const Text& Description() const noexcept { return description_; }

  // "13: Type mismatch", for logs and test failures.
  const char* what() const noexcept override { return what_.c_str(); }

  // "Control array element '4' doesn't exist".
  static RuntimeError ControlArrayElement(std::int32_t index);

 private:
  std::int32_t number_;
  Text description_;
  std::string what_;
};

}  // namespace sifter
