#include "IconSizes.h"
#include "Library.h"
#include "win32/UniqueGdi.h"
#include "win32/WideText.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {
namespace {

class VersionResource {
 public:
  VersionResource() {
    const std::wstring& file = Library::Built().Path();
    DWORD unused = 0;
    bytes_.resize(GetFileVersionInfoSizeW(file.c_str(), &unused));
    EXPECT_FALSE(bytes_.empty());
    GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(bytes_.size()), bytes_.data());
  }

  // In the language that the resource names; "none" for a name that it hasn't got.
  std::string TextNamed(const wchar_t* name) const {
    void* text = nullptr;
    UINT length = 0;
    const std::wstring path = std::wstring(L"\\StringFileInfo\\040904b0\\") + name;
    if (!VerQueryValueW(bytes_.data(), path.c_str(), &text, &length)) return "none";
    return FromWide(static_cast<const wchar_t*>(text)).ToUtf8();
  }

  VS_FIXEDFILEINFO Fixed() const {
    void* fixed = nullptr;
    UINT size = 0;
    if (!VerQueryValueW(bytes_.data(), L"\\", &fixed, &size)) return {};
    return *static_cast<const VS_FIXEDFILEINFO*>(fixed);
  }

 private:
  std::vector<BYTE> bytes_;
};

TEST(VersionResource, SaysWhatTheComponentIs) {
  const VersionResource version;
  const VS_FIXEDFILEINFO fixed = version.Fixed();
  EXPECT_EQ(fixed.dwFileVersionMS, 0x00010000u);
  EXPECT_EQ(fixed.dwFileVersionLS, 6u);
  EXPECT_EQ(version.TextNamed(L"FileVersion"), "1.00.0006");
  EXPECT_EQ(version.TextNamed(L"FileDescription"), "Tarvenn Software Row Sifter");
  EXPECT_EQ(version.TextNamed(L"LegalCopyright"), "Copyright \xC2\xA9 2026 Tarvenn Software");
  EXPECT_EQ(version.TextNamed(L"OriginalFilename"), "TSRowSifter.ocx");
}

// Some hosts load no component without this entry, which needs no text.
TEST(VersionResource, SaysThatTheComponentRegistersItself) {
  EXPECT_EQ(VersionResource().TextNamed(L"OLESelfRegister"), "");
}

class ToolboxBitmap : public testing::TestWithParam<int> {};

TEST_P(ToolboxBitmap, IsASmallPictureInSeveralColours) {
  const UniqueBitmap picture(
      static_cast<HBITMAP>(LoadImageW(Library::Built().Module(), MAKEINTRESOURCEW(GetParam()),
                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  ASSERT_TRUE(picture);
  BITMAP size{};
  ASSERT_NE(GetObjectW(picture.Get(), sizeof size, &size), 0);
  EXPECT_EQ(size.bmWidth, 16);
  EXPECT_EQ(size.bmHeight, 16);

  const UniqueMemoryDc context(CreateCompatibleDC(nullptr));
  const SelectedObject selected(context.Get(), picture.Get());
  std::set<COLORREF> colours;
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) colours.insert(GetPixel(context.Get(), x, y));
  EXPECT_GE(colours.size(), 4u);
}

INSTANTIATE_TEST_SUITE_P(OfBothControls, ToolboxBitmap, testing::Values(101, 102));

TEST(OwnPictures, AreInTheComponentInSizesFor96To288DotsToTheInch) {
  const std::vector<int> sizes = {16, 20, 24, 28, 32, 40, 48};
  for (const wchar_t* const key : {L"FilterEmpty", L"FilterFull", L"print"})
    EXPECT_EQ(IconSizes(Library::Built().Module(), key), sizes) << FromWide(key).ToUtf8();
}

}  // namespace
}  // namespace sifter
