#pragma once

#include <utility>

namespace sifter {

// Sets a flag until the end of the scope, which puts back what it was before.
class FlagScope {
 public:
  explicit FlagScope(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~FlagScope() { flag_ = before_; }
  FlagScope(const FlagScope&) = delete;
  FlagScope& operator=(const FlagScope&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace sifter
