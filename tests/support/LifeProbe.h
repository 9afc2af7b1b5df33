#pragma once

#include "base/Ref.h"

namespace sifter {

// An object of a host's, to be kept in a tag or icon: counts how many of its kind are alive.
class LifeProbe final : public Object {
 public:
  explicit LifeProbe(int& alive) : alive_(alive) { ++alive_; }

 private:
  ~LifeProbe() override { --alive_; }

  int& alive_;
};

}  // namespace sifter
