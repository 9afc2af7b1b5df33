#pragma once

#include <utility>

namespace sifter {

// Raises an event, if anybody listens. The handler may put another one in its own place meanwhile,
// so it is called as a copy.
template <class Handler, class... Arguments>
void Raise(Handler handler, Arguments&&... arguments) {
  if (handler) handler(std::forward<Arguments>(arguments)...);
}

}  // namespace sifter
