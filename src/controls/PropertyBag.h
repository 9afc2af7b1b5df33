#pragma once

#include "base/Text.h"
#include "base/Value.h"

namespace sifter {

// Port: where a container keeps the design-time settings of the controls on its form, by name.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;

  // Empty when the bag has no such entry. Any error of the container's comes out.
  virtual Value ReadProperty(TextView key) = 0;
  virtual void WriteProperty(TextView key, const Value& value) = 0;
};

}  // namespace sifter
