#include "demo/FileWords.h"

#include "container/Bstr.h"

#include <commctrl.h>
#include <map>
#include <oleauto.h>
#include <shellapi.h>

namespace hosts {

namespace {

constexpr UINT kByNameAlone = SHGFI_USEFILEATTRIBUTES;

FileKind AskForKind(const std::wstring& name, DWORD attributes) {
  SHFILEINFOW info{};
  SHGetFileInfoW(name.c_str(), attributes, &info, sizeof info,
                 kByNameAlone | SHGFI_TYPENAME | SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
  return {info.szTypeName, info.iIcon};
}

struct AttributeLetter {
  DWORD attribute;
  wchar_t letter;
};

constexpr AttributeLetter kLetters[] = {
    {FILE_ATTRIBUTE_READONLY, L'R'},  {FILE_ATTRIBUTE_HIDDEN, L'H'},
    {FILE_ATTRIBUTE_SYSTEM, L'S'},    {FILE_ATTRIBUTE_DIRECTORY, L'D'},
    {FILE_ATTRIBUTE_ARCHIVE, L'A'},   {FILE_ATTRIBUTE_COMPRESSED, L'C'},
    {FILE_ATTRIBUTE_ENCRYPTED, L'E'}, {FILE_ATTRIBUTE_REPARSE_POINT, L'L'},
    {FILE_ATTRIBUTE_TEMPORARY, L'T'},
};

}  // namespace

FileKind KindOf(const std::wstring& name, DWORD attributes) {
  static std::map<std::wstring, FileKind> known;
  const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  const std::size_t dot = name.rfind(L'.');
  const std::wstring extension = isFolder                    ? L"\\"
                                 : dot == std::wstring::npos ? L""
                                                             : name.substr(dot);
  const auto found = known.find(extension);
  if (found != known.end()) return found->second;
  const DWORD kind = isFolder ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
  return known.emplace(extension, AskForKind(L"x" + extension, kind)).first->second;
}

void UseSystemIcons(HWND listView) {
  SHFILEINFOW info{};
  const DWORD_PTR icons = SHGetFileInfoW(L"x", FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                                         kByNameAlone | SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
  ListView_SetImageList(listView, reinterpret_cast<HIMAGELIST>(icons), LVSIL_SMALL);
}

std::wstring TimeInWords(const FILETIME& time) {
  SYSTEMTIME universal, local;
  double date = 0;
  Bstr words;
  if (!FileTimeToSystemTime(&time, &universal) ||
      !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) ||
      !SystemTimeToVariantTime(&local, &date) ||
      FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, words.Receive())))
    return L"";
  return std::wstring(words.View());
}

std::wstring AttributesInWords(DWORD attributes) {
  std::wstring words;
  for (const auto& [attribute, letter] : kLetters)
    if ((attributes & attribute) != 0) words += letter;
  return words;
}

}  // namespace hosts
