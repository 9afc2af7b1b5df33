#include "library/Registration.h"

#include "base/AbsorbErrors.h"
#include "base/RuntimeError.h"
#include "library/ControlCategories.h"
#include "library/RegistryTree.h"

#include <algorithm>

namespace sifter {

namespace {

void WriteAll(HKEY hive, const std::vector<RegistryRow>& rows) {
  const RegistryTree tree(hive);
  for (const RegistryRow& row : rows) tree.Write(row);
}

// "TypeLib\{...}\1.0\0", whose keys are the bitnesses that the library is registered for.
std::wstring PlatformsKey(const std::vector<RegistryRow>& rows) {
  const auto isPlatform = [](const RegistryRow& row) {
    return row.key.starts_with(L"TypeLib\\") && !row.isShared;
  };
  const auto found = std::find_if(rows.begin(), rows.end(), isPlatform);
  return found->key.substr(0, found->key.rfind(L'\\'));
}

void RemoveAll(HKEY hive, const std::vector<RegistryRow>& rows) {
  const RegistryTree tree(hive);
  const std::wstring platforms = PlatformsKey(rows);
  for (const RegistryRow& row : CategoryRows()) tree.Remove(row);
  for (const RegistryRow& row : rows)
    if (!row.isShared) tree.Remove(row);
  if (tree.HasKeysBelow(platforms)) return;
  for (const RegistryRow& row : rows)
    if (row.isShared) tree.Remove(row);
}

void WriteForMachine(const std::vector<RegistryRow>& rows) {
  WriteAll(HKEY_LOCAL_MACHINE, rows);
  EnterCategories();
}

// The platform's manager of categories knows the machine's classes only.
void WriteForUser(const std::vector<RegistryRow>& rows) {
  WriteAll(HKEY_CURRENT_USER, rows);
  WriteAll(HKEY_CURRENT_USER, CategoryRows());
}

// What can't be taken back where nothing could be written is no news.
void TakeBack(HKEY hive, const std::vector<RegistryRow>& rows) {
  AbsorbErrors([&] { RemoveAll(hive, rows); });
}

}  // namespace

void RegisterLibrary() {
  const std::vector<RegistryRow> rows = RegistrationRows();
  try {
    WriteForMachine(rows);
    return;
  } catch (const RuntimeError&) {
    TakeBack(HKEY_LOCAL_MACHINE, rows);
  }
  try {
    WriteForUser(rows);
  } catch (const RuntimeError&) {
    TakeBack(HKEY_CURRENT_USER, rows);
    throw;
  }
}

void UnregisterLibrary() {
  const std::vector<RegistryRow> rows = RegistrationRows();
  // The user's own first: the machine's may be refused.
  RemoveAll(HKEY_CURRENT_USER, rows);
  LeaveCategories();
  RemoveAll(HKEY_LOCAL_MACHINE, rows);
}

}  // namespace sifter
