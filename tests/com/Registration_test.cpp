#include "Library.h"
#include "win32/LocaleWatch.h"
#include "win32/WideText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <objbase.h>
#include <string>
#include <vector>
#include <windows.h>

namespace sifter {
namespace {

using Lines = std::vector<std::string>;

constexpr wchar_t kClass[] = L"CLSID\\{FBF76C43-511B-416B-B6CD-17FBE857CDB5}";
constexpr wchar_t kBannerClass[] = L"CLSID\\{691EA617-5310-4E5D-8CC2-A63ADF702018}";
constexpr wchar_t kTypeLib[] = L"TypeLib\\{EFFC7555-0D48-4B48-9669-DD0E1CA87F16}";
constexpr wchar_t kInterface[] = L"Interface\\{F89947F5-0046-4809-846B-B94D0AECA64E}";
constexpr wchar_t kEvents[] = L"Interface\\{5E6F693A-1AC1-4B5A-AF34-6C8552CA31CA}";
constexpr wchar_t kBannerInterface[] = L"Interface\\{B1CB62D6-7A50-4416-8400-F32BFB99E1BD}";
constexpr wchar_t kBannerEvents[] = L"Interface\\{45BFB0CA-7662-477A-9677-90195CEFC208}";
constexpr wchar_t kProgram[] = L"RowSifter.TSRowSifter";
constexpr wchar_t kProgramOne[] = L"RowSifter.TSRowSifter.1";
constexpr wchar_t kBannerProgram[] = L"RowSifter.TSLvwBannerFilter";
constexpr wchar_t kBannerProgramOne[] = L"RowSifter.TSLvwBannerFilter.1";

const wchar_t* const kAllKeys[] = {
    kClass,        kBannerClass, kTypeLib,    kInterface,     kEvents,           kBannerInterface,
    kBannerEvents, kProgram,     kProgramOne, kBannerProgram, kBannerProgramOne,
};

#ifdef _WIN64
constexpr char kPlatform[] = "win64";
constexpr wchar_t kOtherPlatform[] = L"win32";
#else
constexpr char kPlatform[] = "win32";
constexpr wchar_t kOtherPlatform[] = L"win64";
#endif

std::wstring PathOf(const std::wstring& key) { return L"Software\\Classes\\" + key; }

void Replace(std::string& text, const std::string& what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at))
    text.replace(at, what.size(), by);
}

// The component's own places are told as [file] and [folder].
std::string Scrubbed(const std::wstring& data) {
  const std::wstring& file = Library::Built().Path();
  std::string text = FromWide(data).ToUtf8();
  Replace(text, FromWide(file).ToUtf8(), "[file]");
  Replace(text, FromWide(file.substr(0, file.rfind(L'\\'))).ToUtf8(), "[folder]");
  return text;
}

void AddValues(HKEY key, const std::string& path, Lines& lines) {
  wchar_t name[256];
  wchar_t data[1024];
  for (DWORD i = 0;; ++i) {
    DWORD nameSize = 256;
    DWORD dataSize = sizeof data - sizeof(wchar_t);
    DWORD type = 0;
    if (RegEnumValueW(key, i, name, &nameSize, nullptr, &type, reinterpret_cast<BYTE*>(data),
                      &dataSize) != ERROR_SUCCESS)
      return;
    data[dataSize / sizeof(wchar_t)] = L'\0';
    lines.push_back(path + " [" + FromWide(name).ToUtf8() + "] " + Scrubbed(data));
  }
}

void AddKey(HKEY hive, const std::wstring& key, const std::string& path, Lines& lines) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(hive, PathOf(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
  const UniqueRegistryKey held(opened);
  lines.push_back(path);
  AddValues(opened, path, lines);
  wchar_t name[256];
  std::vector<std::wstring> below;
  for (DWORD i = 0; RegEnumKeyW(opened, i, name, 256) == ERROR_SUCCESS; ++i) below.push_back(name);
  std::sort(below.begin(), below.end());
  for (const std::wstring& each : below)
    AddKey(hive, key + L"\\" + each, path + "\\" + FromWide(each).ToUtf8(), lines);
}

// Everything below a key; nothing when it isn't there.
Lines TreeOf(HKEY hive, const std::wstring& key) {
  Lines lines;
  AddKey(hive, key, ".", lines);
  return lines;
}

Lines AllOf(HKEY hive) {
  Lines all;
  for (const wchar_t* const key : kAllKeys) {
    const Lines lines = TreeOf(hive, key);
    all.insert(all.end(), lines.begin(), lines.end());
  }
  return all;
}

class Registration : public testing::Test {
 protected:
  Registration() { EXPECT_EQ(library_.Unregister(), S_OK); }
  ~Registration() override { EXPECT_EQ(library_.Unregister(), S_OK); }

  const Library& library_ = Library::Built();
};

// What a class has below its identity.
Lines ClassTree(const std::string& name, const std::string& status, const std::string& bitmap) {
  return {
      ".",
      ". [] " + name,
      ".\\Control",
      ".\\Implemented Categories",
      ".\\Implemented Categories\\{0DE86A52-2BAA-11CF-A229-00AA003D7352}",
      ".\\Implemented Categories\\{0DE86A53-2BAA-11CF-A229-00AA003D7352}",
      ".\\Implemented Categories\\{0DE86A57-2BAA-11CF-A229-00AA003D7352}",
      ".\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}",
      ".\\Implemented Categories\\{40FC6ED5-2438-11CF-A3DB-080036F12502}",
      ".\\InprocServer32",
      ".\\InprocServer32 [] [file]",
      ".\\InprocServer32 [ThreadingModel] Apartment",
      ".\\MiscStatus",
      ".\\MiscStatus [] 0",
      ".\\MiscStatus\\1",
      ".\\MiscStatus\\1 [] " + status,
      ".\\ProgID",
      ".\\ProgID [] " + name + ".1",
      ".\\Programmable",
      ".\\ToolboxBitmap32",
      ".\\ToolboxBitmap32 [] [file], " + bitmap,
      ".\\TypeLib",
      ".\\TypeLib [] {EFFC7555-0D48-4B48-9669-DD0E1CA87F16}",
      ".\\Version",
      ".\\Version [] 1.0",
      ".\\VersionIndependentProgID",
      ".\\VersionIndependentProgID [] " + name,
  };
}

TEST_F(Registration, WritesTheClasses) {
  ASSERT_EQ(library_.Register(), S_OK);
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kClass),
            ClassTree("RowSifter.TSRowSifter", "135569", "101"));
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kBannerClass),
            ClassTree("RowSifter.TSLvwBannerFilter", "131473", "102"));
}

TEST_F(Registration, WritesTheNamesThatHostsCreateTheControlsBy) {
  ASSERT_EQ(library_.Register(), S_OK);
  const struct {
    const wchar_t* type;
    const char* id;
  } controls[] = {{kSifter, "{FBF76C43-511B-416B-B6CD-17FBE857CDB5}"},
                  {kBanner, "{691EA617-5310-4E5D-8CC2-A63ADF702018}"}};
  for (const auto& control : controls) {
    const std::wstring program = std::wstring(L"RowSifter.") + control.type;
    const std::string name = FromWide(program).ToUtf8();
    const std::string id = std::string(".\\CLSID [] ") + control.id;
    EXPECT_EQ(
        TreeOf(HKEY_LOCAL_MACHINE, program),
        (Lines{".", ". [] " + name, ".\\CLSID", id, ".\\CurVer", ".\\CurVer [] " + name + ".1"}));
    EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, program + L".1"),
              (Lines{".", ". [] " + name, ".\\CLSID", id}));
    for (const std::wstring& each : {program, program + L".1"}) {
      CLSID found{};
      EXPECT_EQ(CLSIDFromProgID(each.c_str(), &found), S_OK);
      EXPECT_EQ(found, library_.IdOf(control.type));
    }
  }
}

TEST_F(Registration, WritesTheTypeLibraryAndItsInterfaces) {
  ASSERT_EQ(library_.Register(), S_OK);
  const std::string platform = std::string(".\\1.0\\0\\") + kPlatform;
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kTypeLib),
            (Lines{".", ".\\1.0", ".\\1.0 [] Tarvenn Software Row Sifter", ".\\1.0\\0", platform,
                   platform + " [] [file]", ".\\1.0\\FLAGS", ".\\1.0\\FLAGS [] 2",
                   ".\\1.0\\HELPDIR", ".\\1.0\\HELPDIR [] [folder]"}));
  const auto interfaceTree = [](const char* name, const char* proxy) {
    return Lines{".",
                 std::string(". [] ") + name,
                 ".\\ProxyStubClsid32",
                 std::string(".\\ProxyStubClsid32 [] ") + proxy,
                 ".\\TypeLib",
                 ".\\TypeLib [] {EFFC7555-0D48-4B48-9669-DD0E1CA87F16}",
                 ".\\TypeLib [Version] 1.0"};
  };
  const char dual[] = "{00020424-0000-0000-C000-000000000046}";
  const char late[] = "{00020420-0000-0000-C000-000000000046}";
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kInterface), interfaceTree("_TSRowSifter", dual));
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kEvents), interfaceTree("__TSRowSifter", late));
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kBannerInterface),
            interfaceTree("_TSLvwBannerFilter", dual));
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kBannerEvents), interfaceTree("__TSLvwBannerFilter", late));
}

TEST_F(Registration, CanBeRepeated) {
  ASSERT_EQ(library_.Register(), S_OK);
  const Lines once = AllOf(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(library_.Register(), S_OK);
  EXPECT_EQ(AllOf(HKEY_LOCAL_MACHINE), once);
}

TEST_F(Registration, LeavesNothingBehind) {
  ASSERT_EQ(library_.Register(), S_OK);
  EXPECT_EQ(library_.Unregister(), S_OK);
  EXPECT_EQ(AllOf(HKEY_LOCAL_MACHINE), Lines{});
  EXPECT_EQ(AllOf(HKEY_CURRENT_USER), Lines{});
  EXPECT_EQ(library_.Unregister(), S_OK);
}

TEST_F(Registration, RegistersNothingPrivate) {
  ASSERT_EQ(library_.Register(), S_OK);
  for (const wchar_t* const name :
       {L"RowSifter.HookClass", L"RowSifter.frmFilter", L"RowSifter.frmAbout"}) {
    CLSID id{};
    EXPECT_NE(CLSIDFromProgID(name, &id), S_OK) << FromWide(name).ToUtf8();
  }
}

class KeyForATest {
 public:
  explicit KeyForATest(const std::wstring& key) : key_(PathOf(key)) {
    HKEY opened = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, key_.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                              &opened, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(opened);
  }
  ~KeyForATest() { RegDeleteKeyW(HKEY_LOCAL_MACHINE, key_.c_str()); }

 private:
  std::wstring key_;
};

TEST_F(Registration, LeavesWhatOthersHaveWritten) {
  ASSERT_EQ(library_.Register(), S_OK);
  const KeyForATest foreign(std::wstring(kClass) + L"\\Foreign");
  EXPECT_EQ(library_.Unregister(), S_OK);
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kClass), (Lines{".", ".\\Foreign"}));
  RegDeleteKeyW(HKEY_LOCAL_MACHINE, PathOf(std::wstring(kClass) + L"\\Foreign").c_str());
  RegDeleteKeyW(HKEY_LOCAL_MACHINE, PathOf(kClass).c_str());
}

TEST_F(Registration, LeavesWhatTheOtherBitnessNeeds) {
  ASSERT_EQ(library_.Register(), S_OK);
  const Lines names = TreeOf(HKEY_LOCAL_MACHINE, kProgram);
  {
    const KeyForATest other(std::wstring(kTypeLib) + L"\\1.0\\0\\" + kOtherPlatform);
    EXPECT_EQ(library_.Unregister(), S_OK);
    EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kProgram), names);
    EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kClass), Lines{});
    EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, std::wstring(kTypeLib) + L"\\1.0\\0"),
              (Lines{".", ".\\" + FromWide(kOtherPlatform).ToUtf8()}));
  }
  EXPECT_EQ(library_.Unregister(), S_OK);
  RegDeleteKeyW(HKEY_LOCAL_MACHINE, PathOf(std::wstring(kTypeLib) + L"\\1.0\\0").c_str());
  EXPECT_EQ(library_.Unregister(), S_OK);
  EXPECT_EQ(AllOf(HKEY_LOCAL_MACHINE), Lines{});
}

// A machine hive that takes no keys: it is a volatile key, in which no lasting one can be made.
class RefusingMachine {
 public:
  RefusingMachine() {
    HKEY opened = nullptr;
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kName, 0, nullptr, REG_OPTION_VOLATILE,
                              KEY_ALL_ACCESS, nullptr, &opened, nullptr),
              ERROR_SUCCESS);
    key_.Reset(opened);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, opened), ERROR_SUCCESS);
  }
  ~RefusingMachine() {
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    key_.Reset();
    RegDeleteKeyW(HKEY_CURRENT_USER, kName);
  }

 private:
  static constexpr wchar_t kName[] = L"RowSifterRefusingMachine";
  UniqueRegistryKey key_;
};

TEST_F(Registration, IsTheUsersOwnWhereTheMachineRefuses) {
  ASSERT_EQ(library_.Register(), S_OK);
  const Lines machine = AllOf(HKEY_LOCAL_MACHINE);
  ASSERT_EQ(library_.Unregister(), S_OK);
  {
    const RefusingMachine refusing;
    EXPECT_EQ(library_.Register(), S_OK);
    EXPECT_EQ(AllOf(HKEY_LOCAL_MACHINE), Lines{});
  }
  EXPECT_EQ(AllOf(HKEY_LOCAL_MACHINE), Lines{});
  EXPECT_EQ(AllOf(HKEY_CURRENT_USER), machine);
  EXPECT_EQ(library_.Unregister(), S_OK);
  EXPECT_EQ(AllOf(HKEY_CURRENT_USER), Lines{});
}

}  // namespace
}  // namespace sifter
