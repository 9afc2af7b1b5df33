#pragma once

#include "base/RuntimeError.h"

#include <string>
#include <utility>

namespace sifter {

// What a piece of work raises: "9: Subscript out of range", or "nothing".
template <class Work>
std::string ErrorOf(Work&& work) {
  try {
    std::forward<Work>(work)();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return "nothing";
}

inline const char* const kOverflowError = "6: Overflow";
inline const char* const kBadPositionError = "9: Subscript out of range";
inline const char* const kBadKeyError = "5: Invalid procedure call or argument";
inline const char* const kTakenKeyError =
    "457: This key is already associated with an element of this collection";
inline const char* const kMissingMemberError =
    "438: Object doesn't support this property or method";

}  // namespace sifter
