#pragma once

#include <cstdint>
#include <optional>

namespace sifter {

// Port: the host's form that a control has been placed on.
class Container {
 public:
  virtual ~Container() = default;

  // The background of the form; nothing when the container doesn't tell.
  virtual std::optional<std::int32_t> AmbientBackColor() const = 0;
};

}  // namespace sifter
