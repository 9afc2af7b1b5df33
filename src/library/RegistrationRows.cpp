#include "library/ControlCategories.h"
#include "library/ControlClass.h"
#include "library/Module.h"
#include "library/Registration.h"
#include "library/TypeLibrary.h"
#include "win32/Errors.h"
#include "win32/UniqueBstr.h"
#include "win32/WideText.h"

#include <map>
#include <objbase.h>
#include <oleauto.h>

namespace sifter {

namespace {

constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";

enum class Sharing { kOwn, kShared };

// A row with names in it that stand for what differs from class to class.
struct RowPattern {
  const wchar_t* key;
  const wchar_t* name;
  const wchar_t* data;  // null: the key says it all
  Sharing sharing = Sharing::kOwn;
};

constexpr RowPattern kClassRows[] = {
    {L"CLSID\\%CLSID%", L"", L"%NAME%"},
    {L"CLSID\\%CLSID%\\Control", L"", nullptr},
    {L"CLSID\\%CLSID%\\InprocServer32", L"", L"%FILE%"},
    {L"CLSID\\%CLSID%\\InprocServer32", L"ThreadingModel", L"Apartment"},
    {L"CLSID\\%CLSID%\\MiscStatus", L"", L"0"},
    {L"CLSID\\%CLSID%\\MiscStatus\\1", L"", L"%STATUS%"},
    {L"CLSID\\%CLSID%\\ProgID", L"", L"%NAME%.1"},
    {L"CLSID\\%CLSID%\\Programmable", L"", nullptr},
    {L"CLSID\\%CLSID%\\ToolboxBitmap32", L"", L"%FILE%, %BITMAP%"},
    {L"CLSID\\%CLSID%\\TypeLib", L"", L"%LIBID%"},
    {L"CLSID\\%CLSID%\\Version", L"", L"%VERSION%"},
    {L"CLSID\\%CLSID%\\VersionIndependentProgID", L"", L"%NAME%"},
    {L"%NAME%", L"", L"%NAME%", Sharing::kShared},
    {L"%NAME%\\CLSID", L"", L"%CLSID%", Sharing::kShared},
    {L"%NAME%\\CurVer", L"", L"%NAME%.1", Sharing::kShared},
    {L"%NAME%.1", L"", L"%NAME%", Sharing::kShared},
    {L"%NAME%.1\\CLSID", L"", L"%CLSID%", Sharing::kShared},
};

constexpr RowPattern kLibraryRows[] = {
    {L"TypeLib\\%LIBID%\\%VERSION%", L"", L"%HELP%", Sharing::kShared},
    {L"TypeLib\\%LIBID%\\%VERSION%\\0\\%PLATFORM%", L"", L"%FILE%"},
    {L"TypeLib\\%LIBID%\\%VERSION%\\FLAGS", L"", L"%FLAGS%", Sharing::kShared},
    {L"TypeLib\\%LIBID%\\%VERSION%\\HELPDIR", L"", L"%FOLDER%", Sharing::kShared},
};

constexpr RowPattern kInterfaceRows[] = {
    {L"Interface\\%IID%", L"", L"%INTERFACE%"},
    {L"Interface\\%IID%\\ProxyStubClsid32", L"", L"%PROXY%"},
    {L"Interface\\%IID%\\TypeLib", L"", L"%LIBID%"},
    {L"Interface\\%IID%\\TypeLib", L"Version", L"%VERSION%"},
};

constexpr RowPattern kCategoryRow = {L"CLSID\\%CLSID%\\Implemented Categories\\%CATEGORY%", L"",
                                     nullptr};

// The platform's own go-betweens for interfaces that a type library describes.
constexpr wchar_t kDualProxy[] = L"{00020424-0000-0000-C000-000000000046}";
constexpr wchar_t kDispatchProxy[] = L"{00020420-0000-0000-C000-000000000046}";

using Meanings = std::map<std::wstring, std::wstring>;

std::wstring Expand(std::wstring_view pattern, const Meanings& meanings) {
  std::wstring text;
  while (!pattern.empty()) {
    const std::size_t begin = pattern.find(L'%');
    text += pattern.substr(0, begin);
    if (begin == std::wstring_view::npos) break;
    const std::size_t end = pattern.find(L'%', begin + 1);
    text += meanings.at(std::wstring(pattern.substr(begin + 1, end - begin - 1)));
    pattern.remove_prefix(end + 1);
  }
  return text;
}

RegistryRow Expand(const RowPattern& pattern, const Meanings& meanings) {
  RegistryRow row;
  row.key = Expand(std::wstring_view(pattern.key), meanings);
  row.name = pattern.name;
  row.isKeyOnly = pattern.data == nullptr;
  if (!row.isKeyOnly) row.data = Expand(std::wstring_view(pattern.data), meanings);
  row.isShared = pattern.sharing == Sharing::kShared;
  return row;
}

std::wstring GuidText(REFGUID id) {
  wchar_t text[39];
  StringFromGUID2(id, text, 39);
  return text;
}

std::wstring HelpOf(ITypeLib& library) {
  UniqueBstr help;
  ThrowIfFailed(library.GetDocumentation(-1, nullptr, help.Receive(), nullptr, nullptr));
  return Wide(help.View());
}

Meanings LibraryMeanings(ITypeLib& library) {
  const std::wstring file = ModulePath();
  TLIBATTR* attributes = nullptr;
  ThrowIfFailed(library.GetLibAttr(&attributes));
  Meanings meanings = {
      {L"LIBID", GuidText(attributes->guid)},
      {L"VERSION", std::to_wstring(attributes->wMajorVerNum) + L"." +
                       std::to_wstring(attributes->wMinorVerNum)},
      {L"FLAGS", std::to_wstring(attributes->wLibFlags & ~LIBFLAG_FHASDISKIMAGE)},
      {L"PLATFORM", kPlatform},
      {L"HELP", HelpOf(library)},
      {L"FILE", file},
      {L"FOLDER", file.substr(0, file.find_last_of(L"\\/"))},
  };
  library.ReleaseTLibAttr(attributes);
  return meanings;
}

void AddClass(const ControlClass& made, Meanings meanings, std::vector<RegistryRow>& rows) {
  meanings[L"CLSID"] = GuidText(*made.classId);
  meanings[L"NAME"] = std::wstring(L"RowSifter.") + made.name;
  meanings[L"STATUS"] = std::to_wstring(made.miscStatus);
  meanings[L"BITMAP"] = std::to_wstring(made.toolboxBitmap);
  for (const RowPattern& pattern : kClassRows) rows.push_back(Expand(pattern, meanings));
}

void AddInterface(ITypeLib& library, UINT index, Meanings meanings,
                  std::vector<RegistryRow>& rows) {
  TYPEKIND kind = TKIND_MAX;
  ThrowIfFailed(library.GetTypeInfoType(index, &kind));
  if (kind != TKIND_DISPATCH && kind != TKIND_INTERFACE) return;
  ComRef<ITypeInfo> information;
  ThrowIfFailed(library.GetTypeInfo(index, information.Receive()));
  UniqueBstr name;
  ThrowIfFailed(
      library.GetDocumentation(static_cast<INT>(index), name.Receive(), nullptr, nullptr, nullptr));
  TYPEATTR* attributes = nullptr;
  ThrowIfFailed(information->GetTypeAttr(&attributes));
  const bool dual = (attributes->wTypeFlags & (TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION)) != 0;
  meanings[L"IID"] = GuidText(attributes->guid);
  information->ReleaseTypeAttr(attributes);
  meanings[L"INTERFACE"] = Wide(name.View());
  meanings[L"PROXY"] = dual ? kDualProxy : kDispatchProxy;
  for (const RowPattern& pattern : kInterfaceRows) rows.push_back(Expand(pattern, meanings));
}

}  // namespace

std::vector<RegistryRow> RegistrationRows() {
  const ComRef<ITypeLib> library = OwnTypeLibrary();
  const Meanings meanings = LibraryMeanings(*library.Get());
  std::vector<RegistryRow> rows;
  for (const ControlClass& made : CreatableClasses()) AddClass(made, meanings, rows);
  for (const RowPattern& pattern : kLibraryRows) rows.push_back(Expand(pattern, meanings));
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i)
    AddInterface(*library.Get(), i, meanings, rows);
  return rows;
}

std::vector<RegistryRow> CategoryRows() {
  std::vector<RegistryRow> rows;
  for (const ControlClass& made : CreatableClasses())
    for (const GUID& category : ControlCategories())
      rows.push_back(Expand(
          kCategoryRow, {{L"CLSID", GuidText(*made.classId)}, {L"CATEGORY", GuidText(category)}}));
  return rows;
}

}  // namespace sifter
