#include "Library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {
namespace {

using Lines = std::vector<std::string>;

// The built file, as the loader has laid it out in memory.
class Image {
 public:
  explicit Image(HMODULE module) : base_(reinterpret_cast<const BYTE*>(module)) {}

  template <class T>
  const T* At(DWORD offset) const {
    return reinterpret_cast<const T*>(base_ + offset);
  }

  const IMAGE_DATA_DIRECTORY& Directory(int index) const {
    const auto* const dos = At<IMAGE_DOS_HEADER>(0);
    const auto* const head = At<IMAGE_NT_HEADERS>(static_cast<DWORD>(dos->e_lfanew));
    return head->OptionalHeader.DataDirectory[index];
  }

 private:
  const BYTE* base_;
};

Lines ExportsOf(const Image& image) {
  const auto* const exported = image.At<IMAGE_EXPORT_DIRECTORY>(
      image.Directory(IMAGE_DIRECTORY_ENTRY_EXPORT).VirtualAddress);
  EXPECT_EQ(exported->NumberOfFunctions, exported->NumberOfNames) << "some have no name";
  Lines names;
  for (DWORD i = 0; i < exported->NumberOfNames; ++i)
    names.push_back(image.At<char>(image.At<DWORD>(exported->AddressOfNames)[i]));
  return names;
}

Lines ImportedFilesOf(const Image& image) {
  Lines files;
  const auto* imported = image.At<IMAGE_IMPORT_DESCRIPTOR>(
      image.Directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress);
  for (; imported->Name != 0; ++imported) {
    std::string file = image.At<char>(imported->Name);
    std::transform(file.begin(), file.end(), file.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    files.push_back(file);
  }
  std::sort(files.begin(), files.end());
  return files;
}

TEST(Exports, AreTheFourOfEveryComponent) {
  EXPECT_EQ(
      ExportsOf(Image(Library::Built().Module())),
      (Lines{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(Imports, AreTheSystemsOwnLibraries) {
  const Lines system = {"advapi32.dll", "comctl32.dll", "gdi32.dll",    "kernel32.dll",
                        "msvcrt.dll",   "ole32.dll",    "oleaut32.dll", "user32.dll",
                        "uxtheme.dll",  "version.dll"};
  for (const std::string& file : ImportedFilesOf(Image(Library::Built().Module())))
    EXPECT_TRUE(std::find(system.begin(), system.end(), file) != system.end()) << file;
}

}  // namespace
}  // namespace sifter
