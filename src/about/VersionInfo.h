#pragma once

#include "base/Text.h"

#include <cstdint>

namespace sifter {

// Port: what the library's own file says about itself. On Windows it is read from the version
// resource of the module that this code is part of; a headless host says what it likes.
class VersionInfo {
 public:
  virtual ~VersionInfo() = default;

  // Empty where the file carries no such text.
  virtual Text FileDescription() const = 0;
  virtual Text LegalCopyright() const = 0;

  // The first two numbers of the file version, 0 where the file carries none.
  virtual std::uint16_t MajorVersion() const = 0;
  virtual std::uint16_t MinorVersion() const = 0;
};

}  // namespace sifter
