#pragma once

#include "about/VersionInfo.h"

namespace sifter {

// What the file of the module that this code is part of (the library, not the program that has
// loaded it) says in its version resource, read anew each time. Without such a resource all is
// empty and 0.
class ModuleVersionInfo final : public VersionInfo {
 public:
  Text FileDescription() const override;
  Text LegalCopyright() const override;
  std::uint16_t MajorVersion() const override;
  std::uint16_t MinorVersion() const override;
};

}  // namespace sifter
