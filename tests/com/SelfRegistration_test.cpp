#include "Library.h"
#include "Process.h"

namespace sifter {

namespace {

// The platform's own program for it, as installers run it.
class SelfRegistration : public ComTest {
 protected:
  static long RegSvr32(const std::wstring& options) {
    return RunProcess(SystemProgram(L"regsvr32.exe") + L" /s " + options + L" \"" +
                      Library::Built().Path() + L"\"")
        .code;
  }
};

TEST_F(SelfRegistration, ComesAndGoesByThePlatformsProgram) {
  EXPECT_EQ(RegSvr32(L"/u"), 0);
  EXPECT_FALSE(Library::Built().IsRegistered());
  EXPECT_EQ(RegSvr32(L"/u"), 0);
  EXPECT_EQ(RegSvr32(L""), 0);
  EXPECT_TRUE(Library::Built().IsRegistered());
  EXPECT_TRUE(Create());
  EXPECT_EQ(RegSvr32(L""), 0);
  EXPECT_TRUE(Library::Built().IsRegistered());
}

}  // namespace

}  // namespace sifter
