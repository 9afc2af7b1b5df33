#pragma once

#include <string>
#include <vector>
#include <windows.h>

namespace sifter {

// One entry of the registry's class tree.
struct RegistryRow {
  std::wstring key;   // below Software\Classes
  std::wstring name;  // "" for the key's default value
  std::wstring data;
  bool isKeyOnly = false;  // there is no value, the key says it all
  bool isShared = false;   // the library for the other bitness writes the same
};

// All entries that the library consists of, in the order in which they are written. Categories are
// the platform's own manager's to write where it can.
std::vector<RegistryRow> RegistrationRows();
std::vector<RegistryRow> CategoryRows();

// For all users; where that is refused, nothing stays there and the entries are the user's own.
// The platform's code as an error when neither takes them.
void RegisterLibrary();

// Removes what was written, wherever it was; what others have added stays, and what both bitnesses
// share goes with the last of them. Harmless when there is nothing.
void UnregisterLibrary();

}  // namespace sifter
