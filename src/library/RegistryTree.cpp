#include "library/RegistryTree.h"

#include "win32/Errors.h"

#include <algorithm>
#include <iterator>

namespace sifter {

namespace {

// Everybody's classes are below these.
constexpr const wchar_t* kCommonKeys[] = {L"CLSID", L"Interface", L"TypeLib"};

std::wstring PathOf(const std::wstring& key) { return L"Software\\Classes\\" + key; }

bool IsMissing(LSTATUS status) {
  return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

void ThrowIfRefused(LSTATUS status) {
  if (status != ERROR_SUCCESS)
    throw ErrorFromResult(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

bool IsCommon(const std::wstring& key) {
  return std::find(std::begin(kCommonKeys), std::end(kCommonKeys), key) != std::end(kCommonKeys);
}

}  // namespace

void RegistryTree::Write(const RegistryRow& row) const {
  HKEY opened = nullptr;
  ThrowIfRefused(RegCreateKeyExW(hive_, PathOf(row.key).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                 &opened, nullptr));
  const UniqueRegistryKey key(opened);
  if (row.isKeyOnly) return;
  const auto* const bytes = reinterpret_cast<const BYTE*>(row.data.c_str());
  const auto size = static_cast<DWORD>((row.data.size() + 1) * sizeof(wchar_t));
  ThrowIfRefused(RegSetValueExW(key.Get(), row.name.c_str(), 0, REG_SZ, bytes, size));
}

void RegistryTree::Remove(const RegistryRow& row) const {
  if (!row.isKeyOnly) {
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExW(hive_, PathOf(row.key).c_str(), 0, KEY_SET_VALUE, &opened);
    if (IsMissing(status)) return;
    ThrowIfRefused(status);
    const UniqueRegistryKey key(opened);
    const LSTATUS deleted = RegDeleteValueW(key.Get(), row.name.c_str());
    if (!IsMissing(deleted)) ThrowIfRefused(deleted);
  }
  RemoveIfEmpty(row.key);
}

void RegistryTree::RemoveIfEmpty(std::wstring key) const {
  while (!key.empty() && !IsCommon(key)) {
    if (!RemoveOneIfEmpty(key)) return;
    const std::size_t end = key.rfind(L'\\');
    key.resize(end == std::wstring::npos ? 0 : end);
  }
}

bool RegistryTree::RemoveOneIfEmpty(const std::wstring& key) const {
  HKEY opened = nullptr;
  const LSTATUS status = RegOpenKeyExW(hive_, PathOf(key).c_str(), 0, KEY_READ, &opened);
  if (IsMissing(status)) return true;
  ThrowIfRefused(status);
  UniqueRegistryKey held(opened);
  DWORD keys = 0;
  DWORD values = 0;
  ThrowIfRefused(RegQueryInfoKeyW(held.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr,
                                  &values, nullptr, nullptr, nullptr, nullptr));
  if (keys != 0 || values != 0) return false;
  held.Reset();
  ThrowIfRefused(RegDeleteKeyW(hive_, PathOf(key).c_str()));
  return true;
}

bool RegistryTree::HasKeysBelow(const std::wstring& key) const {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(hive_, PathOf(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
    return false;
  const UniqueRegistryKey held(opened);
  DWORD keys = 0;
  return RegQueryInfoKeyW(held.Get(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr,
                          nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS &&
         keys != 0;
}

}  // namespace sifter
