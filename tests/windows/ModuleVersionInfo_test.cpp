#include "win32/ModuleVersionInfo.h"

#include "about/frmAbout.h"

#include <gtest/gtest.h>

namespace sifter {

namespace {

// What it has to find stands in version.rc.

TEST(ModuleVersionInfo, TextsAreThoseOfTheFirstLanguage) {
  const ModuleVersionInfo version;
  EXPECT_EQ(version.FileDescription(), u"Tests of Row Sifter for Windows");
  EXPECT_EQ(version.LegalCopyright(),
            u"Copyright \u00A9 Tarvenn Software, Z\u00FCrich \u6771\u4EAC");
}

TEST(ModuleVersionInfo, NumbersAreThoseOfTheFileAndNotOfTheProduct) {
  const ModuleVersionInfo version;
  EXPECT_EQ(version.MajorVersion(), 1);
  EXPECT_EQ(version.MinorVersion(), 6);
  EXPECT_EQ(VersionLine(version.MajorVersion(), version.MinorVersion()), u"Version 1.06");
}

}  // namespace

}  // namespace sifter
