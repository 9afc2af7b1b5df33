#pragma once

#include "about/VersionInfo.h"

#include <cstdint>

namespace sifter {

// A library file that says what the test wants it to.
class VersionInfoFake final : public VersionInfo {
 public:
  Text description = u"Tarvenn Software Row Sifter";
  Text copyright = u"Copyright \u00A9 Tarvenn Software";
  std::uint16_t majorVersion = 1;
  std::uint16_t minorVersion = 0;

  Text FileDescription() const override { return description; }
  Text LegalCopyright() const override { return copyright; }
  std::uint16_t MajorVersion() const override { return majorVersion; }
  std::uint16_t MinorVersion() const override { return minorVersion; }
};

}  // namespace sifter
