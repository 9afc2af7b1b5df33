#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace sifter {

// A folder of the running test's own, gone with its files when the test ends. Names and contents
// are UTF-8.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    path_ =
        std::filesystem::temp_directory_path() / (std::string("sift-") + test->test_suite_name() +
                                                  '-' + test->name() + '-' + std::to_string(now));
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string PathOf(const std::string& name) const { return Utf8(Joined(name)); }

  // Writes a file and gives its path.
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream file(Joined(name), std::ios::binary);
    file << bytes;
    return PathOf(name);
  }

  // The bytes of a file, "" when it isn't there.
  std::string Read(const std::string& name) const {
    std::ifstream file(Joined(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  static std::string Utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  }
  std::filesystem::path Joined(const std::string& name) const {
    return path_ / std::filesystem::path(std::u8string(name.begin(), name.end()));
  }

  std::filesystem::path path_;
};

}  // namespace sifter
