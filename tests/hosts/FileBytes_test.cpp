#include "sift/FileBytes.h"

#include "TemporaryFolder.h"
#include "sift/UserError.h"

#include <gtest/gtest.h>

namespace sifter {
namespace {

std::string ErrorOf(const std::string& name) {
  try {
    ReadAllBytes(name);
  } catch (const UserError& error) {
    return error.what();
  }
  return "nothing";
}

TEST(ReadAllBytes, ReadsAFileAsItIs) {
  const TemporaryFolder folder;
  std::string bytes;
  for (int i = 0; i < 3'000'000; ++i) bytes += static_cast<char>(i % 251);
  for (const std::string& content : {std::string(), std::string("a\r\nb\n\x1A\0c", 8), bytes})
    EXPECT_TRUE(ReadAllBytes(folder.Write("x.csv", content)) == content) << content.size();
}

TEST(ReadAllBytes, FindsNamesBeyondAscii) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadAllBytes(folder.Write("Bäume-漢.csv", "a\n")), "a\n");
}

TEST(ReadAllBytes, SaysWhichFileCannotBeRead) {
  const TemporaryFolder folder;
  const std::string missing = folder.PathOf("none.csv");
  EXPECT_EQ(ErrorOf(missing), "cannot read " + missing + ": No such file or directory");
  EXPECT_EQ(ErrorOf(folder.PathOf("")).rfind("cannot read " + folder.PathOf("") + ": ", 0), 0u);
}

TEST(DisplayName, CallsTheStandardInputByItsName) {
  EXPECT_EQ(DisplayName("-"), "the standard input");
  EXPECT_EQ(DisplayName("t.csv"), "t.csv");
}

}  // namespace
}  // namespace sifter
