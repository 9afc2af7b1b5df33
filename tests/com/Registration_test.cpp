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
constexpr wchar_t kTypeLib[] = L"TypeLib\\{EFFC7555-0D48-4B48-9669-DD0E1CA87F16}";
constexpr wchar_t kInterface[] = L"Interface\\{F89947F5-0046-4809-846B-B94D0AECA64E}";
constexpr wchar_t kEvents[] = L"Interface\\{5E6F693A-1AC1-4B5A-AF34-6C8552CA31CA}";
constexpr wchar_t kBannerInterface[] = L"Interface\\{B1CB62D6-7A50-4416-8400-F32BFB99E1BD}";
constexpr wchar_t kBannerEvents[] = L"Interface\\{45BFB0CA-7662-477A-9677-90195CEFC208}";
constexpr wchar_t kProgram[] = L"RowSifter.TSRowSifter";
constexpr wchar_t kProgramOne[] = L"RowSifter.TSRowSifter.1";

const wchar_t* const kAllKeys[] = {kClass,           kTypeLib,      kInterface, kEvents,
                                   kBannerInterface, kBannerEvents, kProgram,   kProgramOne};

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

TEST_F(Registration, WritesTheClass) {
  ASSERT_EQ(library_.Register(), S_OK);
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kClass),
            (Lines{
                ".",
                ". [] RowSifter.TSRowSifter",
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
                ".\\MiscStatus\\1 [] 135569",
                ".\\ProgID",
                ".\\ProgID [] RowSifter.TSRowSifter.1",
                ".\\Programmable",
                ".\\ToolboxBitmap32",
                ".\\ToolboxBitmap32 [] [file], 101",
                ".\\TypeLib",
                ".\\TypeLib [] {EFFC7555-0D48-4B48-9669-DD0E1CA87F16}",
                ".\\Version",
                ".\\Version [] 1.0",
                ".\\VersionIndependentProgID",
                ".\\VersionIndependentProgID [] RowSifter.TSRowSifter",
            }));
}

TEST_F(Registration, WritesTheNamesThatHostsCreateTheControlBy) {
  ASSERT_EQ(library_.Register(), S_OK);
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kProgram),
            (Lines{".", ". [] RowSifter.TSRowSifter", ".\\CLSID",
                   ".\\CLSID [] {FBF76C43-511B-416B-B6CD-17FBE857CDB5}", ".\\CurVer",
                   ".\\CurVer [] RowSifter.TSRowSifter.1"}));
  EXPECT_EQ(TreeOf(HKEY_LOCAL_MACHINE, kProgramOne),
            (Lines{".", ". [] RowSifter.TSRowSifter", ".\\CLSID",
                   ".\\CLSID [] {FBF76C43-511B-416B-B6CD-17FBE857CDB5}"}));
  for (const wchar_t* const name : {kProgram, kProgramOne}) {
    CLSID id{};
    EXPECT_EQ(CLSIDFromProgID(name, &id), S_OK);
    EXPECT_EQ(id, library_.IdOf(L"TSRowSifter"));
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
       {L"RowSifter.HookClass", L"RowSifter.frmFilter", L"RowSifter.TSLvwBannerFilter"}) {
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
