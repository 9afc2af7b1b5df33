#include "win32/ModuleVersionInfo.h"

#include "win32/ThisModule.h"
#include "win32/WideText.h"

#include <cstddef>
#include <cwchar>
#include <iterator>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

namespace {

std::wstring ModuleFile() {
  std::wstring file(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(ThisModule(), file.data(), static_cast<DWORD>(file.size()));
    if (length < file.size()) {
      file.resize(length);
      return file;
    }
    file.resize(file.size() * 2);
  }
}

// The version resource of a file, or nothing.
class VersionResource {
 public:
  explicit VersionResource(const std::wstring& file) {
    DWORD unused = 0;
    bytes_.resize(GetFileVersionInfoSizeW(file.c_str(), &unused));
    if (!bytes_.empty() &&
        !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(bytes_.size()), bytes_.data()))
      bytes_.clear();
  }

  // In the language that the file names first, which is its own.
  Text TextNamed(const wchar_t* name) const {
    struct Language {
      WORD language;
      WORD codePage;
    };
    UINT size = 0;
    const auto* first = Part<Language>(L"\\VarFileInfo\\Translation", size);
    if (first == nullptr || size < sizeof(Language)) return {};
    wchar_t block[sizeof "\\StringFileInfo\\00000000\\"];
    std::swprintf(block, std::size(block), L"\\StringFileInfo\\%04x%04x\\",
                  static_cast<unsigned>(first->language), static_cast<unsigned>(first->codePage));
    UINT length = 0;
    const auto* text = Part<wchar_t>(std::wstring(block) + name, length);
    if (text == nullptr) return {};
    const std::wstring_view withEnd(text, length);
    return FromWide(withEnd.substr(0, withEnd.find(L'\0')));
  }

  // The major version in the upper half, the minor version in the lower one.
  DWORD FileVersion() const {
    UINT size = 0;
    const auto* fixed = Part<VS_FIXEDFILEINFO>(L"\\", size);
    return fixed == nullptr || size < sizeof(VS_FIXEDFILEINFO) ? 0 : fixed->dwFileVersionMS;
  }

 private:
  // Points into the resource; null if there is no such part. The size of a text counts its
  // characters, that of anything else bytes.
  template <class T>
  const T* Part(const std::wstring& path, UINT& size) const {
    void* part = nullptr;
    if (bytes_.empty() || !VerQueryValueW(bytes_.data(), path.c_str(), &part, &size))
      return nullptr;
    return static_cast<const T*>(part);
  }

  std::vector<std::byte> bytes_;
};

}  // namespace

Text ModuleVersionInfo::FileDescription() const {
  return VersionResource(ModuleFile()).TextNamed(L"FileDescription");
}

Text ModuleVersionInfo::LegalCopyright() const {
  return VersionResource(ModuleFile()).TextNamed(L"LegalCopyright");
}

std::uint16_t ModuleVersionInfo::MajorVersion() const {
  return HIWORD(VersionResource(ModuleFile()).FileVersion());
}

std::uint16_t ModuleVersionInfo::MinorVersion() const {
  return LOWORD(VersionResource(ModuleFile()).FileVersion());
}

}  // namespace sifter
