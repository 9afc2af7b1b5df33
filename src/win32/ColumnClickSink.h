#pragma once

#include "base/Ref.h"

#include <cstdint>
#include <functional>
#include <oaidl.h>

namespace sifter {

// Has `clicked` told of the event ColumnClick of a host's list, by the Index of the column header
// that comes with it, for as long as the returned object lives. Null when the list offers no such
// event, or can't be connected to for any other reason.
//
// What is connected holds on to neither the list nor whoever is told.
Ref<Object> WatchColumnClickEvent(IDispatch* list,
                                  std::function<void(std::int32_t column)> clicked);

}  // namespace sifter
