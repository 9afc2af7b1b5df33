#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <windows.h>

namespace hosts {

// A folder of the running test's own, gone with its files when the test ends.
class Folder {
 public:
  Folder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    path_ = std::filesystem::temp_directory_path() /
            (std::string("desktop-") + test->name() + '-' + std::to_string(GetTickCount64()));
    std::filesystem::create_directories(path_);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::wstring Path() const { return path_.wstring(); }
  std::wstring PathOf(const std::wstring& name) const { return (path_ / name).wstring(); }

  std::wstring Write(const std::wstring& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
    return PathOf(name);
  }
  void MakeFolder(const std::wstring& name) const {
    std::filesystem::create_directory(path_ / name);
  }
  void Remove(const std::wstring& name) const { std::filesystem::remove(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace hosts
