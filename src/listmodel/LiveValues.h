#pragma once

#include "base/RuntimeError.h"
#include "base/Value.h"

namespace sifter {

// A text member of a live list for comparing: one that was never set is "", as its snapshot has
// it; otherwise a list whose tags were never set would never equal its own snapshot. Null is
// error 94.
inline Value TextForComparing(Value live) {
  if (live.IsNull()) throw RuntimeError(ErrorNumber::kInvalidUseOfNull);
  return live.IsEmpty() ? Value(Text()) : live;
}

}  // namespace sifter
