#pragma once

#include "library/Registration.h"
#include "win32/LocaleWatch.h"

#include <string>
#include <windows.h>

namespace sifter {

// The classes of one hive of the registry: those of the machine or those of the user.
class RegistryTree {
 public:
  // HKEY_LOCAL_MACHINE or HKEY_CURRENT_USER.
  explicit RegistryTree(HKEY hive) noexcept : hive_(hive) {}

  // Errors come out, with the platform's code.
  void Write(const RegistryRow& row) const;

  // The value, then the key and those above it that are empty now. What isn't there is no error.
  void Remove(const RegistryRow& row) const;

  // Whether there is anything below a key.
  bool HasKeysBelow(const std::wstring& key) const;

 private:
  // A key and those above it, up to the first that holds something.
  void RemoveIfEmpty(std::wstring key) const;
  // False when it holds something.
  bool RemoveOneIfEmpty(const std::wstring& key) const;

  HKEY hive_;
};

}  // namespace sifter
